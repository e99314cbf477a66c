// Spec objects of resizing: sizes, initialisation, and what callers ask about tiles.
#include <cmath>
#include <tuple>

#include "geometry/resizeaxis.h"
#include "geometry/resizesizes.h"
#include "kernels/rounding.h"
#include "kernels/simd.h"

namespace zmv {
namespace {

StatusCode interpolationWord(int word) {
    return refuse(word < 0 || word > 16 || !(1 << word & (1 << 0 | 1 << 1 | 1 << 2 | 1 << 6 | 1 << 8 | 1 << 16)),
                  STATUS_BAD_INTERPOLATION);
}
template <class Int>
StatusCode ownpi_ResizeGetSize(ResizeKind kind, Roi src, Roi dst, int interpolation, bool antialiasing, Int* specSize,
                               Int* initSize) {
    if (auto bad = firstOf({pointers(specSize, initSize), sides(src, dst)})) return bad;
    if (auto bad = interpolationWord(interpolation)) return bad;
    SpecBytes bytes;
    const StatusCode status =
        resizeSizes(kind, src, dst, uint32_t(interpolation), antialiasing, sizeof(Int) == 4, bytes);
    if (status >= STATUS_OK) put(specSize, Int(bytes.spec)), put(initSize, Int(bytes.init));
    return status;
}

// ---- Initialisation ----

ResizeHeader headerFor(const ResizeWanted& w) {
    ResizeHeader h = {};
    h.tag = h.itsTag, h.kind = h.kindAsPassed = w.kind, h.interpolation = w.interpolation, h.two = 2;
    h.vertical = h.axis(w.src.height, w.dst.height), h.horizontal = h.axis(w.src.width, w.dst.width);
    h.srcWidth = w.src.width, h.srcHeight = w.src.height, h.dstWidth = w.dst.width, h.dstHeight = w.dst.height;
    h.b = w.b, h.c = w.c, h.lobes = w.lobes, h.antialiasing = w.antialiasing;
    h.shiftX = w.shiftX, h.shiftY = w.shiftY;
    const auto radius = [&](const ResizeHeader::Axis& axis) {
        if (w.antialiasing) return uint32_t(antialiasingTaps(w.interpolation, axis.src, axis.dst) / 2);
        return w.interpolation == INTERP_LANCZOS && w.lobes != 3 ? 2 : uint32_t(plainTaps(w.interpolation) / 2);
    };
    h.verticalRadius = radius(h.vertical), h.horizontalRadius = radius(h.horizontal);
    h.rows = shapeOf(h, h.vertical, 0), h.columns = shapeOf(h, h.horizontal, 0);
    return h;
}

// Writes the tables, and with them what the header says about them.
template <class W>
void writeTables(uint8_t* object, ResizeHeader& h, float* fractions, bool withWeights) {
    const ResizeParts parts(h);
    bool integers = h.interpolation != INTERP_LINEAR || h.antialiasing;
    const auto form = [&](const ResizeHeader::Axis& axis, double shift, AxisShape& shape, Table<int32_t> index,
                          Table<uint8_t> weights, float* f) {
        shape = shapeOf(h, axis, shift);
        AxisTables<W> tables{h, axis, shift, shape, index.in(object), reinterpret_cast<W*>(weights.in(object))};
        tables.writePositions(f);
        if (withWeights) tables.writeWeights();
        integers = integers && withWeights && tables.fitIntegers();
        const ResizeAxis<W> made{axis.src, axis.dst, shape, index.in(object), tables.weights};
        return std::pair(int32_t(std::max<Len>(0, -made.first(0))),
                         int32_t(std::max<Len>(0, made.end(axis.dst - 1) - axis.src)));
    };
    std::tie(h.top, h.bottom) = form(h.vertical, h.shiftY, h.rows, parts.rowIndex, parts.rowWeights, fractions);
    std::tie(h.left, h.right) = form(h.horizontal, h.shiftX, h.columns, parts.columnIndex, parts.columnWeights,
                                     fractions ? fractions + h.vertical.dst : nullptr);
    h.fixedPoint = integers && h.interpolation != INTERP_NEAREST && !h.isDouble();
    if (!h.antialiasing && h.interpolation != INTERP_NEAREST)
        h.left = h.top = h.right = h.bottom = int32_t(h.horizontalRadius);
}
void writeObject(uint8_t* object, ResizeHeader& h, float* fractions, bool withWeights) {
    if (h.interpolation != INTERP_SUPER) {
        const ResizeParts parts(h);
        h.rowIndex = parts.rowIndex.in(object), h.columnIndex = parts.columnIndex.in(object);
        (h.isDouble() ? writeTables<double> : writeTables<float>)(object, h, fractions, withWeights);
    }
    store(object, h);
}

StatusCode init(const ResizeWanted& w, ResizeSpec* spec, uint8_t* initBuffer, bool withWeights = true) {
    makeResizeObject(w, objectIn(reinterpret_cast<uint8_t*>(spec)), initBuffer, withWeights);
    return STATUS_OK;
}

StatusCode ownpi_ResizeNearestInit(Roi src, Roi dst, ResizeSpec* spec) {
    if (auto bad = firstOf({pointers(spec), sides(src, dst)})) return bad;
    return init({src, dst, INTERP_NEAREST}, spec, nullptr);
}
StatusCode ownpi_ResizeSuperInit(Roi src, Roi dst, ResizeSpec* spec) {
    if (auto bad = firstOf({pointers(spec), sides(src, dst), reduces(src, dst)})) return bad;
    return init({src, dst, INTERP_SUPER}, spec, nullptr);
}
StatusCode ownpi_ResizeLinearInit(ResizeKind kind, Roi src, Roi dst, ResizeSpec* spec) {
    if (auto bad = firstOf({pointers(spec), sides(src, dst), smallSource(src, 2)})) return bad;
    return init({src, dst, INTERP_LINEAR, kind}, spec, nullptr);
}
StatusCode ownpi_ResizeCubicInit(Roi src, Roi dst, ResizeSpec* spec, uint8_t* initBuffer, float b, float c) {
    if (auto bad = firstOf({pointers(spec, initBuffer), sides(src, dst), smallSource(src, 4), parameters(b, c)}))
        return bad;
    return init({.src = src, .dst = dst, .interpolation = INTERP_CUBIC, .b = b, .c = c}, spec, initBuffer);
}

// The number of lobes is looked at after the header and the tables of positions are written, and what fails here
// leaves the processor rounding to nearest and flushing small results, as this initialiser always has.
StatusCode lobesFor(Roi src, uint32_t lobes) {
    return firstOf({lobeCount(lobes), smallSource(src, leastSource(INTERP_LANCZOS, lobes))});
}
StatusCode ownpi_ResizeLanczosInit(Roi src, Roi dst, uint32_t lobes, ResizeSpec* spec, uint8_t* initBuffer) {
    if (auto bad = firstOf({pointers(spec, initBuffer), sides(src, dst)})) return bad;
    const StatusCode late = lobesFor(src, lobes);
    init({.src = src, .dst = dst, .interpolation = INTERP_LANCZOS, .lobes = lobes == 3 ? 3u : 2u}, spec, initBuffer,
         late == STATUS_OK);
    if (late) leaveFlushingToZero();
    return late;
}

StatusCode antialiasingInit(const ResizeWanted& w, ResizeSpec* spec, uint8_t* initBuffer, StatusCode beforeSource) {
    if (auto bad = firstOf({pointers(spec, initBuffer), sides(w.src, w.dst), beforeSource,
                            smallSource(w.src, leastSource(w.interpolation, w.lobes))}))
        return bad;
    if (auto bad = firstOf({countableTaps(w.src, w.dst, w.interpolation), parameters(w.b, w.c)})) return bad;
    return init(w, spec, initBuffer);
}
StatusCode ownpi_ResizeAntialiasingLinearInit(ResizeKind kind, Roi src, Roi dst, ResizeSpec* spec,
                                              uint8_t* initBuffer) {
    return antialiasingInit({src, dst, INTERP_LINEAR, kind, true}, spec, initBuffer, STATUS_OK);
}
StatusCode ownpi_ResizeAntialiasingCubicInit(ResizeKind kind, Roi src, Roi dst, ResizeSpec* spec, uint8_t* initBuffer,
                                             float b, float c) {
    return antialiasingInit({src, dst, INTERP_CUBIC, kind, true, 0, b, c}, spec, initBuffer, STATUS_OK);
}
StatusCode ownpi_ResizeAntialiasingLanczosInit(ResizeKind kind, Roi src, Roi dst, uint32_t lobes, ResizeSpec* spec,
                                               uint8_t* initBuffer) {
    return antialiasingInit({src, dst, INTERP_LANCZOS, kind, true, lobes}, spec, initBuffer, lobeCount(lobes));
}

// ---- Services on an object ----

ResizeHeader headerIn(const ResizeSpec* spec) {
    const auto block = reinterpret_cast<const uint8_t*>(spec);
    return headerOf<ResizeHeader>(block ? objectIn(block) : nullptr);
}
StatusCode known(const ResizeHeader& h, ObjectsOf objects) {
    return refuse(h.tag != h.itsTag || !accepts(objects, h.kind), STATUS_CONTEXT_MISMATCH);
}

StatusCode ownpi_ResizeSetMode(double shiftX, double shiftY, ResizeSpec* spec) {
    ResizeHeader header = headerIn(spec);
    const bool near = std::fabs(shiftX) <= 0.5 && std::fabs(shiftY) <= 0.5;
    const bool tables = header.interpolation == INTERP_NEAREST || plainTaps(header.interpolation);
    if (auto bad = firstOf({pointers(spec), known(header, ObjectsOf::any), refuse(!near, STATUS_OUT_OF_RANGE),
                            refuse(header.interpolation == INTERP_SUPER, STATUS_BAD_ARGUMENT),
                            refuse(!tables, STATUS_CONTEXT_MISMATCH)}))
        return bad;
    header.shiftX = shiftX, header.shiftY = shiftY;
    toNearest([&] { writeObject(objectIn(reinterpret_cast<uint8_t*>(spec)), header, nullptr, true); });
    return STATUS_OK;
}

template <class Int>
StatusCode ownpi_ResizeGetBufferSize(ObjectsOf objects, const ResizeSpec* spec, Roi tile, int channels, Int* size) {
    const ResizeHeader header = headerIn(spec);
    if (auto bad = firstOf({pointers(spec, size), nothingToDo(tile), known(header, objects), channelCount(channels),
                            negative(tile), refuse(header.interpolation == 0, STATUS_CONTEXT_MISMATCH)}))
        return bad;
    const WideLen bytes = resizeBufferBytes(header, tile, channels);
    if (sizeof(Int) == 4 ? bytes > mostReported : fits<Int>(bytes) != STATUS_OK) return STATUS_SIZE_EXCEEDS_INT;
    put(size, Int(bytes));
    return ClippedTile(header, {0, 0}, tile).status;
}
StatusCode ownpi_ResizeGetBorderSize(ObjectsOf objects, const ResizeSpec* spec, int* sides) {
    const ResizeHeader header = headerIn(spec);
    if (auto bad = firstOf({pointers(spec, sides), known(header, objects)})) return bad;
    put(sides, header.left), put(sides + 1, header.top), put(sides + 2, header.right), put(sides + 3, header.bottom);
    return STATUS_OK;
}
template <class Point>
StatusCode ownpi_ResizeGetSrcOffset(ObjectsOf objects, const ResizeSpec* spec, At dst, Point* src) {
    const ResizeHeader header = headerIn(spec);
    if (auto bad = firstOf({pointers(spec, src), known(header, objects), insideDestination(header, dst)})) return bad;
    const At offset = sourceOffset(header, dst);
    using Number = decltype(Point::x);
    put(src, {Number(offset.x), Number(offset.y)});
    return STATUS_OK;
}

struct Stretch {
    Len from, to;
};
template <class W>
Stretch stretchOf(const ResizeAxis<W>& axis, Len from, Len to) {
    const Len first = axis.first(from), end = axis.end(to - 1);
    Stretch s{std::max<Len>(first, 0), std::min(end, axis.src)};
    // The mirror takes what lies as far inside as a tap lies outside.
    if (first < 0) s.to = std::max(s.to, std::min(1 - first, axis.src));
    if (end > axis.src) s.from = std::min(s.from, std::max<Len>(2 * axis.src - 1 - end, 0));
    return s;
}
template <class Rect>
StatusCode ownpi_ResizeGetSrcRoi(ObjectsOf objects, const ResizeSpec* spec, At dst, Roi tile, Rect* rect) {
    const ResizeHeader header = headerIn(spec);
    if (auto bad = firstOf({pointers(spec, rect), nothingToDo(tile), known(header, objects), negative(tile),
                            insideDestination(header, dst)}))
        return bad;
    const ClippedTile clipped(header, dst, tile);
    const uint8_t* const object = objectIn(reinterpret_cast<const uint8_t*>(spec));
    const Len right = dst.x + clipped.size.width, bottom = dst.y + clipped.size.height;
    const auto tables = [&]<class W>(W) {
        return std::pair(stretchOf(columnsOf<W>(header, object), dst.x, right),
                         stretchOf(rowsOf<W>(header, object), dst.y, bottom));
    };
    const auto area = [](const ResizeHeader::Axis& axis, Len from, Len to) {
        return Stretch{SuperAxis(axis).first(from), SuperAxis(axis).end(to - 1)};
    };
    const auto [x, y] = header.interpolation == INTERP_SUPER
                            ? std::pair(area(header.horizontal, dst.x, right), area(header.vertical, dst.y, bottom))
                        : header.isDouble() ? tables(double{})
                                            : tables(float{});
    using Number = decltype(Rect::x);
    put(rect, {Number(x.from), Number(y.from), Number(x.to - x.from), Number(y.to - y.from)});
    return clipped.status;
}

}  // namespace

void makeResizeObject(const ResizeWanted& w, uint8_t* object, uint8_t* initBuffer, bool withWeights) {
    ResizeHeader header = headerFor(w);
    header.initBuffer = initBuffer;
    const bool keepsFractions = !w.antialiasing && plainTaps(w.interpolation) > 2;
    float* const fractions = keepsFractions ? reinterpret_cast<float*>(objectIn(initBuffer)) : nullptr;
    toNearest([&] { writeObject(object, header, fractions, withWeights); });
}

// Of the tile's own index tables, and the rows or the sums that a filter keeps.
WideLen resizeBufferBytes(const ResizeHeader& h, Roi tile, int channels) {
    const WideLen n = channels, e = h.tapBytes(), width = std::min<Len>(tile.width, h.horizontal.dst),
                  height = std::min<Len>(tile.height, h.vertical.dst), base = up32(4 * height) + up32(4 * width) + 64;
    const WideLen row = up32(n * width * e);
    if (h.interpolation == INTERP_NEAREST) return base;
    if (h.interpolation == INTERP_SUPER) {
        const Len columns = toNearest([&] {
            return Len(float(Len(width)) * float(h.horizontal.srcReduced) / float(h.horizontal.dstReduced) + 3.0f);
        });
        const WideLen sums = std::min<Len>(h.horizontal.src, columns);
        return base + (n * ((sums + 32) / 32 * 32) * 4 + 8) * std::min<WideLen>(height, h.vertical.dstReduced) + 64;
    }
    if (!h.antialiasing) return base + row * 2 * h.horizontalRadius;
    const WideLen radius = std::max(h.horizontalRadius, h.verticalRadius);
    return base + row * 2 * radius + up32(e * width * 2 * h.horizontalRadius) + up32(e * height * 2 * h.verticalRadius);
}

}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "geometry/resize.def"
RESIZE_GET_SIZE_FAMILY
RESIZE_NEAREST_INIT_FAMILY
RESIZE_LINEAR_INIT_FAMILY
RESIZE_CUBIC_INIT_FAMILY
RESIZE_LANCZOS_INIT_FAMILY
RESIZE_SUPER_INIT_FAMILY
RESIZE_ANTIALIASING_LINEAR_INIT_FAMILY
RESIZE_ANTIALIASING_CUBIC_INIT_FAMILY
RESIZE_ANTIALIASING_LANCZOS_INIT_FAMILY
RESIZE_GET_BUFFER_SIZE_FAMILY
RESIZE_GET_BORDER_SIZE_FAMILY
RESIZE_GET_SRC_OFFSET_FAMILY
RESIZE_GET_SRC_ROI_FAMILY
RESIZE_SET_MODE_FAMILY
