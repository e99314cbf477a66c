// What filters whose masks have one shape check, and the size of the work buffer that they report.
#pragma once

#include "kernels/bands.h"

namespace zmv {

inline StatusCode maskCode(int code, bool takes5x5) {
    return refuse(code != MASK_3X3 && !(takes5x5 && code == MASK_5X5), STATUS_BAD_MASK_SIZE);
}
inline ImageSize maskOf(int code) { return code == MASK_5X5 ? ImageSize{5, 5} : ImageSize{3, 3}; }

inline int bytesOfType(int type) { return type == DATATYPE_8U ? 1 : type == DATATYPE_16S ? 2 : 4; }
// Of a filter that keeps a ring of rows and, of larger elements, a row of sums.
inline WideLen fixedBufferSize(ImageSize roi, int code, int type, int channels) {
    const int rows = code == MASK_5X5 ? 7 : 3, frame = code == MASK_5X5 ? 4 : 2, bytes = bytesOfType(type);
    const WideLen ring = WideLen(rows) * (std::max<WideLen>(roi.width, roi.height) + frame) * channels * bytes;
    const WideLen line = bytes == 1 ? 0 : roundUp(4 * WideLen(roi.width) * channels, 32);
    return roundUp(ring, 32) + line + 32;
}
inline StatusCode answerSize(WideLen bytes, int* size) {
    if (auto bad = fits<int>(bytes)) return bad;
    put(size, int(bytes));
    return STATUS_OK;
}

// Filters whose results are of the source's own type: their query, and their checks.
inline StatusCode sameTypeQuery(Roi roi, int code, bool takes5x5, int from, int to, int channels, const int* size) {
    const bool same = from == to && (from == DATATYPE_8U || from == DATATYPE_16S || from == DATATYPE_32F);
    return firstOf({pointers(size), zmv::size(roi), maskCode(code, takes5x5), refuse(!same, STATUS_BAD_DATATYPE),
                    channelCount(channels)});
}
template <class T>
StatusCode sameTypeChecks(Image<const T> src, Image<T> dst, Roi roi, int code, bool takes5x5, int borderType,
                          const T* value, const uint8_t* buffer) {
    return firstOf({pointers(src.data, dst.data, buffer), size(roi), maskCode(code, takes5x5),
                    unmirroredBorder(borderType), borderValue(neededBorder(borderType), value)});
}

}  // namespace zmv
