// zmviRemap of pixels in double precision.
#include "geometry/remapper.h"

namespace zmv {

template void Remapping<double>::run<C1>() const;
template void Remapping<double>::run<C3>() const;
template void Remapping<double>::run<C4>() const;
template void Remapping<double>::run<AC4>() const;

}  // namespace zmv
