// What both files of zmviConvert share.
#pragma once

#include "kernels/pointwise_in.h"

namespace zmv {

template <class S, class D>
bool convertsPastCache(Roi roi, Layout layout) {
    return !layout.alpha && writesPastCache(roi.width * roi.height * layout.channels * Len(sizeof(S) + sizeof(D)));
}

}  // namespace zmv
