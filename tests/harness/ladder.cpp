// The ladder of refusals, made from the facts of the family.
#include <algorithm>
#include <climits>
#include <iterator>

#include "harness/case.h"

namespace test {
namespace {

using zmv::Bad;
using zmv::Refusal;

// Codes that no option has, beside the neighbours of those that it has.
constexpr int64_t codes[] = {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 13, 15, 16, 19, 257, INT_MAX, INT_MIN};
constexpr int64_t borderWords[] = {0,  1,  2,   3,   4,   5,   6,   7,   15,  16,  17, 18,         19,
                                   22, 99, 224, 239, 241, 242, 243, 246, 256, 257, -1, INT_MIN + 1};
bool accepted(const Refusal& refusal, int64_t code) {
    if (refusal.bad == Bad::borderWord && code == BORDER_IN_MEM) return true;
    if (refusal.bad == Bad::borderWord) code &= ~int64_t(BORDER_IN_MEM);
    return std::find(refusal.values.begin(), refusal.values.end(), code) != refusal.values.end();
}

bool isPair(const Parameter& p) { return p.type.starts_with("Image"); }

// Blocks without any tag.
const std::vector<uint8_t> zeros(512, 0), ones(512, 0xff);

std::vector<Break> breaksOf(Case& c, const Refusal& refusal, const Parameter& p) {
    std::vector<Break> breaks;
    const auto add = [&](Break::Part part, int64_t value, int index = 0) {
        breaks.push_back({p.name, part, value, index});
    };
    const auto numbers = [&](std::initializer_list<int64_t> values) {
        for (const int64_t value : values)
            if (isPair(p))
                add(Break::width, value), add(Break::height, value);
            else
                add(Break::whole, value);
    };
    const auto planes = [&] {
        for (int k = 0; k < p.planes && c.planePointers[p.name][size_t(k)]; ++k) add(Break::plane, 0, k);
    };
    switch (refusal.bad) {
        case Bad::null:
            add(Break::whole, 0), planes();
            break;
        case Bad::nullItself:
            add(Break::whole, 0);
            break;
        case Bad::nullEntry:
            planes();
            break;
        case Bad::size:
            if (p.role != Role::rectangle)
                numbers({0, -1, INT_MIN});
            else
                for (const int64_t value : {0, -1, INT_MIN})
                    add(Break::rectWidth, value), add(Break::rectHeight, value);
            break;
        case Bad::negative:
            numbers({-1, INT_MIN});
            break;
        case Bad::step:
            c.member.facts().steps == zmv::Steps::nonzero ? numbers({0}) : numbers({0, -1, INT_MIN});
            break;
        case Bad::rowStep: {
            const Image& image = c.image(p.name.substr(0, p.name.size() - 4));
            numbers({0, -1, INT_MIN, image.width * image.channels * bytesOf(image.element) - 1});
            break;
        }
        case Bad::partStep: {
            const Image& image = c.image(p.name.substr(0, p.name.size() - 4));
            for (int beyond = 1; beyond < bytesOf(image.element); ++beyond) numbers({image.step + beyond, -beyond});
            break;
        }
        case Bad::option:
            for (const int64_t code : codes)
                if (!accepted(refusal, code)) add(Break::whole, code);
            for (const int64_t code : refusal.values)
                if (!accepted(refusal, code + 1)) add(Break::whole, code + 1);
            break;
        case Bad::borderWord:
            for (const int64_t word : borderWords)
                if (!accepted(refusal, word)) add(Break::whole, word);
            break;
        case Bad::anchor:
            numbers({-1, INT_MIN, INT_MAX});
            add(isPair(p) ? Break::width : Break::whole, c.arg("maskSize").a);  // the first that is outside
            if (isPair(p)) add(Break::height, c.arg("maskSize").b);
            break;
        case Bad::element:
            for (int k = 0; k < c.image(p.name).channels; ++k)
                for (const int64_t value : refusal.values) add(Break::element, value, k);
            break;
        case Bad::foreign:
            for (const auto* block : {&zeros, &ones}) add(Break::whole, reinterpret_cast<int64_t>(block->data()));
            break;
        case Bad::given:
            for (const int64_t value : refusal.values) numbers({value});
            break;
        case Bad::told:
            break;
    }
    return breaks;
}

}  // namespace

std::vector<Check> ladderOf(Case& c) {
    const Member& m = c.member;
    std::vector<Check> ladder;
    const auto& refusals = m.facts().refusals;
    for (const Refusal& refusal : refusals) {
        Check check{refusal.status, {}};
        for (const Parameter& p : m.params)
            if (catalog::concerns(m.facts(), refusal, m, p))
                for (const Break& b : breaksOf(c, refusal, p)) check.breaks.push_back(b);
        const bool last = std::none_of(&refusal + 1, refusals.end(),
                                       [&](const Refusal& other) { return other.status == refusal.status; });
        for (const Check& more : m.family->more)
            if (last && more.status == check.status)
                std::copy_if(more.breaks.begin(), more.breaks.end(), std::back_inserter(check.breaks),
                             [&](const Break& b) { return m.find(b.argument); });
        if (check.breaks.empty()) continue;
        // What follows with the same status is one rung: which of the two failed cannot be seen.
        if (!ladder.empty() && ladder.back().status == check.status)
            ladder.back().breaks.insert(ladder.back().breaks.end(), check.breaks.begin(), check.breaks.end());
        else
            ladder.push_back(check);
    }
    return ladder;
}

void apply(const Break& b, Case& c) {
    // In 64 bits: a negative value whose lower half is positive, and the largest value of all.
    int64_t value = b.value;
    const std::string& type = c.member.find(b.argument)->type;
    const bool wide = c.member.large && (type.ends_with("L") || type == "int64_t");
    if (wide && value == -1) value = -int64_t(0xffffffff);
    if (wide && value == INT32_MAX) value = INT64_MAX;
    switch (b.part) {
        case Break::whole:
        case Break::width:
            c.arg(b.argument).a = value;
            break;
        case Break::height:
            c.arg(b.argument).b = value;
            break;
        case Break::rectWidth:
            c.arg(b.argument).c = value;
            break;
        case Break::rectHeight:
            c.arg(b.argument).d = value;
            break;
        case Break::element: {
            const Image& image = c.image(b.argument);
            withElement(image.element, [&](auto zero) { c.set(image, 0, 0, b.index, decltype(zero)(value)); });
            if (!c.member.points(b.argument)) c.bindValue(b.argument);
            break;
        }
        case Break::plane:
            c.planePointers[b.argument][size_t(b.index)] = nullptr;
            c.arg(b.argument) = c.planePointers[b.argument].data();
    }
}

}  // namespace test
