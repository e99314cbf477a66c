// Resizing with weights: 16u.
#include "geometry/resizetile.h"

template void zmv::ownpi_ResizeTile(const ResizeTile&, Image<const uint16_t>, Image<uint16_t>);
