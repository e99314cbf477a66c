// Resizing with weights: 64f.
#include "geometry/resizetile.h"

template void zmv::ownpi_ResizeTile(const ResizeTile&, Image<const double>, Image<double>);
