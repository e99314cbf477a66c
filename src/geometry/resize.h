// What the entries of resizing share: a call whose arguments are checked, and the drivers that it goes to.
#pragma once

#include "geometry/resizespec.h"
#include "kernels/scratch.h"

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

// A tile in bands of columns, as wide as the work buffer has room, or `most` bytes of it.  A Band is made of what takes
// its memory, the driver, and its columns.  What narrow tiles need has room in no case to spare in their work buffers,
// which may not hold the tables of a whole vector: it is local.
constexpr Len localBytes = 8192;
template <class Band, class Driver, class Work>
void inBands(const Driver& driver, const ResizeTile& tile, WideLen most, Work work) {
    alignas(64) uint8_t local[localBytes];
    uint8_t* memory = local;
    WideLen room = sizeof local;
    const Len begin = tile.offset.x, end = begin + tile.size.width;
    Scratch scratch(local);
    Band whole(scratch, driver, begin, end);
    WideLen needed = scratch.bytes();
    if (needed <= room) return work(whole);
    if (const WideLen given = resizeBufferBytes(tile.header, tile.size, tile.channels); given > room)
        room = std::min(given, most), memory = tile.buffer;
    Len width = tile.size.width;
    const auto eachBand = [&](auto f) {
        for (Len x = begin; x < end; x += width) f(x, std::min(x + width, end));
    };
    while (width > 1 && needed > room) {
        width = (width + 1) / 2, needed = 0;
        eachBand([&](Len from, Len to) { needed = std::max(needed, scratchBytes<Band>(driver, from, to)); });
    }
    eachBand([&](Len from, Len to) {
        Scratch parts(memory);
        Band band(parts, driver, from, to);
        work(band);
    });
}

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
