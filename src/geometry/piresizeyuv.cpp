// Resizing of images whose colour planes are smaller than luma: plans and checks.  Every plane is an image of its own
// to the drivers of resizing, a plane of colour pairs one of two channels.
#include "geometry/resize.h"
#include "geometry/resizesizes.h"
#include "kernels/rounding.h"

namespace zmv {
namespace {

// Two objects of resizing behind a header, each from a 64-byte boundary on.
struct ResizeYUVHeader {
    static constexpr uint32_t itsTag = 0x59553432;
    uint32_t tag, interpolation;
    int32_t format, site;
    Len colour;  // where the object of the colour planes starts; that of luma follows the header
    uint8_t reserved[40];
};
static_assert(sizeof(ResizeYUVHeader) == objectAlignment);
constexpr Len lumaAt = sizeof(ResizeYUVHeader);

bool halvesRows(int format) { return format == CHROMA_420; }
Len halved(Len n) { return (n + 1) / 2; }
Roi colourOf(int format, Roi luma) {
    return {halved(luma.width), halvesRows(format) ? halved(luma.height) : luma.height};
}

StatusCode knownFormat(int format) { return refuse(format != CHROMA_420 && format != CHROMA_422, STATUS_BAD_ARGUMENT); }
StatusCode ownpi_ResizeYUVGetSize(Roi src, Roi dst, int format, int interpolation, bool antialiasing, int* specSize,
                                  int* initSize) {
    const bool known = plainTaps(uint32_t(interpolation)) || interpolation == INTERP_SUPER;
    if (auto bad = firstOf({pointers(specSize, initSize), sides(src, dst), knownFormat(format),
                            refuse(!known, STATUS_BAD_INTERPOLATION)}))
        return bad;
    SpecBytes luma{}, colour{};
    const auto sizes = [&](Roi from, Roi to, SpecBytes& bytes) {
        return resizeSizes(singlePrecision, from, to, uint32_t(interpolation), antialiasing, true, bytes);
    };
    if (const StatusCode bad = sizes(src, dst, luma); bad < STATUS_OK) return bad;
    const StatusCode status = sizes(colourOf(format, src), colourOf(format, dst), colour);
    if (status < STATUS_OK) return status;
    const WideLen bytes = 2 * lumaAt + roundUp(luma.spec, objectAlignment) + roundUp(colour.spec, objectAlignment);
    if (bytes > mostReported) return STATUS_SIZE_EXCEEDS_INT;
    put(specSize, int(bytes)), put(initSize, int(std::max(luma.init, colour.init)));
    return status;
}

// Where colour samples share the column of the even luma samples, they lie a quarter of their distance before the
// middle: as much in the source as in the destination, each by its own measure.
double shiftOf(Len src, Len dst) { return (1 - double(src) / double(dst)) / 4; }

StatusCode ownpi_ResizeYUVInit(const ResizeWanted& luma, int format, int site, StatusCode kernel, StatusCode blocks,
                               ResizeYUVSpec* spec, uint8_t* initBuffer) {
    ResizeWanted colour = luma;
    colour.src = colourOf(format, luma.src), colour.dst = colourOf(format, luma.dst);
    const Len least = leastSource(luma.interpolation, luma.lobes);
    const bool isSuper = luma.interpolation == INTERP_SUPER,
               knownSite = site >= CHROMA_CENTER && site <= CHROMA_TOP_LEFT;
    if (auto bad = firstOf({blocks, sides(luma.src, luma.dst), knownFormat(format),
                            refuse(!knownSite, STATUS_BAD_ARGUMENT), kernel, smallSource(luma.src, least),
                            smallSource(colour.src, least), isSuper ? reduces(luma.src, luma.dst) : STATUS_OK}))
        return bad;
    if (auto bad = luma.antialiasing ? countableTaps(luma.src, luma.dst, luma.interpolation) : STATUS_OK) return bad;
    if (site != CHROMA_CENTER) colour.shiftX = shiftOf(colour.src.width, colour.dst.width);
    if (site == CHROMA_TOP_LEFT && halvesRows(format)) colour.shiftY = shiftOf(colour.src.height, colour.dst.height);
    const WideLen lumaBytes = specBytes(luma.src, luma.dst, luma.interpolation, luma.antialiasing, false).spec;
    const ResizeYUVHeader header{ResizeYUVHeader::itsTag,
                                 luma.interpolation,
                                 format,
                                 site,
                                 lumaAt + Len(roundUp(lumaBytes, objectAlignment)),
                                 {}};
    uint8_t* const object = objectIn(reinterpret_cast<uint8_t*>(spec));
    std::memcpy(object, &header, sizeof header);
    makeResizeObject(luma, object + lumaAt, initBuffer);
    makeResizeObject(colour, object + header.colour, initBuffer);
    return STATUS_OK;
}

// An object, read; without its tag there is nothing to read behind the header.
struct YUVPlan {
    const uint8_t* object;
    ResizeYUVHeader header;
    ResizeHeader luma{}, colour{};
    explicit YUVPlan(const ResizeYUVSpec* spec)
        : object(spec ? objectIn(reinterpret_cast<const uint8_t*>(spec)) : nullptr),
          header(headerOf<ResizeYUVHeader>(object)) {
        if (header.tag != header.itsTag) return;
        luma = headerOf<ResizeHeader>(object + lumaAt), colour = headerOf<ResizeHeader>(object + header.colour);
    }
};

StatusCode ownpi_ResizeYUVGetBufferSize(const ResizeYUVSpec* spec, Roi tile, int* size) {
    const YUVPlan plan(spec);
    if (auto bad = firstOf({pointers(spec, size), nothingToDo(tile), tagged(plan.header), negative(tile)})) return bad;
    const WideLen bytes = std::max(resizeBufferBytes(plan.luma, tile, 1),
                                   resizeBufferBytes(plan.colour, colourOf(plan.header.format, tile), 2));
    if (bytes > mostReported) return STATUS_SIZE_EXCEEDS_INT;
    put(size, int(bytes));
    return ClippedTile(plan.luma, {0, 0}, tile).status;
}

template <int planes>
StatusCode ownpi_ResizeYUV(int format, uint32_t interpolation, const uint8_t* const* src, const int* srcStep,
                           uint8_t* const* dst, const int* dstStep, At offset, Roi size, const ResizeYUVSpec* spec,
                           uint8_t* buffer) {
    const YUVPlan plan(spec);
    const bool rows = halvesRows(plan.header.format);
    const auto endsOdd = [](Len from, Len n, Len whole) { return n % 2 != 0 && from + n < whole; };
    const bool oddStart = offset.x % 2 || (rows && offset.y % 2),
               oddEnd = endsOdd(offset.x, size.width, plan.luma.horizontal.dst) ||
                        (rows && endsOdd(offset.y, size.height, plan.luma.vertical.dst));
    if (auto bad =
            firstOf({planePointers(src, planes), planePointers(dst, planes), pointers(srcStep, dstStep, spec, buffer),
                     nothingToDo(size), tagged(plan.header), negative(size), insideDestination(plan.luma, offset),
                     refuse(oddStart, STATUS_OUT_OF_RANGE), refuse(oddEnd, STATUS_BAD_SIZE),
                     refuse(plan.header.format != format || plan.header.interpolation != interpolation,
                            STATUS_CONTEXT_MISMATCH)}))
        return bad;
    const ClippedTile clipped(plan.luma, offset, size);
    for (int p = 0; p < planes; ++p) {
        const ResizeHeader& header = p ? plan.colour : plan.luma;
        const At at = p ? At(offset.x / 2, rows ? offset.y / 2 : offset.y) : offset;
        const int channels = p && planes == 2 ? 2 : 1;
        const ResizeTile tile{header,   plan.object + (p ? plan.header.colour : lumaAt),
                              at,       p ? colourOf(format, clipped.size) : clipped.size,
                              channels, BORDER_REPL,
                              buffer};
        const At first = sourceOffset(header, at);
        const auto from = image(get(src + p), get(srcStep + p)).at(first.x * channels, first.y);
        (interpolation == INTERP_SUPER ? ownpi_ResizeSuperTile<uint8_t>
                                       : ownpi_ResizeTile<uint8_t>)(tile, from, image(get(dst + p), get(dstStep + p)));
    }
    return clipped.status;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "geometry/resizeyuv.def"
RESIZE_YUV_GET_SIZE_FAMILY
RESIZE_YUV_LINEAR_INIT_FAMILY
RESIZE_YUV_CUBIC_INIT_FAMILY
RESIZE_YUV_LANCZOS_INIT_FAMILY
RESIZE_YUV_SUPER_INIT_FAMILY
RESIZE_YUV_GET_BUFFER_SIZE_FAMILY
RESIZE_YUV420_LINEAR_FAMILY
RESIZE_YUV420_CUBIC_FAMILY
RESIZE_YUV420_LANCZOS_FAMILY
RESIZE_YUV420_SUPER_FAMILY
RESIZE_YUV422_LINEAR_FAMILY
RESIZE_YUV422_CUBIC_FAMILY
RESIZE_YUV422_LANCZOS_FAMILY
RESIZE_YUV422_SUPER_FAMILY
