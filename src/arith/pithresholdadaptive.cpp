// zmviThresholdAdaptiveBox, zmviThresholdAdaptiveGauss: their contracts, the sizes they ask for, and the spec object.
#include "arith/adaptive.h"
#include "arith/exp.h"
#include "core/spec.h"

namespace zmv {
namespace {

struct Outside {
    int borderType;
    uint8_t value;
};
StatusCode oddSquare(ImageSize mask) {
    return refuse(mask.width != mask.height || mask.width < 1 || mask.width % 2 == 0, STATUS_BAD_MASK_SIZE);
}

// What zmviThresholdAdaptiveGaussInit writes.  The object starts at the first multiple of 8 behind the first byte,
// which holds the distance between the two: so a copy of the block works wherever it is.
struct GaussSpec {
    static constexpr uint64_t itsTag = 0x14B61738E;
    uint64_t tag;
    int32_t mode, maskSize;
    float sigma;
    uint32_t unused;
    const float* weights;
};
constexpr Len gaussAlignment = 8;
static_assert(sizeof(GaussSpec) == 32);
struct GaussParts : SpecParts {
    Table<float> weights;
    explicit GaussParts(Len mask) : SpecParts(sizeof(GaussSpec)), weights(table<float>(mask)) {}
    WideLen blockBytes() const { return gaussAlignment + objectBytes(); }
};

StatusCode checked(Roi roi, ImageSize mask, Len srcStep, Len dstStep) {
    return firstOf({size(roi), steps(srcStep, dstStep), oddSquare(mask)});
}

template <class Means>
StatusCode run(Image<const uint8_t> src, Image<uint8_t> dst, Roi roi, ImageSize mask, Answers answers, Outside outside,
               Means means) {
    // Levels that no neighbourhood can bring among the pixels; the mean of a single pixel is itself.  NaN is no level.
    const float delta = answers.delta;
    const bool allGt = delta > 255, allLe = !(delta > -255);
    if (allGt || allLe || mask.width == 1) {
        const uint8_t value = allGt || (!allLe && roundedUp(1, delta) > 0) ? answers.gt : answers.le;
        const Pattern pattern(&value, C1);
        for (Len y = 0; y < roi.height; ++y) fillRow(dst.row(y), pattern, roi.width);
        return STATUS_OK;
    }
    const Window window(mask);
    Pixels bands(src, roi, C1, window, outside.borderType, &outside.value, src.data == dst.data);
    means(bands, window);
    return STATUS_OK;
}

StatusCode ownpi_ThresholdAdaptiveBox(Image<const uint8_t> src, Image<uint8_t> dst, Roi roi, ImageSize mask,
                                      Answers answers, Outside outside, uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src.data, dst.data, buffer), checked(roi, mask, src.step, dst.step),
                            unmirroredBorder(outside.borderType)}))
        return bad;
    return run(src, dst, roi, mask, answers, outside,
               [&](Pixels& bands, Window window) { boxMeans(bands, src, dst, roi, window, answers, Scratch(buffer)); });
}

StatusCode ownpi_ThresholdAdaptiveGauss(Image<const uint8_t> src, Image<uint8_t> dst, Roi roi, ImageSize mask,
                                        Answers answers, Outside outside, const uint8_t* spec, uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src.data, dst.data, spec, buffer), checked(roi, mask, src.step, dst.step)}))
        return bad;
    const Len distance = spec[0];
    if (distance < 1 || distance > gaussAlignment) return STATUS_CONTEXT_MISMATCH;
    const uint8_t* const object = spec + distance;
    const auto header = headerOf<GaussSpec>(object);
    if (auto bad = firstOf({tagged(header), refuse(header.maskSize != mask.width, STATUS_BAD_MASK_SIZE),
                            unmirroredBorder(outside.borderType)}))
        return bad;
    return run(src, dst, roi, mask, answers, outside, [&](Pixels& bands, Window window) {
        const TableWeights weights{GaussParts(mask.width).weights.in(object), window.left};
        gaussMeans(bands, src, dst, roi, window, weights, answers, Scratch(buffer));
    });
}

StatusCode checkedQuery(Roi roi, ImageSize mask, int dataType, int channels) {
    return firstOf({size(roi), oddSquare(mask), refuse(dataType != DATATYPE_8U, STATUS_BAD_DATATYPE),
                    refuse(channels != 1, STATUS_BAD_CHANNELS)});
}

// Of a filter that keeps, for each row of the mask, an extended row of pixels and a row of sums, and one row of sums
// more; and bands round the region, or all of it if the mask is larger.  The functions above have other parts but never
// need more.
constexpr WideLen bufferSize(ImageSize roi, ImageSize mask) {
    const WideLen w = roi.width, h = roi.height, m = mask.width, extendedWidth = w + m - 1;
    const WideLen rows = roundUp((roundUp(extendedWidth, 32) + 8) * m + roundUp(4 * w, 32) * (m + 1), 32);
    if (m > w || m > h) return rows + roundUp(extendedWidth * (h + m - 1), 32);
    const WideLen bands = roundUp((m - 1 + m / 2) * (std::max(w, h) + m - 1), 32);
    return rows + roundUp(h * (m - 1), 64) + roundUp(w * (m - 1), 64) + bands;
}
static_assert(fitsEverywhere([](ImageSize roi, ImageSize mask) {
    if (mask.width != mask.height || mask.width % 2 == 0) return true;
    const Window window(mask);
    constexpr BandsUse most{true, true};
    return scratchBytes<LineMemory<uint16_t, uint8_t>>(roi, window, 1, most) <= bufferSize(roi, mask) &&
           scratchBytes<LineMemory<int32_t, uint8_t>>(roi, window, 1, most) <= bufferSize(roi, mask) &&
           scratchBytes<GaussMemory>(roi, window, most) <= bufferSize(roi, mask);
}));

StatusCode ownpi_AdaptiveGetBufferSize(ImageSize roi, ImageSize mask, int dataType, int channels, int* size) {
    if (auto bad = firstOf({pointers(size), checkedQuery(roi, mask, dataType, channels)})) return bad;
    if (auto bad = fits<int>(bufferSize(roi, mask))) return bad;
    put(size, int(bufferSize(roi, mask)));
    return STATUS_OK;
}
StatusCode ownpi_AdaptiveGaussGetBufferSize(ImageSize roi, ImageSize mask, int dataType, int channels, int* spec,
                                            int* buffer) {
    if (auto bad = pointers(spec, buffer)) return bad;
    // The buffer is the larger one.
    if (auto bad = ownpi_AdaptiveGetBufferSize(roi, mask, dataType, channels, buffer)) return bad;
    put(spec, int(GaussParts(mask.width).blockBytes()));
    return STATUS_OK;
}

// The weights of a bell of that width, or of the usual one; returns which.
float putWeights(float* weights, int maskSize, float sigma) {
    const Len radius = maskSize / 2;
    if (!(sigma > 0)) sigma = float(0.15 * double(maskSize - 1) + 0.5);
    const double spread = 2 * double(sigma) * double(sigma);
    const auto bell = [&](Len i) { return Exp(0)(fill(-double(i * i) / spread))[0]; };
    double total = 0;
    for (Len i = radius; i > 0; --i) total += 2 * bell(i);
    total += bell(0);
    // From the ends inward, each rounded with what rounding has left over; the middle one makes the sum whole.
    double left = wholeWeight, carried = 0;
    const auto putWeight = [&](Len i, double weight) {
        const auto w = float(weight / wholeWeight);
        put(weights + radius - i, w);
        put(weights + radius + i, w);
    };
    for (Len i = radius; i > 0; --i) {
        const double exact = bell(i) / total * wholeWeight + carried, weight = double(Len(exact + 0.5));
        carried = exact - weight;
        left -= 2 * weight;
        putWeight(i, weight);
    }
    putWeight(0, left);
    return sigma;
}

StatusCode ownpi_AdaptiveGaussInit(ImageSize roi, ImageSize mask, int dataType, int channels, float sigma,
                                   uint8_t* block) {
    const GaussParts parts(mask.width);
    if (auto bad =
            firstOf({pointers(block), checkedQuery(roi, mask, dataType, channels), fits<int>(parts.blockBytes())}))
        return bad;
    const Len distance = gaussAlignment - Len(reinterpret_cast<uintptr_t>(block) % gaussAlignment);
    uint8_t* const object = block + distance;
    float* const weights = parts.weights.in(object);
    block[0] = uint8_t(distance);
    const float usedSigma = toNearest([&] { return putWeights(weights, mask.width, sigma); });
    store(object, GaussSpec{GaussSpec::itsTag, 1, mask.width, usedSigma, 0, weights});
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/adaptive.def"
ADAPTIVE_BOX_SIZE_FAMILY
ADAPTIVE_BOX_FAMILY
ADAPTIVE_GAUSS_SIZE_FAMILY
ADAPTIVE_GAUSS_INIT_FAMILY
ADAPTIVE_GAUSS_FAMILY
