// zmviFilterMedianBorder of 8-bit images, and the query for all types.
#include "filter/medianborder.h"

namespace zmv {
namespace {

StatusCode ownpi_MedianBorderGetBufferSize(ImageSize roi, ImageSize mask, int type, int channels, int* bytes) {
    const bool typed = channels == 1 || type != DATATYPE_32F;
    if (auto bad = firstOf({pointers(bytes), size(roi), oddMask(mask), channelCount(channels), dataType(type),
                            refuse(!typed, STATUS_BAD_DATATYPE)}))
        return bad;
    const Window window(mask);
    const WideLen total = type == DATATYPE_8U    ? bufferSize<uint8_t>(roi, window, channels)
                          : type == DATATYPE_32F ? bufferSize<float>(roi, window, channels)
                                                 : bufferSize<uint16_t>(roi, window, channels);
    const StatusCode bad = fits<int>(total);
    put(bytes, bad ? 0 : int(total));
    return bad;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/median.def"
MEDIAN_BORDER_SIZE_FAMILY
MEDIAN_BORDERS(8u)
