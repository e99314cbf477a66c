// zmviGetLibVersion: the version record of this build, and the shared constants.
#include "core/frame.h"

namespace {

const LibraryVersion theVersion = {
    2022,
    2,
    0,
    0x42DB1A66,
    ZMV_STR(ZMV_BUILD),
    "zmvIP " ZMV_TARGET " (" ZMV_STR(ZMV_BUILD) ")",
    "2022.2.0 (r0x42db1a66)",
    "May  9 2025",  // part of the record, not the date of this compilation: builds are reproducible
};

}  // namespace

#define ENTRY_OF ZMV_DEFINE
#define CONSTANT(name, value) extern "C" ZMV_API const double name = value;
#include "core/services.def"
VERSION_FAMILY
