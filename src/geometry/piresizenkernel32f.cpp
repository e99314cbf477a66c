// Resizing with weights: 32f.
#include "geometry/resizetile.h"

template void zmv::ownpi_ResizeTile(const ResizeTile&, Image<const float>, Image<float>);
