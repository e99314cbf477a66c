// Past the caches a line of the destination gets streaming stores alone, one behind the other, or ordinary stores
// alone. The library's own stores are watched: some pages of the destination are made read-only, so that a store to
// them stops the call; it is looked at, carried out by itself, and its page closed again.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <ucontext.h>

#include <map>

#include "harness/case.h"

namespace test {
int64_t bytesPerPixel(const Member& m);  // streaming.cpp
}

namespace {

using namespace test;

constexpr int64_t page = 4096;

struct Store {
    uintptr_t at;  // what it changed
    int64_t bytes;
    bool streaming;
    uintptr_t line() const { return at / 64; }
};

// Whether the instruction at p is one of the streaming stores: MOVNTDQ, MOVNTPS, MOVNTPD in any encoding, MOVNTI.
bool isStreaming(const uint8_t* p) {
    if (p[0] == 0xc5) return p[2] == 0xe7 || p[2] == 0x2b;
    if (p[0] == 0xc4) return (p[1] & 31) == 1 && (p[3] == 0xe7 || p[3] == 0x2b);
    if (p[0] == 0x62) return (p[1] & 7) == 1 && (p[4] == 0xe7 || p[4] == 0x2b);
    while (*p == 0x66 || *p == 0xf2 || *p == 0xf3 || (*p & 0xf0) == 0x40) ++p;
    return p[0] == 0x0f && (p[1] == 0xe7 || p[1] == 0x2b || p[1] == 0xc3);
}

// Watches pages from their closing on.  Handlers work on what stands here; a store stops where nothing else is going
// on.
struct Watch {
    std::vector<uint8_t*> pages;
    std::vector<Store> stores;

    void close() {
        active = this;
        struct sigaction action = {};
        action.sa_sigaction = [](int, siginfo_t* info, void* context) {
            if (!active->open(static_cast<uint8_t*>(info->si_addr), *static_cast<ucontext_t*>(context)))
                sigaction(SIGSEGV, &faults, nullptr);  // not ours: it happens again, and the harness deals with it
        };
        action.sa_flags = SA_SIGINFO | SA_NODEFER;
        sigaction(SIGSEGV, &action, &faults);
        action.sa_sigaction = [](int, siginfo_t*, void* context) { active->done(*static_cast<ucontext_t*>(context)); };
        sigaction(SIGTRAP, &action, &traps);
        for (uint8_t* p : pages) mprotect(p, page, PROT_READ);
    }
    void end() {
        if (active != this) return;
        active = nullptr;
        for (uint8_t* p : pages) mprotect(p, page, PROT_READ | PROT_WRITE);
        sigaction(SIGSEGV, &faults, nullptr);
        sigaction(SIGTRAP, &traps, nullptr);
    }
    bool closed() const { return active == this; }

  private:
    // The page gets a pattern, so that all that the store writes shows, unless one in 256 bytes is just that; results
    // are judged elsewhere.
    static uint8_t mark(int64_t i) { return uint8_t((i * 0x9E3779B1u) >> 23); }
    bool open(uint8_t* address, ucontext_t& context) {
        uint8_t* const at = address - reinterpret_cast<uintptr_t>(address) % page;
        if (std::find(pages.begin(), pages.end(), at) == pages.end() || opened_ == 2) return false;
        mprotect(at, page, PROT_READ | PROT_WRITE);
        for (int64_t i = 0; i < page; ++i) before_[opened_][i] = at[i], at[i] = mark(i);
        open_[opened_++] = at;
        streaming_ = isStreaming(reinterpret_cast<const uint8_t*>(context.uc_mcontext.gregs[REG_RIP]));
        context.uc_mcontext.gregs[REG_EFL] |= trapFlag;
        return true;
    }
    void done(ucontext_t& context) {
        context.uc_mcontext.gregs[REG_EFL] &= ~trapFlag;
        for (int k = 0; k < opened_; ++k) {
            int64_t first = page, last = -1;
            for (int64_t i = 0; i < page; ++i)
                if (uint8_t& now = open_[k][i]; now == mark(i))
                    now = before_[k][i];
                else
                    first = std::min(first, i), last = i;
            if (last >= 0)
                stores.push_back({reinterpret_cast<uintptr_t>(open_[k] + first), last + 1 - first, streaming_});
            mprotect(open_[k], page, PROT_READ);
        }
        opened_ = 0;
    }

    static constexpr greg_t trapFlag = 0x100;
    static inline Watch* active = nullptr;
    static inline struct sigaction faults, traps;
    uint8_t* open_[2];
    uint8_t before_[2][page];
    int opened_ = 0;
    bool streaming_ = false;
};

// Where a call writes: rows of an image, or of planes.
struct Target {
    std::vector<uint8_t*> first;
    int64_t step, rowBytes, height;
};

// What is wrong with the stores; whole: all whole lines of the rows are to be streamed.
std::string judge(const Watch& watch, const Target& target, bool whole) {
    enum { ordinary = 1, streaming = 2 };
    std::map<uintptr_t, int> kinds;
    const auto where = [&](uintptr_t line) {
        for (size_t c = 0; c < target.first.size(); ++c)
            if (const int64_t at = int64_t(line * 64) - int64_t(reinterpret_cast<uintptr_t>(target.first[c]));
                at > -64 && at < target.height * target.step)
                return "line at byte " + std::to_string(at % target.step) + " of row " +
                       std::to_string(at / target.step);
        return std::string("a line outside");
    };
    unsigned quarters = 0;  // of the line that is being streamed
    for (size_t i = 0; i < watch.stores.size(); ++i) {
        const Store& store = watch.stores[i];
        const uintptr_t end = store.at + uintptr_t(store.bytes);
        for (uintptr_t l = store.line(); l <= (end - 1) / 64; ++l) kinds[l] |= store.streaming ? streaming : ordinary;
        if (!store.streaming) continue;
        for (uintptr_t q = store.at / 16; q <= (end - 1) / 16; ++q) quarters |= 1u << q % 4;
        const bool goesOn =
            i + 1 < watch.stores.size() && watch.stores[i + 1].streaming && watch.stores[i + 1].line() == store.line();
        if (!goesOn && quarters != 15) return where(store.line()) + ": something comes between its streaming stores";
        if (!goesOn) quarters = 0;
    }
    for (const auto& [l, kind] : kinds)
        if (kind == (ordinary | streaming)) return where(l) + " gets ordinary and streaming stores";
    if (!whole) return {};
    int64_t lines = 0;
    for (uint8_t* const first : target.first)
        for (int64_t y = 0; y < target.height; ++y) {
            const auto row = reinterpret_cast<uintptr_t>(first + y * target.step);
            for (uintptr_t l = (row + 63) / 64; (l + 1) * 64 <= row + uintptr_t(target.rowBytes); ++l) {
                const auto in = reinterpret_cast<uint8_t*>(l * 64 / page * page);
                if (std::find(watch.pages.begin(), watch.pages.end(), in) == watch.pages.end()) continue;
                ++lines;
                if (kinds[l] != streaming) return where(l) + " is not streamed";
            }
        }
    return lines ? "" : "no line was watched";
}

// Destinations, with a page before and behind each.
uint8_t* memory(size_t which) {
    static uint8_t* const all = static_cast<uint8_t*>(
        mmap(nullptr, 4 << 20, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    return all + (which << 20) + page;
}

Target place(size_t planes, int64_t phase, int64_t step, int64_t rowBytes, int64_t height) {
    Target target{{}, step, rowBytes, height};
    for (size_t c = 0; c < planes; ++c) target.first.push_back(memory(c) + phase * int64_t(c + 1));
    return target;
}
// The first two, the last two and two pages between them, of one or of all planes.
void choosePages(Watch& watch, const Target& target) {
    const int64_t bytes = target.step * (target.height - 1) + target.rowBytes, pages = bytes / page + 1;
    for (uint8_t* const first : target.first)
        for (const int64_t p : {int64_t(0), int64_t(1), pages / 2, pages / 2 + 1, pages - 2, pages - 1})
            watch.pages.push_back(first - reinterpret_cast<uintptr_t>(first) % page + p * page);
    std::sort(watch.pages.begin(), watch.pages.end());
    watch.pages.erase(std::unique(watch.pages.begin(), watch.pages.end()), watch.pages.end());
}

template <class T>
T& fake(const char* name) {
    return *static_cast<T*>(dlsym(fakeCore(), name));
}

// What narrow registers compute more slowly than memory takes what it writes.
bool outlastsMemory(const Member& m) {
    const std::string& family = m.row->name;
    return underTest().build == "s3" &&
           ((family == "zmviMul" && bytesOf(m.source) == 2) || family == "zmviMulScale" ||
            (family == "zmviConvert" && isReal(m.source) && m.destination == Element::u16));
}

// The stores of one member that asks for the cache size; they begin when it has asked.
std::string watchMember(const Member& m, int64_t bytesPerPixel, int kind, uint64_t seed = 1) {
    Case c(m, underTest(), seed, Mode::bulk);
    c.width = 40 * 7 + 3;
    c.height = 540000 / bytesPerPixel / c.width + 1;
    m.family->arrange(c);
    const std::string name = m.inPlace ? "srcDst" : "dst";
    const Image& image = c.image(name);
    const int64_t pixel = bytesOf(image.element) * image.channels, row = image.width * pixel;
    // Rows that begin anywhere in a line, rows that are whole lines, one row behind the other, rows at odd addresses.
    const int64_t step = kind == 0 ? row + 5 * pixel : kind == 1 ? (row + 63) / 64 * 64 : kind == 2 ? row : row + 7;
    const size_t planes = size_t(std::max(1, image.planes));
    const Target target = place(planes, kind == 0 ? 3 * pixel : kind == 3 ? 1 : 0, step, row, image.height);
    if (m.inPlace) std::memset(target.first[0], 100, size_t(step * image.height));
    for (size_t p = 0; p < planes; ++p)
        if (image.planes) c.planePointers[name][p] = target.first[p];
    if (!image.planes) c.arg(name) = target.first[0];
    c.arg(name + "Step") = step;

    static Watch* asked;
    Watch watch;
    asked = &watch;
    choosePages(watch, target);
    fake<void (*)()>("fakeCacheHook") = [] { asked->close(); };
    fake<int>("fakeCacheSize") = 1;
    c.call();
    const bool closed = watch.closed();
    watch.end();
    fake<void (*)()>("fakeCacheHook") = nullptr;
    if (c.trapped()) return c.verdict();
    if (c.returned < STATUS_OK && seed < 9) return watchMember(m, bytesPerPixel, kind, seed + 1);  // refused: another
    if (!closed) return m.name + " did not ask for the size of the cache";
    // What is in place is near already; transposes stream where rows of the destination are whole lines.
    const bool turned =
        c.hasImage("src") && (image.width != c.image("src").width || m.name.rfind("zmviTranspose", 0) == 0);
    const std::string bad =
        judge(watch, target, !m.inPlace && !outlastsMemory(m) && (kind == 1 || (kind != 3 && !turned)));
    return bad.empty() ? "" : m.name + " (" + std::to_string(kind) + "): " + bad;
}

TEST(Streaming, LinesGetOneKindOfStore) {
    int kind = 0;  // one for each member: those of a family share their walker
    for (const Member& m : members()) {
        const int64_t bytes = bytesPerPixel(m);
        if (bytes == 0 || m.large || (!options.only.empty() && m.name != options.only)) continue;
        const std::string bad = watchMember(m, bytes, kind++ % 4);
        EXPECT_EQ(bad, "");
    }
}

// Copies stream without asking.
template <class Call>
void watchCopy(const char* name, int64_t phase, int64_t pad, const Call& call) {
    const int64_t row = 5003, height = 230;  // past the size from which on plain copies stream
    Target target = place(1, phase, row + pad, row, height);
    static std::vector<uint8_t> source(size_t((row + 100) * height), 7);
    Watch watch;
    choosePages(watch, target);
    watch.close();
    const StatusCode status = call(source.data() + 5, int(row + 9), target);
    watch.end();
    EXPECT_EQ(status, STATUS_OK);
    EXPECT_EQ(judge(watch, target, true), "") << name << " with rows " << row + pad << " apart from byte " << phase;
}
TEST(Streaming, LinesOfCopiesGetOneKindOfStore) {
    using Copy = StatusCode (*)(const uint8_t*, int, uint8_t*, int, ImageSize);
    using Other = StatusCode (*)(const uint8_t*, int, uint8_t*, int, ImageSize, int);
    const auto other = [&](const char* name, int argument) {
        return [=](const uint8_t* src, int srcStep, const Target& dst) {
            return reinterpret_cast<Other>(underTest().find(name))(src, srcStep, dst.first[0], int(dst.step),
                                                                   {int(dst.rowBytes), int(dst.height)}, argument);
        };
    };
    for (const auto& [phase, pad] : {std::pair(0, 0), std::pair(0, 53), std::pair(17, 22)}) {
        watchCopy("zmviCopy_8u_C1R", phase, pad, [](const uint8_t* src, int srcStep, const Target& dst) {
            return reinterpret_cast<Copy>(underTest().find("zmviCopy_8u_C1R"))(
                src, srcStep, dst.first[0], int(dst.step), {int(dst.rowBytes), int(dst.height)});
        });
        watchCopy("zmviCopyManaged_8u_C1R", phase, pad, other("zmviCopyManaged_8u_C1R", 1));
        watchCopy("zmviMirror_8u_C1R", phase, pad, other("zmviMirror_8u_C1R", AXIS_HORIZONTAL));
    }
}

}  // namespace
