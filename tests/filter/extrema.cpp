// Minimum and maximum filters, their size queries, and the 3x3 forms from memory.
#include "filter/box.h"

namespace {

using namespace test;

constexpr SizeRow extremaSizes[] = {{1, 1, 1, 1, DATATYPE_8U, 1, 128},
                                    {640, 480, 3, 3, DATATYPE_8U, 1, 3936},
                                    {100, 50, 5, 7, DATATYPE_16U, 3, 9952},
                                    {33, 17, 2, 2, DATATYPE_16S, 4, 1184},
                                    {64, 64, 2, 9, DATATYPE_32F, 1, 5568},
                                    {7, 300, 10, 4, DATATYPE_32F, 4, 78336},
                                    {50, 60, 1, 6, DATATYPE_32F, 3, 8576},
                                    {1920, 1080, 31, 31, DATATYPE_8U, 3, 441952},
                                    {357913920, 9, 3, 3, DATATYPE_8U, 1, 2147483616},
                                    {357913921, 9, 3, 3, DATATYPE_8U, 1, -1},
                                    {INT_MAX, INT_MAX, INT_MAX, INT_MAX, DATATYPE_32F, 4, -1}};

// Zeros of both signs, and NaNs: everywhere, here and there, or in few places.
template <class T>
void fillReals(Case& c, const Image& image) {
    const int kind = c.rng.below(4);
    if (kind == 3) return fillFloats<T>(c, image);
    const T values[] = {T(0), T(-0.0), T(-1), T(1), std::numeric_limits<T>::denorm_min(), T(-INFINITY)};
    const int apart = kind == 0 ? 4 : kind == 1 ? 500 : INT_MAX;
    fillReadable(c, image, [&] { return c.rng.oneIn(apart) ? T(NAN) : values[c.rng.below(6)]; });
}

void arrangeExtrema(Case& c) {
    const int kind = c.rng.below(8);
    const bool usual = c.mode == Mode::usual;
    if (kind < 4) c.arg("maskSize") = {kind % 2 ? 3 : 5, kind % 2 ? 3 : 5};  // have code of their own
    if (usual && kind < 4 && c.rng.oneIn(3)) c.width = c.rng.between(1, 9000) / c.member.to.channels + 1;
    if (usual && kind == 4) c.arg("maskSize") = {c.rng.between(1, 70), c.rng.between(1, 33)};
    if (usual && kind == 5) c.arg("maskSize") = {c.rng.oneIn(2) ? 1 : c.rng.between(1, 20), c.rng.between(1, 3)};
    if (usual && c.width < 200 && c.rng.oneIn(2)) c.height = c.rng.between(1, 60);
    arrangeByRoles(c);
    leaveOutValue(c);
    if (c.member.source == Element::f32) fillReals<float>(c, c.image("src"));
}

// One value after the other: along the rows first, then down the columns.
template <class T>
void reduce(Case& c, bool least, int64_t mw, int64_t mh) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    const Reach reach(mw, mh);
    const Extended<T> pixel{c, src};
    const auto all = [&](int64_t n, auto at) {
        T acc = at(0);
        for (int64_t i = 1; i < n; ++i)
            if (const T value = at(i); !(least ? acc < value : acc > value)) acc = value;
        return acc;
    };
    for (int k = 0; k < c.member.to.used(); ++k)
        for (int64_t x = 0; x < src.width; ++x) {
            std::vector<T> along;
            for (int64_t y = -reach.top; y < src.height + reach.bottom; ++y)
                along.push_back(all(mw, [&](int64_t i) { return pixel(x - reach.left + i, y, k); }));
            for (int64_t y = 0; y < src.height; ++y)
                c.set(dst, x, y, k, all(mh, [&](int64_t i) { return along[size_t(y + i)]; }));
        }
}
template <bool least>
void judgeExtrema(Case& c) {
    withElement(c.member.source,
                [&](auto zero) { reduce<decltype(zero)>(c, least, c.arg("maskSize").a, c.arg("maskSize").b); });
}

void arrange3x3(Case& c) {
    c.mask = {3, 3};
    c.place("src", c.width, c.height, {1, 1, 1, 1});
    c.place("dst", c.width, c.height);
    fillReals<double>(c, c.image("src"));
    c.arg("roiSize") = {c.width, c.height};
    if (c.mode == Mode::usual && c.rng.oneIn(8)) c.arg("srcStep") = c.width * 8 + 15;
}
template <bool least>
void judge3x3(Case& c) {
    const int64_t row = c.width * 8;
    if (c.arg("srcStep").a < row + 16 || c.arg("dstStep").a < row) return void(c.expected = STATUS_STEP_TOO_SMALL);
    reduce<double>(c, least, 3, 3);
}

}  // namespace

#define EXTREMUM_TESTS(Name, least)                                                                                    \
    extern const Family test_zmviFilter##Name##BorderGetBufferSize = {.arrange = arrangeSize<extremaSizes>,            \
                                                                      .oracle = answerSize<extremaSizes>};             \
    extern const Family test_zmviFilter##Name##Border = {.arrange = arrangeExtrema, .oracle = judgeExtrema<least>};
EXTREMUM_TESTS(Min, true)
EXTREMUM_TESTS(Max, false)
extern const Family test_zmviDilate3x3 = {.arrange = arrange3x3, .oracle = judge3x3<false>};
extern const Family test_zmviErode3x3 = {.arrange = arrange3x3, .oracle = judge3x3<true>};
