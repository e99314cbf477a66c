// Warps of float pixels.
#include "geometry/warper.h"

namespace zmv {

template struct WarpJob<float>;

}  // namespace zmv
