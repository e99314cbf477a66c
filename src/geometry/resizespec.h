// The spec object of all resize families: its header, its tables, the sizes that queries report, and what the taps of
// an axis are.  Initialisers fill it (piresizen64x.cpp), executions read it (resizetile.h).
#pragma once

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "core/spec.h"
#include "geometry/region.h"

namespace zmv {

// Objects for 8u to 32f, and those for 64f.  The second number of the first kind is one that no initialiser writes.
enum ResizeKind : uint32_t { singlePrecision = 13, singlePrecisionToo = 7, doublePrecision = 19 };
enum class ObjectsOf { single, dbl, any };
constexpr ResizeKind kindOf(ObjectsOf objects) { return objects == ObjectsOf::dbl ? doublePrecision : singlePrecision; }
constexpr bool accepts(ObjectsOf wanted, uint32_t kind) {
    const bool isDouble = kind == doublePrecision, isSingle = kind == singlePrecision || kind == singlePrecisionToo;
    return (isSingle && wanted != ObjectsOf::dbl) || (isDouble && wanted != ObjectsOf::single);
}

// What a destination pixel takes along an axis: one pixel; two, a and b, as a + (b - a) * f; so many, each with a
// weight; or a number of its own of them.
enum class Taps : int32_t { one, two, fixed, counted };

struct AxisShape {
    Taps kind;
    int32_t most, fewest;  // taps of a pixel
    int32_t stride;        // numbers a pixel in the table of weights; of counted taps the last one is their number
    int32_t reach;         // taps before the pixel that the index table names
};

struct ResizeHeader {
    static constexpr uint32_t itsTag = 0x4B617389;
    struct Axis {
        int32_t src, dst, srcReduced, dstReduced;
    };
    uint32_t tag, kind, interpolation, verticalRadius, horizontalRadius, antialiasing;
    int32_t left, top, right, bottom;  // how far taps reach beyond the source
    Axis vertical;
    const void* rowIndex;
    Axis horizontal;
    const void* columnIndex;
    double shiftX, shiftY;
    uint32_t two;
    // From here on nobody else's business.
    uint32_t kindAsPassed;
    int64_t srcWidth, srcHeight, dstWidth, dstHeight;
    const void* initBuffer;
    float b, c;
    uint32_t lobes;
    uint32_t fixedPoint;  // whether bytes may be filtered with integer weights
    AxisShape rows, columns;
    uint8_t reserved[64];

    bool isDouble() const { return kind == doublePrecision; }
    Len tapBytes() const { return isDouble() ? 8 : 4; }
    static Axis axis(Len src, Len dst) {
        const Len common = std::gcd(src, dst);
        return {int32_t(src), int32_t(dst), int32_t(src / common), int32_t(dst / common)};
    }
};
static_assert(offsetof(ResizeHeader, vertical) == 40 && offsetof(ResizeHeader, two) == 104);
static_assert(sizeof(ResizeHeader) == 272);

// Weights are float, or double in objects for 64f.
struct ResizeParts : SpecParts {
    Table<int32_t> rowIndex, columnIndex;
    Table<uint8_t> rowWeights, columnWeights;
    explicit ResizeParts(const ResizeHeader& h)
        : SpecParts(sizeof h),
          rowIndex(table<int32_t>(h.interpolation == INTERP_SUPER ? 0 : h.vertical.dst)),
          columnIndex(table<int32_t>(h.interpolation == INTERP_SUPER ? 0 : h.horizontal.dst)),
          rowWeights(table<uint8_t>(WideLen(h.vertical.dst) * h.rows.stride * h.tapBytes(), 32)),
          columnWeights(table<uint8_t>(WideLen(h.horizontal.dst) * h.columns.stride * h.tapBytes(), 32)) {}
};

// An axis of an object with tables, W being the type of its weights.
template <class W>
struct ResizeAxis {
    Len src, dst;
    AxisShape shape;
    const int32_t* index;
    const W* weights;

    Len first(Len i) const { return Len(index[i]) - shape.reach; }
    const W* group(Len i) const { return weights + i * shape.stride; }
    Len count(Len i) const {
        if (shape.kind != Taps::counted) return shape.most;
        int32_t n;
        std::memcpy(&n, group(i) + shape.stride - 1, sizeof n);
        return n;
    }
    Len end(Len i) const { return first(i) + count(i); }
};
template <class W>
ResizeAxis<W> rowsOf(const ResizeHeader& h, const uint8_t* object) {
    const ResizeParts parts(h);
    return {h.vertical.src, h.vertical.dst, h.rows, parts.rowIndex.in(object),
            reinterpret_cast<const W*>(parts.rowWeights.in(object))};
}
template <class W>
ResizeAxis<W> columnsOf(const ResizeHeader& h, const uint8_t* object) {
    const ResizeParts parts(h);
    return {h.horizontal.src, h.horizontal.dst, h.columns, parts.columnIndex.in(object),
            reinterpret_cast<const W*>(parts.columnWeights.in(object))};
}

// The part of a tile inside the destination, and whether the tile asked for more than the whole.
struct ClippedTile {
    At offset;
    Roi size;
    StatusCode status;
    ClippedTile(const ResizeHeader& h, At at, Roi tile)
        : offset(at),
          size(std::min(tile.width, h.horizontal.dst - at.x), std::min(tile.height, h.vertical.dst - at.y)),
          status(tile.width > h.horizontal.dst || tile.height > h.vertical.dst ? STATUS_WARN_SIZE_CLIPPED : STATUS_OK) {
    }
};

// The source pixel that the first pixel of a tile is told to stand on: exact in every method.
inline At sourceOffset(const ResizeHeader& h, At dst) {
    return {dst.x * h.horizontal.srcReduced / h.horizontal.dstReduced,
            dst.y * h.vertical.srcReduced / h.vertical.dstReduced};
}

// The taps that an axis may have at most, and their number in the size of a filter without antialiasing.
constexpr int plainTaps(uint32_t interpolation) {
    return interpolation == INTERP_LINEAR    ? 2
           : interpolation == INTERP_CUBIC   ? 4
           : interpolation == INTERP_LANCZOS ? 6
                                             : 0;
}
constexpr Len antialiasingTaps(uint32_t interpolation, Len src, Len dst) {
    const Len taps = plainTaps(interpolation);
    return src <= dst ? taps : 2 * ((taps * src + dst - 1) / dst);
}

// What an object is made for, and the making of it, in memory of the size that is asked for.
struct ResizeWanted {
    Roi src, dst;
    uint32_t interpolation;
    ResizeKind kind = singlePrecision;
    bool antialiasing = false;
    uint32_t lobes = 0;
    float b = 0, c = 0;
    double shiftX = 0, shiftY = 0;  // of any size
};
void makeResizeObject(const ResizeWanted& wanted, uint8_t* object, uint8_t* initBuffer, bool withWeights = true);

// Bytes of the work buffer for a tile, and what queries report at most in an int.
constexpr WideLen mostReported = 0x7ffffffe;
WideLen resizeBufferBytes(const ResizeHeader& header, Roi tile, int channels);

// The checks that many of the families share.
inline StatusCode nothingToDo(Roi a) { return refuse(a.width == 0 || a.height == 0, STATUS_NO_OPERATION); }
inline StatusCode negative(Roi a) { return refuse(a.width < 0 || a.height < 0, STATUS_BAD_SIZE); }
inline StatusCode insideDestination(const ResizeHeader& h, At at) {
    return refuse(at.x < 0 || at.y < 0 || at.x >= h.horizontal.dst || at.y >= h.vertical.dst, STATUS_OUT_OF_RANGE);
}

}  // namespace zmv
