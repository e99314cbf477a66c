// zmviThresholdAdaptiveBox, zmviThresholdAdaptiveGauss, their queries and the spec object.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <optional>

#include "filter/box.h"
#include "harness/spec.h"

namespace {

using namespace test;

bool isGauss(const Case& c) { return c.has("pSpec"); }

// ---- The spec object, field by field ----

constexpr uint64_t specTag = 0x14B61738E;
constexpr int64_t headerBytes = 32, unit = 1 << 22;  // weights are multiples of 1 / unit
int64_t specBytes(int64_t mask) { return 4 * mask + 40; }

template <class T>
T field(const uint8_t* spec, int64_t offset) {
    T value;
    std::memcpy(&value, spec + spec[0] + offset, sizeof value);
    return value;
}
std::vector<int64_t> wholeWeights(const uint8_t* spec, int64_t mask) {
    std::vector<int64_t> weights;
    for (int64_t i = 0; i < mask; ++i) weights.push_back(int64_t(field<float>(spec, headerBytes + 4 * i) * unit));
    return weights;
}

StatusCode makeGauss(const Library& library, int64_t mask, float sigma, uint8_t* block) {
    const auto init = reinterpret_cast<StatusCode (*)(ImageSize, ImageSize, int, int, float, uint8_t*)>(
        library.find("zmviThresholdAdaptiveGaussInit"));
    return init({1, 1}, {int(mask), int(mask)}, DATATYPE_8U, 1, sigma, block);
}
const ObjectKind gaussObject([](uint8_t* block) { return makeGauss(builds().front(), 5, 1, block); });

// ---- Sizes ----

constexpr SizeRow adaptiveSizes[] = {{1, 1, 1, 1, DATATYPE_8U, 1, 128},
                                     {640, 480, 3, 3, DATATYPE_8U, 1, 16480},
                                     {100, 50, 7, 7, DATATYPE_8U, 1, 6208},
                                     {5, 300, 9, 9, DATATYPE_8U, 1, 4736},
                                     {300, 5, 9, 9, DATATYPE_8U, 1, 19168},
                                     {70, 40, 41, 41, DATATYPE_8U, 1, 26496},
                                     {1920, 1080, 31, 31, DATATYPE_8U, 1, 484352},
                                     {89478472, 10, 3, 3, DATATYPE_8U, 1, 2147483552},
                                     {89478473, 10, 3, 3, DATATYPE_8U, 1, -1},
                                     {50, 14509662, 99, 99, DATATYPE_8U, 1, 2147483520},
                                     {50, 14509663, 99, 99, DATATYPE_8U, 1, -1},
                                     {INT_MAX, INT_MAX, INT_MAX, INT_MAX, DATATYPE_8U, 1, -1}};

// ---- Initialisation ----

void arrangeInit(Case& c) {
    const int64_t mask = 2 * c.rng.between(0, c.rng.oneIn(4) ? 1000 : 20) + 1;
    c.arg("roiSize") = {c.rng.between(1, 999), c.rng.between(1, 999)};
    c.arg("maskSize") = {mask, mask};
    c.arg("dataType") = DATATYPE_8U;
    c.arg("numChannels") = 1;
    const float rare[] = {0, -0.0f, -1, NAN, INFINITY, 1e-45f, 1e-30f, 3e38f, 0.1f};
    const float sigma = c.rng.oneIn(2) ? rare[c.rng.below(9)] : float(c.rng.between(1, 4000)) / 100;
    std::memcpy(&c.arg("sigma").a, &sigma, sizeof sigma);
    placeBlock(c, "pSpec", specBytes(mask));
    if (c.mode == Mode::usual && c.rng.oneIn(30)) {  // more than an int counts
        c.arg("maskSize") = {INT_MAX, INT_MAX};
        c.expected = STATUS_SIZE_EXCEEDS_INT;
    }
}

void judgeInit(Case& c) {
    if (c.expected != STATUS_OK) return;
    const int64_t mask = c.arg("maskSize").a, radius = mask / 2;
    const Image& block = c.image("pSpec");
    std::vector<uint8_t> bytes;
    for (int64_t i = 0; i < block.width; ++i) bytes.push_back(c.result<uint8_t>(block, i, 0));
    const uint8_t* const spec = bytes.data();
    const int64_t at = c.arg("pSpec").a, distance = 8 - at % 8;
    if (spec[0] != distance) return c.fail("the first byte is not the distance to the object");
    float sigma;
    std::memcpy(&sigma, &c.arg("sigma").a, sizeof sigma);
    if (!(sigma > 0)) sigma = float(0.15L * (mask - 1) + 0.5L);
    const auto expectField = [&](auto value, int64_t offset, const char* name) {
        if (field<decltype(value)>(spec, offset) != value) c.fail(std::string("the wrong ") + name);
    };
    expectField(specTag, 0, "tag");
    expectField(1, 8, "mode");
    expectField(int(mask), 12, "mask size");
    expectField(sigma, 16, "sigma");
    expectField(0, 20, "filling");
    expectField(at + distance + headerBytes, 24, "address of the weights");

    // Whole multiples of 1 / unit, the same on both sides, as near to the exact ones as that allows, and 1 together.
    std::vector<long double> bell;
    long double total = 0;
    for (int64_t i = -radius; i <= radius; ++i) {
        bell.push_back(expl(-(long double)(i * i) / (2 * (long double)sigma * sigma)));
        total += bell.back();
    }
    const std::vector<int64_t> weights = wholeWeights(spec, mask);
    int64_t sum = 0;
    for (size_t i = 0; i < weights.size(); ++i) {
        sum += weights[i];
        const float stored = field<float>(spec, headerBytes + 4 * int64_t(i));
        if (stored * unit != float(weights[i]) || weights[i] != weights[weights.size() - 1 - i] ||
            std::fabs(weights[i] - bell[i] / total * unit) > 1.000001L)
            c.fail("weight " + std::to_string(i) + " is " + std::to_string(stored));
    }
    if (sum != unit) c.fail("the weights do not add up to 1");
    c.set(block, 0, 0, 0, spec[0]);
    for (int64_t i = distance; i < distance + headerBytes + 4 * mask; ++i) c.set(block, i, 0, 0, spec[i]);
}

// ---- The thresholds ----

// Weighted sums round a pixel, in integers.  It is above its level where sum - total * pixel < total * delta, and long
// double has both sides exactly.
struct Oracle {
    Case& c;
    const Image& src = c.image(c.has("src") ? "src" : "srcDst");
    const int64_t mask = c.arg("maskSize").a, radius = mask / 2;
    std::vector<int64_t> weights;
    int64_t total = 0;

    explicit Oracle(Case& theCase) : c(theCase), weights(size_t(mask), 1) {
        if (isGauss(c)) {
            std::vector<uint8_t> spec;
            for (int64_t i = 0; i < specBytes(mask); ++i) spec.push_back(c.get<uint8_t>(c.image("pSpec"), i, 0));
            weights = wholeWeights(spec.data(), mask);
        }
        for (const int64_t a : weights)
            for (const int64_t b : weights) total += a * b;
    }
    // sum - total * pixel, for each pixel of row y.
    std::vector<int64_t> belowMean(int64_t y) const {
        const Extended<uint8_t> pixel{c, src};
        std::vector<int64_t> columns, results;
        for (int64_t x = -radius; x < src.width + radius; ++x) {
            columns.push_back(0);
            for (int64_t i = 0; i < mask; ++i) columns.back() += weights[size_t(i)] * pixel(x, y - radius + i, 0);
        }
        for (int64_t x = 0; x < src.width; ++x) {
            results.push_back(-total * pixel(x, y, 0));
            for (int64_t i = 0; i < mask; ++i) results.back() += weights[size_t(i)] * columns[size_t(x + i)];
        }
        return results;
    }
};

struct Shape {
    int64_t w, h, mask;
    bool inPlace;
    std::optional<float> delta = {};  // one that needs no neighbourhood
};
float anyDelta(Case& c, Shape s) {
    // Where the level of some pixel is that pixel, or as near to it as floats are; where the shortcuts begin; anywhere.
    float delta = float(c.rng.between(-300000, 300000)) / 1000;
    const float rare[] = {0, -0.0f, 1e-45f, -1e-45f, NAN, INFINITY, -INFINITY, 255, -255, 256, -256};
    const int kind = c.rng.below(8);
    if (kind < 2) delta = rare[c.rng.below(11)];
    if (kind > 3) {
        const Oracle oracle(c);
        const auto row = oracle.belowMean(c.rng.below(int(s.h)));
        delta = float((long double)row[size_t(c.rng.below(int(s.w)))] / oracle.total);
    }
    if (c.rng.oneIn(2)) delta = std::nextafter(delta, c.rng.oneIn(2) ? INFINITY : -INFINITY);
    return delta;
}

void layOut(Case& c, Shape s) {
    int word = c.rng.oneIn(2) || c.mode == Mode::controls ? BORDER_CONST : BORDER_REPL;
    if (c.rng.oneIn(2)) word |= 16 * c.rng.below(16);
    const bool huge = s.mask > 2900;
    if (huge || c.rng.oneIn(12)) word = BORDER_IN_MEM;
    const auto readable = [&](int flag) { return word & flag ? s.mask / 2 : 0; };
    const char* const source = c.has("src") ? "src" : "srcDst";
    Image& src = c.place(source, s.w, s.h,
                         {readable(BORDER_IN_MEM_LEFT), readable(BORDER_IN_MEM_RIGHT), readable(BORDER_IN_MEM_TOP),
                          readable(BORDER_IN_MEM_BOTTOM)});
    if (c.has("dst")) s.inPlace ? c.alias("dst", "src") : void(c.place("dst", s.w, s.h));
    for (const char* name : {"valGT", "valLE", "borderValue"}) c.placeValue(name, 1);
    c.arg("borderType") = word;
    c.arg("roiSize") = {s.w, s.h};
    c.arg("maskSize") = {s.mask, s.mask};
    c.placeBuffer("buffer", c.bufferSize());
    if (isGauss(c)) {
        const float sigma = float(c.rng.between(-5, 60)) / 10;
        placeObject(
            c, "pSpec", specBytes(s.mask), [&](uint8_t* block) { return makeGauss(c.library, s.mask, sigma, block); },
            1);
    }
    if (huge || c.rng.oneIn(4)) {  // flat, with one pixel whose distance from the mean is a whole number
        const int64_t area = s.mask * s.mask, step = area <= 255 ? area : 0;
        const auto level = uint8_t(huge ? 255 : c.rng.below(256 - int(step)));
        for (int64_t y = -src.readable.top; y < s.h + src.readable.bottom; ++y)
            for (int64_t x = -src.readable.left; x < s.w + src.readable.right; ++x) c.set(src, x, y, 0, level);
        c.set(src, c.rng.below(int(s.w)), c.rng.below(int(s.h)), 0, uint8_t(huge ? 0 : level + step));
    }
    const float delta = s.delta ? *s.delta : anyDelta(c, s);
    std::memcpy(&c.arg("delta").a, &delta, sizeof delta);
    if (c.mode == Mode::usual && !s.delta && c.rng.oneIn(40)) c.arg("maskSize") = {s.mask + 1, s.mask + 1};
    // Then the source is not even looked at.
    const bool unread = delta > 255 || delta <= -255 || s.mask == 1;
    if (unread && c.has("src") && !s.inPlace && (s.delta || (c.mode == Mode::usual && c.rng.oneIn(2))))
        c.arg("src") = int64_t(16);
}

void arrangeAdaptive(Case& c) {
    Shape s{c.width, c.height, 2 * c.rng.between(1, 8) + 1, c.mode == Mode::usual && c.rng.oneIn(4)};
    if (c.rng.oneIn(3)) s.h = c.rng.between(6, 24);
    switch (c.mode == Mode::far ? 9 : c.mode == Mode::bulk ? 8 : c.rng.below(8)) {
        case 0:
            s.mask = 1;
            break;
        case 1:
            s.mask = 2 * c.rng.between(1, 40) + 1;
            break;
        case 2:
            s.mask = (c.width | 1) + 2 * c.rng.between(0, 2);
            break;
        case 3:  // columns whose sums take more than 16 bits
            s.w = c.rng.between(1, 70), s.h = c.rng.between(1, 3), s.mask = 2 * c.rng.between(126, 140) + 1;
            break;
        case 8:
            s.h = c.height;
            break;
        case 9:
            s.h = 4, s.mask = 3;
            break;
    }
    layOut(c, s);
}

void threshold(Case& c) {
    if (c.arg("maskSize").a % 2 == 0) {
        c.expected = STATUS_BAD_MASK_SIZE;
        return;
    }
    const Oracle oracle(c);
    const Image& dst = c.image(c.has("dst") ? "dst" : "srcDst");
    float delta;
    std::memcpy(&delta, &c.arg("delta").a, sizeof delta);
    const long double limit = (long double)oracle.total * delta;
    std::vector<uint8_t> results;  // in place, sources are needed until the last sum
    for (int64_t y = 0; y < dst.height; ++y)
        for (const int64_t distance : oracle.belowMean(y))
            results.push_back(uint8_t(c.arg(distance < limit ? "valGT" : "valLE").a));
    for (int64_t y = 0; y < dst.height; ++y)
        for (int64_t x = 0; x < dst.width; ++x) c.set(dst, x, y, 0, results[size_t(y * dst.width + x)]);
}

// ---- Refusals ----

// Blocks that only nearly hold an object, and one of another mask size.
struct Foreign {
    uint8_t bytes[64] = {};
    Foreign(uint8_t distance, uint64_t tag, int mask = 0) {
        bytes[0] = distance;
        std::memcpy(bytes + 8, &tag, sizeof tag);
        std::memcpy(bytes + 20, &mask, sizeof mask);
    }
    int64_t address() const { return reinterpret_cast<int64_t>(bytes); }
};
const Foreign otherTag(8, specTag + 1), shortTag(8, uint32_t(specTag)), noDistance(0, specTag), farDistance(9, specTag),
    otherMask(8, specTag, 99);

Check foreign() {
    Check check = notOne("pSpec", STATUS_CONTEXT_MISMATCH, gaussObject);
    for (const Foreign* f : {&otherTag, &shortTag, &noDistance, &farDistance})
        check.breaks.push_back({"pSpec", Break::whole, f->address()});
    return check;
}

// Calls f for every member that thresholds.
template <class F>
void eachThreshold(F f) {
    for (const Member& m : members())
        if (m.find("valGT") && (options.only.empty() || m.name == options.only)) f(m);
}
void expectGood(const Member& m, uint64_t seed, Shape shape) {
    Case c(m, underTest(), seed);
    layOut(c, shape);
    c.call();
    if (!c.trapped()) c.expectResults();
    EXPECT_EQ(c.verdict(), "") << shape.w << "x" << shape.h << " mask " << shape.mask;
}

// A dark pixel among bright ones: their sum passes 2^31.
TEST(Adaptive, LargestSums) {
    eachThreshold([](const Member& m) {
        for (const uint64_t seed : {1, 2})
            if (!m.points("pSpec")) expectGood(m, seed, {2, 1, 2903, seed == 2});
    });
}

// Levels beyond all pixels are not compared with any.
TEST(Adaptive, SourceNotRead) {
    const float above = std::nextafter(255.0f, 256.0f);
    eachThreshold([&](const Member& m) {
        for (const float delta : {above, 300.0f, INFINITY, -255.0f, -256.0f, -INFINITY})
            expectGood(m, 1, {70, 3, 5, false, delta});
        for (const float delta : {0.0f, 1e-45f, -1e-45f, 255.0f}) expectGood(m, 2, {70, 3, 1, false, delta});
    });
}

}  // namespace

extern const Family test_zmviThresholdAdaptiveBoxGetBufferSize = {.arrange = arrangeSize<adaptiveSizes>,
                                                                  .oracle = answerSize<adaptiveSizes>};
extern const Family test_zmviThresholdAdaptiveGaussGetBufferSize = {.arrange = arrangeSize<adaptiveSizes>,
                                                                    .oracle = answerSize<adaptiveSizes>};
extern const Family test_zmviThresholdAdaptiveGaussInit = {.arrange = arrangeInit, .oracle = judgeInit};
extern const Family test_zmviThresholdAdaptiveBox = {.arrange = arrangeAdaptive, .oracle = threshold};
extern const Family test_zmviThresholdAdaptiveGauss = {
    .arrange = arrangeAdaptive,
    .oracle = threshold,
    .more = {foreign(), {STATUS_BAD_MASK_SIZE, {{"pSpec", Break::whole, otherMask.address()}}}}};
