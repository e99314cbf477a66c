// zmviLUT and what makes its spec object: the rules spelled out in 128-bit integers and in double precision.
#include <cfloat>
#include <climits>

#include "arith/arith.h"
#include "harness/spec.h"

namespace {

using namespace test;

constexpr int interpolations[] = {INTERP_NEAREST, INTERP_LINEAR, INTERP_CUBIC};
struct Curves {
    Element element = Element::u8;
    int interpolation = 0, channels = 0;
    std::vector<double> levels[4], values[4] = {};  // a double holds both kinds of them
    bool real() const { return isReal(element); }
};
Curves arranged;  // for the oracle of the same case

double number(Rng& rng, const Curves& of, int range, double scale) {
    if (!of.real() && rng.oneIn(8)) return rng.oneIn(2) ? INT_MIN : INT_MAX;
    const double x = rng.between(-range / 3, range + range / 3);
    return of.real() ? float((x + rng.below(64) / 64.0) * scale) : x;
}
// Levels in and round the type, evenly spaced or not, two of them or many; floats of every magnitude.
Curves anyCurves(Rng& rng, Element element, int channels) {
    Curves curves{element, interpolations[rng.below(3)], channels, {}};
    for (int c = 0; c < channels; ++c) {
        const int n = rng.oneIn(4) ? 2 : rng.between(3, rng.oneIn(3) ? 300 : 9),
                  range = bytesOf(element) == 1 ? 255 : 65535;
        const double scale = std::ldexp(1, curves.real() && rng.oneIn(3) ? rng.between(-149, 105) : 0);
        std::vector<double>& levels = curves.levels[c];
        const double apart = range / n * scale, from = number(rng, curves, range, scale);
        const bool even = from != INT_MAX && rng.oneIn(3);
        for (int k = 0; k < n; ++k)
            levels.push_back(even ? std::min(from + k * apart, double(FLT_MAX)) : number(rng, curves, range, scale));
        if (curves.real())
            for (double& level : levels) level = float(level);
        std::sort(levels.begin(), levels.end());
        levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
        if (levels.size() < 2) levels = {-3, 60};
        while (curves.values[c].size() < levels.size())
            curves.values[c].push_back(number(rng, curves, range, rng.oneIn(8) ? 0x1p100 : 1));
    }
    return curves;
}

// What the functions take: arrays of numbers.
template <class L>
struct Arrays {
    std::vector<L> numbers[8];
    const L* pointers[8];
    int counts[4] = {};
    explicit Arrays(const Curves& curves) {
        for (int i = 0; i < 8; ++i) {
            const auto& from = i < 4 ? curves.levels[i] : curves.values[i - 4];
            numbers[i].assign(from.begin(), from.end());
            pointers[i] = numbers[i].data();
            counts[i % 4] = int(from.size());
        }
    }
};
int sizeOf(const Curves& of) {
    int size = 0;
    FIND(builds().front(), zmviLUT_GetSize)
    (of.interpolation, dataTypeOf(of.element), of.channels, Arrays<double>(of).counts, &size);
    return size;
}
template <class L>
StatusCode initAs(const Library& library, const Curves& of, uint8_t* spec) {
    using F = StatusCode(int, const L* const*, const L* const*, const int*, int, uint8_t*);
    const Arrays<L> arrays(of);
    const auto ours = [&](const Member& m) { return m.name.starts_with("zmviLUT_Init_") && m.source == of.element; };
    const Member& made = *std::find_if(members().begin(), members().end(), ours);
    return reinterpret_cast<F*>(library.find(made.name))(of.interpolation, arrays.pointers, arrays.pointers + 4,
                                                         arrays.counts, of.channels, spec);
}
StatusCode init(const Library& library, const Curves& curves, uint8_t* spec) {
    return curves.real() ? initAs<float>(library, curves, spec) : initAs<int32_t>(library, curves, spec);
}
const ObjectKind tableObject([](uint8_t* block) {
    return init(builds().front(), {Element::u8, INTERP_LINEAR, 1, {{0, 255}}, {{255, 0}}}, block);
});

double slope(const std::vector<double>& l, const std::vector<double>& y, size_t k) {
    const size_t last = l.size() - 1;
    const auto h = [&](size_t i) { return l[i + 1] - l[i]; };
    const auto s = [&](size_t i) { return (y[i + 1] - y[i]) / h(i); };
    if (last == 1) return s(0);
    const auto inner = [&](size_t i) { return (h(i) * s(i - 1) + h(i - 1) * s(i)) / (h(i - 1) + h(i)); };
    return k == 0 ? 2 * s(0) - inner(1) : k == last ? 2 * s(last - 1) - inner(last - 1) : inner(k);
}
template <class T>
T lookedUp(T v, const std::vector<double>& l, const std::vector<double>& y) {
    const auto finished = [](double x) {
        if constexpr (std::is_floating_point_v<T>)
            return T(x);
        else
            return nearest<T>(x);
    };
    if (v != v) return v;
    if (v < l[0]) return finished(y[0]);
    if (v >= l.back()) return finished(y.back());
    const size_t k = size_t(std::upper_bound(l.begin(), l.end(), double(v)) - l.begin()) - 1;
    const double h = l[k + 1] - l[k], rise = y[k + 1] - y[k], d = v - l[k], s = rise / h;
    if (arranged.interpolation == INTERP_NEAREST) return finished(v > (l[k] + l[k + 1]) / 2 ? y[k + 1] : y[k]);
    if (arranged.interpolation == INTERP_LINEAR) {
        if constexpr (std::is_integral_v<T>) return ratio<T>(Wide(y[k]) * Wide(h) + Wide(d) * Wide(rise), Wide(h), 0);
        return finished(y[k] + d * s);
    }
    const double m0 = slope(l, y, k), m1 = slope(l, y, k + 1);
    const double a = (3 * s - 2 * m0 - m1) / h, b = (m0 + m1 - 2 * s) / h / h;
    return finished(y[k] + d * (m0 + d * (a + d * b)));
}

// Pixels on levels, beside them, and in the middle of two.
void choosePixels(Case& c, const Image& src) {
    change(c, src, [&]<class T>(T v, int64_t, int64_t, int k) {
        const std::vector<double>& levels = arranged.levels[k < c.member.to.used() ? k : 0];
        const size_t i = size_t(c.rng.below(int(levels.size()) - 1));
        const double at = c.rng.oneIn(2) ? levels[i + size_t(c.rng.below(2))] : (levels[i] + levels[i + 1]) / 2;
        const int beside = c.rng.between(-1, 1);
        if constexpr (std::is_integral_v<T>) return c.rng.oneIn(2) ? saturated<T>(Wide(std::floor(at)) + beside) : v;
        if (c.rng.oneIn(30)) return T(beside ? beside * INFINITY : NAN);
        if (c.rng.oneIn(2)) return T(beside ? std::nextafter(float(at), float(beside * INFINITY)) : at);
        return T(levels[0] + (levels.back() - levels[0]) * c.rng.below(1 << 20) * 0x1p-20);
    });
}

// Some cases have their curves in common: tables of 16 bits take their time.
void arrangeLut(Case& c) {
    const std::string only = c.has("src") ? "src" : "srcDst";
    const bool otherType = c.mode == Mode::usual && c.rng.oneIn(20),
               otherCount = c.mode == Mode::usual && c.rng.oneIn(20);
    const uint64_t which = c.seed / 8 * 4 + uint64_t(otherType) * 2 + uint64_t(otherCount);
    Rng rng(which);
    const Element type = !otherType ? c.member.source : c.member.source == Element::u16 ? Element::s16 : Element::u16;
    const int used = c.member.to.used();
    arranged = anyCurves(rng, type, !otherCount ? used : used == 3 ? 4 : 3);
    if (otherType || otherCount) c.expected = STATUS_CONTEXT_MISMATCH;
    const Image& src = c.place(only, c.width, c.height);
    if (c.expected == STATUS_OK) choosePixels(c, src);
    if (c.has("dst")) c.place("dst", c.width, c.height);
    if (c.has("dst") && c.mode == Mode::usual && c.rng.oneIn(4)) c.alias("dst", "src");
    c.arg("roiSize") = {c.width, c.height};

    static std::vector<uint8_t> made;
    static std::pair<uint64_t, const Member*> madeFor;
    const int size = sizeOf(arranged);
    placeObject(c, "pSpec", size, [&](uint8_t* block) {
        const auto start = -reinterpret_cast<uintptr_t>(block) % 64;
        const std::pair<uint64_t, const Member*> now{which, &c.member};
        if (now == madeFor) return std::memcpy(block + start, made.data(), size_t(size) - 63), StatusCode(STATUS_OK);
        const StatusCode status = init(c.library, arranged, block);
        made.assign(block + start, block + size - 63 + start), madeFor = now;
        return status;
    });
}
void lookUp(Case& c) {
    if (c.expected < 0) return;
    oneByOne(c, [](auto v, int64_t, int64_t, int k) { return lookedUp(v, arranged.levels[k], arranged.values[k]); });
}

void arrangeInit(Case& c) {
    const int counts[] = {1, 3, 4}, channels = c.mode == Mode::controls ? 4 : counts[c.rng.below(3)];
    arranged = anyCurves(c.rng, c.member.source, channels);
    c.arg("interpolation") = arranged.interpolation;
    c.arg("numChannels") = channels;
    const Image& nLevels = c.placeValue("nLevels", channels);
    placeBlock(c, "pSpec", sizeOf(arranged));
    const bool bad = c.mode == Mode::usual && c.rng.oneIn(5);
    const int which = c.rng.below(channels);
    size_t most = 0;
    for (const auto& levels : arranged.levels) most = std::max(most, levels.size());
    const Image &levels = c.place("pLevels", int64_t(most), 1), &values = c.place("pValues", int64_t(most), 1);
    withElement(levels.element, [&](auto zero) {
        using L = decltype(zero);
        for (int k = 0; k < channels; ++k) {
            const int n = int(arranged.levels[k].size());
            c.set(nLevels, 0, 0, k, n);
            for (int i = 0; i < n; ++i) {
                c.set(levels, i, 0, k, L(arranged.levels[k][size_t(i)]));
                c.set(values, i, 0, k, L(arranged.values[k][size_t(i)]));
            }
        }
        if (!bad) return;
        c.expected = STATUS_BAD_RANGE;
        const int n = int(arranged.levels[which].size()), at = c.rng.between(1, n - 1);
        c.set(levels, at, 0, which, c.get<L>(levels, at - 1, 0, which));
        if constexpr (std::is_floating_point_v<L>) {
            const L wrong[] = {NAN, INFINITY, -INFINITY};
            if (c.rng.oneIn(2))
                c.set(c.rng.oneIn(2) ? levels : values, c.rng.below(n), 0, which, wrong[c.rng.below(3)]);
        }
    });
}
// That the object is good for what it is made for is seen where it is used.
void acceptObject(Case& c) {
    if (c.expected == STATUS_OK) acceptBlock(c, "pSpec");
}

void arrangeSize(Case& c) {
    const int counts[] = {1, 3, 4}, channels = c.mode == Mode::controls ? 4 : counts[c.rng.below(3)];
    c.arg("interpolation") = interpolations[c.rng.below(3)];
    const int types[] = {DATATYPE_8U, DATATYPE_16U, DATATYPE_16S, DATATYPE_32F};
    c.arg("dataType") = types[c.rng.below(4)];
    c.arg("numChannels") = channels;
    const Image& nLevels = c.placeValue("nLevels", channels);
    const bool huge = c.mode == Mode::usual && c.rng.oneIn(3);
    for (int k = 0; k < channels; ++k)
        c.set(nLevels, 0, 0, k, huge ? INT_MAX - c.rng.below(9) : c.rng.between(2, 70000));
    c.placeValue("pSpecSize", 1);
    if (huge && c.arg("dataType").a == DATATYPE_32F) c.expected = STATUS_SIZE_EXCEEDS_INT;
}
void answerSize(Case& c) {
    if (c.expected < 0) return;
    const int size = c.result<int>(c.image("pSpecSize"), 0, 0, 0);  // that it is enough is seen where it is used
    if (size < 256 || size > 20000000) c.fail("an odd size");
    c.set(c.image("pSpecSize"), 0, 0, 0, size);
}

}  // namespace

extern const Family test_zmviLUT_GetSize = {.arrange = arrangeSize, .oracle = answerSize};
extern const Family test_zmviLUT_Init = {.arrange = arrangeInit, .oracle = acceptObject};
extern const Family test_zmviLUT = {
    .arrange = arrangeLut, .oracle = lookUp, .more = {notOne("pSpec", STATUS_CONTEXT_MISMATCH, tableObject)}};
