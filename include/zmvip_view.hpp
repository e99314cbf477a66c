// Images, statuses and memory of zmvip.hpp.  C++17, header only.
// SPDX-License-Identifier: Apache-2.0
#ifndef ZMVIP_VIEW_HPP
#define ZMVIP_VIEW_HPP

#include <array>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <new>
#include <type_traits>
#include <utility>

#include "zmvip.h"
#include "zmvip_status.h"

namespace zmvip {

using size = ImageSizeL;
using point = ImagePointL;
using rect = ImageRectL;

// ---- What calls return ----

class error : public std::exception {
  public:
    error(StatusCode code, const char* function) : code_(code) {
        std::snprintf(text, sizeof text, "%s: %s: %s", function, zmvStatusName(code), zmvStatusText(code));
    }
    const char* what() const noexcept override { return text; }
    StatusCode code() const noexcept { return code_; }

  private:
    StatusCode code_;
    char text[200];
};

// What became of a call: an error (nothing was written), a warning, or neither.
class [[nodiscard]] status {
  public:
    constexpr status(StatusCode code = STATUS_OK, const char* function = "zmvip") : code_(code), function_(function) {}
    constexpr StatusCode code() const { return code_; }
    constexpr bool ok() const { return code_ >= 0; }
    constexpr bool warning() const { return code_ > 0; }
    explicit constexpr operator bool() const { return ok(); }
    const char* name() const { return zmvStatusName(code_); }
    const char* sentence() const { return zmvStatusText(code_); }
    constexpr const char* function() const { return function_; }
    void orThrow() const {
#ifdef __cpp_exceptions
        if (!ok()) throw error(code_, function_);
#else
        if (!ok()) std::terminate();
#endif
    }

  private:
    StatusCode code_;
    const char* function_;
};

// A status, and the value, which means something where there was no error.
template <class T>
class [[nodiscard]] result : public status {
  public:
    result(status s, T value) : status(s), value_(std::move(value)) {}
    const T& value() const { return value_; }
    const T& orThrow() const& { return status::orThrow(), value_; }
    T orThrow() && { return status::orThrow(), std::move(value_); }

  private:
    T value_;
};

// ---- Layouts: how many channels a pixel has, and what of it a call means ----

inline constexpr int AC4 = 4 | 16;  // four, of which the last is left alone
template <int C>
inline constexpr int one_of = C | 32;  // one of C
template <int N>
inline constexpr int planes_of = N | 64;                       // one in each of N planes
constexpr int channels_in(int layout) { return layout & 15; }  // in memory, or planes
constexpr int channels_used(int layout) { return layout == AC4 ? 3 : layout & 32 ? 1 : layout & 15; }

// ---- Regions ----

// Where the pixels of an image are: as a rule it is a whole, but a part remembers what it is a part of, so that a call
// knows which sides have pixels of the whole beyond them.
struct frame {
    int64_t step;
    size whole;
    rect part;

    // A part of this: what of r lies inside.
    constexpr frame crop(rect r) const {
        const int64_t left = clamp(r.x, part.width), right = clamp(r.x + r.width, part.width),
                      top = clamp(r.y, part.height), bottom = clamp(r.y + r.height, part.height);
        return {step,
                whole,
                {part.x + left, part.y + top, right > left ? right - left : 0, bottom > top ? bottom - top : 0}};
    }
    constexpr frame alone() const { return {step, {part.width, part.height}, {0, 0, part.width, part.height}}; }
    constexpr int64_t beyond_left() const { return part.x; }
    constexpr int64_t beyond_top() const { return part.y; }
    constexpr int64_t beyond_right() const { return whole.width - part.x - part.width; }
    constexpr int64_t beyond_bottom() const { return whole.height - part.y - part.height; }
    // The border flags of the sides that lie in memory.
    constexpr int in_memory() const {
        return (beyond_left() > 0 ? BORDER_IN_MEM_LEFT : 0) | (beyond_top() > 0 ? BORDER_IN_MEM_TOP : 0) |
               (beyond_right() > 0 ? BORDER_IN_MEM_RIGHT : 0) | (beyond_bottom() > 0 ? BORDER_IN_MEM_BOTTOM : 0);
    }

  private:
    static constexpr int64_t clamp(int64_t v, int64_t most) { return v < 0 ? 0 : v > most ? most : v; }
};

namespace detail {
template <class T>
T* moved(T* p, int64_t bytes) {
    using byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<byte*>(p) + bytes);
}

// What views and planes have in common.
class framed {
  public:
    const zmvip::frame& frame() const { return frame_; }
    int64_t width() const { return frame_.part.width; }
    int64_t height() const { return frame_.part.height; }
    int64_t step() const { return frame_.step; }
    zmvip::size size() const { return {width(), height()}; }

  protected:
    framed() : frame_{} {}
    explicit framed(const zmvip::frame& f) : frame_(f) {}
    // How many bytes further a part begins.
    int64_t distance(const zmvip::frame& to, int64_t pixel) const {
        return (to.part.y - frame_.part.y) * step() + (to.part.x - frame_.part.x) * pixel;
    }
    zmvip::frame frame_;
};
}  // namespace detail

// ---- Images that somebody else owns ----

// Pixels of C channels of T, from the first one on, rows step bytes apart.
template <class T, int C = 1>
class view : public detail::framed {
  public:
    using element = T;
    static constexpr int layout = C;
    static constexpr int64_t pixel = channels_in(C) * int64_t(sizeof(T));

    view() = default;
    view(T* first, int64_t step, int64_t width, int64_t height)
        : framed({step, {width, height}, {0, 0, width, height}}), data_(first) {}
    view(T* first, const zmvip::frame& f) : framed(f), data_(first) {}
    template <class U, class = std::enable_if_t<std::is_same_v<const U, T>>>
    view(const view<U, C>& other) : framed(other.frame()), data_(other.data()) {}

    T* data() const { return data_; }
    T* row(int64_t y) const { return detail::moved(data_, y * step()); }
    // A part, which remembers the whole, and one that does not.
    view crop(rect r) const {
        const zmvip::frame f = frame_.crop(r);
        return {detail::moved(data_, distance(f, pixel)), f};
    }
    view alone() const { return {data_, frame_.alone()}; }

  private:
    T* data_ = nullptr;
};

// Images of one channel each, of one size and with one step.
template <class T, int N>
class planes : public detail::framed {
  public:
    using element = T;
    static constexpr int layout = planes_of<N>;

    template <class... V, class = std::enable_if_t<sizeof...(V) == N - 1>>
    explicit planes(const view<T>& first, const V&... more)
        : framed(first.frame()),
          data_{first.data(), more.data()...},
          alike_(((more.step() == first.step() && more.width() == first.width() && more.height() == first.height()) &&
                  ...)) {}
    T* const* data() const { return data_; }
    bool alike() const { return alike_; }
    planes crop(rect r) const {
        planes part = *this;
        part.frame_ = frame_.crop(r);
        for (T*& p : part.data_) p = detail::moved(p, distance(part.frame_, sizeof(T)));
        return part;
    }

  private:
    T* data_[std::size_t(N)];
    bool alike_;
};
template <class T, class... V>
planes(const view<T, 1>&, const V&...) -> planes<T, 1 + int(sizeof...(V))>;

// As a destination: the fourth channel is left as it is.  As what sums and the like are made of: it is not looked at.
template <class T>
view<T, AC4> keep_alpha(const view<T, 4>& v) {
    return {v.data(), v.frame()};
}

// One channel alone, where functions read or write one.
template <class T, int C>
view<T, one_of<C>> channel(const view<T, C>& v, int number) {
    return {v.data() + number, v.frame()};
}

// ---- Memory ----

class buffer {
  public:
    buffer() = default;
    explicit buffer(std::size_t bytes) : data_(::operator new(bytes, alignment)), bytes_(bytes) {}
    buffer(buffer&& other) noexcept { swap(other); }
    buffer& operator=(buffer&& other) noexcept { return swap(other), *this; }
    ~buffer() { ::operator delete(data_, alignment); }
    void* data() const { return data_; }
    std::size_t bytes() const { return bytes_; }
    // At least so many bytes; what they held is lost if they were fewer.  False if memory runs out.
    bool reserve(int64_t bytes) noexcept {
        if (bytes < 1 || std::size_t(bytes) <= bytes_) return true;
        ::operator delete(data_, alignment);
        data_ = ::operator new(std::size_t(bytes), alignment, std::nothrow);
        bytes_ = data_ ? std::size_t(bytes) : 0;
        return data_;
    }

  private:
    void swap(buffer& other) noexcept { std::swap(data_, other.data_), std::swap(bytes_, other.bytes_); }
    static constexpr std::align_val_t alignment{64};
    void* data_ = nullptr;
    std::size_t bytes_ = 0;
};

// A view of memory of its own, not initialised; rows start at multiples of 64 bytes.
template <class T, int C = 1>
class image : public view<T, C> {
  public:
    image(int64_t width, int64_t height) : image(buffer(bytes(width, height)), width, height) {}

  private:
    image(buffer&& memory, int64_t width, int64_t height)
        : view<T, C>(static_cast<T*>(memory.data()), padded(width), width, height), memory_(std::move(memory)) {}
    static constexpr int64_t padded(int64_t width) { return (width * view<T, C>::pixel + 63) / 64 * 64; }
    // What does not fit becomes more than there is.
    static std::size_t bytes(int64_t width, int64_t height) {
        if (width < 1 || height < 1) return 0;
        const bool fits = width < PTRDIFF_MAX / (view<T, C>::pixel * 64) && height <= PTRDIFF_MAX / padded(width);
        return fits ? std::size_t(height * padded(width)) : SIZE_MAX / 2;
    }
    buffer memory_;
};

// ---- Tiles ----

// A part of an image, for crop, and for calls in C the border flags of its sides.
struct tile : rect {
    int in_memory;
};

// Cuts an image into parts of nearly one size, no larger than most and no smaller than half of it (or the image).
class tiles {
  public:
    tiles(const detail::framed& image, zmvip::size most)
        : frame_(image.frame()),
          columns_(parts(image.width(), most.width)),
          rows_(parts(image.height(), most.height)) {}
    std::size_t size() const { return std::size_t(columns_ * rows_); }
    tile operator[](std::size_t i) const {
        const int64_t column = int64_t(i) % columns_, row = int64_t(i) / columns_;
        const auto cut = [](int64_t length, int64_t n, int64_t of) { return length * n / of; };
        const int64_t w = frame_.part.width, h = frame_.part.height, x = cut(w, column, columns_),
                      y = cut(h, row, rows_);
        const rect r = {x, y, cut(w, column + 1, columns_) - x, cut(h, row + 1, rows_) - y};
        return {r, frame_.crop(r).in_memory()};
    }
    struct iterator {
        const tiles* of;
        std::size_t i;
        tile operator*() const { return (*of)[i]; }
        iterator& operator++() { return ++i, *this; }
        bool operator!=(const iterator& other) const { return i != other.i; }
    };
    iterator begin() const { return {this, 0}; }
    iterator end() const { return {this, size()}; }

  private:
    static constexpr int64_t parts(int64_t length, int64_t most) {
        return length < 1 ? 0 : most < 1 ? 1 : (length + most - 1) / most;
    }
    frame frame_;
    int64_t columns_, rows_;
};

}  // namespace zmvip

#endif
