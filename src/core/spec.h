// Spec objects: what an initialiser works out once and leaves in a block of the caller's, for any number of calls.
//
// An object starts at the first 64-byte boundary in its block, unless its family has a rule of its own.  The header
// comes first, and its first field is the tag where there is one.  The tables behind it are found by their distance
// from the object's start, never by an address: so a copy is as good, if it starts as far from a boundary.
//
//     struct CurveSpec {
//         static constexpr uint32_t itsTag = 0x43555256;
//         uint32_t tag;
//         int32_t levels, slopes;
//     };
//     struct CurveParts : SpecParts {
//         Table<int32_t> levels;  // in the order in which they lie
//         Table<float> slopes;
//         explicit CurveParts(const CurveSpec& header)
//             : SpecParts(sizeof header),
//               levels(table<int32_t>(header.levels)),
//               slopes(table<float>(header.slopes, 32)) {}  // from a 32-byte boundary on
//     };
//
// A query reports CurveParts(header).blockBytes(), which fits<int> has passed.  An initialiser puts the header at
// objectIn(block) and its tables where CurveParts(header).slopes.in(object) says.  A driver does
//
//     const uint8_t* const object = objectIn(spec);
//     const auto header = headerOf<CurveSpec>(object);
//     if (auto bad = firstOf({pointers(spec), size(roi), tagged(header)})) return bad;
//     const float* const slopes = CurveParts(header).slopes.in(object);
#pragma once

#include <cstring>
#include <limits>

#include "core/frame.h"

namespace zmv {

// A length as it is formed: products of the largest arguments pass 64 bits.
using WideLen = __int128;
constexpr WideLen roundUp(WideLen n, Len powerOfTwo) { return (n + powerOfTwo - 1) & -WideLen(powerOfTwo); }

// Whether a query can report so many bytes: an int may not hold them, the 64 bits of _L forms hardly ever do not.
template <class Int>
constexpr StatusCode fits(WideLen bytes) {
    return bytes > WideLen(std::numeric_limits<Int>::max()) ? STATUS_SIZE_EXCEEDS_INT : STATUS_OK;
}

constexpr Len objectAlignment = 64;
// Byte is uint8_t or const uint8_t.  No block, no object.
template <class Byte>
Byte* objectIn(Byte* block) {
    return block + -reinterpret_cast<uintptr_t>(block) % objectAlignment;
}

// The header of an object at any address; of no object one without a tag, for other checks to refuse.
template <class Header>
Header headerOf(const uint8_t* object) {
    Header header{};
    if (object) std::memcpy(&header, object, sizeof header);
    return header;
}
template <class Header>
StatusCode tagged(const Header& header, StatusCode status = STATUS_CONTEXT_MISMATCH) {
    return refuse(header.tag != Header::itsTag, status);
}

template <class T>
struct Table {
    Len offset;  // from the object's start
    T* in(uint8_t* object) const { return reinterpret_cast<T*>(object + offset); }
    const T* in(const uint8_t* object) const { return reinterpret_cast<const T*>(object + offset); }
};

// The tables of an object, laid out one behind the other.  Any number of elements can be asked for; where they are can
// be told only of an object that a block can hold.
class SpecParts {
  public:
    constexpr explicit SpecParts(WideLen headerBytes) : bytes_(headerBytes) {}
    constexpr WideLen objectBytes() const { return bytes_; }
    constexpr WideLen blockBytes() const { return bytes_ + objectAlignment - 1; }

  protected:
    template <class T>
    constexpr Table<T> table(WideLen count, Len alignment = 1) {
        const WideLen offset = roundUp(bytes_, alignment);
        bytes_ = offset + count * WideLen(sizeof(T));
        return {Len(offset)};
    }

  private:
    WideLen bytes_;
};

}  // namespace zmv
