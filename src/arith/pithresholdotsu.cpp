// zmviComputeThreshold_Otsu: the level that best parts an image into dark and light.
#include <limits>

#include "kernels/count.h"
#include "kernels/rounding.h"

namespace zmv {
namespace {

int bestLevel(const uint64_t* counts, Len pixels) {
    // Classes of next to no weight are not looked at: their means would be quotients of rounding errors.
    constexpr double least = std::numeric_limits<float>::epsilon(), most = 1 - least;
    const double inverse = 1 / double(pixels);
    double mean = 0;
    for (int level = 0; level < 256; ++level) mean += double(counts[level]) * (level + 0.5);
    mean *= inverse;

    // The class up to the level: its weight, and its mean times its weight.
    double weight = 0, part = 0, largest = -1;
    int best = 0;
    for (int level = 0; level < 256; ++level) {
        const double probability = double(counts[level]) * inverse;
        weight += probability;
        const double rest = 1 - weight;
        if (std::min(weight, rest) < least || std::max(weight, rest) > most) continue;
        part += probability * (level + 0.5);
        const double difference = part * rest + (part - mean) * weight;
        if (const double between = difference * difference / (rest * weight); between > largest)
            largest = between, best = level;
    }
    return best;
}

StatusCode ownpi_ComputeThreshold_Otsu(Image<const uint8_t> src, Roi roi, uint8_t* threshold) {
    if (auto bad = firstOf({pointers(src.data, threshold), size(roi), rowStep(src.step, roi.width)})) return bad;
    ByteCounts<1>::Memory memory;
    ByteCounts<1>(memory).add(src, roi);
    put(threshold, uint8_t(toNearest([&] { return bestLevel(memory.totals[0], roi.width * roi.height); })));
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/threshold.def"
OTSU_FAMILY
