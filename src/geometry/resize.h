// What the entries of resizing share: a call whose arguments are checked, and the drivers that it goes to.
#pragma once

#include "geometry/resizespec.h"

namespace zmv {

// One call, its arguments checked.
struct ResizeTile {
    const ResizeHeader& header;
    const uint8_t* object;
    At offset;
    Roi size;
    int channels, word;
    uint8_t* buffer;
};

// The drivers, each in modules of its own: of nearest pixels, of areas, and of everything that has weights.
template <class T>
void ownpi_ResizeNearestTile(const ResizeTile& tile, Image<const T> src, Image<T> dst);
template <class T>
void ownpi_ResizeSuperTile(const ResizeTile& tile, Image<const T> src, Image<T> dst);
// Areas of bytes that are small enough for 16 bits have a driver of their own.
bool hasSmallAreas(const ResizeTile& tile);
void ownpi_ResizeSmallAreas(const ResizeTile& tile, Image<const uint8_t> src, Image<uint8_t> dst);
template <class T>
void ownpi_ResizeTile(const ResizeTile& tile, Image<const T> src, Image<T> dst);

}  // namespace zmv
