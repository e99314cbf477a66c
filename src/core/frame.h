// The calling frame: what every entry point is made of.  An entry checks its arguments in its family's order, then
// calls a driver; nothing else happens in it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "core/members.h"
#include "zmvip_types.h"

#define ZMV_STR_(x) #x
#define ZMV_STR(x) ZMV_STR_(x)
#define ZMV_JOIN_(a, b) a##_##b
#define ZMV_JOIN(a, b) ZMV_JOIN_(a, b)

// The build's own name of an entry: s3_zmviCopy_8u_C1R in the SSE3 build.
#define ZMV_OWN(name) ZMV_JOIN(ZMV_BUILD, name)

// Stamps a row of the members: the implementation under the build's name, and the public name at the same address.
// Modules do not see the public header: each new family would compile them all anew.  That it declares what the rows
// define is asserted where both are seen (tests/harness/thunks.cpp).
#define ZMV_DEFINE(result, name, params, call)                                                                         \
    extern "C" result ZMV_OWN(name) params { return call; }                                                            \
    extern "C" ZMV_API __attribute__((alias(ZMV_STR(ZMV_OWN(name))))) decltype(ZMV_OWN(name)) name;

#define ZMV_INLINE inline __attribute__((always_inline))

namespace zmv {

using Len = int64_t;  // every length, step and offset inside the library

// How the pixels of an image are laid out: AC4 has four channels of which the last is left alone.
struct Layout {
    int channels;
    bool alpha = false;
    constexpr int used() const { return alpha ? 3 : channels; }
};
constexpr Layout C1{1}, C3{3}, C4{4}, AC4{4, true};

struct Roi {
    Len width, height;
    constexpr Roi(Len w, Len h) : width(w), height(h) {}
    constexpr Roi(ImageSize s) : width(s.width), height(s.height) {}
    constexpr Roi(ImageSizeL s) : width(s.width), height(s.height) {}
};

// A region of interest: its first pixel, and the distance of its rows in bytes.
template <class T>
struct Image {
    T* data;
    Len step;
    T* row(Len y) const { return reinterpret_cast<T*>(reinterpret_cast<intptr_t>(data) + y * step); }
    Image at(Len x, Len y) const { return {row(y) + x, step}; }
    operator Image<const T>() const { return {data, step}; }
};

template <class T>
Image<T> image(T* data, Len step) {
    return {data, step};
}

// Operations that only move bits need one implementation per element width.
template <int bytes>
struct UnsignedOf;
template <>
struct UnsignedOf<1> {
    using type = uint8_t;
};
template <>
struct UnsignedOf<2> {
    using type = uint16_t;
};
template <>
struct UnsignedOf<4> {
    using type = uint32_t;
};
template <>
struct UnsignedOf<8> {
    using type = uint64_t;
};
template <class T>
using Bits = typename UnsignedOf<int(sizeof(T))>::type;
template <class T>
Image<Bits<T>> bits(T* data, Len step) {
    return {reinterpret_cast<Bits<T>*>(data), step};
}
template <class T>
Image<const Bits<T>> bits(const T* data, Len step) {
    return {reinterpret_cast<const Bits<T>*>(data), step};
}
template <class T>
const Bits<T>* bits(const T* data) {
    return reinterpret_cast<const Bits<T>*>(data);
}

template <class T>
Bits<T>* bits(T* data) {
    return reinterpret_cast<Bits<T>*>(data);
}

// The value argument of an entry, by value or by pointer, as a pointer to bits.
template <class T>
const Bits<T>* valueOf(const T& value) {
    return reinterpret_cast<const Bits<T>*>(&value);
}
template <class T>
const Bits<T>* valueOf(const T* const& values) {
    return bits(values);
}

// The same where the values are computed with.
template <class T>
const T* valuesOf(const T& value) {
    return &value;
}
template <class T>
const T* valuesOf(const T* const& values) {
    return values;
}

// One element of the caller's, at any address and whatever type was stored there.  The built-in memcpy is a plain move;
// the C library's may come with a checked call instead.
template <class T>
ZMV_INLINE T get(const T* p) {
    T x;
    __builtin_memcpy(&x, p, sizeof x);
    return x;
}
template <class T>
ZMV_INLINE void put(T* p, std::type_identity_t<T> x) {
    __builtin_memcpy(p, &x, sizeof x);
}

// Checks.  Each names what it tests; firstOf lists a family's checks in its order of refusal.
inline StatusCode firstOf(std::initializer_list<StatusCode> checks) {
    for (StatusCode status : checks)
        if (status != STATUS_OK) return status;
    return STATUS_OK;
}
inline StatusCode refuse(bool bad, StatusCode status) { return bad ? status : StatusCode(STATUS_OK); }

template <class... P>
StatusCode pointers(const P*... p) {
    return refuse((... || (p == nullptr)), STATUS_NULL_POINTER);
}
// An array of planes is null when it is, or when any plane is.
template <class P>
StatusCode planePointers(const P* const* planes, int count) {
    if (!planes) return STATUS_NULL_POINTER;
    for (int i = 0; i < count; ++i)
        if (!get(planes + i)) return STATUS_NULL_POINTER;
    return STATUS_OK;
}
inline StatusCode size(Roi roi) { return refuse(roi.width < 1 || roi.height < 1, STATUS_BAD_SIZE); }
template <class... S>
StatusCode steps(S... step) {
    return refuse((... || (step <= 0)), STATUS_BAD_STEP);
}
// The arguments that name an element type and a number of channels.
inline StatusCode dataType(int code) {
    const bool known = code == DATATYPE_8U || code == DATATYPE_16U || code == DATATYPE_16S || code == DATATYPE_32F;
    return refuse(!known, STATUS_BAD_DATATYPE);
}
inline StatusCode channelCount(int n) { return refuse(n != 1 && n != 3 && n != 4, STATUS_BAD_CHANNELS); }
// Where rows must not overlap.
inline StatusCode rowStep(Len step, Len rowBytes) { return refuse(step < rowBytes, STATUS_BAD_STEP); }

}  // namespace zmv
