// The memory wall: plain loops over the streams of a call, which do nothing with them.
#pragma once

#include <cstdint>

// A loop reads `from` lines of each source, writes `to` lines, and goes on, so many times in all.
struct Wall {
    int sources;  // 0, 1 or 2
    int from, to;
    int64_t times;
    const uint8_t* source[2];
    uint8_t* destination;
};

// Compiled once for each build's instructions.
void s3_wall(const Wall& wall, bool streaming);
void v3_wall(const Wall& wall, bool streaming);
void v4_wall(const Wall& wall, bool streaming);
