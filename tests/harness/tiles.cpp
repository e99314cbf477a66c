// The same call in parts: tiles give the bits of the whole, and results of parts make that of the whole.
#include <algorithm>
#include <deque>

#include "harness/case.h"

namespace test {
namespace {

using zmv::Combine;
using zmv::Place;
using zmv::Reach;

bool isImage(const Parameter& p) { return p.role == Role::image || p.role == Role::planes || p.role == Role::mask; }
// Where maps say what is read, they are cut with the destination, and the source is the whole.
bool hasMaps(const Member& m) { return m.find("pxMap"); }
bool isCut(const Member& m, const Parameter& p) {
    return hasMaps(m) ? p.role == Role::map || p.name == "dst" : isImage(p);
}

const char* regionOf(const Member& m) { return m.find("dstRoiSize") ? "dstRoiSize" : "roiSize"; }

// How far a mask reaches round its pixel, at most.
int64_t reachOf(Case& c, int64_t Slot::*side) {
    if (!c.has("maskSize")) return c.mask.*side;
    const Slot mask = c.arg("maskSize");
    return c.member.find("maskSize")->type.starts_with("Image") ? mask.*side : mask.a;
}

// Where to cut: what has a border rule of its own is no smaller than the reach of the mask.
std::vector<int64_t> cuts(Case& c, int64_t size, int64_t least) {
    std::vector<int64_t> at = {0, size};
    for (int i = 0; i < 4; ++i) {
        const int64_t cut = c.rng.between(0, int(size));
        if (std::all_of(at.begin(), at.end(),
                        [&](int64_t other) { return std::abs(cut - other) >= std::max<int64_t>(least, 1); }))
            at.push_back(cut);
    }
    std::sort(at.begin(), at.end());
    return at;
}

// The arguments of the call for one tile.
std::vector<Slot> tile(Case& c, int64_t x, int64_t y, int64_t w, int64_t h,
                       std::deque<std::array<uint8_t*, 4>>& planes) {
    std::vector<Slot> args = c.args();
    for (size_t i = 0; i < args.size(); ++i) {
        const Parameter& p = c.member.params[i];
        if (p.name == regionOf(c.member)) args[i] = {w, h};
        if (p.name == "roiOffset") args[i].a += x, args[i].b += y;  // the tile's place in the whole image
        if (p.name == "borderType")
            args[i].a |= (x > 0 ? BORDER_IN_MEM_LEFT : 0) | (y > 0 ? BORDER_IN_MEM_TOP : 0) |
                         (x + w < c.width ? BORDER_IN_MEM_RIGHT : 0) | (y + h < c.height ? BORDER_IN_MEM_BOTTOM : 0);
        if (!isCut(c.member, p)) continue;
        const Image& image = c.image(p.name);
        const int64_t beyond = y * image.step + x * image.channels * bytesOf(image.element);
        if (p.planes) {
            planes.push_back(c.planePointers[p.name]);
            for (uint8_t*& plane : planes.back()) plane += plane ? beyond : 0;
            args[i] = planes.back().data();
        } else {
            args[i].a += beyond;
        }
    }
    return args;
}

// What the parts' results make together; only a region of nothing else has NaN for its extreme.
template <class T>
T joined(Combine how, T a, T b) {
    if (how == Combine::add || how == Combine::addIntegers) return T(a + b);
    if (a != a || b != b) return a != a ? b : a;
    return how == Combine::least || how == Combine::extremes ? std::min(a, b) : std::max(a, b);
}

// Calls f for each element of what results go to.
template <class F>
void eachResult(const Image& image, F f) {
    size_t i = 0;
    for (int k = 0; k < std::max(image.planes, image.channels); ++k)
        for (int64_t x = 0; x < image.width; ++x) f(x, k, i++);
}

// The whole once more in its own source: the bits that it gave elsewhere.
std::string inPlace(Case& c) {
    const Image src = c.image("src"), dst = c.image("dst");
    if (src.element != dst.element || src.channels != dst.channels) return {};
    std::vector<Slot> args = c.args();
    for (size_t i = 0; i < args.size(); ++i) {
        if (c.member.params[i].name == "dst") args[i] = c.arg("src");
        if (c.member.params[i].name == "dstStep") args[i] = c.arg("srcStep");
    }
    c.callParts({args});
    for (int64_t y = 0; y < src.height; ++y)
        for (int64_t x = 0; x < src.width; ++x)
            for (int k = 0; k < c.member.to.used(); ++k)
                withElement(src.element, [&](auto zero) {
                    const auto got = c.result<decltype(zero)>(src, x, y, k), due = c.get<decltype(zero)>(dst, x, y, k);
                    if (std::memcmp(&got, &due, sizeof got)) c.fail("in place it gives other bits");
                });
    c.acceptMemory();
    return c.verdict();
}

}  // namespace

bool hasTiles(const Member& m) {
    const Facts& facts = m.facts();
    const bool images =
        std::any_of(m.params.begin(), m.params.end(), [](const Parameter& p) { return p.written && isImage(p); });
    const bool inside = facts.reach == Reach::none || hasMaps(m) || (facts.reach == Reach::anchor && !m.inPlace);
    const bool combines =
        facts.combine != Combine::no && (facts.combine != Combine::addIntegers || !catalog::isReal(m.source));
    return m.find(regionOf(m)) && (images ? facts.tiles && inside : combines);
}

std::string runTiles(const Member& m, uint64_t seed) {
    Case c(m, builds()[seed % builds().size()], seed, Mode::tiles);
    m.family->arrange(c);
    const Slot region = c.arg(regionOf(m));
    if (region.a < 1 || region.b < 1) return {};
    c.width = region.a, c.height = region.b;
    const auto result =
        std::find_if(m.params.begin(), m.params.end(), [](const Parameter& p) { return p.role == Role::result; });
    const Combine how = m.facts().combine;
    if (how != Combine::no)  // where nothing is written, nothing is added
        withElement(result->element, [&](auto zero) {
            const Image& image = c.image(result->name);
            eachResult(image, [&](int64_t x, int k, size_t) { c.set(image, x, 0, k, zero); });
        });
    c.keepOperands();
    c.call();
    if (c.trapped()) return c.verdict();
    if (c.returned < STATUS_OK) return {};
    c.expected = c.returned;
    c.acceptMemory();
    std::vector<std::vector<Slot>> parts;
    std::deque<std::array<uint8_t*, 4>> planes;
    const auto columns = cuts(c, c.width, reachOf(c, &Slot::a)), rows = cuts(c, c.height, reachOf(c, &Slot::b));
    for (size_t j = 0; j + 1 < rows.size(); ++j)
        for (size_t i = 0; i + 1 < columns.size(); ++i)
            parts.push_back(tile(c, columns[i], rows[j], columns[i + 1] - columns[i], rows[j + 1] - rows[j], planes));
    if (how == Combine::no) {
        c.callParts(parts);
        const std::string bad = c.verdict();
        const bool same = m.facts().place == Place::same && m.facts().reach == Reach::anchor;
        return bad.empty() && same && c.has("dst") ? inPlace(c) : bad;
    }
    withElement(result->element, [&](auto zero) {
        using T = decltype(zero);
        const Image image = c.image(result->name);
        std::vector<T> together;
        c.callParts(parts, [&] {
            eachResult(image, [&](int64_t x, int k, size_t i) {
                const T part = c.result<T>(image, x, 0, k);
                if (i == together.size())
                    together.push_back(part);
                else
                    together[i] = joined(how, together[i], part);
            });
        });
        if (c.trapped()) return;
        eachResult(image, [&](int64_t x, int k, size_t i) {
            const T whole = c.get<T>(image, x, 0, k);
            if (whole != together[i] && (whole == whole || together[i] == together[i]))
                c.fail("parts make " + std::to_string(together[i]) + ", the whole " + std::to_string(whole));
        });
    });
    c.acceptMemory();
    return c.verdict();
}

}  // namespace test
