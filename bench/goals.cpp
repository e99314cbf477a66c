// The modes that print tables.
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "measure.h"

namespace {

constexpr int masks[] = {3, 5, 9, 15, 31, 63};
constexpr double noise = 1.05;  // what two runs of one thing may differ by

struct Goal {
    const char *title, *member;
    Setting setting;
    double bestKnown, limit, baseline;
    bool smallCall() const { return setting.height < 64; }
    bool inMemory() const { return setting.height >= 4096; }
    // Memory is the limit, whatever a copy of as many bytes takes.
    bool atWall() const { return !smallCall() && limit <= 1; }
};
struct MaskRow {
    const char *title, *member;
    bool exact;
};

const Goal goals[] = {
#define GOAL(title, member, width, height, reach, best, goal, s3)                                                      \
    {title, #member, {width, height, reach, reach, 0, reach}, best, goal, s3},
#define MASKS(...)
#include "goals.def"
};
const MaskRow maskRows[] = {
#define GOAL(...)
#define MASKS(title, member, exact) {title, #member, exact},
#include "goals.def"
};

bool wanted(const std::string& title, const Options& options) { return title.find(options.only) != std::string::npos; }

const char* verdict(double figure, double limit) {
    return figure <= limit ? "yes" : figure <= limit * noise ? "close" : "NO";
}

void printHead(const char* title, const std::vector<Build>& builds) {
    std::printf("%-35s%-10s", title, "size");
    for (const Build& build : builds) std::printf(" %8s %5s", build.code.c_str(), "x");
}

// In every build: memcpy, and the call beside it.
Rounds timeBuilds(Call& call, const Member& member, const std::vector<Build>& builds, int rounds, double batchNs) {
    std::vector<Runner> runners;
    for (const Build& build : builds) {
        runners.push_back(copierOf(call));
        runners.push_back(runnerOf(call, member, build));
    }
    return interleave(runners, rounds, batchNs);
}

// One row: the call in every build, on padded rows, with the stores that it does not choose here, and its wall.
class GoalRow {
  public:
    GoalRow(const Goal& goal, const std::vector<Build>& builds, Core& core, int64_t cache)
        : goal_(goal), builds_(builds), call_(bind(0)), padded_(bind(64)), walls_(*call_, builds.back()) {
        const Build& first = builds.front();
        const bool asks = core && core.isAskedBy([&] { runnerOf(*call_, member_, first)(1); });
        streams_ = asks && call_->bytes >= cache;
        bothStores_ = asks && (streams_ || goal.inMemory());
        for (const Build& build : builds) {
            runners_.push_back(copierOf(*call_));
            runners_.push_back(runnerOf(*call_, member_, build));
            runners_.push_back(runnerOf(*padded_, member_, build));
            if (bothStores_)
                runners_.push_back(
                    [&core, cache, other = streams_ ? INT32_MAX : 1, run = runners_[own(at(build))]](int64_t count) {
                        core.answer(other);
                        run(count);
                        core.answer(cache);
                    });
        }
        runners_.insert(runners_.end(), walls_.runners.begin(), walls_.runners.end());
    }

    void print(int rounds) {
        times_ = interleave(runners_, rounds, 1e6);
        const size_t best = builds_.size() - 1;
        const std::string size = std::to_string(goal_.setting.width) + "x" + std::to_string(goal_.setting.height);
        std::printf("%-35s%-10s", goal_.title, size.c_str());
        for (size_t b = 0; b <= best; ++b) {
            const double time = medianTime(times_, own(b));
            std::printf(goal_.smallCall() ? " %6.1fns" : " %8.4f",
                        goal_.smallCall() ? time : time / double(call_->pixels));
            std::printf(" %5.2f", medianRatio(times_, own(b), own(b) - 1));
        }
        if (goal_.smallCall())
            std::printf("  %4.0fns %4.0fns %-5s", goal_.bestKnown, goal_.limit, verdict(reached(best), goal_.limit));
        else if (goal_.atWall())
            std::printf("  %6.2f   wall %-5s", goal_.bestKnown, verdict(reached(best), noise));
        else
            std::printf("  %6.2f %6.2f %-5s", goal_.bestKnown, goal_.limit, verdict(reached(best), goal_.limit));
        std::printf(" %5.2f", toWall(best));

        // Rows 64 bytes apart: within 10 % above 2,048 bytes a row, within 30 % above 256.
        const double apart = medianRatio(times_, own(best) + 1, own(best));
        std::printf("  %5.2f %-5s", apart,
                    call_->shortestRow > 2048  ? verdict(apart, 1.1)
                    : call_->shortestRow > 256 ? verdict(apart, 1.3)
                                               : "-");
        if (best >= 1) {
            // Where memory is the limit the baseline has the goal of all; elsewhere it follows the v3 build.
            const double slower = medianRatio(times_, own(0), own(1));
            std::printf("  %5.2f %-5s", slower,
                        goal_.inMemory() ? verdict(reached(0), goal_.atWall() ? noise : goal_.limit)
                                         : verdict(slower, goal_.baseline));
        }
        if (best >= 2) {
            const double slower = medianRatio(times_, own(2), own(1));
            std::printf("  %5.2f %-5s", slower, slower <= noise ? "yes" : "NO");
        }
        if (bothStores_) printStores();
        std::printf("\n");
    }

  private:
    size_t stride() const { return bothStores_ ? 4 : 3; }
    size_t own(size_t build) const { return stride() * build + 1; }
    size_t at(const Build& build) const { return size_t(&build - builds_.data()); }
    std::unique_ptr<Call> bind(int padding) const {
        Setting setting = goal_.setting;
        setting.padding = padding;
        return member_.bind(setting, builds_.front());
    }
    // Over the loop that is the fastest.
    double toWall(size_t build) const {
        double slowest = 0;
        for (size_t wall = stride() * builds_.size(); wall < runners_.size(); ++wall)
            slowest = std::max(slowest, medianRatio(times_, own(build), wall));
        return slowest;
    }
    double reached(size_t build) const {
        return goal_.smallCall() ? medianTime(times_, own(build))
               : goal_.atWall()  ? toWall(build)
                                 : medianRatio(times_, own(build), own(build) - 1);
    }
    // Streaming stores over ordinary ones, in each build.
    void printStores() const {
        double worst = 0;
        std::printf("  streaming");
        for (size_t b = 0; b < builds_.size(); ++b) {
            const size_t here = own(b), other = own(b) + 2;
            const double ratio = streams_ ? medianRatio(times_, here, other) : medianRatio(times_, other, here);
            std::printf(" %4.2f", ratio);
            worst = std::max(worst, ratio);
        }
        std::printf(" %s", worst <= noise ? "yes" : "NO");
    }

    const Goal& goal_;
    const std::vector<Build>& builds_;
    const Member& member_ = findMember(goal_.member);
    const std::unique_ptr<Call> call_, padded_;
    const Walls walls_;
    bool streams_ = false, bothStores_ = false;
    std::vector<Runner> runners_;
    Rounds times_;
};

// The processor's name, as the system tells it.
std::string processor() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.rfind("model name", 0) == 0) return line.substr(line.find(':') + 2);
    return "a processor without a name";
}
void printMachine(int64_t cache) {
    std::printf("%s; caches", processor().c_str());
    for (const auto& [name, level] :
         {std::pair("first", _SC_LEVEL1_DCACHE_SIZE), std::pair("second", _SC_LEVEL2_CACHE_SIZE),
          std::pair("third", _SC_LEVEL3_CACHE_SIZE)})
        std::printf(" %.3g KiB (%s)", double(sysconf(level)) / 1024, name);
    std::printf("; the builds are told %.1f MiB\n", double(cache) / 1048576);
}

// What a mask costs against 9x9; smaller ones may have short cuts.  Half as much again is allowed, since wide masks
// have wide ends; where sums are formed by doubling, that times the growth of the logarithm.
void printMasks(const MaskRow& row, const std::vector<Build>& builds, int rounds) {
    const Member& member = findMember(row.member);
    std::vector<std::unique_ptr<Call>> calls;
    for (int mask : masks) calls.push_back(member.bind({1920, 1080, mask}, builds.front()));
    for (const Build& build : builds) {
        std::vector<Runner> runners;
        for (const auto& call : calls) runners.push_back(runnerOf(*call, member, build));
        const Rounds times = interleave(runners, rounds, 1e6);
        std::printf("%-35s%-10s", row.title, build.code.c_str());
        for (size_t m = 0; m < calls.size(); ++m)
            std::printf(" %8.4f", medianTime(times, m) / double(calls[m]->pixels));
        const size_t reference = 2;
        double growth = 0;
        for (size_t m = reference + 1; m < calls.size(); ++m) {
            const double allowed = row.exact ? 1 : std::log(masks[m]) / std::log(masks[reference]);
            growth = std::max(growth, medianRatio(times, m, reference) / allowed);
        }
        std::printf("  %5.2f %s\n", growth, verdict(growth, 1.5));
    }
}

}  // namespace

void printGoals(const std::vector<Build>& builds, const Options& options, Core& core, int64_t cache) {
    printMachine(cache);
    std::printf(
        "ns a pixel, and x: the ratio to memcpy moving the same number of bytes; medians of %d rounds.\n"
        "wall: over the fastest plain loop with the same streams, which is the goal (within 5 %%) where it says so.\n"
        "close: less than 5 %% beyond the goal.\n\n",
        options.rounds);
    printHead("case", builds);
    std::printf("  known    goal met?  wall   padded rows  s3 to v3     v4 to v3\n");
    for (const Goal& goal : goals)
        if (wanted(goal.title, options)) GoalRow(goal, builds, core, cache).print(options.rounds);
    std::printf("\n%-35s%-10s", "mask, ns a pixel at 1920x1080", "build");
    for (int mask : masks) std::printf("    %2dx%-2d", mask, mask);
    std::printf("  growth from 9x9 (at most 1.5)\n");
    for (const MaskRow& row : maskRows)
        if (wanted(row.title, options)) printMasks(row, builds, options.rounds);
}

void printMembers(const std::vector<Build>& builds, const Options& options) {
    std::printf("ns a pixel (a call for members without images), and x: the ratio to memcpy of the same bytes\n\n");
    printHead("member", builds);
    std::printf("\n");
    for (const Member& member : members()) {
        if (!wanted(member.name, options)) continue;
        const auto call = member.bind({options.width, options.height}, builds.front());
        const Rounds times = timeBuilds(*call, member, builds, options.rounds, 5e4);
        std::printf("%-45s", member.name);
        for (size_t b = 0; b < builds.size(); ++b) {
            std::printf(" %8.4f", medianTime(times, 2 * b + 1) / double(call->pixels));
            std::printf(call->bytes ? " %5.2f" : "     -", medianRatio(times, 2 * b + 1, 2 * b));
        }
        std::printf("\n");
    }
}

int smoke(const std::vector<Build>& builds) {
    int failed = 0;
    const auto attempt = [&](const auto& action) {
        try {
            action();
        } catch (const std::exception& error) {
            std::printf("FAILED %s\n", error.what());
            ++failed;
        }
    };
    for (const Member& member : members())
        attempt([&] {
            const auto call = member.bind({24, 16}, builds.front());
            for (const Build& build : builds) call->run(build, build.find(member.name), 1);
            call->copySameBytes(1);
        });
    for (const Goal& goal : goals) attempt([&] { findMember(goal.member); });
    for (const MaskRow& row : maskRows) attempt([&] { findMember(row.member); });
    std::printf("%zu members in %zu builds, %d failed\n", members().size(), builds.size(), failed);
    return failed;
}
