#include "measure.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

void* Build::find(const std::string& name) const {
    void* function = dlsym(handle, name.c_str());
    if (!function) throw std::runtime_error("the " + code + " build lacks " + name);
    return function;
}

std::vector<Build> loadBuilds(const std::string& directory) {
    const bool v3 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") && __builtin_cpu_supports("bmi2");
    const bool v4 = v3 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                    __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
                    __builtin_cpu_supports("avx512vl");
    const struct {
        const char *code, *folder;
        bool runs;
    } places[] = {{"s3", "", true}, {"v3", "glibc-hwcaps/x86-64-v3/", v3}, {"v4", "glibc-hwcaps/x86-64-v4/", v4}};

    std::vector<Build> builds;
    for (const auto& place : places) {
        if (!place.runs) {
            std::printf("skipped: the %s build, which this processor cannot run\n", place.code);
            continue;
        }
        const std::string path = directory + "/" + place.folder + "libzmvip.so.1";
        Build build{place.code, dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL), nullptr};
        if (!build.handle) throw std::runtime_error(dlerror());
        build.release = reinterpret_cast<void (*)(void*)>(build.find("zmviFree"));
        const auto version = reinterpret_cast<const LibraryVersion* (*)()>(build.find("zmviGetLibVersion"));
        if (std::string(version()->cpuTag, 2) != place.code)
            throw std::runtime_error(path + " says that it is " + version()->libraryName);
        builds.push_back(build);
    }
    return builds;
}

Runner runnerOf(Call& call, const Member& member, const Build& build) {
    return [&, function = build.find(member.name)](int64_t count) { call.run(build, function, count); };
}

Runner copierOf(Call& call) {
    return [&](int64_t count) { call.copySameBytes(count); };
}

// Of this thread on its core: what other programs take meanwhile does not count.
static double cpuTime() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return 1e9 * double(now.tv_sec) + double(now.tv_nsec);
}

static double nanoseconds(const Runner& runner, int64_t count) {
    const double begin = cpuTime();
    runner(count);
    return cpuTime() - begin;
}

Rounds interleave(const std::vector<Runner>& runners, int rounds, double batchNs) {
    std::vector<int64_t> counts;
    for (const Runner& runner : runners) {
        int64_t count = 1;
        double time = nanoseconds(runner, 1);  // not counted: whatever happens only at first
        while ((time = nanoseconds(runner, count)) < batchNs / 2) count *= 2;
        counts.push_back(std::max<int64_t>(1, int64_t(double(count) * batchNs / time)));
    }
    Rounds times(size_t(rounds), std::vector<double>(runners.size()));
    for (auto& round : times)
        for (size_t i = 0; i < runners.size(); ++i) round[i] = nanoseconds(runners[i], counts[i]) / double(counts[i]);
    return times;
}

template <class Figure>
static double median(const Rounds& times, Figure figure) {
    std::vector<double> values;
    for (const auto& round : times) values.push_back(figure(round));
    std::sort(values.begin(), values.end());
    return (values[(values.size() - 1) / 2] + values[values.size() / 2]) / 2;
}

double medianTime(const Rounds& times, size_t runner) {
    return median(times, [=](const auto& round) { return round[runner]; });
}

double medianRatio(const Rounds& times, size_t runner, size_t reference) {
    return median(times, [=](const auto& round) { return round[runner] / round[reference]; });
}
