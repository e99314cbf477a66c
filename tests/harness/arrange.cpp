// Arguments by their roles: what nearly every family needs.
#include <algorithm>
#include <climits>
#include <cstring>

#include "harness/case.h"

namespace test {
namespace {

using zmv::Bad;
using zmv::Place;
using zmv::Reach;

int factorOf(Case& c) {
    static const int extremes[] = {INT32_MIN, INT32_MIN + 1, -64, -33, -32, -31, 31, 32, 33, 63, 64, INT32_MAX};
    if (c.seed % 3 == 0) return 0;
    return c.rng.oneIn(6) ? extremes[c.rng.below(12)] : c.rng.between(-40, 40);
}

// Nothing, everything, a random mixture, or runs that leave whole blocks out; any byte but zero counts.
void fillMask(Case& c, const Image& mask) {
    static const uint8_t set[] = {1, 2, 127, 128, 254, 255};
    const int kind = c.rng.below(4);
    bool on = kind == 1;
    for (int64_t y = 0; y < mask.height; ++y)
        for (int64_t x = 0; x < mask.width; ++x) {
            if (kind == 2) on = c.rng.oneIn(2);
            if (kind == 3 && c.rng.oneIn(24)) on = !on;
            c.set<uint8_t>(mask, x, y, 0, on ? set[c.rng.below(6)] : 0);
        }
}

// The values that an option accepts, as the facts have them; any small number where everything is accepted.
int64_t choice(Case& c, const Parameter& p) {
    for (const zmv::Refusal& refusal : c.member.facts().refusals)
        if (refusal.bad == Bad::option && refusal.arguments == p.name)
            return refusal.values.items[c.rng.below(refusal.values.size())];
    return c.rng.between(-4, 4);
}

// What of a window lies beyond the region and has to be readable: all of it, or the sides that the border word names.
Margins readableRound(Case& c, int64_t columns, int64_t rows) {
    if (c.has("anchor")) {
        const int64_t x = c.rng.below(int(columns)), y = c.rng.below(int(rows));
        c.arg("anchor") = {x, y};
        return {x, columns - 1 - x, y, rows - 1 - y};
    }
    int64_t word = BORDER_IN_MEM;
    for (const zmv::Refusal& refusal : c.member.facts().refusals)
        if (refusal.bad == Bad::borderWord) word = refusal.values.items[c.rng.below(refusal.values.size())];
    if (c.rng.oneIn(2)) word |= 16 * c.rng.below(16);
    if (c.rng.oneIn(12)) word = BORDER_IN_MEM;
    if (c.has("borderType") && c.mode == Mode::controls) word = BORDER_CONST;  // so that every check can fail
    if (c.has("borderType")) c.arg("borderType") = word;
    const auto side = [&](int flag, int64_t pixels) { return word & flag ? pixels : 0; };
    return {side(BORDER_IN_MEM_LEFT, (columns - 1) / 2), side(BORDER_IN_MEM_RIGHT, columns / 2),
            side(BORDER_IN_MEM_TOP, (rows - 1) / 2), side(BORDER_IN_MEM_BOTTOM, rows / 2)};
}

}  // namespace

// Numbers near ties and limits, for which random bytes are too random.
void fillNumbers(Case& c, const std::string& name) {
    const Image& image = c.image(name);
    if (c.rng.oneIn(3) || image.element > Element::f64) return;
    withElement(image.element, [&](auto zero) {
        using T = decltype(zero);
        static constexpr double reals[] = {0, -0.0, 1, -1, 0.5, 1.5, 255, -1e-40, 1e30, 0.49999997, 3.25, 65535.5};
        for (int64_t y = 0; y < image.height; ++y)
            for (int64_t x = 0; x < image.width; ++x)
                for (int k = 0; k < image.own; ++k) {
                    if (c.rng.oneIn(2)) continue;
                    if constexpr (std::is_floating_point_v<T>) {
                        c.set(image, x, y, k, T(reals[c.rng.below(12)]));
                    } else {
                        const T power = T(1u << c.rng.below(8 * int(std::min(sizeof(T), sizeof(int)))));
                        c.set(image, x, y, k, T(int64_t(power) * c.rng.between(-3, 3) + c.rng.between(-1, 1)));
                    }
                }
    });
}

void arrangeByRoles(Case& c) {
    const Facts& facts = c.member.facts();
    Margins margins;
    if (c.has("maskSize")) {
        if (!c.arg("maskSize").a)  // where the family has not chosen
            c.arg("maskSize") = {c.rng.between(1, 9), c.rng.between(1, c.mode == Mode::far ? 3 : 9)};
        if (facts.reach == Reach::anchor) margins = readableRound(c, c.arg("maskSize").a, c.arg("maskSize").b);
    }
    const Parameter* const code = c.member.find("mask");  // of both sides
    const bool coded = code && code->role == Role::option;
    if (coded) {
        c.arg("mask") = choice(c, *code);
        c.mask = {c.arg("mask").a % 10, c.arg("mask").a % 10};
        if (facts.reach == Reach::anchor) margins = readableRound(c, c.mask.a, c.mask.b);
    }
    const int used = c.member.to.used();
    for (const Parameter& p : c.member.params) switch (p.role) {
            case Role::image:
            case Role::planes:
                c.place(p.name, c.width, c.height, p.name.starts_with("src") ? margins : Margins{});
                if (p.name != "dst") fillNumbers(c, p.name);
                break;
            case Role::mask:
                fillMask(c, c.place(p.name, c.width, c.height));
                break;
            case Role::constant:
            case Role::table:
                c.placeValue(p.name, used);
                fillNumbers(c, p.name), c.bindValue(p.name);
                break;
            case Role::borderValue:
                if ((c.arg("borderType").a & 15) == BORDER_CONST || !p.pointer)
                    c.placeValue(p.name, used);
                else
                    c.arg(p.name) = nullptr;
                break;
            case Role::result:
                c.place(p.name, c.member.from.used(), 1);
                break;
            case Role::scale:
                c.arg(p.name) = factorOf(c);
                break;
            case Role::option:
                if (&p != code) c.arg(p.name) = choice(c, p);
                break;
            case Role::size:
                if (p.name.ends_with("oiSize")) c.arg(p.name) = {c.width, c.height};
                break;
            case Role::buffer:
                c.placeBuffer(p.name, c.bufferSize());
                break;
            default:
                break;
        }
    // In place, where no form of its own says so; of two sources either may be overwritten.
    if (!c.has("dst") || c.mode != Mode::usual || !c.rng.oneIn(4) || c.member.source != c.member.destination ||
        !(c.member.from == c.member.to))
        return;
    if (facts.place == Place::same) c.alias("dst", "src");
    if (facts.place == Place::second) c.alias("dst", c.has("src") ? "src" : c.rng.oneIn(2) ? "src1" : "src2");
}

}  // namespace test
