#include "harness/member.h"

#include <cstring>

#include "core/members.h"
#include "harness/family.h"

// A family without a row of this name does not link: nothing gets into the library untested.
#define FAMILY(name, module, facts, text, rows) extern const test::Family test_##name;
#include "families.def"
#undef FAMILY

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

template <class F>
struct Invoker;
template <class R, class... P>
struct Invoker<R(P...)> {
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
    static int64_t call(void* function, const Slot* args) {
        return spread(function, args, std::index_sequence_for<P...>{});
    }
};

using Invoke = int64_t (*)(void*, const Slot*);

struct Table {
    std::vector<Member> members;
    std::vector<Tested> families;

    Table() {
        std::vector<Invoke> invokes;
#define FAMILY(name, module, facts, text, rows)                                                                        \
    families.push_back({&catalog::families()[families.size()], &test_##name});                                         \
    rows
#define ENTRY_OF(result, name, params, call) TEST_ENTRY(result, params)
#define TEST_ENTRY(result, params) invokes.push_back(Invoker<result params>::call);
#define CONSTANT(name, value)
#include "families.def"
        for (const Tested& f : families)
            for (const catalog::Member& m : f.row->members)
                members.push_back({m, f.row, f.family, invokes[members.size()]});
    }
};

const Table& table() {
    static const Table t;
    return t;
}

}  // namespace

const std::vector<Member>& members() { return table().members; }
const std::vector<Tested>& families() { return table().families; }

}  // namespace test
