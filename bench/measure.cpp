#include "measure.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "wall.h"

void* Build::find(const std::string& name) const {
    void* function = dlsym(handle, name.c_str());
    if (!function) throw std::runtime_error("the " + code + " build lacks " + name);
    return function;
}

Core::Core() {
    if (!*ZMV_CORE) return;
    void* const handle = dlopen(ZMV_CORE, RTLD_NOW | RTLD_GLOBAL);
    if (!handle) throw std::runtime_error(dlerror());
    size_ = static_cast<int*>(dlsym(handle, "fakeCacheSize"));
    asked_ = static_cast<int*>(dlsym(handle, "fakeCacheAsked"));
}
void Core::answer(int64_t cacheBytes) { *size_ = int(std::min<int64_t>(cacheBytes, INT32_MAX)); }
bool Core::isAskedBy(const std::function<void()>& thing) {
    const int before = *asked_;
    thing();
    return *asked_ != before;
}

int64_t cacheOf(const std::string& directory) {
    // By its path, it is another library than the one that has taken its name.
    void* const handle = dlopen((directory + "/libzmvcore.so.1").c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) throw std::runtime_error(dlerror());
    int bytes = 0;
    reinterpret_cast<StatusCode (*)(int*)>(dlsym(handle, "zmvGetMaxCacheSizeB"))(&bytes);
    return bytes;
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
        if (!std::strstr(ZMV_BUILDS, place.code)) continue;
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

Walls::Walls(Call& call, const Build& widest) {
    const int sources = call.inPlace ? call.sources + 1 : call.sources;
    const int64_t read = sources ? (call.readBytes + (call.inPlace ? call.writtenBytes : 0)) / sources : 0;
    // The nearest of the proportions that there are loops for.
    Wall wall{sources, 1, 1, 0, {}, nullptr};
    const double ratio = double(call.writtenBytes) / double(std::max<int64_t>(1, read));
    if (sources == 0)
        wall.from = 0;
    else if (call.writtenBytes < read / 16)
        wall.from = 4, wall.to = 0;
    else
        wall.from = ratio < 0.35 ? 4 : ratio < 0.7 ? 2 : 1, wall.to = ratio > 2.8 ? 4 : ratio > 1.4 ? 2 : 1;
    wall.times = (wall.from ? read / wall.from : call.writtenBytes) / 64;
    memory_[2].resize(size_t(wall.times * wall.to + 1), {{1}});
    wall.destination = memory_[2][0].bytes;
    for (int i = 0; i < sources; ++i) {
        const bool written = call.inPlace && i == 0;
        if (!written) memory_[i].resize(size_t(wall.times * wall.from + 1), {{1}});
        wall.source[i] = (written ? memory_[2] : memory_[i])[0].bytes;
    }
    const auto loop = widest.code == "v4" ? v4_wall : widest.code == "v3" ? v3_wall : s3_wall;
    for (const bool streaming : {false, true})
        if (!streaming || wall.to > 0)
            runners.push_back([=](int64_t count) {
                for (; count > 0; --count) loop(wall, streaming);
            });
    if (sources == 0) runners.push_back([&](int64_t count) { call.setSameBytes(count); });
    if (sources == 1 && wall.from == wall.to && !call.inPlace) runners.push_back(copierOf(call));
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
