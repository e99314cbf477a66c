// The call of a case, and what is said about it.
#include <gtest/gtest.h>
#include <pmmintrin.h>
#include <setjmp.h>
#include <signal.h>

#include <algorithm>
#include <span>
#include <sstream>

#include "harness/case.h"

namespace test {
namespace {

// A fault inside a call ends the call, not the tests.
sigjmp_buf faultReturn;
volatile sig_atomic_t calling = 0;
volatile int faultSignal;
void* volatile faultAddress;

void onFault(int signal, siginfo_t* info, void*) {
    if (calling) {
        calling = 0;
        faultSignal = signal;
        faultAddress = info->si_addr;
        siglongjmp(faultReturn, 1);
    }
    // Not the library: die as usual.
    ::signal(signal, SIG_DFL);
    raise(signal);
}

void catchFaults() {
    static const bool once = [] {
        struct sigaction action = {};
        action.sa_sigaction = onFault;
        action.sa_flags = SA_SIGINFO | SA_NODEFER;
        for (int signal : {SIGSEGV, SIGBUS, SIGILL, SIGFPE}) sigaction(signal, &action, nullptr);
        return true;
    }();
    (void)once;
}

uint16_t x87Control() {
    uint16_t word;
    __asm__ volatile("fnstcw %0" : "=m"(word));
    return word;
}
void setX87Control(uint16_t word) { __asm__ volatile("fldcw %0" : : "m"(word)); }

template <class T>
std::string text(T value) {
    std::ostringstream out;
    if constexpr (std::is_floating_point_v<T>) {
        out.precision(sizeof(T) == 4 ? 9 : 17);
        uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof value);
        out << value << " (0x" << std::hex << bits << ")";
    } else {
        out << int64_t(value);
    }
    return out.str();
}

}  // namespace

std::string faultOf(const std::function<void()>& calls, std::function<std::string(const void*)> where) {
    catchFaults();
    const unsigned ourMxcsr = _mm_getcsr();
    const uint16_t ourX87 = x87Control();
    faultSignal = 0;
    if (sigsetjmp(faultReturn, 0) == 0) {
        calling = 1;
        calls();
        calling = 0;
    }
    _mm_setcsr(ourMxcsr);
    setX87Control(ourX87);
    if (!faultSignal) return {};
    if (faultSignal != SIGSEGV && faultSignal != SIGBUS) return std::string("ends in ") + strsignal(faultSignal);
    std::ostringstream address;
    address << "at " << faultAddress;
    return "touches memory " + (where ? where(faultAddress) : address.str());
}

std::set<std::string> Case::exercised;
std::map<const Family*, std::set<int64_t>> Case::returns;

// Where single operations round as the caller wants, those of the oracle do so too.
void Case::expectResults() {
    const unsigned ours = _mm_getcsr();
    if (rounds(member)) _mm_setcsr(mxcsr_);
    member.family->oracle(*this);
    _mm_setcsr(ours);
}

void Case::call() {
    exercised.insert(member.name);
    for (Block& b : blocks_)
        if (b.size()) std::memcpy(b.live, b.shadow.data(), b.size());
    callOnce(args_);
}

void Case::callParts(const std::vector<std::vector<Slot>>& parts, const std::function<void()>& after) {
    for (size_t i = 0; i < blocks_.size(); ++i)
        if (blocks_[i].size()) std::memcpy(blocks_[i].live, kept_[i].data(), blocks_[i].size());
    int64_t worst = STATUS_OK;  // a warning about a part is one about the whole
    for (const std::vector<Slot>& part : parts) {
        callOnce(part);
        if (trapped() || returned < STATUS_OK) return;
        worst = std::max(worst, returned);
        if (after) after();
    }
    returned = worst;
}

void Case::callOnce(const std::vector<Slot>& given) {
    void* const function = library.find(member.name);
    // Arrays of planes stand at odd addresses.
    constexpr size_t arrayBytes = sizeof(planePointers.begin()->second);
    alignas(8) uint8_t arrays[4][arrayBytes + 8];
    std::vector<Slot> args = given;
    for (size_t i = 0, next = 0; i < args.size(); ++i)
        if (member.params[i].planes && args[i].a) {
            std::memcpy(&arrays[next][1], reinterpret_cast<const void*>(args[i].a), arrayBytes);
            args[i] = &arrays[next++][1];
        }
    copiedOverlapping = false;
    unsigned mxcsrAfter = mxcsr_;
    uint16_t x87After = x87_;
    const std::string fault = faultOf(
        [&] {
            setX87Control(x87_);
            _mm_setcsr(mxcsr_);
            returned = member.invoke(function, args.data());
            mxcsrAfter = _mm_getcsr();
            x87After = x87Control();
        },
        [&](const void* address) { return nearest(address); });
    if (!fault.empty()) return fail(fault);
    if (copiedOverlapping) fail("calls memcpy for operands that overlap");
    constexpr unsigned control = 0xffc0;  // the rest are flags that a call may raise
    if ((mxcsrAfter ^ mxcsr_) & control) fail("changes the control bits of MXCSR");
    if (x87After != x87_) fail("changes the x87 control word");
}

void Case::keepOperands() {
    for (const Block& b : blocks_) kept_.push_back(b.shadow);
}

void Case::callAgain(const Library& other) {
    use(other);
    replay_ = builds().front().build + "," + other.build;
    Rng bytes(seed);
    for (const auto& [start, size] : buffers_) std::generate_n(start, size, [&] { return uint8_t(bytes.next()); });
    const auto exchange = [&] {
        for (size_t i = 0; i < blocks_.size(); ++i) blocks_[i].shadow.swap(kept_[i]);
    };
    exchange();
    call();
    exchange();
}

std::string Case::nearest(const void* address) const {
    const auto at = reinterpret_cast<uintptr_t>(address);  // it may be far from all of them
    for (const auto& [name, i] : images)
        for (int plane = 0; plane < std::max(1, i.planes); ++plane) {
            const Block& b = blocks_[i.block[plane]];
            const auto begin = reinterpret_cast<uintptr_t>(b.live), end = begin + b.size();
            constexpr uintptr_t page = 4096;
            if (at < begin && begin - at <= page) return std::to_string(begin - at) + " bytes before " + name;
            if (at >= end && at - end < page) return std::to_string(at - end) + " bytes behind " + name;
        }
    std::ostringstream out;
    out << "at " << address;
    return out.str();
}

std::string Case::whereIs(const Block& block, size_t offset) const {
    std::string elsewhere;
    for (const auto& [name, i] : images) {
        for (int c = 0; c < (i.planes ? i.planes : i.channels); ++c) {
            if (&blocks_[i.block[i.planes ? c : 0]] != &block) continue;
            elsewhere = name;
            for (int64_t y = -i.readable.top; y < i.height + i.readable.bottom; ++y)
                for (int64_t x = -i.readable.left; x < i.width + i.readable.right; ++x) {
                    const uint8_t* element = i.at(blocks(), x, y, c);
                    const size_t start = size_t(element - block.shadow.data());
                    if (offset < start || offset >= start + size_t(bytesOf(i.element))) continue;
                    std::ostringstream out;
                    out << name << ": channel " << c << " of pixel " << x << " of row " << y;
                    if (i.element == Element::sc32 || i.element == Element::fc32) return out.str();
                    withElement(i.element, [&](auto zero) {
                        using T = decltype(zero);
                        T is, due;
                        std::memcpy(&is, block.live + start, sizeof is);
                        std::memcpy(&due, element, sizeof due);
                        out << " is " << text(is) << ", not " << text(due);
                    });
                    return out.str();
                }
        }
    }
    return "a byte round the pixels of " + (elsewhere.empty() ? "the work buffer" : elsewhere) + " has changed";
}

std::string Case::difference() const {
    for (const Block& b : blocks_) {
        if (b.size() == 0 || std::memcmp(b.live, b.shadow.data(), b.size()) == 0) continue;
        const size_t offset = size_t(std::mismatch(b.shadow.begin(), b.shadow.end(), b.live).first - b.shadow.begin());
        return whereIs(b, offset);
    }
    return {};
}

std::string Case::describe() const {
    std::ostringstream out;
    out << member.name << " seed=" << seed;
    for (size_t i = 0; i < args_.size(); ++i) {
        const Parameter& p = member.params[i];
        out << ' ' << p.name;
        if (p.pointer)
            out << (args_[i].a ? "%64=" + std::to_string(args_[i].a & 63) : "=null");
        else if (p.type.find("Size") != p.type.npos)
            out << '=' << args_[i].a << 'x' << args_[i].b;
        else if (p.type.find("Point") != p.type.npos)
            out << '=' << args_[i].a << ',' << args_[i].b;
        else
            out << '=' << args_[i].a;
    }
    return out.str();
}

std::string Case::verdict() {
    if (failure_.empty() && returned != expected)
        failure_ = "returns " + std::to_string(returned) + ", not " + std::to_string(expected);
    if (failure_.empty()) failure_ = difference();
    if (failure_.empty()) return {};
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    return describe() + ": " + failure_ + "   [--build=" + replay_ + " --only=" + member.name +
           " --seed=" + std::to_string(seed) + " --gtest_filter=" + info->test_suite_name() + ".*]";
}

void Case::acceptMemory() {
    for (Block& b : blocks_) b.shadow.assign(b.live, b.live + b.size());
}

void Case::acceptRows() {
    for (const auto& [name, i] : images) {
        const std::string operand = name.substr(0, name.find('['));
        if (!member.find(operand)->written || !has(operand + "Step")) continue;
        const int64_t pixels = i.readable.left + i.width + i.readable.right, pixel = i.channels * bytesOf(i.element),
                      rowBytes = (pixels - 1) * pixel + (i.planes ? 1 : i.own) * bytesOf(i.element);
        for (int plane = 0; plane < std::max(1, i.planes); ++plane) {
            Block& block = blocks_[i.block[plane]];
            for (int64_t y = -i.readable.top; y < i.height + i.readable.bottom; ++y) {
                const int64_t at = i.first[plane] + y * i.step - i.readable.left * pixel;
                std::memcpy(&block.shadow[size_t(at)], block.live + at, size_t(rowBytes));
            }
        }
    }
}

std::string judge(Case& c, std::span<const Library> libraries) {
    if (libraries.size() > 1) c.keepOperands();
    c.call();
    Case::returns[c.member.family].insert(c.returned);
    // Only a call that came back can be judged by the oracle.
    if (const std::string bad = c.trapped() ? c.verdict() : std::string(); !bad.empty()) return bad;
    if (c.mode == Mode::shared) {
        // What bytes hold that are of several rows is left open, and may be seen by whatever reads them.
        if (c.returned >= STATUS_OK) c.acceptRows();
        c.expected = c.returned;
        return c.verdict();
    }
    c.expectResults();
    if (options.anyBits) c.acceptMemory();
    std::string bad = c.verdict();
    for (size_t i = 1; i < libraries.size() && bad.empty(); ++i) {
        c.callAgain(libraries[i]);
        bad = c.verdict();
    }
    return bad;
}

std::string runCase(const Member& m, uint64_t seed, Mode mode, int misalignment) {
    const auto runIn = [&](std::span<const Library> libraries) {
        Case c(m, libraries.front(), seed, mode);
        if (misalignment >= 0) c.misalign(misalignment);
        m.family->arrange(c);
        return judge(c, libraries);
    };
    // What the others return, and what rows that share bytes hold, is each build's own.
    if (m.result == "StatusCode" && mode != Mode::shared) return runIn(builds());
    for (const Library& l : builds())
        if (const std::string bad = runIn({&l, 1}); !bad.empty()) return bad;
    return {};
}

}  // namespace test
