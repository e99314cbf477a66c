// What the built libraries export, import, contain and may not contain.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>

#include "harness/library.h"
#include "object_file.h"
#include "prototypes.h"
#include "zmvip.h"

#ifdef ZMV_SANITIZE
#define SKIP_WITH_SANITIZERS() GTEST_SKIP() << "the sanitizers add code and imports of their own"
#else
#define SKIP_WITH_SANITIZERS() (void)0
#endif

namespace {

using Names = std::set<std::string>;

// Where the builds are; the environment may name another place that is laid out like this one.
const std::string libraries = std::getenv("ZMV_LIBS") ? std::getenv("ZMV_LIBS") : ZMV_LIBS;

struct Build {
    const char *code, *folder, *runpath, *libraryName;
    std::string library() const { return libraries + "/" + folder + "libzmvip.so.1"; }
};
void PrintTo(const Build& build, std::ostream* out) { *out << build.code; }

const std::string core = libraries + "/libzmvcore.so.1";

Names publicFunctions() {
    Names names;
    for (const Prototype& f : readPrototypes()) names.insert(f.name);
    return names;
}

// Names only in a, and only in b: short lists to read where two sets of 500 differ.
void expectSame(const Names& a, const std::string& aIs, const Names& b, const std::string& bIs) {
    for (const std::string& name : a) EXPECT_TRUE(b.count(name)) << name << " is in " << aIs << ", not in " << bIs;
    for (const std::string& name : b) EXPECT_TRUE(a.count(name)) << name << " is in " << bIs << ", not in " << aIs;
}

Names exportsUnder(const std::string& library, const std::string& node) {
    Names names;
    for (const auto& [name, symbol] : symbolsOf(library, "-D --defined-only")) {
        if (symbol.kind == 'A' && name == node) continue;  // the version node itself
        EXPECT_EQ(symbol.version, node) << name;
        names.insert(name);
    }
    return names;
}

class Object : public testing::TestWithParam<Build> {
  protected:
    const std::string library = GetParam().library();
};

TEST_P(Object, ExportsThePublicHeaderAndNothingElse) {
    Names header = publicFunctions();
    const Names constants = readConstants();
    EXPECT_EQ(constants.size(), 2u);
    header.insert(constants.begin(), constants.end());
    ASSERT_GE(header.size(), 528u);
    expectSame(header, "zmvip.h", exportsUnder(library, "ZMVIP_1"), library);
}

TEST_P(Object, PublicNamesAreTheBuildsOwnFunctions) {
    const Symbols symbols = symbolsOf(library, "--defined-only");
    const std::string prefix = GetParam().code + std::string("_");
    for (const std::string& name : publicFunctions()) {
        ASSERT_TRUE(symbols.count(name) && symbols.count(prefix + name)) << name;
        EXPECT_EQ(symbols.at(name).address, symbols.at(prefix + name).address) << name;
    }
}

TEST_P(Object, ImportsOnlyItsFewServices) {
    SKIP_WITH_SANITIZERS();
    const Names services = {"zmvMalloc",     "zmvMalloc_L",  "zmvFree",       "zmvGetMaxCacheSizeB",
                            "ownGetFeature", "memset",       "memcpy",        "memmove",
                            "__memset_chk",  "__memcpy_chk", "__memmove_chk", "__stack_chk_fail"};
    const Names startUp = {"__cxa_finalize", "__gmon_start__", "_ITM_deregisterTMCloneTable",
                           "_ITM_registerTMCloneTable"};
    for (const auto& [name, symbol] : symbolsOf(library, "-D --undefined-only"))
        EXPECT_TRUE(services.count(name) || (symbol.kind == 'w' && startUp.count(name)))
            << name << ' ' << symbol.version;
    expectSame({"libzmvcore.so.1", "libc.so.6"}, "the allowed libraries", dynamicEntriesOf(library)["NEEDED"], library);
}

TEST_P(Object, HoldsNoWritableDataAndNoInitialisers) {
    SKIP_WITH_SANITIZERS();
    auto sizes = sectionSizesOf(library);
    ASSERT_GT(sizes[".text"], 0u);
    EXPECT_LE(sizes[".data"] + sizes[".bss"], 16u) << "the start-up files' own";
    EXPECT_EQ(sizes[".tdata"] + sizes[".tbss"], 0u);
    EXPECT_LE(sizes[".init_array"], 8u) << "the start-up files' own";
}

void expectHardened(const std::string& library) {
    auto dynamic = dynamicEntriesOf(library);
    EXPECT_TRUE(dynamic["FLAGS"].count("           BIND_NOW") || dynamic.count("BIND_NOW") ||
                (dynamic.count("FLAGS_1") && dynamic["FLAGS_1"].begin()->find("NOW") != std::string::npos));
    EXPECT_FALSE(dynamic.count("TEXTREL"));
    EXPECT_FALSE(dynamic.count("RPATH"));
    bool relro = false, stack = false;
    for (const std::string& line : linesOf("readelf -lW " + library)) {
        const std::vector<std::string> word = words(line);
        if (word.empty()) continue;
        relro |= word[0] == "GNU_RELRO";
        if (word[0] == "GNU_STACK") {
            stack = true;
            EXPECT_EQ(line.find("E"), std::string::npos) << line;
        }
    }
    EXPECT_TRUE(relro);
    EXPECT_TRUE(stack);
}

TEST_P(Object, IsHardenedAndFindsItsCompanion) {
    SKIP_WITH_SANITIZERS();
    expectHardened(library);
    auto dynamic = dynamicEntriesOf(library);
    EXPECT_EQ(dynamic["RUNPATH"], Names{GetParam().runpath});
    EXPECT_EQ(dynamic["SONAME"], Names{"libzmvip.so.1"});
}

// From every streaming store the code leads to a store fence.  A function without one leaves it to those who call it,
// or who take its address to call it; an entry point has no such caller.  What nobody calls is dead.
TEST_P(Object, StreamingStoresAreFenced) {
    SKIP_WITH_SANITIZERS();
    const std::vector<Instruction> code = disassemble(library);
    std::map<uint64_t, size_t> at;
    std::map<uint64_t, std::vector<size_t>> usesOf;  // where a function is called or its address taken
    std::map<std::string, uint64_t> startOf;
    for (size_t i = 0; i < code.size(); ++i) {
        at[code[i].address] = i;
        startOf.insert({code[i].function, code[i].address});
        if (code[i].target) usesOf[code[i].target].push_back(i);
    }
    std::set<uint64_t> entries = addressesInDataOf(library);
    for (const auto& [name, symbol] : symbolsOf(library, "-D --defined-only")) entries.insert(symbol.address);
    const auto leadsToFence = [&](size_t from) {
        std::vector<size_t> open = {from};
        std::set<size_t> seen;
        while (!open.empty()) {
            const size_t here = open.back();
            open.pop_back();
            if (here >= code.size() || !seen.insert(here).second) continue;
            const Instruction& i = code[here];
            if (i.mnemonic == "sfence") return true;
            if (i.mnemonic == "ret" || i.operands.find("__stack_chk_fail") != std::string::npos) continue;
            if (i.mnemonic[0] == 'j' && at.count(i.target)) open.push_back(at[i.target]);
            if (i.mnemonic != "jmp") open.push_back(here + 1);
        }
        return false;
    };
    std::vector<size_t> open;
    for (size_t i = 0; i < code.size(); ++i) {
        const std::string name = code[i].mnemonic.substr(code[i].mnemonic[0] == 'v');
        if (name.compare(0, 5, "movnt") == 0 && name.compare(0, 8, "movntdqa") != 0) open.push_back(i);
    }
    EXPECT_FALSE(open.empty()) << "no streaming stores at all";
    std::set<std::string> leftToCallers;
    while (!open.empty()) {
        const size_t here = open.back();
        open.pop_back();
        const std::string& function = code[here].function;
        if (leadsToFence(here) || !leftToCallers.insert(function).second) continue;
        EXPECT_FALSE(entries.count(startOf[function])) << function << " streams without a fence";
        const std::vector<size_t>& uses = usesOf[startOf[function]];
        open.insert(open.end(), uses.begin(), uses.end());
    }
}

// Approximate reciprocals differ between makers of processors; the baseline build must not know newer instructions
// even in code that no test happens to run.
TEST_P(Object, UsesNoForbiddenInstructions) {
    SKIP_WITH_SANITIZERS();
    const std::regex approximate("v?(rcp|rsqrt).*");
    const std::regex beyondSse3(
        "v[a-z0-9]+|pshufb|palignr|pabs[bwd]|ph(add|sub)s?[wd]|pmaddubsw|pmulhrsw|psign[bwd]|p?blend.*|pmov[sz]x.*|"
        "ptest|pmulld|"
        "pmuldq|pm(in|ax)u[wd]|pm(in|ax)s[bd]|packusdw|pcmp(eq|gt)q|pextr[bdq]|pinsr[bdq]|extractps|insertps|round[ps]["
        "sd]|"
        "dpp[sd]|mpsadbw|phminposuw|movntdqa|pcmp[ei]str.*|popcnt|crc32.*|lzcnt|andn|bextr|bls.*|pdep|pext|rorx|s[ah]["
        "lr]x|mulx|"
        "movbe");
    const bool baseline = GetParam().code == std::string("s3");
    const std::vector<Instruction> code = disassemble(library);
    EXPECT_GT(code.size(), 10000u);
    for (const Instruction& i : code) {
        EXPECT_FALSE(std::regex_match(i.mnemonic, approximate)) << i.function << ": " << i.mnemonic;
        if (baseline) {
            EXPECT_FALSE(std::regex_match(i.mnemonic, beyondSse3)) << i.function << ": " << i.mnemonic;
        }
    }
}

TEST_P(Object, ReportsItsVersion) {
    if (!test::processorRuns(GetParam().code))
        GTEST_SKIP() << "this processor cannot run the " << GetParam().code << " build";
    void* handle = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_TRUE(handle) << dlerror();
    const auto getVersion = reinterpret_cast<decltype(&zmviGetLibVersion)>(dlsym(handle, "zmviGetLibVersion"));
    const auto nan = static_cast<const double*>(dlsym(handle, "zmvConstantOfNAN_64f"));
    const auto infinity = static_cast<const double*>(dlsym(handle, "zmvConstantOfINF_64f"));
    ASSERT_TRUE(getVersion && nan && infinity);
    const LibraryVersion* v = getVersion();
    EXPECT_EQ(v, getVersion());
    EXPECT_EQ(v->versionMajor, 2022);
    EXPECT_EQ(v->versionMinor, 2);
    EXPECT_EQ(v->versionPatch, 0);
    EXPECT_EQ(v->buildNumber, 1121655398);
    const std::string code = GetParam().code;
    EXPECT_EQ(std::string(v->cpuTag, 4), code + std::string(4 - code.size(), '\0'));
    EXPECT_STREQ(v->libraryName, GetParam().libraryName);
    EXPECT_STREQ(v->versionText, "2022.2.0 (r0x42db1a66)");
    EXPECT_STREQ(v->buildDateText, "May  9 2025");
    EXPECT_TRUE(std::isnan(*nan));
    EXPECT_TRUE(std::isinf(*infinity) && *infinity > 0);
    dlclose(handle);
}

// Those of the three that have been built.
std::vector<Build> builds() {
    std::vector<Build> all = {{"s3", "", "$ORIGIN", "zmvIP SSE3 (s3)"},
                              {"v3", "glibc-hwcaps/x86-64-v3/", "$ORIGIN:$ORIGIN/../..", "zmvIP AVX2 (v3)"},
                              {"v4", "glibc-hwcaps/x86-64-v4/", "$ORIGIN:$ORIGIN/../..", "zmvIP AVX-512 (v4)"}};
    std::erase_if(all, [](const Build& b) { return !std::strstr(ZMV_BUILDS, b.code); });
    return all;
}
INSTANTIATE_TEST_SUITE_P(Builds, Object, testing::ValuesIn(builds()),
                         [](const auto& info) { return std::string(info.param.code); });

TEST(CoreObject, ExportsItsFiveServices) {
    expectSame({"zmvMalloc", "zmvMalloc_L", "zmvFree", "zmvGetMaxCacheSizeB", "ownGetFeature"}, "zmvcore.h",
               exportsUnder(core, "ZMVCORE_1"), core);
}

TEST(CoreObject, IsHardened) {
    SKIP_WITH_SANITIZERS();
    expectHardened(core);
    auto dynamic = dynamicEntriesOf(core);
    EXPECT_EQ(dynamic["SONAME"], Names{"libzmvcore.so.1"});
    expectSame({"libc.so.6"}, "the allowed libraries", dynamic["NEEDED"], core);
}

}  // namespace
