// Memory for operands: flush against unreadable pages, and with a shadow on which the oracle works.
#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "harness/member.h"

namespace test {

struct Rng {
    uint64_t state;
    explicit Rng(uint64_t seed) : state(seed * 0x9E3779B97F4A7C15u + 0x1234567) {}
    uint64_t next() {  // splitmix64
        uint64_t z = state += 0x9E3779B97F4A7C15u;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    int below(int n) { return int(next() % unsigned(n)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool oneIn(int n) { return below(n) == 0; }
};

// A stretch of addresses between two unreadable pages.  It is laid out once and used by one operand at a time.
class Arena {
  public:
    explicit Arena(size_t bytes);
    // The same 2 MiB of memory, over and over: an address space of `bytes` that costs next to nothing.
    static Arena ring(size_t bytes);
    static constexpr size_t ringBytes = size_t(2) << 20;
    uint8_t* begin = nullptr;
    uint8_t* end = nullptr;

  private:
    Arena() = default;
};

// The part of an arena that one case uses.  The shadow starts as a copy of it; the oracle changes the shadow, the
// library the memory, and then both must be equal to the byte: gaps between rows, sources and alpha included.
struct Block {
    uint8_t* live = nullptr;
    std::vector<uint8_t> shadow;
    size_t size() const { return shadow.size(); }
};

struct Margins {  // pixels round an image
    int64_t left = 0, right = 0, top = 0, bottom = 0;
};

// An operand: its pixels in a block.  Steps and pointers as the library sees them are beside it, since the ring's
// addresses repeat; get and set work on the shadow.
struct Image {
    std::string name;
    Element element = Element::none;
    int channels = 1;  // elements from pixel to pixel
    int own = 1;       // elements of a pixel that are its memory
    int planes = 0;    // of a planar operand; channel c is then plane c
    int64_t width = 0, height = 0;
    Margins readable;       // beyond width and height: columns -left .. width + right - 1 are its memory too
    int64_t step = 0;       // in the shadow
    int64_t first[4] = {};  // offset of element (0, 0) of each plane in the block
    int block[4] = {};
    uint8_t* pointer[4] = {};  // what the library gets

    uint8_t* at(std::vector<Block>& blocks, int64_t x, int64_t y, int c) const {
        const int plane = planes ? c : 0;
        return blocks[block[plane]].shadow.data() + first[plane] + y * step +
               (planes ? x : x * channels + c) * bytesOf(element);
    }
};

}  // namespace test
