// The part of an image that may be read.
#pragma once

#include "core/frame.h"

namespace zmv {

// Every pixel outside counts as the nearest of those inside.
template <class T>
struct Readable {
    Image<const T> image;
    int left, top, right, bottom;
};

}  // namespace zmv
