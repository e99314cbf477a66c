// zmviNorm, zmviNormDiff and zmviNormRel of 8-bit images.
#include "stats/norm.h"

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/norm.def"
NORM_TYPE(NORM_INTEGERS, 8u)
