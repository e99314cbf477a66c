// zmviCopyManaged: a byte copy whose caller says which stores to use.
#include "kernels/rows.h"

namespace zmv {
namespace {

StatusCode ownpi_CopyManaged(Image<const uint8_t> src, Image<uint8_t> dst, Roi roi, int flags) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi)})) return bad;
    constexpr int pastCache = 1;  // no other bit is looked at
    copyRows(src, dst, roi, flags & pastCache);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/copy.def"
COPY_MANAGED_FAMILY
