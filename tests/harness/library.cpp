#include "harness/library.h"

#include <dlfcn.h>

#include <sstream>
#include <stdexcept>

namespace test {

Options options;

void* Library::find(const std::string& name) const {
    void* symbol = dlsym(handle, name.c_str());
    if (!symbol) throw std::runtime_error("the " + build + " build does not export " + name);
    return symbol;
}

bool processorRuns(const std::string& build) {
    __builtin_cpu_init();
    const bool v3 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
                    __builtin_cpu_supports("fma") && __builtin_cpu_supports("popcnt");
    if (build == "v3") return v3;
    if (build == "v4")
        return v3 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
               __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
               __builtin_cpu_supports("avx512vl");
    return true;
}

namespace {
Library open(const std::string& build) {
    fakeCore();
    const std::string folder = build == "s3" ? "" : "glibc-hwcaps/x86-64-" + build + "/";
    const std::string path = options.libs + "/" + folder + "libzmvip.so.1";
    Library library{build, dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)};
    if (!library.handle) throw std::runtime_error(dlerror());
    return library;
}
}  // namespace

const std::vector<Library>& builds() {
    static const std::vector<Library> opened = [] {
        std::vector<Library> all;
        std::istringstream codes(options.builds);
        for (std::string code; std::getline(codes, code, ',');)
            if (processorRuns(code)) all.push_back(open(code));
        return all;
    }();
    return opened;
}

const Library& underTest() {
    if (builds().size() != 1) throw std::runtime_error("this test takes one build: name it with --build=");
    return builds().front();
}

// Opened before any build, it satisfies their need of libzmvcore.so.1 by its SONAME.
void* fakeCore() {
    static void* const core = options.core.empty() ? nullptr : dlopen(options.core.c_str(), RTLD_NOW | RTLD_GLOBAL);
    if (!core && !options.core.empty()) throw std::runtime_error(dlerror());
    return core;
}

}  // namespace test
