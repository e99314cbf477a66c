// zmviMoments and what works on its state objects.
#include <gtest/gtest.h>

#include "filter/box.h"
#include "harness/spec.h"

namespace {

using namespace test;
using Wide = __int128;
using Real = long double;

// Moments of a channel are counted by p + 4 q, those of a state by 16 channels + that.
constexpr bool exists(int i) { return i % 4 + i / 4 % 4 < 4; }

struct Kind {
    Element element = Element::u8;
    int channels = 1;
    bool real() const { return isReal(element); }
    int64_t bytes() const { return 16 + 10 * channels * (real() ? 8 : 24) + 63; }
};
// A region of an image: its elements as doubles, which hold all types.
struct Picture {
    Kind kind;
    int width, height;
    ImagePoint at{};
    std::vector<double> elements = std::vector<double>(size_t(width * height * kind.channels));
    double& of(int x, int y, int c = 0) { return elements[size_t((y * width + x) * kind.channels + c)]; }
};
struct Sums {
    Kind kind;
    std::vector<Wide> exact = std::vector<Wide>(64);
    std::vector<double> real = std::vector<double>(64);
    void add(Picture p) {
        const int n = kind.channels;
        for (int y = 0; y < p.height; ++y) {
            const Wide Y = Wide(p.at.y) + y, powersY[] = {1, Y, Y * Y, Y * Y * Y};
            double parts[4][24] = {}, rows[16] = {};
            for (int i = 0; i < p.width * n; ++i) {
                const double f = p.of(0, y, i);
                const Wide X = Wide(p.at.x) + i / n, powersX[] = {1, X, X * X, X * X * X};
                const double x = double(X), reals[] = {1, x, x * x, x * x * x};
                for (int k = 0; k < 4; ++k) parts[k][i % 24] += reals[k] * f;
                for (int k = 0; k < 16 && !kind.real(); ++k)
                    if (exists(k)) exact[size_t(i % n * 16 + k)] += powersX[k % 4] * powersY[k / 4] * Wide(f);
            }
            for (int i = 0; i < 96; ++i) rows[i % 24 % n * 4 + i / 24] += parts[i / 24][i % 24];
            const double at = double(Y), reals[] = {1, at, at * at, at * at * at};
            for (int i = 0; i < 16 * n; ++i)
                if (exists(i)) real[size_t(i)] += reals[i / 4 % 4] * rows[i / 16 * 4 + i % 4];
        }
    }
    double operator[](int i) const { return kind.real() ? real[size_t(i)] : double(exact[size_t(i)]); }
};

template <class... Args>
StatusCode call(const Library& library, const std::string& name, Args... args) {
    return reinterpret_cast<StatusCode (*)(Args...)>(library.find(name))(args...);
}
double ask(const Library& library, const uint8_t* state, const std::string& what, int p, int q, int channel = 0) {
    double value = 0;
    call(library, "zmviMomentsGet" + what, state, p, q, channel, &value);
    return value;
}
StatusCode make(const Library& library, const Kind& kind, uint8_t* block) {
    return call(library, "zmviMomentsInit", dataTypeOf(kind.element), kind.channels, block);
}
const ObjectKind momentsObject([](uint8_t* block) { return make(builds().front(), {}, block); });
// Adds a part of a picture, or all of it.
StatusCode addTo(const Library& library, const Picture& p, uint8_t* block, ImageRect part = {0, 0, -1, -1}) {
    if (part.width < 0) part = {0, 0, p.width, p.height};
    StatusCode status = STATUS_NULL_POINTER;
    for (const Member& m : members())
        if (m.name.rfind("zmviMoments_", 0) == 0 && m.source == p.kind.element && m.from.channels == p.kind.channels)
            withElement(m.source, [&]<class T>(T) {
                const std::vector<T> pixels(p.elements.begin(), p.elements.end());
                const int n = p.kind.channels;
                status =
                    call(library, m.name, static_cast<const void*>(&pixels[size_t((part.y * p.width + part.x) * n)]),
                         p.width * n * int(sizeof(T)), ImageSize{part.width, part.height},
                         ImagePoint{p.at.x + part.x, p.at.y + part.y}, block);
            });
    return status;
}

Kind anyKind(Case& c) {
    static const Element elements[] = {Element::u8, Element::u16, Element::s16, Element::f32};
    static const int channels[] = {1, 3, 4};
    return {elements[c.rng.below(4)], channels[c.rng.below(3)]};
}
int anyPlace(Case& c) {
    static const int ends[] = {INT_MIN, INT_MAX, 0, 0};
    return c.rng.oneIn(2) ? ends[c.rng.below(4)] : c.rng.between(-9999, 9999);
}
Picture anyPicture(Case& c, const Kind& kind) {
    Picture p{kind, c.rng.between(1, 40), c.rng.between(1, 5), {anyPlace(c), anyPlace(c)}};
    const bool nothing = c.rng.oneIn(10), special = kind.real() && c.rng.oneIn(6);
    withElement(kind.element, [&]<class T>(T) {
        for (double& f : p.elements) f = nothing ? 0 : kind.real() ? c.rng.below(9999) / 64.0 : double(T(c.rng.next()));
    });
    if (special) p.elements[0] = c.rng.oneIn(2) ? NAN : -INFINITY;
    return p;
}
// A state that holds the moments of a picture already.
Sums placeState(Case& c, const char* name, const Picture& p) {
    placeObject(c, name, p.kind.bytes(), [&](uint8_t* block) {
        make(c.library, p.kind, block);
        return addTo(c.library, p, block);
    });
    Sums sums{p.kind};
    return sums.add(p), sums;
}

Picture held{{}, 1, 1};  // by the state of the case at hand
Sums expected{{}};

// What a state holds is read by the function that is tested for that.
void judgeState(Case& c, const char* name) {
    for (int i = 0; i < 16 * expected.kind.channels; ++i) {
        if (!exists(i)) continue;
        const auto* const state = reinterpret_cast<const uint8_t*>(c.arg(name).a);
        const double value = ask(c.library, state, "Spatial", i % 4, i / 4 % 4, i / 16), due = expected[i];
        if (value != due && !(value != value && due != due))
            c.fail("moment " + std::to_string(i) + " is " + std::to_string(value) + ", not " + std::to_string(due));
    }
    acceptBlock(c, name);
}
void judgeObject(Case& c) { judgeState(c, c.has("pSrcDstState") ? "pSrcDstState" : "pState"); }

void arrangeMoments(Case& c) {
    const Image& src = c.place("src", c.width, c.height);
    if (isReal(src.element)) fillFloats<float>(c, src);
    c.arg("roiSize") = {c.width, c.height};
    c.arg("roiOffset") = {anyPlace(c), anyPlace(c)};
    expected = placeState(c, "pState", anyPicture(c, {src.element, src.channels}));
}
void addMoments(Case& c) {
    const Slot at = c.arg("roiOffset");
    Picture p{expected.kind, int(c.width), int(c.height), {int(at.a), int(at.b)}};
    withElement(p.kind.element, [&]<class T>(T) {
        for (int i = 0; i < p.width * p.height * p.kind.channels; ++i) {
            const int row = p.width * p.kind.channels;
            p.elements[size_t(i)] = double(c.get<T>(c.image("src"), 0, i / row, i % row));
        }
    });
    expected.add(p);
    judgeState(c, "pState");
}
void arrangeMerge(Case& c) {
    const Kind kind = anyKind(c);
    Sums other = expected = placeState(c, "pState", anyPicture(c, kind));
    if (c.mode == Mode::usual && c.rng.oneIn(6))
        c.images["pSrcDstState"] = c.image("pState"), c.arg("pSrcDstState") = c.arg("pState");
    else
        other = placeState(c, "pSrcDstState", anyPicture(c, kind));
    for (size_t i = 0; i < 64; ++i) expected.exact[i] += other.exact[i], expected.real[i] += other.real[i];
}
void arrangeInit(Case& c) {
    expected = {anyKind(c)};
    c.arg("dataType") = dataTypeOf(expected.kind.element), c.arg("numChannels") = expected.kind.channels;
    c.has("pState") ? placeBlock(c, "pState", expected.kind.bytes()) : c.place("pStateSize", 1, 1);
}
void judgeSize(Case& c) { c.set(c.image("pStateSize"), 0, 0, 0, int(expected.kind.bytes())); }

void arrangeGetter(Case& c) {
    const bool all = c.mode == Mode::controls;  // so that every order and channel beside the right ones is a wrong one
    expected = placeState(c, "pState", held = anyPicture(c, all ? Kind{Element::u8, 4} : anyKind(c)));
    c.place(c.has("pHu") ? "pHu" : "pValue", c.has("pHu") ? 7 : 1, 1);
    const int p = all ? 1 : c.rng.below(4);
    if (c.has("xOrder")) c.arg("xOrder") = p, c.arg("yOrder") = all ? 1 : c.rng.below(4 - p);
    c.arg("channel") = c.rng.below(expected.kind.channels);
}
// A central moment, straight from the pixels, and how near it has to be: that of floats is made of sums about zero.
std::pair<Real, Real> central(int c, int p, int q) {
    const bool real = held.kind.real();
    const Real area = expected[16 * c];
    const auto mean = [&](int i, int at) {  // from the first pixel on
        const Wide* const m = &expected.exact[size_t(16 * c)];
        return real ? expected[16 * c + i] / area - at : Real(m[i] - at * m[0]) / area;
    };
    if (p + q < 2) return {p + q ? 0 : area, 0};
    Real sum = 0, size = 0;
    for (int i = 0; i < held.width * held.height; ++i) {
        const int column = i % held.width, row = i / held.width;
        const Real f = held.of(column, row, c), x = column - mean(1, held.at.x), y = row - mean(4, held.at.y);
        const auto reach = [&](Real d, Real at) { return std::fabs(d) + 1 + (real ? std::fabs(at) + 40 : 0); };
        sum += std::pow(x, p) * std::pow(y, q) * f;
        size += std::pow(reach(x, held.at.x), p) * std::pow(reach(y, held.at.y), q) * std::fabs(f);
    }
    return {sum, size * 1e-12L};
}
// What follows from central moments, as they are given, has one order of operations.
std::vector<double> following(Case& c, int p, int q) {
    const auto* const state = reinterpret_cast<const uint8_t*>(c.arg("pState").a);
    const auto given = [&](int x, int y) { return ask(c.library, state, "Central", x, y, int(c.arg("channel").a)); };
    const auto e = [&](int x, int y) {
        const double area = given(0, 0), by[] = {area, 1, area * area, area * area * std::sqrt(area)};
        return given(x, y) / by[x + y];
    };
    if (!c.has("pHu")) return {e(p, q)};
    const double a = e(3, 0) - 3 * e(1, 2), b = 3 * e(2, 1) - e(0, 3), l = e(3, 0) + e(1, 2), d = e(2, 1) + e(0, 3),
                 r = e(2, 0) - e(0, 2), h = e(1, 1), left = l * l - 3 * (d * d), right = 3 * (l * l) - d * d,
                 first = e(2, 0) + e(0, 2), second = r * r + 4 * (h * h), third = a * a + b * b, fourth = l * l + d * d,
                 sixth = r * (l * l - d * d) + 4 * h * (l * d);
    return {first, second, third, fourth, a * l * left + b * d * right, sixth, b * l * left - a * d * right};
}
void judgeValues(Case& c) {
    const bool orders = c.has("xOrder");
    const int k = int(c.arg("channel").a), p = orders ? int(c.arg("xOrder").a) : 0,
              q = orders ? int(c.arg("yOrder").a) : 0;
    const bool spatial = c.member.name.ends_with("Spatial"), none = !spatial && expected[16 * k] == 0;
    if (none) c.expected = STATUS_WARN_DIV_BY_ZERO;
    const Image& result = c.image(c.has("pHu") ? "pHu" : "pValue");
    std::vector<double> due = {expected[16 * k + p + 4 * q]};
    if (c.member.name.ends_with("GetCentral")) {
        const auto [value, slack] = central(k, p, q);
        const double got = c.result<double>(result, 0, 0);
        due = {std::fabs(got - value) <= slack ? got : double(value)};
    } else if (!spatial) {
        due = following(c, p, q);
    }
    for (size_t i = 0; i < due.size(); ++i)
        c.set(result, int64_t(i), 0, 0, none || std::isnan(due[i]) ? std::nan("") : due[i]);
}

struct Gathered {
    alignas(64) uint8_t block[2048] = {};
    explicit Gathered(const Kind& kind) { make(underTest(), kind, block); }
    explicit Gathered(const Picture& p) : Gathered(p.kind) { addTo(underTest(), p, block); }
    double get(const char* what, int p, int q) const { return ask(underTest(), block, what, p, q); }
};
// Regions cut at random, each part with a state of its own: to the bit what the whole makes.
TEST(Moments, TilesMakeTheWhole) {
    Rng rng(5);
    for (const Kind k : {Kind{}, Kind{Element::u8, 3}, Kind{Element::u16, 4}, Kind{Element::s16, 3}})
        for (const auto& [width, height] : {std::pair{2100, 5}, std::pair{70, 1030}}) {
            Picture whole{k, width, height, {INT_MAX - 3000, INT_MIN}};
            withElement(k.element, [&]<class T>(T) {
                for (double& f : whole.elements)
                    f = double(rng.oneIn(3) ? std::numeric_limits<T>::max() : T(rng.next()));
            });
            Gathered merged(k);
            const int x = rng.between(1, width - 1), y = rng.between(1, height - 1), right = width - x;
            for (const ImageRect part :
                 {ImageRect{0, 0, x, y}, {x, 0, right, y}, {0, y, x, height - y}, {x, y, right, height - y}}) {
                Gathered one(k);
                ASSERT_EQ(addTo(underTest(), whole, one.block, part), STATUS_OK);
                ASSERT_EQ(call(underTest(), "zmviMomentsMerge", one.block, merged.block), STATUS_OK);
            }
            EXPECT_EQ(std::memcmp(Gathered(whole).block, merged.block, sizeof merged.block), 0) << width;
        }
}
// The sums of one value over a rectangle, as rational arithmetic has them.
TEST(Moments, BeyondAnyWord) {
    const double due[] = {0x1.92d36d2b00000p+37,   0x1.92d37f96e52d1p+68,  0x1.92d39202cb79cp+99,
                          0x1.92d3a46eb2e63p+130,  -0x1.92d36669ae5a6p+68, -0x1.92d378d593385p+99,
                          -0x1.92d38b417935fp+130, 0x1.92d35fa85cdb6p+99,  0x1.92d37214416a4p+130,
                          -0x1.92d358e70b831p+130};
    Picture p{{Element::u16, 1}, 3000, 1100, {INT_MAX, INT_MIN}};
    p.elements.assign(p.elements.size(), 65535);
    const Gathered state(p);
    for (int q = 0, i = 0; q < 4; ++q)
        for (int k = 0; k + q < 4; ++k) EXPECT_EQ(state.get("Spatial", k, q), due[i++]) << k << q;
    EXPECT_DOUBLE_EQ(state.get("Central", 2, 0), 0x1.201f9d3d26a22p+57);
}
// Objects of moments, but of no type that there is.
alignas(64) const int32_t otherTypes[3][16] = {{0x4d4f4d54, 99, 1}, {0x4d4f4d54, 99, 3}, {0x4d4f4d54, 99, 4}};
Check noState(const char* argument, bool ofOtherTypes = false) {
    Check check = notOne(argument, STATUS_CONTEXT_MISMATCH, momentsObject);
    for (int i = 0; i < 3 && ofOtherTypes; ++i)
        check.breaks.push_back({argument, Break::whole, reinterpret_cast<int64_t>(otherTypes[i])});
    return check;
}

}  // namespace

extern const Family test_zmviMomentsGetSize = {.arrange = arrangeInit, .oracle = judgeSize};
extern const Family test_zmviMomentsInit = {.arrange = arrangeInit, .oracle = judgeObject};
extern const Family test_zmviMoments = {
    .arrange = arrangeMoments, .oracle = addMoments, .more = {noState("pState", true)}};
extern const Family test_zmviMomentsMerge = {
    .arrange = arrangeMerge, .oracle = judgeObject, .more = {noState("pState"), noState("pSrcDstState", true)}};
#define GETTER(name)                                                                                                   \
    extern const Family test_zmviMomentsGet##name = {                                                                  \
        .arrange = arrangeGetter, .oracle = judgeValues, .more = {noState("pState")}};
GETTER(Spatial) GETTER(Central) GETTER(NormalizedCentral) GETTER(Hu)
