// Sums of 192 bits, in two's complement: sums, products with 64-bit integers, one rounding.
#pragma once

#include "stats/reduce.h"

namespace zmv {

class WideSum {
  public:
    WideSum() = default;
    WideSum(int64_t x) : words_{uint64_t(x), sign(x), sign(x)} {}
    WideSum& operator+=(const WideSum& other) {
        unsigned __int128 sum = 0;
        for (int i = 0; i < 3; ++i) {
            sum += (unsigned __int128)words_[i] + other.words_[i];
            words_[i] = uint64_t(sum);
            sum >>= 64;
        }
        return *this;
    }
    WideSum operator*(int64_t by) const {
        const uint64_t size = by < 0 ? -uint64_t(by) : uint64_t(by);
        WideSum result;
        unsigned __int128 product = 0;
        for (int i = 0; i < 3; ++i) {
            product += (unsigned __int128)words_[i] * size;
            result.words_[i] = uint64_t(product);
            product >>= 64;
        }
        return by < 0 ? -result : result;
    }
    WideSum operator-() const {
        WideSum result;
        for (int i = 0; i < 3; ++i) result.words_[i] = ~words_[i];
        return result += 1;
    }
    // Where the lowest word counts only by not being zero, it leaves a trace in the last bit of the others.
    double rounded() const {
        const auto upper = __int128((unsigned __int128)words_[2] << 64 | words_[1]);
        if (words_[2] == sign(int64_t(words_[1])))
            return zmv::rounded(__int128((unsigned __int128)words_[1] << 64 | words_[0]));
        return zmv::rounded(upper | (words_[0] != 0)) * powerOfTwo(64);
    }

  private:
    static uint64_t sign(int64_t x) { return x < 0 ? ~uint64_t(0) : 0; }
    uint64_t words_[3] = {};
};

}  // namespace zmv
