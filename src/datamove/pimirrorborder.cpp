// zmviCopyMirrorBorder: the frame mirrors the image about its edge pixels.
#include "datamove/border.h"

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/border.def"
MIRROR_BORDER_FAMILY
