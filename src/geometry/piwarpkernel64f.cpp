// Warps of double pixels.
#include "geometry/warper.h"

namespace zmv {

template struct WarpJob<double>;

}  // namespace zmv
