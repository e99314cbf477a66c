// How a case lays out its operands.
#include "harness/case.h"

#include <algorithm>
#include <deque>

namespace test {
namespace {

constexpr size_t margin = 96;  // bytes kept under watch where an operand does not touch an unreadable page

// Laid out once, one for each block of a case: laying out is what costs time.
Arena& arena(size_t index, size_t bytes) {
    static std::deque<Arena> arenas;
    constexpr size_t usual = size_t(32) << 20, page = 4096;
    while (arenas.size() <= index) arenas.emplace_back(usual);
    if (size_t(arenas[index].end - arenas[index].begin) < bytes) arenas[index] = Arena((bytes + page) & ~(page - 1));
    return arenas[index];
}

constexpr size_t ringCount = 3, ringSpace = size_t(6) << 30;
Arena& ring(size_t index) {
    static Arena rings[ringCount] = {Arena::ring(ringSpace), Arena::ring(ringSpace), Arena::ring(ringSpace)};
    return rings[index % ringCount];
}

// Widths round every register size, and a few round the next powers.
int64_t widthOf(uint64_t seed) {
    static const int more[] = {95, 96, 97, 127, 128, 129, 191, 255, 256, 257};
    constexpr unsigned all = 70, count = all + std::size(more);
    const unsigned i = unsigned(seed % count);
    return i < all ? i + 1 : more[i - all];
}

}  // namespace

bool acceptsAnyStep(const Member& m) { return m.facts().steps == zmv::Steps::any || m.among(m.facts().freeSteps); }

bool acceptsNegativeSteps(const Member& m) { return acceptsAnyStep(m) || m.facts().steps == zmv::Steps::nonzero; }

bool rounds(const Member& m) { return m.facts().rounds == zmv::Rounds::floats && isReal(m.source); }

Case::Case(const Member& m, const Library& l, uint64_t number, Mode how)
    : member(m),
      library(l),
      seed(number),
      mode(how),
      rng(number * 8 + unsigned(how)),
      args_(m.params.size()),
      replay_(l.build) {
    extreme_ = rng.oneIn(2);
    packed_ = rng.oneIn(4);
    flushEnd_ = rng.oneIn(2);
    width = widthOf(seed);
    height = rng.between(1, 5);
    misalignment_ = int(seed % 64);
    if (mode == Mode::bulk) {
        const int pixel = std::max(m.from.channels, m.to.channels) * std::max(1, bytesOf(m.destination));
        width = rng.between(300, 3000);
        height = rng.between(1100000, 1600000) / (width * pixel) + 1;
    }
    if (mode == Mode::shared) height = rng.between(2, 7);
    if (mode == Mode::tiles) width = rng.between(20, 120), height = rng.between(12, 40);
    if (mode == Mode::far) {
        extreme_ = packed_ = false;
        height = m.large ? rng.between(2, 3) : rng.between(4, 5);
    }
    // Rounding to nearest, up, down, to zero; denormals kept, read as zero, written as zero; both units alike.
    if (mode == Mode::controls || !rounds(m)) {
        const unsigned rounding = unsigned(rng.below(4));
        mxcsr_ = 0x1f80 | rounding << 13 | unsigned(rng.below(2)) << 15 | unsigned(rng.below(2)) << 6;
        x87_ = uint16_t(0x7f | rounding << 10 | unsigned(rng.below(2)) << 9 | 0x300 * rng.below(2));
    }
}

Slot& Case::arg(const std::string& name) {
    for (size_t i = 0; i < args_.size(); ++i)
        if (member.params[i].name == name) return args_[i];
    throw std::string(member.name + " has no argument " + name);
}

Image& Case::image(const std::string& name) {
    const auto found = images.find(name);
    if (found == images.end()) throw std::string(member.name + " has no image " + name);
    return found->second;
}

Layout Case::layoutOf(const std::string& name) const {
    if (name.rfind("src", 0) == 0) return member.from;
    return name == "dst" ? member.to : Layout{};
}

int64_t Case::chooseStep(int64_t rowBytes, bool written) {
    const bool negative = acceptsNegativeSteps(member);
    if (mode == Mode::shared && written) {
        const int64_t shorter[] = {1, rng.between(1, int(rowBytes)), std::max<int64_t>(1, rowBytes - 1)};
        const int64_t step = shorter[rng.below(3)];
        return negative && rng.oneIn(2) ? -step : acceptsAnyStep(member) && rng.oneIn(4) ? 0 : step;
    }
    if (packed_) return rowBytes;
    const int64_t padded = rowBytes + (rng.oneIn(3) ? 0 : rng.between(1, 67));
    const bool apart = rowsApart || written;
    if (negative && mode != Mode::far) switch (rng.below(12)) {
            case 0:
                return apart ? padded : 0;
            case 1:
                return apart ? padded : rng.below(int(rowBytes));
            case 2:
                return apart ? -padded : -rng.below(int(rowBytes));
            case 3:
            case 4:
            case 5:
                return -padded;
        }
    return padded;
}

// A block with room for so many bytes; returns where in it they start.
size_t Case::newBlock(size_t bytes) {
    Block block;
    size_t start = margin / 2, total = bytes + margin;
    if (mode == Mode::far) {
        const size_t n = blocks_.size();
        block.live = ring(n).begin + n / ringCount * (Arena::ringBytes / 8) + rng.below(4096);
    } else {
        Arena& a = arena(blocks_.size(), total);
        start = flushEnd_ ? margin : 0;
        block.live = flushEnd_ ? a.end - total : a.begin;
    }
    block.shadow.resize(total);
    static const uint8_t extremes[] = {0, 255, 127, 128, 1, 254, 0, 255};
    for (size_t i = 0; i < total; i += 8) {
        uint64_t word = rng.next();
        if (extreme_) {
            uint8_t bytes8[8];
            for (int k = 0; k < 8; ++k) bytes8[k] = extremes[word >> (3 * k) & 7];
            std::memcpy(&word, bytes8, 8);
        }
        std::memcpy(&block.shadow[i], &word, std::min<size_t>(8, total - i));
    }
    blocks_.push_back(std::move(block));
    return start;
}

// Finds memory for the bytes low .. high round element (0, 0) of a plane.
void Case::locate(Image& i, int plane, int64_t low, int64_t high) {
    if (mode == Mode::overlap) {
        // One block for all operands, everyone somewhere in it; only the planes of one image keep apart.
        if (blocks_.empty()) newBlock(size_t((width * 32 + 300) * height));
        const int64_t room = int64_t(blocks_[0].size()) - (high - low) * std::max(1, i.planes);
        i.block[plane] = 0;
        i.first[plane] = plane ? i.first[plane - 1] + high - low : rng.below(int(room) + 1) - low;
    } else {
        const size_t start = newBlock(size_t(high - low));
        i.block[plane] = int(blocks_.size()) - 1;
        i.first[plane] = int64_t(start) - low;
    }
    i.pointer[plane] = blocks_[i.block[plane]].live + i.first[plane];
}

// Finds memory for an operand of which all but that is known; its first element is so many bytes into a pixel.
int64_t Case::layOut(Image& i, const Parameter& p, int64_t channel) {
    const std::string stepName = catalog::stepOf(p.name);
    const Margins& readable = i.readable;
    const int64_t bytes = bytesOf(i.element), pixel = bytes * i.channels;
    const int64_t rowBytes = (readable.left + i.width + readable.right) * pixel;
    i.step = has(stepName) ? chooseStep(rowBytes, p.written) : rowBytes;
    for (const zmv::Refusal& refusal : member.facts().refusals)
        if (refusal.bad == zmv::Bad::partStep && refusal.arguments == stepName)
            i.step += (i.step < 0 ? -1 : 1) * ((bytes - std::abs(i.step) % bytes) % bytes);
    const int64_t top = -readable.top * i.step, bottom = (i.height - 1 + readable.bottom) * i.step;
    const int64_t low = std::min(top, bottom) - readable.left * pixel - channel;
    const int64_t high = std::max(top, bottom) + (i.width + readable.right) * pixel - channel;
    for (int plane = 0; plane < std::max(1, i.planes); ++plane) locate(i, plane, low, high);

    int64_t step = i.step;
    if (mode == Mode::far && has(stepName)) {
        // The ring turns a far row into a near one; margins above the image need room above its first row.
        const int64_t far =
            int64_t(Arena::ringBytes) * (member.large ? rng.between(1030, 1100) : rng.between(280, 340));
        step += far;
        for (uint8_t*& pointer : i.pointer)
            if (pointer) pointer += readable.top * far;
    }
    return step;
}

Image& Case::place(const std::string& name, int64_t w, int64_t h, Margins readable) {
    const Parameter* p = member.find(name);
    const Layout layout = layoutOf(name);
    Image i;
    i.name = name;
    i.element = p->element;
    i.channels = p->planes ? 1 : layout.channels;
    i.planes = p->planes;
    i.width = w;
    i.height = h;
    i.readable = readable;
    const int64_t bytes = bytesOf(i.element);
    const bool one = member.oneChannel || (!allChannels && !member.from.planar && !member.to.planar &&
                                           std::min(member.from.channels, member.to.channels) == 1);
    i.own = p->planes ? i.planes : one ? 1 : i.channels;
    const int64_t channel = one && i.channels > 1 ? rng.below(i.channels) * bytes : 0;

    const int64_t step = layOut(i, *p, channel);
    if (has(catalog::stepOf(name))) arg(catalog::stepOf(name)) = step;
    if (i.planes) {
        std::copy(i.pointer, i.pointer + 4, planePointers[name].begin());
        arg(name) = planePointers[name].data();
    } else {
        arg(name) = i.pointer[0];
    }
    return images[name] = i;
}

Image& Case::placePlane(const std::string& name, int plane, int channels, int64_t w, int64_t h) {
    const Parameter* p = member.find(name);
    const std::string steps = catalog::stepOf(name);
    if (plane == 0) placeValue(steps, p->planes);
    Image i;
    i.name = name + "[" + std::to_string(plane) + "]";
    i.element = p->element;
    i.channels = i.own = channels;
    i.width = w;
    i.height = h;
    set(image(steps), 0, 0, plane, int(layOut(i, *p, 0)));
    planePointers[name][size_t(plane)] = i.pointer[0];
    arg(name) = planePointers[name].data();
    return images[i.name] = i;
}

Image& Case::placeValue(const std::string& name, int count) {
    const Parameter* p = member.find(name);
    Image i;
    i.name = name;
    i.element = p->element;
    i.channels = i.own = count;
    i.width = i.height = 1;
    const bool flushEnd = flushEnd_;
    flushEnd_ = true;
    // At the end, or so near to it that no element is aligned.
    i.first[0] = int64_t(newBlock(size_t(count * bytesOf(i.element)) + seed % 2));
    flushEnd_ = flushEnd;
    i.block[0] = int(blocks_.size()) - 1;
    i.pointer[0] = blocks_.back().live + i.first[0];
    images[name] = i;
    arg(name) = i.pointer[0];
    bindValue(name);
    return images[name];
}

void Case::bindValue(const std::string& name) {
    const Image& i = image(name);
    if (member.points(name)) return;
    arg(name) = int64_t(0);
    std::memcpy(&arg(name).a, i.at(blocks_, 0, 0, 0), size_t(bytesOf(i.element)));
}

void Case::alias(const std::string& name, const std::string& other) {
    Image i = image(other);
    i.name = name;
    images[name] = i;
    arg(name) = arg(other);
    arg(name + "Step") = arg(other + "Step");
}

int64_t Case::bufferSize(const std::string& reported) {
    for (const Member& query : members()) {
        if (query.name != member.facts().query) continue;
        std::vector<Slot> asked;
        int64_t answer = 0, other = 0;
        for (const Parameter& p : query.params)
            asked.push_back(p.name == reported        ? Slot(&answer)
                            : p.role == Role::result  ? Slot(&other)
                            : has(p.name)             ? arg(p.name)
                            : p.name == "dataType"    ? dataTypeOf(member.source)
                            : p.name == "srcDataType" ? dataTypeOf(member.source)
                            : p.name == "dstDataType" ? dataTypeOf(member.destination)
                            : p.name == "numChannels" ? member.to.channels
                                                      : throw query.name + ": what is " + p.name + "?");
        if (query.invoke(library.find(query.name), asked.data()) != STATUS_OK)
            throw query.name + " refuses " + member.name;
        return query.large ? answer : int(answer);
    }
    throw member.name + " has no query";
}

void Case::placeBuffer(const std::string& name, int64_t bytes) {
    // Only what lies round the buffer is compared; flush at its end, its size decides how it is aligned.
    const size_t n = blocks_.size();
    Arena& a = arena(n, size_t(bytes) + 2 * margin);
    uint8_t* start = flushEnd_ ? a.end - bytes : a.begin + misalignment_;
    buffers_.emplace_back(start, size_t(std::min<int64_t>(bytes, 1 << 16)));
    for (size_t i = 0; i < buffers_.back().second; ++i) start[i] = uint8_t(rng.next());
    const auto watch = [&](uint8_t* from, size_t size) { blocks_.push_back({from, std::vector<uint8_t>(size, 0xA5)}); };
    watch(a.begin, flushEnd_ ? 0 : size_t(misalignment_));
    flushEnd_ ? watch(start - margin, margin) : watch(start + bytes, margin);
    arg(name) = start;
}

}  // namespace test
