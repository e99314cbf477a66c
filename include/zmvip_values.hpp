// What goes with images in the calls of zmvip.hpp: numbers for channels, work memory, objects.
// SPDX-License-Identifier: Apache-2.0
#ifndef ZMVIP_VALUES_HPP
#define ZMVIP_VALUES_HPP

#include <climits>

#include "zmvip_view.hpp"

namespace zmvip {

// One number a channel: {1, 2, 3}, or one for all.
template <class T, int C>
class pixel {
  public:
    pixel(T all = T()) : at_{all, all, all, all} {}
    pixel(T a, T b) : at_{a, b} { static_assert(channels_in(C) == 2, "a pixel with two channels"); }
    pixel(T a, T b, T c) : at_{a, b, c} { static_assert(channels_used(C) == 3, "a pixel with three channels"); }
    pixel(T a, T b, T c, T d) : at_{a, b, c, d} { static_assert(channels_in(C) == 4, "a pixel with four channels"); }
    const T* data() const { return at_; }

  private:
    T at_[4];  // four, since of AC4 that many may be read
};

// Numbers in rows, as C has them: the coefficients of a map, the corners of a quadrangle.
template <class T, int R, int C>
struct table {
    T at[std::size_t(R)][std::size_t(C)];
    using row = const T (*)[std::size_t(C)];
    operator row() const { return at; }
};

template <class E>
inline constexpr bool is_word = false;  // the enumerations of zmvip.hpp
template <class E, class = std::enable_if_t<is_word<E>>>
constexpr E operator|(E a, E b) {
    return E(int(a) | int(b));
}

inline constexpr point middle = {INT_MIN, INT_MIN};  // the anchor of a centred mask
inline constexpr rect everything = {0, 0, -1, -1};

// The memory that a call works in: its own, or a buffer of the caller's, which grows when it is too small.
class scratch {
  public:
    scratch() = default;
    scratch(buffer& lent) : lent_(&lent) {}
    bool reserve(int64_t bytes) { return memory().reserve(bytes < 1 ? 1 : bytes); }  // C takes no null pointer
    void* data() const { return (lent_ ? *lent_ : own_).data(); }

  private:
    buffer& memory() { return lent_ ? *lent_ : own_; }
    buffer* lent_ = nullptr;
    buffer own_;
};

template <class V>
using pixel_of = pixel<std::remove_const_t<typename V::element>, V::layout>;

namespace detail {
// What an object was made for; no size where it does not matter.
struct purpose {
    size source, target, kernel, largest;
    int64_t work;
};
struct maker;
}  // namespace detail

// What an initialiser makes: for many calls and threads.
template <class Tag, class T = void>
class spec {
  public:
    void* data() { return memory_.data(); }
    const void* data() const { return memory_.data(); }
    const detail::purpose& made_for() const { return purpose_; }

  private:
    friend struct detail::maker;
    buffer memory_;
    detail::purpose purpose_{};
};

}  // namespace zmvip

#endif
