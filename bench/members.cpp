// The members of the library: the catalog, and the thunks that the tests call them by.
#include <stdexcept>

#include "call.h"

static const std::vector<Member>& table() {
    static const std::vector<Member> all = [] {
        std::vector<Member> members;
        for (const catalog::Family& family : catalog::families())
            for (const catalog::Member& member : family.members)
                members.push_back({member.name.c_str(), &member, test::thunks()[members.size()]});
        return members;
    }();
    return all;
}

std::unique_ptr<Call> Member::bind(const Setting& setting, const Build& build) const {
    return std::make_unique<Call>(*this, setting, build);
}

std::span<const Member> members() { return table(); }

const Member& findMember(const std::string& name) {
    for (const Member& member : table())
        if (name == member.name) return member;
    throw std::runtime_error("there is no " + name);
}
