#include "wall.h"

#include "kernels/rows.h"

namespace {

using namespace zmv;
using V = Vec<uint8_t>;

template <int sources, int from, int to, bool streaming>
void loop(const Wall& wall) {
    constexpr int reads = from * lineVectors, writes = to * lineVectors;
    V sums[4] = {};
    const uint8_t *a = wall.source[0], *b = wall.source[1];
    uint8_t* d = wall.destination;
    for (int64_t i = 0; i < wall.times; ++i) {
        V v[4] = {};
        unrolled<reads>([&](auto k) {
            V x = load(a + k * vectorBytes);
            if constexpr (sources == 2) x ^= load(b + k * vectorBytes);
            v[k % 4] = k < 4 ? x : v[k % 4] ^ x;
        });
        unrolled<writes>([&](auto k) {
            const V x = v[sources == 0 ? 0 : k * reads / writes % 4];
            if constexpr (streaming)
                stream(d + k * vectorBytes, x);
            else
                store(d + k * vectorBytes, x);
        });
        if constexpr (to == 0) unrolled<4>([&](auto k) { sums[k] ^= v[k]; });
        a += reads * vectorBytes, b += reads * vectorBytes, d += writes * vectorBytes;
    }
    for (V& sum : sums) asm volatile("" : : "m"(sum) : "memory");
    if (streaming) fence();
}
template <int sources, int from, int to>
void run(const Wall& wall, bool streaming) {
    if (wall.sources == sources && wall.from == from && wall.to == to)
        (streaming ? loop<sources, from, to, true> : loop<sources, from, to, false>)(wall);
}
template <int sources>
void runAny(const Wall& wall, bool streaming) {
    run<sources, 4, 0>(wall, streaming);
    run<sources, 1, 1>(wall, streaming);
    run<sources, 1, 2>(wall, streaming);
    run<sources, 1, 4>(wall, streaming);
    run<sources, 2, 1>(wall, streaming);
    run<sources, 4, 1>(wall, streaming);
}

}  // namespace

#define WALL_OF(build) WALL_NAME(build)
#define WALL_NAME(build) build##_wall
void WALL_OF(ZMV_BUILD)(const Wall& wall, bool streaming) {
    run<0, 0, 1>(wall, streaming);
    runAny<1>(wall, streaming);
    runAny<2>(wall, streaming);
}
