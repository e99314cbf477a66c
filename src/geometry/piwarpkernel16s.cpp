// Warps of signed 16-bit pixels.
#include "geometry/warper.h"

namespace zmv {

template struct WarpJob<int16_t>;

}  // namespace zmv
