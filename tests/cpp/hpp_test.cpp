// zmvip.hpp gives what the functions in C give, for one call of every kind of argument; tiles give the whole; and what
// C could not know to be wrong is refused before it is called.
#include <gtest/gtest.h>

#include <cstring>
#include <future>
#include <random>
#include <string>
#include <vector>

#include "zmvip.hpp"

namespace {

using zmvip::image, zmvip::view, zmvip::keep_alpha, zmvip::channel;

constexpr int width = 61, height = 47;
constexpr ImageSize all = {width, height};

unsigned below2510() {
    static std::mt19937 numbers;
    return unsigned(numbers() % 2510);
}
template <class T, int C = 1>
image<T, C> random(int64_t w = width, int64_t h = height) {
    image<T, C> made(w, h);
    for (int64_t y = 0; y < h; ++y)
        for (int64_t x = 0; x < w * C; ++x) made.row(y)[x] = T(below2510() / T(10));
    return made;
}
template <class T, int C>
image<T, C> copied(const view<T, C>& v) {
    image<T, C> made(v.width(), v.height());
    for (int64_t y = 0; y < v.height(); ++y) std::memcpy(made.row(y), v.row(y), size_t(v.width() * v.pixel));
    return made;
}
template <class T, int C>
bool same(const view<T, C>& a, const view<T, C>& b) {
    for (int64_t y = 0; y < a.height(); ++y)
        if (std::memcmp(a.row(y), b.row(y), size_t(a.width() * a.pixel)) != 0) return false;
    return true;
}
template <class V>
int step(const V& v) {
    return int(v.step());
}

// Two calls that begin with the same destination end with the same, also where they leave it as it was.
template <class T, int C, class Friendly, class Plain>
void equal(const image<T, C>& start, Friendly friendly, Plain plain) {
    const image<T, C> one = copied(start), two = copied(start);
    const zmvip::status status = friendly(one);
    EXPECT_EQ(status.code(), plain(two)) << status.name();
    EXPECT_GE(status.code(), 0) << status.name();
    EXPECT_TRUE(same(one, two));
    EXPECT_FALSE(same(one, start));
}

TEST(Hpp, OperandsConstantsAndScales) {
    const auto a = random<uint8_t, 3>(), b = random<uint8_t, 3>(), start = random<uint8_t, 3>();
    const uint8_t value[3] = {3, 2, 1};
    equal(
        start, [&](auto& d) { return zmvip::sub(a, b, d, 1); },
        [&](auto& d) { return zmviSub_8u_C3RSfs(b.data(), step(b), a.data(), step(a), d.data(), step(d), all, 1); });
    equal(
        a, [&](auto& d) { return zmvip::sub(d, b); },
        [&](auto& d) { return zmviSub_8u_C3IRSfs(b.data(), step(b), d.data(), step(d), all, 0); });
    equal(
        start,
        [&](auto& d) {
            return zmvip::div(a, {3, 2, 1}, d);
        },
        [&](auto& d) { return zmviDivC_8u_C3RSfs(a.data(), step(a), value, d.data(), step(d), all, 0); });
    equal(
        start,
        [&](auto& d) {
            return zmvip::mul(d, {3, 2, 1}, 1);
        },
        [&](auto& d) { return zmviMulC_8u_C3IRSfs(d.data(), step(d), value, all, 1); });
    equal(
        start,
        [&](auto& d) {
            return zmvip::copy_replicate_border(d, {50, 40}, 5, 4);
        },
        [&](auto& d) {
            return zmviCopyReplicateBorder_8u_C3IR(d.row(5) + 4 * 3, step(d), {50, 40}, all, 5, 4);
        });
    const auto f = random<float>();
    equal(
        random<uint8_t>(), [&](auto& d) { return zmvip::convert(f, d, zmvip::round::zero); },
        [&](auto& d) { return zmviConvert_32f8u_C1R(f.data(), step(f), d.data(), step(d), all, ROUND_ZERO); });
    equal(
        random<uint8_t>(), [&](auto& d) { return zmvip::convert(f, d, zmvip::round::near, 3); },
        [&](auto& d) { return zmviConvert_32f8u_C1RSfs(f.data(), step(f), d.data(), step(d), all, ROUND_NEAR, 3); });
}

TEST(Hpp, LayoutsAndMasks) {
    const auto a = random<uint8_t, 4>(), start = random<uint8_t, 4>();
    const auto mask = random<uint8_t>();
    zmvip::threshold_lt_val(mask, 128, 0).orThrow();
    equal(
        start, [&](auto& d) { return zmvip::add(a, 9, keep_alpha(d)); },
        [&](auto& d) {
            const uint8_t nine[4] = {9, 9, 9, 9};
            return zmviAddC_8u_AC4RSfs(a.data(), step(a), nine, d.data(), step(d), all, 0);
        });
    equal(
        start, [&](auto& d) { return zmvip::copy(channel(a, 2), channel(d, 1)); },
        [&](auto& d) { return zmviCopy_8u_C4CR(a.data() + 2, step(a), d.data() + 1, step(d), all); });
    equal(
        start, [&](auto& d) { return zmvip::copy(a, d, mask); },
        [&](auto& d) { return zmviCopy_8u_C4MR(a.data(), step(a), d.data(), step(d), all, mask.data(), step(mask)); });
    const auto p = random<uint8_t>(), q = random<uint8_t>(), r = random<uint8_t>();
    equal(
        random<uint8_t, 3>(), [&](auto& d) { return zmvip::copy(zmvip::planes(p, q, r), d); },
        [&](auto& d) {
            const uint8_t* const planes[3] = {p.data(), q.data(), r.data()};
            return zmviCopy_8u_P3C3R(planes, step(p), d.data(), step(d), all);
        });
    equal(
        random<uint8_t, 3>(),
        [&](auto& d) {
            return zmvip::swap_channels(d, {2, 0, 1});
        },
        [&](auto& d) {
            const int order[3] = {2, 0, 1};
            return zmviSwapChannels_8u_C3IR(d.data(), step(d), all, order);
        });
}

TEST(Hpp, BordersAndBuffers) {
    const auto a = random<uint8_t, 3>(), start = random<uint8_t, 3>();
    const uint8_t value[3] = {200, 100, 0};
    zmvip::buffer mine;
    const auto plain = [&](const view<uint8_t, 3>& s, const view<uint8_t, 3>& d, int border) {
        int bytes = 0;
        const ImageSize size = {int(s.width()), int(s.height())};
        EXPECT_EQ(zmviFilterBoxBorderGetBufferSize(size, {5, 8}, DATATYPE_8U, 3, &bytes), STATUS_OK);
        std::vector<uint8_t> buffer(size_t(bytes), 0);
        return zmviFilterBoxBorder_8u_C3R(s.data(), step(s), d.data(), step(d), size, {5, 8}, border, value,
                                          buffer.data());
    };
    equal(
        start,
        [&](auto& d) {
            return zmvip::filter_box(a, d, {5, 8}, zmvip::constant, {200, 100, 0}, mine);
        },
        [&](auto& d) { return plain(a, d, BORDER_CONST); });
    EXPECT_GT(mine.bytes(), 0u);
    EXPECT_TRUE(zmvip::filter_sobel_horiz(random<float>(1, 1), image<float>(1, 1), zmvip::mask::mask_3x3).ok());
    const ImageRectL right = {20, 4, 41, 43};  // a part: three sides of it lie in memory
    equal(
        start,
        [&](auto& d) {
            return zmvip::filter_box(a.crop(right), d.crop(right), {5, 8}, zmvip::border::mirror);
        },
        [&](auto& d) {
            return plain(a.crop(right), d.crop(right), BORDER_MIRROR | BORDER_IN_MEM_LEFT | BORDER_IN_MEM_TOP);
        });
}

TEST(Hpp, Values) {
    const auto a = random<uint8_t, 3>(), b = random<uint8_t, 3>();
    uint8_t least[3], most[3];
    int x[3], y[3], count[3];
    double sums[3], value = 0;
    ASSERT_EQ(zmviMinMax_8u_C3R(a.data(), step(a), all, least, most), STATUS_OK);
    const auto extremes = zmvip::min_max(a).orThrow();
    EXPECT_TRUE(std::equal(least, least + 3, extremes.min.begin()) && std::equal(most, most + 3, extremes.max.begin()));
    ASSERT_EQ(zmviMaxIndx_8u_C3R(a.data(), step(a), all, most, x, y), STATUS_OK);
    const auto [max, index_x, index_y] = zmvip::max_indx(a).orThrow();
    EXPECT_TRUE(max[2] == most[2] && std::equal(x, x + 3, index_x.begin()) && std::equal(y, y + 3, index_y.begin()));
    const uint8_t low[3] = {10, 20, 30}, high[3] = {99, 99, 99};
    ASSERT_EQ(zmviCountInRange_8u_C3R(a.data(), step(a), all, count, low, high), STATUS_OK);
    const auto counted = zmvip::count_in_range(a, {10, 20, 30}, 99).orThrow();
    EXPECT_TRUE(std::equal(count, count + 3, counted.begin()));
    ASSERT_EQ(zmviDotProd_8u_C3R(a.data(), step(a), b.data(), step(b), all, sums), STATUS_OK);
    EXPECT_EQ(zmvip::dot_prod(a, b).orThrow()[1], sums[1]);
    const auto f = random<float>();
    ASSERT_EQ(zmviNorm_L2_32f_C1R(f.data(), step(f), all, &value, HINT_ACCURATE), STATUS_OK);
    EXPECT_EQ(zmvip::norm_l2(f, zmvip::hint::accurate).orThrow(), value);
}

TEST(Hpp, Objects) {
    const auto a = random<uint8_t, 3>(), start = random<uint8_t, 3>();
    const int16_t taps[6] = {1, 2, 3, -4, 5, 6};
    const auto kernel = zmvip::filter_border_init<uint8_t, 3>(taps, {3, 2}, 7, a.size(), zmvip::round::zero).orThrow();
    equal(
        start, [&](auto& d) { return zmvip::filter(a, d, kernel, zmvip::border::mirror); },
        [&](auto& d) {
            int object = 0, work = 0;
            zmviFilterBorderGetSize({3, 2}, all, DATATYPE_8U, DATATYPE_16S, 3, &object, &work);
            std::vector<uint8_t> spec(size_t(object), 0), buffer(size_t(work), 0);
            zmviFilterBorderInit_16s(taps, {3, 2}, 7, DATATYPE_8U, 3, ROUND_ZERO, spec.data());
            return zmviFilterBorder_8u_C3R(a.data(), step(a), d.data(), step(d), all, BORDER_MIRROR, nullptr,
                                           spec.data(), buffer.data());
        });
    const double turn[2][3] = {{0.8, 0.3, 2}, {-0.2, 0.9, 4}};
    const auto warp = zmvip::warp_affine_linear_init(a.size(), {0, 0, width, height}, start.size(), turn).orThrow();
    equal(
        start, [&](auto& d) { return zmvip::warp_affine_linear(a, d, warp, zmvip::transparent); },
        [&](auto& d) {
            int object = 0, work = 0;
            zmviWarpGetSize(all, all, INTERP_LINEAR, &object);
            std::vector<uint8_t> memory(size_t(object), 0);
            auto* spec = reinterpret_cast<WarpSpec*>(memory.data());
            zmviWarpAffineLinearInit(all, {0, 0, width, height}, all, turn, WARP_FORWARD, 0, spec);
            zmviWarpGetBufferSize(spec, all, 3, &work);
            std::vector<uint8_t> buffer(size_t(work), 0);
            return zmviWarpAffineLinear_8u_C3R(a.data(), step(a), d.data(), step(d), {0, 0}, all, BORDER_TRANSPARENT,
                                               nullptr, spec, buffer.data());
        });
    const auto gray = random<uint8_t>();
    const float low = 0, high = 251;
    const int levels = 12;
    int one[11], two[11], object = 0, work = 0;
    const auto bins = zmvip::histogram_uniform_init<uint8_t, 1>(&low, &high, &levels, gray.size()).orThrow();
    ASSERT_TRUE(zmvip::histogram(gray, bins, one).ok());
    zmviHistogramGetBufferSize(DATATYPE_8U, all, &levels, 1, 1, &object, &work);
    std::vector<uint8_t> spec(size_t(object), 0), buffer(size_t(work), 0);
    zmviHistogramUniformInit(DATATYPE_8U, &low, &high, &levels, 1, spec.data());
    ASSERT_EQ(zmviHistogram_8u_C1R(gray.data(), step(gray), all, two, spec.data(), buffer.data()), STATUS_OK);
    EXPECT_TRUE(std::equal(one, one + 11, two));
}

// Tiles on several threads: what neighbours they have, where they begin and what of the source is theirs follows from
// crop.
TEST(Hpp, TilesGiveTheWhole) {
    const auto a = random<uint16_t, 3>(200, 150);
    const auto tiled = [&](const auto& whole, zmvip::size most, auto work) {
        const auto parts = copied(whole);
        ASSERT_TRUE(work(a, whole).ok());
        std::vector<std::future<zmvip::status>> done;
        for (const zmvip::tile t : zmvip::tiles(parts, most))
            done.push_back(std::async(std::launch::async, [&, t] { return work(a, parts.crop(t)); }));
        EXPECT_GT(done.size(), 8u);
        for (auto& d : done) EXPECT_TRUE(d.get().ok());
        EXPECT_TRUE(same(whole, parts));
    };
    const auto of = [](const auto& v, const auto& part) {
        const zmvip::rect r = part.frame().part;
        return v.crop(r);
    };
    tiled(random<uint16_t, 3>(200, 150), {64, 40}, [&](const auto& src, const auto& dst) {
        return zmvip::filter_median(of(src, dst), dst, {5, 3}, zmvip::replicate);
    });
    tiled(random<uint16_t, 3>(200, 150), {64, 40},
          [&](const auto& src, const auto& dst) { return zmvip::add_noise_gauss(of(src, dst), dst, 0, 20, 7); });
    const auto spec = zmvip::resize_cubic_init<uint16_t>(a.size(), {333, 99}, 0, 0.5f).orThrow();
    tiled(random<uint16_t, 3>(333, 99), {100, 30},
          [&](const auto& src, const auto& dst) { return zmvip::resize_cubic(src, dst, spec); });
}

TEST(Hpp, RefusesWhatWouldTouchOtherMemory) {
    const auto a = random<uint8_t, 3>(), other = random<uint8_t, 3>(width - 1, height), dst = random<uint8_t, 3>();
    const auto untouched = copied(dst);
    EXPECT_EQ(zmvip::add(a, other, dst).code(), STATUS_BAD_SIZE);
    EXPECT_EQ(zmvip::transpose(a, dst).code(), STATUS_BAD_SIZE);
    EXPECT_EQ(zmvip::mirror(a, dst, zmvip::axis::diagonal_a).code(), STATUS_BAD_SIZE);
    EXPECT_EQ(zmvip::copy(a, dst, random<uint8_t>(width, height - 1)).code(), STATUS_BAD_SIZE);
    // One column beyond the left side is too few for a mask of five; at a distance, or alone, the part is taken.
    const auto near = [&](int64_t x, bool alone) {
        const auto src = a.crop({x, 0, 20, 20});
        return zmvip::filter_box(alone ? src.alone() : src, image<uint8_t, 3>(20, 20), {5, 5}).code();
    };
    EXPECT_EQ(near(1, false), STATUS_BAD_BORDER);
    EXPECT_EQ(near(2, false), STATUS_OK);
    EXPECT_EQ(near(1, true), STATUS_OK);
    const auto real = random<double>(), out = random<double>();
    EXPECT_EQ(zmvip::erode3x3(real, out).code(), STATUS_BAD_BORDER);  // reads neighbours, which are not there
    const zmvip::rect inner = {1, 1, width - 2, height - 2};
    EXPECT_TRUE(zmvip::erode3x3(real.crop(inner), out.crop(inner)).ok());
    const auto spec = zmvip::resize_nearest_init<uint8_t>({width + 1, height}, dst.size()).orThrow();
    EXPECT_EQ(zmvip::resize_nearest(a, dst, spec).code(), STATUS_BAD_SIZE);
    const auto narrow = random<uint8_t>(width - 2, height), gray = random<uint8_t>();
    EXPECT_EQ(zmvip::copy(zmvip::planes(gray, gray, narrow), dst).code(), STATUS_BAD_STEP);
    EXPECT_TRUE(same(dst, untouched));
    try {
        zmvip::add(a, other, dst).orThrow();
        FAIL();
    } catch (const zmvip::error& e) {
        EXPECT_NE(std::string(e.what()).find("add: STATUS_BAD_SIZE: a width or height"), std::string::npos) << e.what();
    }
}

// Steps beyond 32 bits take the function for large images where there is one, and are refused where there is none.
TEST(Hpp, LargeSteps) {
    const auto a = random<uint8_t>(width, 1), dst = copied(a);
    const auto far = [](const image<uint8_t>& v) { return view<uint8_t>(v.data(), int64_t(1) << 33, v.width(), 1); };
    EXPECT_TRUE(zmvip::add(far(a), 5, far(dst)).ok());
    EXPECT_EQ(*dst.data(), uint8_t(*a.data() + 5));
    EXPECT_EQ(zmvip::not_(far(a), far(dst)).code(), STATUS_BAD_SIZE);
}

}  // namespace
