// What a spec object of resizing takes, and which sizes it is refused for.
#pragma once

#include <cmath>

#include "geometry/resizespec.h"

namespace zmv {

constexpr WideLen up32(WideLen n) { return roundUp(n, 32); }
constexpr WideLen down128(WideLen n) { return n / 128 * 128; }

inline Len leastSource(uint32_t interpolation, uint32_t lobes) {
    if (interpolation == INTERP_LINEAR) return 2;
    if (interpolation == INTERP_CUBIC) return 4;
    return interpolation != INTERP_LANCZOS ? 1 : lobes == 3 ? 6 : 4;
}
inline StatusCode smallSource(Roi src, Len least) {
    return refuse(src.width < least || src.height < least, STATUS_BAD_SIZE);
}
inline StatusCode reduces(Roi src, Roi dst) {
    return refuse(src.width < dst.width || src.height < dst.height, STATUS_BAD_SIZE);
}
// Of both sizes; only those of _L forms can be too long.
inline StatusCode sides(Roi src, Roi dst) {
    const bool tooLong = std::max(std::max(src.width, src.height), std::max(dst.width, dst.height)) > INT32_MAX;
    return firstOf(
        {nothingToDo(src), nothingToDo(dst), negative(src), negative(dst), refuse(tooLong, STATUS_SIZE_EXCEEDS_INT)});
}

struct SpecBytes {
    WideLen spec, init;
};
inline WideLen superSide(Len src, Len dst) {
    const auto axis = ResizeHeader::axis(src, dst);
    const Len rest = axis.srcReduced % axis.dstReduced;
    return WideLen(axis.srcReduced / axis.dstReduced + std::min<Len>(rest, 2) + 1) * axis.dstReduced;
}
inline SpecBytes specBytes(Roi src, Roi dst, uint32_t interpolation, bool antialiasing, bool isDouble) {
    const WideLen tables = up32(dst.width) + up32(dst.height);
    if (interpolation == INTERP_SUPER) {
        const WideLen x = superSide(src.width, dst.width), y = superSide(src.height, dst.height);
        return {down128(4 * y + 124) + down128(4 * x + 124) + (x + y) * 4 + 400, 64};
    }
    if (interpolation == INTERP_NEAREST) return {tables * 4 + 400, 64};
    if (antialiasing) {
        const Len tap = isDouble ? 8 : 4;
        const auto weights = [&](Len s, Len d) {
            return up32(WideLen(tap) * d * antialiasingTaps(interpolation, s, d));
        };
        return {weights(src.width, dst.width) + weights(src.height, dst.height) + tables * 4 + 400, tables * 8 + 64};
    }
    if (interpolation == INTERP_LINEAR) return {isDouble ? tables * 12 + 384 : tables * 8 + 400, 64};
    const auto weights = [&](WideLen d) {
        return interpolation == INTERP_CUBIC ? down128(16 * d + 508) : down128(24 * d + 764);
    };
    return {weights(dst.height) + weights(dst.width) + tables * 4 + 400, tables * 4 + 64};
}

// What a query answers for a method that there is; inInt: sizes that an int cannot hold are refused.
inline StatusCode resizeSizes(ResizeKind kind, Roi src, Roi dst, uint32_t method, bool antialiasing, bool inInt,
                              SpecBytes& bytes) {
    const bool ignored = antialiasing && (method == INTERP_NEAREST || method == INTERP_SUPER),
               isDouble = kind == doublePrecision;
    const bool refused = method == 0 || (isDouble && (antialiasing ? ignored : method != INTERP_LINEAR));
    if (auto bad = firstOf({refuse(refused, STATUS_BAD_ARGUMENT), smallSource(src, leastSource(method, 2)),
                            method == INTERP_SUPER ? reduces(src, dst) : StatusCode(STATUS_OK)}))
        return bad;
    bytes = specBytes(src, dst, method, antialiasing, isDouble);
    if (inInt && std::max(bytes.spec, bytes.init) > mostReported) return STATUS_SIZE_EXCEEDS_INT;
    return ignored ? STATUS_WARN_ANTIALIAS_IGNORED : STATUS_OK;
}

// What initialisers refuse beside sizes.
inline StatusCode parameters(float b, float c) {
    return refuse(!std::isfinite(b) || !std::isfinite(c), STATUS_BAD_ARGUMENT);
}
inline StatusCode lobeCount(uint32_t lobes) { return refuse(lobes != 2 && lobes != 3, STATUS_BAD_ARGUMENT); }
inline StatusCode countableTaps(Roi src, Roi dst, uint32_t interpolation) {
    const auto radius = [&](Len s, Len d) { return antialiasingTaps(interpolation, s, d) / 2; };
    return refuse(std::max(radius(src.width, dst.width), radius(src.height, dst.height)) > INT32_MAX,
                  STATUS_SIZE_EXCEEDS_INT);
}

}  // namespace zmv
