// The program: every family's members swept and refused, in the builds that --build names.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "harness/case.h"

namespace test {
namespace {

bool chosen(const Member& m) {
    return (options.only.empty() || m.name == options.only) && !(options.integers && isReal(m.destination));
}

bool hasStep(const Member& m) {
    return std::any_of(m.params.begin(), m.params.end(), [](const Parameter& p) { return p.role == Role::step; });
}

bool fits(const Member& m, Mode mode) {
    if (mode == Mode::overlap) return m.among(m.facts().ordered);
    if (mode == Mode::far) return hasStep(m);
    if (mode == Mode::shared)
        return std::any_of(m.params.begin(), m.params.end(),
                           [&](const Parameter& p) { return p.written && m.find(p.name + "Step"); });
    return true;
}

// Runs f(member, seed) for the members of a family, each until its first failure.  Fewer cases than usual are picked
// all over the usual ones: widths go up with the seed.
template <class F>
void eachCase(const Family& family, long cases, F f) {
    const bool replay = options.seed >= 0;
    const long tried = replay ? 1 : std::max(1L, std::lround(double(cases) * options.cases));
    for (const Member& m : members()) {
        if (m.family != &family || !chosen(m)) continue;
        for (long i = 0; i < tried; ++i) {
            const long seed = replay ? options.seed : tried < cases ? i * 37 % cases : i;
            if (const std::string bad = f(m, uint64_t(seed)); !bad.empty()) {
                ADD_FAILURE() << bad;
                break;
            }
        }
    }
}

void sweep(const Family& family, Mode mode, long cases) {
    eachCase(family, cases,
             [&](const Member& m, uint64_t seed) { return fits(m, mode) ? runCase(m, seed, mode) : std::string(); });
    if (mode != Mode::usual || options.seed >= 0) return;
    for (const Member& m : members())
        EXPECT_TRUE(m.family != &family || !chosen(m) || Case::exercised.count(m.name)) << m.name << " never ran";
}

// Breaks every precondition in every way, together with every subset of the later ones: the first one's status must
// come back, with nothing written.
std::string refuse(const Member& m, uint64_t seed) {
    Case whole(m, builds().front(), seed + 4, Mode::controls);
    m.family->arrange(whole);
    const std::vector<Check> ladder = ladderOf(whole);
    for (size_t i = 0; i < ladder.size(); ++i)
        for (const Break& first : ladder[i].breaks)
            for (unsigned later = 0; later < 1u << (ladder.size() - i - 1); ++later) {
                Case c = whole;
                for (size_t k = i + 1; k < ladder.size(); ++k)
                    if (later >> (k - i - 1) & 1) {
                        const std::vector<Break>& breaks = ladder[k].breaks;
                        apply(breaks[size_t(whole.rng.below(int(breaks.size())))], c);
                    }
                apply(first, c);
                c.expected = ladder[i].status;
                for (const Library& l : builds()) {
                    c.use(l);
                    c.call();
                    if (const std::string bad = c.verdict(); !bad.empty()) return bad;
                }
            }
    return {};
}

// What the facts only tell has to come up in the sweep, and nothing else may.
void judgeReturns(const Tested& f) {
    if (!options.only.empty() || options.integers || f.row->members[0].result != "StatusCode") return;
    std::set<int64_t> named = {STATUS_OK}, due;
    for (const zmv::Refusal& refusal : f.row->facts.refusals) {
        named.insert(refusal.status);
        if (refusal.bad == zmv::Bad::told) due.insert(refusal.status);
    }
    for (const zmv::Warning& warning : f.row->facts.warnings) named.insert(warning.status), due.insert(warning.status);
    if (options.cases < 1) due.clear();
    const std::set<int64_t>& seen = Case::returns[f.family];
    for (const int64_t status : seen) EXPECT_TRUE(named.count(status)) << "the facts do not name " << status;
    for (const int64_t status : due) EXPECT_TRUE(seen.count(status)) << "the sweep never met " << status;
}

// A family's test under a name that --gtest_filter knows.
class Runs : public testing::Test {
  public:
    explicit Runs(std::function<void()> body) : body_(std::move(body)) {}
    void TestBody() override {
        try {
            body_();
        } catch (const std::string& what) {
            ADD_FAILURE() << what;
        }
    }

  private:
    std::function<void()> body_;
};
void add(const char* suite, const std::string& name, std::function<void()> body) {
    testing::RegisterTest(suite, name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [body]() -> testing::Test* { return new Runs(body); });
}

void registerAll() {
    for (const Tested& tested : families()) {
        const Family& f = *tested.family;
        const std::string& name = tested.row->name;
        const Facts& facts = tested.row->facts;
        add("Sweep", name, [&tested, &f] { sweep(f, Mode::usual, 160), judgeReturns(tested); });
        add("Controls", name, [&f] { sweep(f, Mode::controls, 8); });
        add("Far", name, [&f] { sweep(f, Mode::far, 3); });
        if (tested.row->members[0].find("buffer"))
            add("Buffer", name, [&f] {
                eachCase(f, 64,
                         [](const Member& m, uint64_t seed) { return runCase(m, seed, Mode::usual, int(seed % 64)); });
            });
        add("SharedRows", name, [&f] { sweep(f, Mode::shared, 24); });
        if (*facts.ordered) add("Overlap", name, [&f] { sweep(f, Mode::overlap, 80); });
        add("Tiles", name, [&f] {
            eachCase(f, 12,
                     [](const Member& m, uint64_t seed) { return hasTiles(m) ? runTiles(m, seed) : std::string(); });
        });
        if (facts.bulk) add("Bulk", name, [&f] { sweep(f, Mode::bulk, 1); });
        if (facts.refusals.count) add("Refusals", name, [&f] { eachCase(f, 1, refuse); });
    }
    // What cannot run here is said to be skipped, once a suite.
    std::istringstream codes(options.builds);
    for (std::string build; std::getline(codes, build, ',');)
        if (!processorRuns(build))
            for (const char* suite : {"Sweep", "Controls", "Far", "SharedRows", "Overlap", "Bulk", "Tiles", "Refusals"})
                add(suite, build, [build] { GTEST_SKIP() << "this processor does not run the " << build << " build"; });
}

void readOptions(int argc, char** argv) {
    options.libs = ZMV_LIBS;
    options.builds = ZMV_BUILDS;
    for (int i = 1; i < argc; ++i) {
        const std::string text = argv[i];
        const auto value = [&](const char* name) -> const char* {
            return text.rfind(name, 0) == 0 ? argv[i] + std::strlen(name) : nullptr;
        };
        if (const char* v = value("--build="))
            options.builds = v;
        else if (const char* v = value("--libs="))
            options.libs = v;
        else if (const char* v = value("--core="))
            options.core = v;
        else if (const char* v = value("--only="))
            options.only = v;
        else if (const char* v = value("--seed="))
            options.seed = std::atol(v);
        else if (const char* v = value("--cases="))
            options.cases = std::atof(v);
        else if (text == "--integers")
            options.integers = true;
        else if (text == "--any-bits")
            options.anyBits = true;
        else
            throw std::runtime_error("what is " + text + "?");
    }
}

}  // namespace

}  // namespace test

// Faults are ours to catch: a call beyond its operands is a failure with a name, not the end of the run.
extern "C" const char* __asan_default_options() {
    return "allocator_may_return_null=1:handle_segv=0:handle_sigbus=0:handle_sigfpe=0:handle_sigill=0";
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    try {
        test::readOptions(argc, argv);
        if (test::builds().empty()) {
            std::printf("SKIPPED: this processor does not run %s\n", test::options.builds.c_str());
            return 77;
        }
        test::registerAll();
    } catch (const std::exception& e) {
        std::fprintf(stderr, "zmvip_tests: %s\n", e.what());
        return 2;
    }
    return RUN_ALL_TESTS();
}
