// zmviCopyWrapBorder: the frame repeats the image periodically.
#include "datamove/border.h"

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/border.def"
WRAP_BORDER_FAMILY
