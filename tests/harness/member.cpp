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

struct Table {
    std::vector<Member> members;
    std::vector<Tested> families;

    Table() {
#define FAMILY(name, module, facts, text, rows)                                                                        \
    families.push_back({&catalog::families()[families.size()], &test_##name});
#include "families.def"
        for (const Tested& f : families)
            for (const catalog::Member& m : f.row->members)
                members.push_back({m, f.row, f.family, thunks()[members.size()]});
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
