// How zmvip.hpp comes from images and arguments to a call in C: the members of a family are rows of a table, found by
// the types and layouts of images; a row names functions, and in a shape the roles of their arguments, which are in
// zmvip_roles.hpp.  SPDX-License-Identifier: Apache-2.0
#ifndef ZMVIP_CALL_HPP
#define ZMVIP_CALL_HPP

#include <tuple>

#include "zmvip_values.hpp"

namespace zmvip::detail {

template <class T>
inline constexpr int type_code = 0;
template <>
inline constexpr int type_code<uint8_t> = DATATYPE_8U;
template <>
inline constexpr int type_code<uint16_t> = DATATYPE_16U;
template <>
inline constexpr int type_code<int16_t> = DATATYPE_16S;
template <>
inline constexpr int type_code<float> = DATATYPE_32F;
template <>
inline constexpr int type_code<double> = DATATYPE_64F;

template <class T>
inline constexpr bool is_pixel = false;
template <class T, int C>
inline constexpr bool is_pixel<pixel<T, C>> = true;

template <class V>
inline constexpr bool is_image = std::is_base_of_v<framed, V>;
template <class V>
using element = std::remove_const_t<typename V::element>;
template <class T, class V>  // a result for each channel
using each = std::conditional_t<channels_used(V::layout) == 1, T, std::array<T, std::size_t(channels_used(V::layout))>>;

// ---- Members ----

template <class T, int C, class D = T, int M = C>
struct key {};

// A function, its query, what says where the source of a tile is, and the first two for 64-bit sizes.
template <class Shape, auto fn, auto query = nullptr, auto offset = nullptr, auto large = nullptr,
          auto large_query = nullptr>
struct row {
    using shape = Shape;
    static constexpr auto call = fn, ask = query, large_call = large, large_ask = large_query, find = offset;
};

struct none {};
template <class Form, class Key, class = void>
struct find_row {
    using type = none;
};
template <class Form, class Key>
struct find_row<Form, Key, std::void_t<decltype(Form::at(Key()))>> {
    using type = decltype(Form::at(Key()));
};

// Which of the images, in the user's order, says what the source is and what the destination; which are written.
template <int source, int target, unsigned targets>
struct form {
    static constexpr int from = source, to = target;
    static constexpr unsigned written = targets;
};

constexpr int stripped(int layout) { return layout == AC4 ? 4 : layout; }
template <class Form, class... V>
struct chosen {
    using images = std::tuple<V...>;
    using source = std::tuple_element_t<Form::from, images>;
    using target = std::tuple_element_t<Form::to, images>;
    // What is written says whether the fourth channel is meant.
    static constexpr int layout = Form::written ? stripped(source::layout) : source::layout;
    template <class U>
    static constexpr bool alike = (std::is_same_v<element<U>, element<source>> &&
                                   stripped(U::layout) == stripped(source::layout)) ||
                                  (std::is_same_v<element<U>, element<target>> && U::layout == target::layout);
    using found = typename find_row<Form, key<element<source>, layout, element<target>, target::layout>>::type;
    using type = std::conditional_t<(alike<V> && ...), found, none>;
};
template <class Form, class... V>
using row_of = typename chosen<Form, V...>::type;

template <class Form, int list, class... V>
constexpr bool usable() {
    if constexpr (!(is_image<V> && ...))
        return false;
    else if constexpr (std::is_same_v<row_of<Form, V...>, none>)
        return list == 0;  // where it is said that there is none
    else
        return row_of<Form, V...>::shape::list == list;
}
// Only members whose arguments are those of this overload.
template <class Form, int list, class... V>
using if_members_take_these = std::enable_if_t<usable<Form, list, V...>(), int>;
template <class Form, class... V>
inline constexpr bool taken = !std::is_same_v<row_of<Form, V...>, none>;

// ---- A call, as roles see it ----

template <class T, class D, int C, class Images, class Params>
struct context {
    using source = T;
    using target = D;
    static constexpr int channels = C;
    const Images& images;
    const Params& params;
    void* const* outs;
    void* work = nullptr;
    void* object = nullptr;
    int64_t sizes[3] = {};  // what a query reports: of the buffer, the object, the initialiser's buffer
    int small[3] = {};      // the same where it reports int
    ImagePoint moved = {};  // where the source of a tile begins
};

struct counter {  // a place for a size that a query reports, in either width
    int* small;
    int64_t* large;
};

template <class P, class V>
bool fits(const V& v) {
    const auto whole = [](int64_t n) { return n == int(n); };
    if constexpr (std::is_same_v<P, int> && std::is_integral_v<V>)
        return whole(int64_t(v));
    else if constexpr (std::is_same_v<P, ImageSize>)
        return whole(v.width) && whole(v.height);
    else if constexpr (std::is_same_v<P, ImagePoint>)
        return whole(v.x) && whole(v.y);
    else if constexpr (std::is_same_v<P, ImageRect>)
        return whole(v.x) && whole(v.y) && whole(v.width) && whole(v.height);
    else
        return true;
}
template <class P, class V>
P to(const V& v) {
    if constexpr (std::is_same_v<P, ImageSize>)
        return {int(v.width), int(v.height)};
    else if constexpr (std::is_same_v<P, ImagePoint>)
        return {int(v.x), int(v.y)};
    else if constexpr (std::is_same_v<P, ImageRect>)
        return {int(v.x), int(v.y), int(v.width), int(v.height)};
    else if constexpr (std::is_same_v<V, counter> && std::is_same_v<P, int*>)
        return v.small;
    else if constexpr (std::is_same_v<V, counter>)
        return v.large;
    else if constexpr (is_pixel<V> && std::is_pointer_v<P>)
        return v.data();
    else if constexpr (is_pixel<V>)
        return static_cast<P>(*v.data());
    else if constexpr (std::is_pointer_v<P> && !std::is_same_v<V, void*> && !std::is_same_v<V, const void*>)
        return v;
    else
        return static_cast<P>(v);
}

template <class... Roles>
struct args {
    template <class C, class... P>
    static bool fit(StatusCode (*)(P...), const C& c) {
        return (fits<P>(Roles::get(c)) && ...);
    }
    template <class C, class... P>
    static StatusCode call(StatusCode (*f)(P...), C& c) {
        return f(to<P>(Roles::get(c))...);
    }
};
template <class... Checks>
struct checks {
    template <class C>
    static StatusCode check(const C& c) {
        StatusCode s = STATUS_OK;
        static_cast<void>(((s = Checks::check(c), s == STATUS_OK) && ...));
        return s;
    }
};
// Which of the user's argument lists; what the function takes; what is looked at before; what its query takes, and the
// service that finds a tile's source.
template <int number, class Args, class Checks = checks<>, class Asks = args<>, class Finds = args<>>
struct shape {
    static constexpr int list = number;
    static constexpr bool works = !std::is_same_v<Asks, args<>>;
    using takes = Args;
    using asks = Asks;
    using finds = Finds;
    using looks = Checks;
};

// ---- Running ----

template <auto f>
inline constexpr bool given = !std::is_same_v<decltype(f), std::nullptr_t>;

template <class Shape, auto f, auto query, class C>
StatusCode ask_and_call(C& c, scratch* memory) {
    if constexpr (Shape::works) {
        if (const StatusCode s = Shape::asks::call(query, c); s < 0) return s;
        if (!memory->reserve(c.sizes[0] + c.small[0])) return STATUS_NO_MEMORY;
        c.work = memory->data();
    }
    return Shape::takes::call(f, c);
}

// The member for small sizes where all fit, else the other.
template <class Row, class C>
StatusCode run(C& c, scratch* memory) {
    using S = typename Row::shape;
    if (const StatusCode s = S::looks::check(c); s != STATUS_OK) return s;
    if (!S::takes::fit(Row::call, c)) {
        if constexpr (given<Row::large_call>)
            return ask_and_call<S, Row::large_call, Row::large_ask>(c, memory);
        else
            return STATUS_BAD_SIZE;
    }
    if constexpr (given<Row::find>)
        if (const StatusCode s = S::finds::call(Row::find, c); s < 0) return s;
    return ask_and_call<S, Row::call, Row::ask>(c, memory);
}

template <class... V>
std::tuple<const V&...> images(const V&... v) {
    return {v...};
}

template <class Form, class... V, std::size_t... i>
constexpr bool writable(std::index_sequence<i...>) {
    return ((!(Form::written >> i & 1) || !std::is_const_v<typename V::element>)&&...);
}

template <class Form, class... V, class... P>
status call(const char* function, const std::tuple<const V&...>& images, scratch* memory, void* const* outs, P&... p) {
    using Row = row_of<Form, V...>;
    using choice = chosen<Form, V...>;
    static_assert(writable<Form, V...>(std::index_sequence_for<V...>()),
                  "zmvip: the destination is a view of const pixels");
    if constexpr (taken<Form, V...> && writable<Form, V...>(std::index_sequence_for<V...>())) {
        const std::tuple<P&...> params(p...);
        context<element<typename choice::source>, element<typename choice::target>, channels_in(choice::source::layout),
                std::tuple<const V&...>, std::tuple<P&...>>
            c{images, params, outs};
        return {run<Row>(c, memory), function};
    }
    return {};
}

// A service, which takes no image.
template <class Form, class Key, class T, int C, class... P>
status serve(const char* function, void* const* outs, P&... p) {
    const std::tuple<> images;
    const std::tuple<P&...> params(p...);
    context<T, T, C, std::tuple<>, std::tuple<P&...>> c{images, params, outs};
    return {run<typename find_row<Form, key<Key, 0>>::type>(c, nullptr), function};
}

struct maker {
    template <class Form, class Spec, class Key, class T, int C, class... P>
    static result<Spec> make(const char* function, const purpose& what, P&... p) {
        using Row = typename find_row<Form, key<Key, 0>>::type;
        using S = typename Row::shape;
        const std::tuple<> images;
        const std::tuple<P&...> params(p...);
        context<T, T, C, std::tuple<>, std::tuple<P&...>> c{images, params, nullptr};
        Spec made;
        buffer init;
        const auto status = [&]() -> StatusCode {
            if (!S::takes::fit(Row::call, c)) return STATUS_BAD_SIZE;
            if (const StatusCode s = S::asks::call(Row::ask, c); s < 0) return s;
            if (!made.memory_.reserve(c.small[1]) || !init.reserve(c.small[2])) return STATUS_NO_MEMORY;
            c.object = made.data(), c.work = init.data();
            return S::takes::call(Row::call, c);
        };
        const StatusCode s = status();
        if (s < 0) return {{s, function}, Spec()};
        made.purpose_ = what;
        made.purpose_.work = c.small[0];
        return {{s, function}, std::move(made)};
    }
};

}  // namespace zmvip::detail

#endif
