// Resizing with weights: 16s.
#include "geometry/resizetile.h"

template void zmv::ownpi_ResizeTile(const ResizeTile&, Image<const int16_t>, Image<int16_t>);
