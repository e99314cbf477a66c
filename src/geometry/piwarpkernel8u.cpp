// Warps of 8-bit pixels.
#include "geometry/warper.h"

namespace zmv {

template struct WarpJob<uint8_t>;

}  // namespace zmv
