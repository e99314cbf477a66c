// zmviNorm, zmviNormDiff and zmviNormRel of images of floats.
#include "stats/norm.h"

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/norm.def"
NORM_TYPE(NORM_REALS, 32f)
