// zmviRemap of pixels in single precision.
#include "geometry/remapper.h"

namespace zmv {

template void Remapping<float>::run<C1>() const;
template void Remapping<float>::run<C3>() const;
template void Remapping<float>::run<C4>() const;
template void Remapping<float>::run<AC4>() const;

}  // namespace zmv
