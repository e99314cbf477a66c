// zmviRemap of signed 16-bit pixels.
#include "geometry/remapper.h"

namespace zmv {

template void Remapping<int16_t>::run<C1>() const;
template void Remapping<int16_t>::run<C3>() const;
template void Remapping<int16_t>::run<C4>() const;
template void Remapping<int16_t>::run<AC4>() const;

}  // namespace zmv
