// zmviRemap of 8-bit pixels.
#include "geometry/remapper.h"

namespace zmv {

template void Remapping<uint8_t>::run<C1>() const;
template void Remapping<uint8_t>::run<C3>() const;
template void Remapping<uint8_t>::run<C4>() const;
template void Remapping<uint8_t>::run<AC4>() const;

}  // namespace zmv
