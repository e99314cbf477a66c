// The table of members, made of the rows that the library is made of.
#include <stdexcept>
#include <tuple>
#include <utility>

#include "call.h"

namespace {

template <class F>
class TypedCall;
template <class R, class... A>
class TypedCall<R(A...)> final : public Call {
  public:
    TypedCall(const Member& member, const Setting& setting, const Build& build)
        : Call(member, setting, build), arguments(bindAll(std::index_sequence_for<A...>())) {}

    void run(const Build& build, void* function, int64_t count) override {
        const auto call = reinterpret_cast<R (*)(A...)>(function);
        for (; count > 0; --count) {
            bool failed = false;
            if constexpr (std::is_void_v<R>) {
                std::apply(call, arguments);
            } else {
                const R result = std::apply(call, arguments);
                if constexpr (std::is_pointer_v<R>)
                    failed = !result;
                else
                    failed = result != STATUS_OK && result != STATUS_WARN_DIV_BY_ZERO;
                // What is allocated is released, and timed together.
                if constexpr (std::is_pointer_v<R> && !std::is_const_v<std::remove_pointer_t<R>>) build.release(result);
            }
            if (failed) throw std::runtime_error(build.code + " refused " + member.name);
        }
    }

  private:
    // In order: the step of an image is known once its pointer is.
    template <size_t... I>
    std::tuple<A...> bindAll(std::index_sequence<I...>) {
        return std::tuple<A...>{argument<A>(names.at(I))...};
    }
    std::tuple<A...> arguments;
};

template <class F>
std::unique_ptr<Call> bind(const Member& member, const Setting& setting, const Build& build) {
    return std::make_unique<TypedCall<F>>(member, setting, build);
}

const Member table[] = {
#define FAMILY(name, module, facts, text, members) members
#define ENTRY_OF(result, name, params, call) MEMBER(result, name, params)
#define MEMBER(result, name, params) {#name, #params, bind<result params>},
#define CONSTANT(name, value)
#include "core/members.h"
#include "families.def"
};

}  // namespace

std::span<const Member> members() { return table; }

const Member& findMember(const std::string& name) {
    for (const Member& member : table)
        if (name == member.name) return member;
    throw std::runtime_error("there is no " + name);
}
