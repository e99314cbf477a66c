// A member of the library with arguments and the memory behind them, ready to be called in any build.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "catalog.h"
#include "harness/thunks.h"
#include "zmvip_types.h"

// One of the three builds, loaded by path.
struct Build {
    std::string code;
    void* handle;
    void (*release)(void*);                     // its zmviFree
    void* find(const std::string& name) const;  // throws for a name that the build lacks
};

// What is timed: the region, the width of masks and borders, the bytes that rows are apart beyond their length,
// and the scale factor, the compositing operation, or 1 for a histogram of equal pixels and for a table of uneven
// levels, or the kernel of remap.  Of kernels see kernelSide().  Of resizing, the width of the result times 100, plus
// the kernel of antialiasing.
struct Setting {
    int64_t width, height;
    int mask = 5, border = 16, padding = 0, factor = 0;
    std::string about = {};  // size queries: the member that the answer is for
};

class Call;
struct Member {
    const char* name;
    const catalog::Member* parts;
    test::Thunk thunk;
    std::unique_ptr<Call> bind(const Setting& setting, const Build& build) const;
};
std::span<const Member> members();
const Member& findMember(const std::string& name);  // throws when there is none

class Call {
  public:
    Call(const Member& member, const Setting& setting, const Build& build);
    void run(const Build& build, void* function, int64_t count);  // throws unless each call succeeds
    // memcpy of half the bytes that a call reads and writes moves the same number of bytes.
    void copySameBytes(int64_t count);
    // What a call that only writes images comes down to.
    void setSameBytes(int64_t count);

    // Of a call: what it reads and writes (0 for members without images), the pixels of the destination or else of a
    // source, the bytes of the shortest row of any image, and what a size query wrote.
    int64_t bytes = 0, pixels = 1, shortestRow = INT64_MAX, answer = 0;
    bool reads = false;  // an image
    // The streams of a call: images that are only read and their bytes, the bytes written, and whether those are read
    // as well.
    int sources = 0;
    int64_t readBytes = 0, writtenBytes = 0;
    bool inPlace = false;

  private:
    struct alignas(64) Line {
        uint32_t words[16];
    };
    using Memory = std::vector<Line>;

    test::Slot argument(const catalog::Parameter& parameter);
    ImageSizeL area(const std::string& name) const;
    double number(const catalog::Parameter& p) const;
    void* pointer(const catalog::Parameter& p, int64_t element);
    void* planes(const std::string& name, int64_t element);
    uint8_t* image(const std::string& name, int64_t pixel, int plane = 0);
    // Of a kernel, mask counts its side, and from 100 on its taps: 100 more for real ones, 200 for a column times a
    // row.
    int kernelSide() const { return setting.mask % 100; }
    bool wholeTaps() const { return (type == "8u" || type == "16s") && setting.mask / 100 != 1; }
    void* kernel(int64_t element);
    template <class T>
    uint8_t* map(const std::string& name);
    void* workBuffer();
    void* specObject();
    bool isResize() const;
    bool isYUV() const;
    bool halvesRows() const;  // of colour planes
    static constexpr int forwardWarp = 2;  // a factor
    bool isWarp() const;
    void* warpCoefficients();
    std::string resizeInit(std::string family) const;
    // Of a histogram: evenly spaced numbers, one a level.
    static constexpr int bins = 256;
    template <class T>
    T* levels(T first, T apart) {
        T* const numbers = reinterpret_cast<T*>(allocate((bins + 1) * int64_t(sizeof(T))).data());
        for (int k = 0; k <= bins; ++k) numbers[k] = first + T(k) * apart;
        return numbers;
    }
    float* unevenLevels() {
        float* const numbers = levels<float>(0, 0);
        for (int k = 0; k <= bins; ++k) numbers[k] = float(k * k) / 128;
        return numbers;
    }
    Memory& allocate(int64_t size);
    bool has(const std::string& name) const;
    const zmv::Facts& facts() const;
    bool accepts(const std::string& option, int64_t value) const;  // as the facts list its values
    [[noreturn]] void unknown(const std::string& name) const;

    const Member& member;
    const Setting setting;
    const Build& build;
    std::vector<test::Slot> slots;
    std::string type = "8u", toType;       // of the source and of the destination
    int fromChannels = 1, toChannels = 1;  // of the source and of the destination, or the number of planes
    std::map<std::string, int64_t> steps;
    std::map<std::string, std::array<int, 4>> planeSteps;
    std::deque<std::vector<void*>> planePointers;
    std::deque<Memory> memory;
    std::unique_ptr<Call> maker;                 // of the spec object
    void* spec = nullptr;                        // what an initialisation made
    Memory *read = nullptr, *written = nullptr;  // where memcpy works too
};
