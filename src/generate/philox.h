// Random words as a function of place and seed: Philox4x32-10 (Salmon, Moraes, Dror, Shaw: Parallel random numbers: as
// easy as 1, 2, 3; SC 2011).  A block of four words is a function of a counter of four words and a key of two, so that
// any part of an image can be made by itself.
#pragma once

#include "kernels/simd_order.h"

namespace zmv {

// Four words of each counter, a counter in each 64-bit lane: in its lower half, with anything in the upper, since the
// products that make them look at lower halves alone.
using Words = std::array<Vec<uint32_t>, 4>;

class Philox {
    using U = Vec<uint32_t>;
    using W = Vec<uint64_t>;

  public:
    explicit Philox(uint64_t key) {
        auto low = uint32_t(key), high = uint32_t(key >> 32);
        for (auto& round : keys_) {
            round = {fill(low), fill(high)};
            low += 0x9E3779B9, high += 0xBB67AE85;
        }
    }
    // counters: the lowest words; the upper ones are the same in all.  A round waits for the one before it, so that
    // several vectors of counters take turns.
    template <size_t n>
    ZMV_INLINE std::array<Words, n> operator()(const std::array<W, n>& counters, uint32_t second, uint32_t third,
                                               uint32_t fourth) const {
        std::array<Words, n> x;
        for (size_t i = 0; i < n; ++i) x[i] = {(U)counters[i], fill(second), fill(third), fill(fourth)};
        for (const auto& [key0, key1] : keys_)
            for (auto& [x0, x1, x2, x3] : x) {
                const W p0 = mulEven(x0, fill<uint32_t>(0xD2511F53)), p1 = mulEven(x2, fill<uint32_t>(0xCD9E8D57));
                x0 = (U)(p1 >> 32) ^ x1 ^ key0, x1 = (U)p1;
                x2 = (U)(p0 >> 32) ^ x3 ^ key1, x3 = (U)p0;
            }
        return x;
    }

  private:
    struct Keys {
        U first, second;
    };
    std::array<Keys, 10> keys_;
};

// Counters in the lanes so that the words of the even lanes make a vector in memory's order, and those of the odd ones
// the next.
template <int... i>
ZMV_INLINE Vec<uint64_t> countersFrom(uint64_t first, std::integer_sequence<int, i...>) {
    return Vec<uint64_t>{uint64_t(i / 2 + i % 2 * (vectorBytes / 16))...} + first;
}
ZMV_INLINE Vec<uint64_t> countersFrom(uint64_t first) {
    return countersFrom(first, std::make_integer_sequence<int, lanes<uint64_t>>{});
}

}  // namespace zmv
