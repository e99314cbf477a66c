// zmviNorm, zmviNormDiff and zmviNormRel of 16-bit images, signed ones too.
#include "stats/norm.h"

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/norm.def"
NORM_TYPE(NORM_INTEGERS, 16u)
NORM_TYPE(NORM_INTEGERS, 16s)
