// Resizing with weights: 8u.
#include "geometry/resizetile.h"

template void zmv::ownpi_ResizeTile(const ResizeTile&, Image<const uint8_t>, Image<uint8_t>);
