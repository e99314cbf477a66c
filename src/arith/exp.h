// e to the power of x in double precision: a rule of our own, since that of the C library differs from processor to
// processor.
#pragma once

#include <algorithm>
#include <array>

#include "kernels/logarithm.h"
#include "kernels/simd_convert.h"

namespace zmv {

// e^x * 2^-factor.
struct Exp {
    double factor;
    explicit Exp(int scaleFactor) : factor(std::clamp(scaleFactor, -200000, 200000)) {}

    // 1 / k!, up to where the next term is below half a unit in the last place for |r| <= ln(2) / 2.
    static constexpr std::array<double, 14> coefficients = [] {
        std::array<double, 14> c{1};
        double factorial = 1;
        for (int k = 1; k < 14; ++k) factorial *= k, c[size_t(k)] = 1 / factorial;
        return c;
    }();

    ZMV_INLINE Vec<double> operator()(Vec<double> x) const {
        using D = Vec<double>;
        constexpr double toInteger = 0x1.8p52;  // added, it leaves whole numbers in the lowest places
        // x = n ln 2 + r.  Beyond 16 bits all results are zero or infinite.
        const D within = larger(fill(-70000.0), smaller(fill(70000.0), x));
        const D n = within * (1 / 0.6931471805599453) + toInteger - toInteger;
        const D r = within - n * ln2<double> - n * ln2Rest<double>;
        const D power = larger(fill(-1000.0), smaller(fill(1000.0), n - factor));
        const D twoToPower = (D)((Vec<uint64_t>)(power + (toInteger + 1023)) << 52);
        return polynomial(coefficients, r) * twoToPower;
    }
};

}  // namespace zmv
