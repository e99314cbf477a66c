// zmviNorm, zmviNormDiff and zmviNormRel of images of floats.
#include "stats/norm.h"

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "stats/norm.def"
NORM_TYPE(NORM_REALS, 32f)
