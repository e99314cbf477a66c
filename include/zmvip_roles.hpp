// What the arguments of functions in C are made of, role by role, and what is looked at before a call.
// SPDX-License-Identifier: Apache-2.0
#ifndef ZMVIP_ROLES_HPP
#define ZMVIP_ROLES_HPP

#include "zmvip_call.hpp"

namespace zmvip::detail {

template <int i, class C>
const auto& picture(const C& c) {
    return std::get<std::size_t(i)>(c.images);
}
template <int i, class C>
auto& param(const C& c) {
    return std::get<std::size_t(i)>(c.params);
}

// ---- Images ----

template <int i>
struct pixels {
    template <class C>
    static auto get(const C& c) {
        return picture<i>(c).data();
    }
};
template <int i>  // the source pixel that a tile of the destination begins with
struct pixels_of_tile {
    template <class C>
    static auto get(const C& c) {
        const auto& v = picture<i>(c);
        return moved(v.data(), c.moved.y * v.step() + c.moved.x * v.pixel);
    }
};
template <int top, int left>  // where the old part of an image begins that grows in place
struct pixels_inside {
    template <class C>
    static auto get(const C& c) {
        const auto& v = picture<0>(c);
        return moved(v.data(), param<top>(c) * v.step() + param<left>(c) * v.pixel);
    }
};
template <int i>
struct step {
    template <class C>
    static int64_t get(const C& c) {
        return picture<i>(c).step();
    }
};
template <int i>
struct size_of {
    template <class C>
    static size get(const C& c) {
        return picture<i>(c).size();
    }
};
template <int i>
struct width_of {
    template <class C>
    static int64_t get(const C& c) {
        return picture<i>(c).width();
    }
};
template <int i>  // in the whole
struct place_of {
    template <class C>
    static point get(const C& c) {
        return {picture<i>(c).frame().part.x, picture<i>(c).frame().part.y};
    }
};
struct source_code {
    template <class C>
    static int get(const C&) {
        return type_code<typename C::source>;
    }
};
struct target_code {
    template <class C>
    static int get(const C&) {
        return type_code<typename C::target>;
    }
};
struct channels {
    template <class C>
    static int get(const C&) {
        return C::channels;
    }
};
template <int v>
struct constant {
    template <class C>
    static int get(const C&) {
        return v;
    }
};

// ---- What the user passes: by its place in the list ----

template <int i>
struct value {
    template <class C>
    static const auto& get(const C& c) {
        return param<i>(c);
    }
};
template <int i>  // of a mask, a map, an object
struct data_of {
    template <class C>
    static auto get(const C& c) {
        return param<i>(c).data();
    }
};
template <int i>
struct step_of {
    template <class C>
    static int64_t get(const C& c) {
        return param<i>(c).step();
    }
};
template <int i, int image>  // a part of an image, as a rule all of it
struct part {
    template <class C>
    static rect get(const C& c) {
        const rect& r = param<i>(c);
        return r.width < 0 && r.height < 0 ? rect{0, 0, picture<image>(c).width(), picture<image>(c).height()} : r;
    }
};

// ---- Places for what comes back ----

struct work {
    template <class C>
    static void* get(const C& c) {
        return c.work;
    }
};
struct object {
    template <class C>
    static void* get(const C& c) {
        return c.object;
    }
};
template <int i>
struct out {
    template <class C>
    static void* get(const C& c) {
        return c.outs[i];
    }
};
template <int i>
struct bytes {
    template <class C>
    static counter get(C& c) {
        return {&c.small[i], &c.sizes[i]};
    }
};
struct found {
    template <class C>
    static ImagePoint* get(C& c) {
        return &c.moved;
    }
};
template <int i>  // in place of a query: the buffer that an object was made for
struct remembered {
    template <class F, class C>
    static StatusCode call(F, C& c) {
        return c.sizes[0] = param<i>(c).made_for().work, STATUS_OK;
    }
};

// ---- Windows: what a pixel of the result takes of the source ----

struct sides {
    int64_t left, top, right, bottom;
};
template <int i>  // a mask by its word
struct named {
    template <class C>
    static size get(const C& c) {
        return sides_of(param<i>(c));
    }
};
template <int n>
struct square {
    template <class C>
    static size get(const C&) {
        return {n, n};
    }
};
template <int i>  // the kernel of an object
struct kernel_of {
    template <class C>
    static size get(const C& c) {
        return param<i>(c).made_for().kernel;
    }
};
template <int i>
struct of_row {
    template <class C>
    static size get(const C& c) {
        return {param<i>(c), 1};
    }
};
template <int i>
struct of_column {
    template <class C>
    static size get(const C& c) {
        return {1, param<i>(c)};
    }
};
constexpr int64_t half(int64_t n) { return (n - 1) / 2; }
template <class Mask>
struct centre {
    template <class C>
    static point get(const C& c) {
        return {half(Mask::get(c).width), half(Mask::get(c).height)};
    }
};
template <int i, class Mask>
struct anchor {
    template <class C>
    static point get(const C& c) {
        const point& p = param<i>(c);
        return p.x == middle.x && p.y == middle.y ? centre<Mask>::get(c) : p;
    }
};
template <int i, int mask>  // of a mask of one row or column
struct anchor_in_line {
    template <class C>
    static int64_t get(const C& c) {
        return param<i>(c) == middle.x ? half(param<mask>(c)) : param<i>(c);
    }
};
template <class Mask, class Anchor = centre<Mask>>
struct window {
    template <class C>
    static sides get(const C& c) {
        const size m = Mask::get(c);
        const point a = Anchor::get(c);
        return {a.x, a.y, m.width - 1 - a.x, m.height - 1 - a.y};
    }
};
template <class Mask, class Anchor>  // a kernel that is mirrored, as convolution has it
struct mirrored {
    template <class C>
    static sides get(const C& c) {
        const sides s = window<Mask, Anchor>::get(c);
        return {s.right, s.bottom, s.left, s.top};
    }
};
template <int i, int mask>
struct in_row {
    template <class C>
    static sides get(const C& c) {
        const int64_t a = anchor_in_line<i, mask>::get(c);
        return {a, 0, param<mask>(c) - 1 - a, 0};
    }
};
template <int i, int mask>
struct in_column {
    template <class C>
    static sides get(const C& c) {
        const int64_t a = anchor_in_line<i, mask>::get(c);
        return {0, a, 0, param<mask>(c) - 1 - a};
    }
};

template <int i>  // the border word, with which sides of the source lie in memory
struct border {
    template <class C>
    static int get(const C& c) {
        return int(param<i>(c)) | picture<0>(c).frame().in_memory();
    }
};

// ---- Checks ----

template <int i, int... more>
struct of_one_size {
    template <class C>
    static StatusCode check(const C& c) {
        const bool same = ((picture<i>(c).width() == picture<more>(c).width() &&
                            picture<i>(c).height() == picture<more>(c).height()) &&
                           ...);
        return same ? STATUS_OK : STATUS_BAD_SIZE;
    }
};
template <int i, int p>  // an image among the arguments is as large as image i
struct as_large {
    template <class C>
    static StatusCode check(const C& c) {
        const bool same =
            picture<i>(c).width() == param<p>(c).width() && picture<i>(c).height() == param<p>(c).height();
        return same ? STATUS_OK : STATUS_BAD_SIZE;
    }
};
template <int i, class Extent>
struct sized {
    template <class C>
    static StatusCode check(const C& c) {
        const size s = Extent::get(c);
        return picture<i>(c).width() == s.width && picture<i>(c).height() == s.height ? STATUS_OK : STATUS_BAD_SIZE;
    }
};
template <int i>
struct planes_alike {
    template <class C>
    static StatusCode check(const C& c) {
        return picture<i>(c).alike() ? STATUS_OK : STATUS_BAD_STEP;
    }
};
// Beyond every side are either no pixels or enough of them; without a border rule there have to be enough.
template <class Window, bool always>
struct within_reach {
    template <class C>
    static StatusCode check(const C& c) {
        const frame& f = picture<0>(c).frame();
        const sides s = Window::get(c);
        const auto enough = [](int64_t there, int64_t asked) { return there >= asked || (!always && there == 0); };
        const bool all = enough(f.beyond_left(), s.left) && enough(f.beyond_top(), s.top) &&
                         enough(f.beyond_right(), s.right) && enough(f.beyond_bottom(), s.bottom);
        return all ? STATUS_OK : STATUS_BAD_BORDER;
    }
};
// An object serves images of the sizes that it was made for.
template <int i, int from, int to>
struct made_for {
    template <class C>
    static StatusCode check(const C& c) {
        const purpose& p = param<i>(c).made_for();
        const auto other = [](size a, size b) { return a.width && (a.width != b.width || a.height != b.height); };
        const size now = picture<to>(c).size();
        const bool large = p.largest.width && (now.width > p.largest.width || now.height > p.largest.height);
        const bool bad =
            large || other(p.source, picture<from>(c).size()) || other(p.target, picture<to>(c).frame().whole);
        return bad ? STATUS_BAD_SIZE : STATUS_OK;
    }
};

}  // namespace zmvip::detail

#endif
