// zmviFilterMedianBorder of signed 16-bit images.
#include "filter/medianborder.h"

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/median.def"
MEDIAN_BORDERS(16s)
