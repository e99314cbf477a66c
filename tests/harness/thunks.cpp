#include "harness/thunks.h"

#include <cstring>
#include <type_traits>
#include <utility>

#include "core/members.h"
#include "zmvip.h"

namespace test {
namespace {

template <class T>
struct Argument {
    static T of(const Slot& s) {
        if constexpr (std::is_pointer_v<T>) return reinterpret_cast<T>(s.a);
        if constexpr (std::is_integral_v<T>) return T(s.a);
        if constexpr (std::is_floating_point_v<T>) {
            T value;  // by its bits: a conversion would quiet a signalling NaN
            std::memcpy(&value, &s.a, sizeof value);
            return value;
        }
    }
};
template <class Pair, class Part>
struct PairArgument {
    static Pair of(const Slot& s) { return {Part(s.a), Part(s.b)}; }
};
template <>
struct Argument<ImageSize> : PairArgument<ImageSize, int> {};
template <>
struct Argument<ImageSizeL> : PairArgument<ImageSizeL, int64_t> {};
template <>
struct Argument<ImagePoint> : PairArgument<ImagePoint, int> {};
template <>
struct Argument<ImageRect> {
    static ImageRect of(const Slot& s) { return {int(s.a), int(s.b), int(s.c), int(s.d)}; }
};
template <>
struct Argument<ImageRectL> {
    static ImageRectL of(const Slot& s) { return {s.a, s.b, s.c, s.d}; }
};
template <>
struct Argument<ImagePointL> : PairArgument<ImagePointL, int64_t> {};

template <class R, class... P>
struct Shape {
    template <size_t... i>
    static int64_t spread(void* function, [[maybe_unused]] const Slot* args, std::index_sequence<i...>) {
        const auto f = reinterpret_cast<R (*)(P...)>(function);
        if constexpr (std::is_void_v<R>)
            return f(Argument<P>::of(args[i])...), 0;
        else if constexpr (std::is_pointer_v<R>)
            return reinterpret_cast<int64_t>(f(Argument<P>::of(args[i])...));
        else
            return f(Argument<P>::of(args[i])...);
    }
    static int64_t call(void* function, const Slot* args, int64_t times) {
        int64_t result;
        do result = spread(function, args, std::index_sequence_for<P...>{});
        while (result >= 0 && --times > 0);
        return result;
    }
};

// The calling convention passes all pointers alike.
template <class T>
using Passed = std::conditional_t<std::is_pointer_v<T>, void*, T>;
template <class R, class... P>
constexpr Thunk thunkOf(R (*)(P...)) {
    return Shape<Passed<R>, Passed<P>...>::call;
}

// The public header declares what the rows define.
#define FAMILY(name, module, facts, text, members) members
#define ENTRY_OF(result, name, params, call) static_assert(std::is_same_v<decltype(::name), result params>);
#define CONSTANT(name, value)
#include "families.def"
#undef ENTRY_OF

constexpr Thunk table[] = {
#define ENTRY_OF(result, name, params, call) THUNK(result, params)
#define THUNK(result, params) thunkOf(static_cast<result(*) params>(nullptr)),
#include "families.def"
};

}  // namespace

std::span<const Thunk> thunks() { return table; }

}  // namespace test
