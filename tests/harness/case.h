// One call of one member: its operands, the call itself, and what came out.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <string>

#include "harness/family.h"
#include "harness/library.h"
#include "harness/memory.h"

namespace test {

enum class Mode {
    usual,     // operands flush against unreadable pages
    overlap,   // all operands in one block
    far,       // row * step beyond 2^31
    bulk,      // megabytes
    controls,  // any floating-point control words
    shared,    // rows that are written overlap each other
    tiles,     // what can be cut into parts
};

// Whether its results depend on the rounding mode.
bool rounds(const Member& m);
bool acceptsAnyStep(const Member& m);
bool acceptsNegativeSteps(const Member& m);
// Numbers near ties and limits.
class Case;
void fillNumbers(Case& c, const std::string& name);

class Case {
  public:
    Case(const Member& m, const Library& l, uint64_t number, Mode how = Mode::usual);

    const Member& member;
    Library library;
    const uint64_t seed;
    const Mode mode;
    Rng rng;
    int64_t width, height;     // suggested by the seed: widths go round every register size
    bool allChannels = false;  // of two layouts of different channel counts: every channel takes part, not one
    bool rowsApart = false;    // images placed from now on have rows that do not overlap
    Slot mask;                 // that results depend on, where no argument tells

    void misalign(int bytes) { misalignment_ = bytes, flushEnd_ = false; }  // the work buffer
    Slot& arg(const std::string& name);
    bool has(const std::string& name) const { return member.find(name) != nullptr; }
    bool hasImage(const std::string& name) const { return images.count(name) != 0; }
    Image& image(const std::string& name);

    // Lays out the image of this name and binds its pointer and step.  Where only one channel of many takes part the
    // pointer is at a random one.
    Image& place(const std::string& name, int64_t w, int64_t h, Margins readable = {});
    // One plane of an image whose planes have sizes, steps and numbers of channels of their own, as image "src[1]".
    Image& placePlane(const std::string& name, int plane, int channels, int64_t w, int64_t h);
    // The constant argument: elements behind a pointer, or one by value, which bindValue passes as its image has it.
    Image& placeValue(const std::string& name, int count);
    void bindValue(const std::string& name);
    // Makes an operand the same memory as another.
    void alias(const std::string& name, const std::string& other);
    // A work buffer of exactly this size: it ends at an unreadable page, or starts at a chosen misalignment.
    void placeBuffer(const std::string& name, int64_t bytes);
    // What the family's query says for the other arguments, a block being asked for by the name that reports it.
    int64_t bufferSize(const std::string& reported = "pBufferSize");

    // Elements of the shadow: before the call what the operand will hold, after it what the oracle makes of it.
    template <class T>
    T get(const Image& i, int64_t x, int64_t y, int c = 0) {
        T value;
        std::memcpy(&value, i.at(blocks_, x, y, c), sizeof value);
        return value;
    }
    template <class T>
    void set(const Image& i, int64_t x, int64_t y, int c, T value) {
        std::memcpy(i.at(blocks_, x, y, c), &value, sizeof value);
    }
    // The element that the library wrote.
    template <class T>
    T result(const Image& i, int64_t x, int64_t y, int c = 0) const {
        const Block& block = blocks_[i.block[i.planes ? c : 0]];
        T value;
        std::memcpy(&value, block.live + (i.at(blocks(), x, y, c) - block.shadow.data()), sizeof value);
        return value;
    }

    void expectResults();
    void call();
    // The same call in another build or in parts, on operands as they were before the first call.
    void keepOperands();
    void callAgain(const Library& other);
    const std::vector<Slot>& args() const { return args_; }
    void callParts(const std::vector<std::vector<Slot>>& parts, const std::function<void()>& after = {});
    void use(const Library& other) { library = other, replay_ = other.build; }
    int64_t returned = 0, expected = STATUS_OK;  // the oracle may expect another status
    void fail(const std::string& what) {
        if (failure_.empty()) failure_ = what;
    }
    // What is wrong, in one line that replays; empty when nothing is.
    std::string verdict();
    bool trapped() const { return !failure_.empty(); }
    std::string difference() const;  // between memory and shadow
    void acceptMemory();             // whatever it is
    void acceptRows();               // whatever it is in the rows of what the member writes
    std::string describe() const;

    std::map<std::string, std::array<uint8_t*, 4>> planePointers;
    std::map<std::string, Image> images;
    std::vector<Block>& blocks() const { return const_cast<Case*>(this)->blocks_; }
    static std::set<std::string> exercised;                     // members that were called
    static std::map<const Family*, std::set<int64_t>> returns;  // what families gave in the sweep

  private:
    void callOnce(const std::vector<Slot>& given);
    Layout layoutOf(const std::string& name) const;
    int64_t chooseStep(int64_t rowBytes, bool written);
    size_t newBlock(size_t bytes);
    int64_t layOut(Image& i, const Parameter& p, int64_t channel);
    void locate(Image& i, int plane, int64_t low, int64_t high);
    std::string whereIs(const Block& block, size_t offset) const;
    std::string nearest(const void* address) const;

    std::vector<Block> blocks_;
    std::vector<std::vector<uint8_t>> kept_;            // what the blocks held
    std::vector<std::pair<uint8_t*, size_t>> buffers_;  // work buffers, as far as they are filled
    std::vector<Slot> args_;
    std::string replay_;  // the builds that show the failure
    bool extreme_, packed_, flushEnd_;
    int misalignment_;
    unsigned mxcsr_ = 0x1f80;
    uint16_t x87_ = 0x37f;
    std::string failure_;
};

// Makes every element of an image what f says of the one that was there.
template <class F>
void change(Case& c, const Image& image, F f) {
    withElement(image.element, [&]<class T>(T) {
        for (int64_t y = 0; y < image.height; ++y)
            for (int64_t x = 0; x < image.width; ++x)
                for (int k = 0; k < (image.planes ? image.planes : image.own); ++k)
                    c.set<T>(image, x, y, k, f(c.get<T>(image, x, y, k), x, y, k));
    });
}

// Does what calls the library.  A fault in it ends it, not the tests; returns what the fault was, or nothing.
std::string faultOf(const std::function<void()>& calls, std::function<std::string(const void*)> where = nullptr);

// Whether the C library's memcpy was called for operands that overlap.
extern volatile bool copiedOverlapping;

// Calls an arranged case in all builds: the oracle's word on what the first one gave is what the others have to give,
// bit for bit.  Says what is wrong.
std::string judge(Case& c, std::span<const Library> libraries = builds());
// Runs one case in all builds, from arrangement to verdict; its work buffer at a misalignment to 64 bytes.
std::string runCase(const Member& m, uint64_t seed, Mode mode, int misalignment = -1);
// Whether parts of a call make the whole, and the call in parts.
bool hasTiles(const Member& m);
std::string runTiles(const Member& m, uint64_t seed);

}  // namespace test
