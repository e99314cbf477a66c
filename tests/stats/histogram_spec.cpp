// The makers of the spec object of a histogram, and what is asked of it.
#include "stats/histogram.h"

namespace {

using namespace test;

void arrangeMaker(Case& c) {
    const bool uniform = c.has("lowerLevel"), usual = c.mode == Mode::usual;
    arranged = anySpec(c, anyType(c), anyChannels(c), uniform);
    c.arg("dataType") = arranged.type;
    c.arg("numChannels") = arranged.channels;
    placeBlock(c, "pSpec", arranged.bytes());
    const bool bad = usual && c.rng.oneIn(6), few = usual && c.rng.oneIn(20);
    const int which = c.rng.below(arranged.channels);
    std::vector<float>& levels = arranged.given[which];
    const size_t where = uniform ? 0 : size_t(c.rng.between(1, int(levels.size()) - 1));
    const float wrong[] = {NAN, -INFINITY, uniform ? INFINITY : NAN, uniform ? levels[1] : levels[where - 1]};
    if (bad) levels[where] = wrong[c.rng.below(4)];

    const Image& counts = c.placeValue("nLevels", arranged.channels);
    for (const char* name : {"lowerLevel", "upperLevel"})
        if (uniform) c.placeValue(name, arranged.channels);
    if (!uniform) c.place("pLevels", int64_t(arranged.most()), 1);
    bool narrow = false;
    for (int k = 0; k < arranged.channels; ++k) {
        const std::vector<float>& given = arranged.given[k];
        const int n = int(arranged.levels[k].size());
        c.set(counts, 0, 0, k, few && k == which ? 1 : n);
        narrow |= double(given.back()) - given[0] < n - 1;
        for (size_t i = 0; i < given.size(); ++i)
            c.set(c.image(!uniform ? "pLevels"
                          : i      ? "upperLevel"
                                   : "lowerLevel"),
                  uniform ? 0 : int64_t(i), 0, k, given[i]);
    }
    if (uniform && narrow && !arranged.real()) c.expected = STATUS_WARN_SIZE_CLIPPED;
    if (bad) c.expected = STATUS_BAD_RANGE;
    if (few) c.expected = STATUS_BAD_LEVEL_COUNT;
}

void makeSpec(Case& c) {
    if (c.expected < 0) return;
    const Image& place = c.image("pSpec");
    const std::vector<uint8_t> object = arranged.objectAt(place.pointer[0]);
    for (size_t i = 0; i < object.size(); ++i) c.set(place, int64_t(i), 0, 0, object[i]);
}

void arrangeSizes(Case& c) {
    const int channels = anyChannels(c);
    c.arg("dataType") = anyType(c);
    c.arg("roiSize") = {c.rng.between(1, 1000), c.rng.between(1, 1000)};
    if (c.rng.oneIn(8)) c.arg("roiSize") = {INT_MAX, INT_MAX};
    c.arg("numChannels") = channels;
    c.arg("uniform") = c.rng.below(2);
    const Image& counts = c.placeValue("nLevels", channels);
    const bool huge = c.mode == Mode::usual && c.rng.oneIn(3);  // round the largest int
    for (int k = 0; k < channels; ++k)
        c.set(counts, 0, 0, k, huge ? INT_MAX / 4 / channels - 30 + c.rng.below(24) : c.rng.between(2, 70000));
    c.placeValue("pSpecSize", 1);
    c.placeValue("pBufferSize", 1);
}
void answerSizes(Case& c) {
    const int64_t channels = c.arg("numChannels").a;
    int64_t levels = 0;
    for (int k = 0; k < channels; ++k) levels += c.get<int>(c.image("nLevels"), 0, 0, k);
    if (headerBytes + 4 * levels > INT_MAX) return void(c.expected = STATUS_SIZE_EXCEEDS_INT);
    c.set(c.image("pSpecSize"), 0, 0, 0, int(headerBytes + 4 * levels));
    const int size = c.result<int>(c.image("pBufferSize"), 0, 0, 0);  // that it is enough is seen where it is used
    if (size < 1 || size > 4 * levels + 4 * 65536 * channels + 64) c.fail("an odd size of the buffer");
    c.set(c.image("pBufferSize"), 0, 0, 0, size);
}

void arrangeGetLevels(Case& c) {
    arranged = anySpec(c, anyType(c), anyChannels(c), c.rng.oneIn(2));
    placeHistogram(c);
    c.place("pLevels", int64_t(arranged.most()), 1);
}
void readLevels(Case& c) {
    for (int k = 0; k < arranged.channels; ++k)
        for (size_t i = 0; i < arranged.levels[k].size(); ++i)
            c.set(c.image("pLevels"), int64_t(i), 0, k, float(arranged.levels[k][i]));
}

}  // namespace

extern const Family test_zmviHistogramGetBufferSize = {.arrange = arrangeSizes, .oracle = answerSizes};
extern const Family test_zmviHistogramInit = {
    .arrange = arrangeMaker, .oracle = makeSpec, .more = {{STATUS_BAD_RANGE, {{"pLevels", Break::element, 0}}}}};
extern const Family test_zmviHistogramUniformInit = {
    .arrange = arrangeMaker, .oracle = makeSpec, .more = {{STATUS_BAD_RANGE, {{"lowerLevel", Break::element, 0}}}}};
extern const Family test_zmviHistogramGetLevels = {.arrange = arrangeGetLevels, .oracle = readLevels, .more = {badTag()}};
