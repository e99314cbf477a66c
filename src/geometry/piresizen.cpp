// Resizing, the executions: their contract, and the way to the drivers.
#include "geometry/resize.h"
#include "kernels/borders.h"

namespace zmv {
namespace {

enum class ResizeMethod { Nearest, Linear, Cubic, Lanczos, Super, Antialiasing };

// Looked at before everything else.  Lanczos has no mirror and no 4, which for the others means the nearest pixel.
StatusCode resizeBorder(ResizeMethod method, uint32_t word) {
    const uint32_t rule = word & 15;
    const bool plain = rule == BORDER_REPL, others = rule == BORDER_MIRROR || rule == 4;
    const bool known = word == BORDER_IN_MEM || plain || (others && method != ResizeMethod::Lanczos);
    return refuse(word > 255 || !known, STATUS_BAD_BORDER);
}

// Of antialiasing any that has weights.
bool isFor(ResizeMethod method, uint32_t interpolation) {
    switch (method) {
        case ResizeMethod::Nearest:
            return interpolation == INTERP_NEAREST;
        case ResizeMethod::Linear:
            return interpolation == INTERP_LINEAR;
        case ResizeMethod::Cubic:
            return interpolation == INTERP_CUBIC;
        case ResizeMethod::Lanczos:
            return interpolation == INTERP_LANCZOS;
        case ResizeMethod::Super:
            return interpolation == INTERP_SUPER;
        default:
            return plainTaps(interpolation) != 0;
    }
}

// No rule takes the value of the border: the pointer is not looked at.
template <ResizeMethod method, class T>
StatusCode ownpi_Resize(const T* src, Len srcStep, T* dst, Len dstStep, Layout layout, At offset, Roi size,
                        uint32_t word, const ResizeSpec* spec, uint8_t* buffer, const T* = nullptr) {
    const auto block = reinterpret_cast<const uint8_t*>(spec);
    const uint8_t* const object = block ? objectIn(block) : nullptr;
    const auto header = headerOf<ResizeHeader>(object);
    const bool wanted = accepts(sizeof(T) == 8 ? ObjectsOf::dbl : ObjectsOf::single, header.kind);
    const bool antialiasing = method == ResizeMethod::Antialiasing;
    if (auto bad = firstOf({resizeBorder(method, word), pointers(src, dst, spec, buffer), nothingToDo(size),
                            refuse(header.tag != header.itsTag || !wanted, STATUS_CONTEXT_MISMATCH), negative(size),
                            insideDestination(header, offset),
                            refuse((header.antialiasing != 0) != antialiasing, STATUS_BAD_ARGUMENT),
                            refuse(!isFor(method, header.interpolation), STATUS_CONTEXT_MISMATCH)}))
        return bad;
    const ClippedTile clipped(header, offset, size);
    const ResizeTile tile{header, object, offset, clipped.size, layout.channels, int(word), buffer};
    if constexpr (method == ResizeMethod::Nearest)
        ownpi_ResizeNearestTile(tile, Image<const Bits<T>>(bits(src, srcStep)), bits(dst, dstStep));
    else if constexpr (method == ResizeMethod::Super)
        ownpi_ResizeSuperTile(tile, image(src, srcStep), image(dst, dstStep));
    else
        ownpi_ResizeTile(tile, image(src, srcStep), image(dst, dstStep));
    return clipped.status;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "geometry/resize.def"
RESIZE_NEAREST_FAMILY
RESIZE_LINEAR_FAMILY
RESIZE_CUBIC_FAMILY
RESIZE_LANCZOS_FAMILY
RESIZE_SUPER_FAMILY
RESIZE_ANTIALIASING_FAMILY
