// zmviCopyReplicateBorder: the frame repeats the nearest edge pixel.
#include "datamove/border.h"

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/border.def"
REPLICATE_BORDER_FAMILY
