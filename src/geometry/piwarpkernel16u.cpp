// Warps of 16-bit pixels.
#include "geometry/warper.h"

namespace zmv {

template struct WarpJob<uint16_t>;

}  // namespace zmv
