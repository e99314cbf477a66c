// The sum of an integer filter over its divisor, rounded once, plus an offset, in the range of 16-bit results.
//
// Sums are first brought into the range in which results differ, and made to count from a multiple of the divisor below
// it: then quotients are not negative, and rounding is cutting off.  A quotient of u + 1/2 over d is at least 1/(2 d)
// away from every integer, and arithmetic that errs by less rounds it down exactly: single precision where few bits
// are at stake, double precision for the rest.
#pragma once

#include <algorithm>

#include "kernels/simd_convert.h"

namespace zmv {

class Quotient {
  public:
    enum Kind { none, shift, single, wide };
    enum Rounding { down, even, towardZero };  // what is left to do once the bias has been added

    // lowest, highest: the range of results, within 16 bits.  Sums are of 32 bits, or else of up to 53 in doubles.
    Quotient(int32_t divisor, unsigned roundMode, int32_t offset, int lowest, int highest, bool doubles = false) {
        const bool negative = divisor < 0;
        const int64_t d = negative ? -int64_t(divisor) : divisor;
        const bool power = !negative && (d & (d - 1)) == 0;
        // -s is ~s + 1.
        flip_ = negative ? -1 : 0;
        offset_ = offset;
        const auto inInt = [=](int64_t x) { return doubles ? x : std::clamp<int64_t>(x, INT32_MIN, INT32_MAX); };
        const int64_t low = inInt((int64_t(lowest) - offset - 1) * d - negative);
        const int64_t high = inInt((int64_t(highest) - offset + 1) * d - negative);
        int64_t first = (low + negative) / d;
        first -= first * d > low + negative;
        first -= first & 1;  // even, so that quotients keep their parity
        low_ = low, high_ = high;
        const int64_t base = first * d - negative, most = high - base + d;
        rounding_ = roundMode == ROUND_ZERO                 ? (power ? down : towardZero)
                    : roundMode == ROUND_NEAR && d % 2 == 0 ? even
                                                            : down;
        bias_ = roundMode == ROUND_ZERO ? 0 : d / 2;
        zero_ = -int32_t(negative);
        divisor_ = d;
        base_ = base;
        kind_ = doubles                      ? wide
                : d == 1 && !negative        ? none
                : power && most <= INT32_MAX ? shift
                : most < 1 << 22             ? single
                                             : wide;
        add_ = kind_ == none ? offset : int32_t(std::clamp<int64_t>(first + offset, -(1 << 30), 1 << 30));
        while (power && int64_t(1) << shift_ < d) ++shift_;
    }
    // use(apply): apply turns a vector of sums into results, which are still to be saturated.
    template <class Use>
    void with(Use use) const {
        const auto go = [&]<Kind kind, Rounding rounding>() {
            use([this](Vec<int32_t> sums) { return value<kind, rounding>(sums); });
        };
        if (kind_ == none) return go.template operator()<none, down>();
        if (kind_ == shift)
            return rounding_ == even ? go.template operator()<shift, even>() : go.template operator()<shift, down>();
        if (kind_ == single)
            return rounding_ == even         ? go.template operator()<single, even>()
                   : rounding_ == towardZero ? go.template operator()<single, towardZero>()
                                             : go.template operator()<single, down>();
        return rounding_ == even         ? go.template operator()<wide, even>()
               : rounding_ == towardZero ? go.template operator()<wide, towardZero>()
                                         : go.template operator()<wide, down>();
    }

    // The same for sums within 16 bits and results of 8, where 16 bits do for all that happens in between; false where
    // they do not.  Only results that are too large anyway saturate on the way.
    template <class Use>
    bool withShort(Use use) const {
        if (kind_ > shift || shift_ > 7 || offset_ != int16_t(offset_)) return false;
        const auto bias = fill(int16_t(bias_ - (rounding_ == even))), offset = fill(int16_t(offset_));
        if (kind_ == none)
            use([=](Vec<int16_t> s) { return addSaturated(s, offset); });
        else if (rounding_ == even)
            use([=, n = shift_](Vec<int16_t> s) {
                return addSaturated(addSaturated(s, bias + (s >> n & 1)) >> n, offset);
            });
        else
            use([=, n = shift_](Vec<int16_t> s) { return addSaturated(addSaturated(s, bias) >> n, offset); });
        return true;
    }
    // Sums in doubles, of a rounding to nearest.
    ZMV_INLINE Vec<int32_t> ofDoubles(Vec<double> a, Vec<double> b) const {
        const auto limited = [&](Vec<double> s) {
            s = (flip_ ? -s - 1.0 : s);
            return larger(smaller(s, fill(double(high_))), fill(double(low_)));
        };
        return (rounding_ == even ? roundToInt(wideValue<even>(limited(a)), wideValue<even>(limited(b)))
                                  : roundToInt(wideValue<down>(limited(a)), wideValue<down>(limited(b)))) +
               add_;
    }

  private:
    template <Kind kind, Rounding rounding>
    ZMV_INLINE Vec<int32_t> value(Vec<int32_t> sums) const {
        const auto low = fill(int32_t(low_)), high = fill(int32_t(high_));
        auto s = sums ^ flip_;
        s = s < low ? low : s;
        s = s > high ? high : s;
        if constexpr (kind == none) return s + add_;
        if constexpr (kind == wide) {
            int32_t ints[lanes<int32_t>];
            store(ints, s);
            constexpr int half = lanes<double>;
            const auto a = wideValue<rounding>(loadWiden<double>(ints));
            const auto b = wideValue<rounding>(loadWiden<double>(ints + half));
            return roundToInt(a, b) + add_;
        } else {
            auto u = asSigned(asUnsigned(s) + uint32_t(bias_ - base_));  // modulo 2^32, in which it fits
            if constexpr (rounding == towardZero) u += (s < zero_) & int32_t(divisor_ - 1);
            if constexpr (kind == shift) {
                if constexpr (rounding == even) u = u - 1 + (((u - int32_t(bias_)) >> shift_) & 1);
                return (u >> shift_) + add_;
            } else {
                const auto real = toFloat(u);
                auto k = truncate((real + 0.5f) * (1.0f / float(divisor_)));
                if constexpr (rounding == even) k += (toFloat(k) * float(divisor_) == real) & -(k & 1);
                return k + add_;
            }
        }
    }
    // The same number before it is rounded to nearest.
    template <Rounding rounding>
    ZMV_INLINE Vec<double> wideValue(Vec<double> s) const {
        const double d = double(divisor_);
        if constexpr (rounding == even) return (s - double(base_)) / d;  // exact where it lies halfway
        auto u = s + (double(bias_ - base_) + 0.5);
        if constexpr (rounding == towardZero) {
            using Bits = Vec<int64_t>;
            u += (Vec<double>)((Bits)(s < double(zero_)) & (Bits)fill(d - 1));
        }
        return u * (1 / d) - 0.5;
    }

    Kind kind_;
    Rounding rounding_;
    int32_t flip_, add_, zero_, offset_;
    int shift_ = 0;
    int64_t low_, high_, bias_, base_, divisor_;
};

}  // namespace zmv
