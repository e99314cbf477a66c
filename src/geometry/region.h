// Points and rectangles of both widths, counted in 64 bits.
#pragma once

#include "core/frame.h"

namespace zmv {

struct At {
    Len x, y;
    At(Len column, Len row) : x(column), y(row) {}
    At(ImagePoint p) : x(p.x), y(p.y) {}
    At(ImagePointL p) : x(p.x), y(p.y) {}
};
struct Region {
    Len x, y, width, height;
    Region(ImageRect r) : x(r.x), y(r.y), width(r.width), height(r.height) {}
    Region(ImageRectL r) : x(r.x), y(r.y), width(r.width), height(r.height) {}
};

}  // namespace zmv
