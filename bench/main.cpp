#include <benchmark/benchmark.h>
#include <sched.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <stdexcept>

#include "measure.h"

static const char usage[] =
    "zmvip_bench [mode] [options]: times all builds of the library and memcpy in one process\n"
    "  --goals       the cases that have a goal, and the rules for all of them\n"
    "  --members     every member\n"
    "  --smoke       calls every member once in every build\n"
    "  (no mode)     every member and its memcpy under Google Benchmark; takes --benchmark_... options\n"
    "  --libs=DIR    where the builds are, laid out as installed (default: those of this build tree)\n"
    "  --only=TEXT   cases or members whose names contain the text\n"
    "  --cache=BYTES what the builds are told of the largest cache: what moves more goes past the caches\n"
    "  --size=WxH    region for --members and Google Benchmark (default 256x256)\n"
    "  --rounds=N    rounds to take medians over (at least 5, default 15)\n"
    "  --core=N      the core to stay on (default: the one it starts on)\n";

static void registerAll(const std::vector<Build>& builds, const Options& options) {
    const auto add = [&](const Member& member, const std::string& code, auto makeRunner) {
        const Setting setting{options.width, options.height};
        const auto body = [=, &member, &builds](benchmark::State& state) {
            const auto call = member.bind(setting, builds.front());
            const Runner runner = makeRunner(*call);
            for (auto _ : state) runner(1);
            state.SetBytesProcessed(state.iterations() * call->bytes);
            state.SetItemsProcessed(state.iterations() * call->pixels);
        };
        benchmark::RegisterBenchmark((std::string(member.name) + "/" + code).c_str(), body);
    };
    for (const Member& member : members()) {
        if (std::string(member.name).find(options.only) == std::string::npos) continue;
        for (const Build& build : builds)
            add(member, build.code, [&](Call& call) { return runnerOf(call, member, build); });
        add(member, "memcpy", copierOf);
    }
}

static int run(int argc, char** argv) {
    Options options;
    std::string mode;
    // Google Benchmark's settings; the caller's come after them and override them.
    std::vector<std::string> rest = {argv[0], "--benchmark_enable_random_interleaving=true",
                                     "--benchmark_repetitions=5", "--benchmark_report_aggregates_only=true",
                                     "--benchmark_min_time=0.01"};
    for (int i = 1; i < argc; ++i) {
        const std::string text = argv[i], name = text.substr(0, text.find('=')),
                          value = text.substr(std::min(text.size(), name.size() + 1));
        if (text == "--goals" || text == "--members" || text == "--smoke")
            mode = text;
        else if (name == "--libs")
            options.libraries = value;
        else if (name == "--only")
            options.only = value;
        else if (name == "--rounds")
            options.rounds = std::max(5, std::atoi(value.c_str()));
        else if (name == "--cache")
            options.cache = std::max(1ll, std::atoll(value.c_str()));
        else if (name == "--core")
            options.core = std::atoi(value.c_str());
        else if (name == "--size" && value.find('x') != std::string::npos) {
            options.width = std::max(1, std::atoi(value.c_str()));
            options.height = std::max(1, std::atoi(value.c_str() + value.find('x') + 1));
        } else if (name.rfind("--benchmark_", 0) == 0)
            rest.push_back(text);
        else
            return std::fputs(usage, stderr), 2;
    }

    cpu_set_t cores;
    CPU_ZERO(&cores);
    CPU_SET(options.core < 0 ? sched_getcpu() : options.core, &cores);
    if (sched_setaffinity(0, sizeof cores, &cores) != 0) throw std::runtime_error("cannot stay on that core");
    std::setvbuf(stdout, nullptr, _IOLBF, 0);  // rows appear as they are measured, also in a pipe
    std::optional<Core> core;  // its allocator is a simple one: where members are timed, the real library unless asked
    if (mode == "--goals" || options.cache >= 0) core.emplace();
    if (options.cache >= 0 && !*core) throw std::runtime_error("--cache needs a build tree with tests");
    const int64_t cache = options.cache >= 0 ? options.cache : cacheOf(options.libraries);
    if (core && *core) core->answer(cache);
    const std::vector<Build> builds = loadBuilds(options.libraries);
    if (mode == "--smoke") return smoke(builds) == 0 ? 0 : 1;
    if (mode == "--goals") return printGoals(builds, options, *core, cache), 0;
    if (mode == "--members") return printMembers(builds, options), 0;

    registerAll(builds, options);
    std::vector<char*> arguments;
    for (std::string& text : rest) arguments.push_back(text.data());
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

int main(int argc, char** argv) try { return run(argc, argv); } catch (const std::exception& error) {
    std::fprintf(stderr, "zmvip_bench: %s\n", error.what());
    return 1;
}
