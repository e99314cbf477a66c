// The builds under test, opened by path: the tests do not link against the library.
#pragma once

#include <string>
#include <vector>

namespace test {

struct Library {
    std::string build;  // s3, v3 or v4
    void* handle = nullptr;
    void* find(const std::string& name) const;
};
// A function of a library by its name, with the type that the public header gives it.
#define FIND(library, name) reinterpret_cast<decltype(&name)>((library).find(#name))

struct Options {
    std::string builds, libs, core, only;  // codes of builds, separated by commas
    long seed = -1;                        // run this case only
    double cases = 1;                      // multiplies the number of cases
    bool integers = false;                 // only members whose results are integers
    bool anyBits = false;                  // results are not judged, only that calls come back with their status
};
extern Options options;

bool processorRuns(const std::string& build);
// Those that the options name and the processor runs, opened.
const std::vector<Library>& builds();
// The only one of them, for tests that are run build by build.
const Library& underTest();
void* fakeCore();  // the core library given by --core, or null

}  // namespace test
