// Loading the builds, and timing things against each other.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "call.h"

struct Options {
    std::string libraries = ZMV_LIBS, only;
    int64_t width = 256, height = 256;
    int rounds = 15, core = -1;
    int64_t cache = -1;  // the size of the largest cache that builds are told
};

// A companion core library in the place of the real one, which tells the builds opened after it what we choose; without
// it (a build tree without tests) there are no such choices.
class Core {
  public:
    Core();
    explicit operator bool() const { return size_ != nullptr; }
    void answer(int64_t cacheBytes);
    // Whether the thing asks for the size of the cache.
    bool isAskedBy(const std::function<void()>& thing);

  private:
    int *size_ = nullptr, *asked_ = nullptr;
};
// What the real core library in a directory says of the largest cache.
int64_t cacheOf(const std::string& directory);

// The builds in a directory laid out as installed, baseline first.  Names those that this processor cannot run; throws
// when one is missing or is not the build that its place says.
std::vector<Build> loadBuilds(const std::string& directory);

// Does the thing to be timed so many times.
using Runner = std::function<void(int64_t count)>;
Runner runnerOf(Call& call, const Member& member, const Build& build);
Runner copierOf(Call& call);
// What does nothing but read and write what the call does: plain loops, with ordinary stores and with streaming ones,
// in memory of their own; of the C library, the function that does the same.
struct Walls {
    explicit Walls(Call& call, const Build& widest);
    std::vector<Runner> runners;

  private:
    struct alignas(64) Line {
        uint8_t bytes[64];
    };
    std::vector<Line> memory_[3];
};

// Nanoseconds a time, [round][runner].  In each round all runners are timed one after the other, each as often as fills
// batchNs; what is to be compared stands side by side.
using Rounds = std::vector<std::vector<double>>;
Rounds interleave(const std::vector<Runner>& runners, int rounds, double batchNs);
double medianTime(const Rounds& times, size_t runner);
// The median of the ratios within the rounds: a machine's speed drifts from one round to the next.
double medianRatio(const Rounds& times, size_t runner, size_t reference);

// The cases of goals.def with what they must reach, and the rules that hold for every case.
void printGoals(const std::vector<Build>& builds, const Options& options, Core& core, int64_t cache);
// Every member at one size.
void printMembers(const std::vector<Build>& builds, const Options& options);
// Calls every member once in every build; the number of those that cannot be timed.
int smoke(const std::vector<Build>& builds);
