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
};

// The builds in a directory laid out as installed, baseline first.  Names those that this processor cannot run; throws
// when one is missing or is not the build that its place says.
std::vector<Build> loadBuilds(const std::string& directory);

// Does the thing to be timed so many times.
using Runner = std::function<void(int64_t count)>;
Runner runnerOf(Call& call, const Member& member, const Build& build);
Runner copierOf(Call& call);

// Nanoseconds a time, [round][runner].  In each round all runners are timed one after the other, each as often as fills
// batchNs; what is to be compared stands side by side.
using Rounds = std::vector<std::vector<double>>;
Rounds interleave(const std::vector<Runner>& runners, int rounds, double batchNs);
double medianTime(const Rounds& times, size_t runner);
// The median of the ratios within the rounds: a machine's speed drifts from one round to the next.
double medianRatio(const Rounds& times, size_t runner, size_t reference);

// The cases of goals.def with what they must reach, and the rules that hold for every case.
void printGoals(const std::vector<Build>& builds, const Options& options);
// Every member at one size.
void printMembers(const std::vector<Build>& builds, const Options& options);
// Calls every member once in every build; the number of those that cannot be timed.
int smoke(const std::vector<Build>& builds);
