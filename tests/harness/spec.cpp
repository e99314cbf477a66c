#include "harness/spec.h"

namespace test {
namespace {

constexpr int64_t around = 64;  // bytes kept under watch beside a block, where it does not touch an unreadable page

StatusCode (*makers[ObjectKind::most])(uint8_t* block);
size_t kinds = 0;
// One of each kind; those behind the last one stay zero.
alignas(64) uint8_t others[ObjectKind::most][ObjectKind::mostBytes];

void makeOthers() {
    static const bool once = [] {
        for (size_t k = 0; k < kinds; ++k)
            if (makers[k](others[k]) < STATUS_OK) throw std::string("no spec object");
        return true;
    }();
    (void)once;
}

void scribble(Case& c, uint8_t* from, const uint8_t* to) {
    while (from < to) *from++ = uint8_t(c.rng.next());
}

}  // namespace

ObjectKind::ObjectKind(StatusCode (*make)(uint8_t* block)) : number_(kinds++) {
    if (kinds == most) std::abort();  // a block has to stay empty
    makers[number_] = make;
}

Image& placeBlock(Case& c, const std::string& name, int64_t bytes) {
    makeOthers();
    if (c.rng.oneIn(2)) return c.place(name, bytes, 1);
    Image& block = c.place(name, bytes, 1, {0, 63});
    const int64_t shift = (int64_t(c.seed) - c.arg(name).a) & 63;
    block.first[0] += shift, block.pointer[0] += shift;
    block.readable = {shift, 63 - shift};
    c.arg(name) = block.pointer[0];
    return block;
}

Image& placeObject(Case& c, const std::string& name, int64_t bytes, const Maker& make, int copiesAt) {
    Image& copy = placeBlock(c, name, bytes);
    static Arena room(0);
    if (room.end - room.begin < bytes + 3 * around) room = Arena(size_t(bytes + 3 * around + 0xffff) & ~size_t(0xffff));
    uint8_t* const last = room.end - bytes;
    const int64_t beyond = (reinterpret_cast<int64_t>(last) - c.arg(name).a) & (copiesAt - 1);
    uint8_t* const block = last - beyond - copiesAt * (c.rng.oneIn(2) ? 0 : c.rng.below(64 / copiesAt));
    uint8_t *const begin = block - around, *const end = std::min(block + bytes + around, room.end);
    scribble(c, begin, end);
    const std::vector<uint8_t> before(begin, end);
    StatusCode status = STATUS_OK;
    const std::string fault = faultOf([&] { status = make(block); });
    if (!fault.empty() || status < STATUS_OK) {
        c.fail("the object cannot be made: status " + std::to_string(status) + " " + fault);
        return copy;
    }
    if (std::memcmp(begin, before.data(), around) ||
        std::memcmp(block + bytes, &before[size_t(around + bytes)], size_t(end - block - bytes)))
        c.fail("making the object writes beside its block");
    for (int64_t i = 0; i < bytes; ++i) c.set(copy, i, 0, 0, block[i]);
    scribble(c, begin, end);
    return copy;
}

Check notOne(const char* argument, StatusCode status, const ObjectKind& kind) {
    Check check{status, {}};
    for (size_t k = 0; k < ObjectKind::most; ++k)
        if (k != kind.number()) check.breaks.push_back({argument, Break::whole, reinterpret_cast<int64_t>(others[k])});
    return check;
}

void acceptBlock(Case& c, const std::string& name) {
    const Image& block = c.image(name);
    for (int64_t i = 0; i < block.width; ++i) c.set(block, i, 0, 0, c.result<uint8_t>(block, i, 0));
}

}  // namespace test
