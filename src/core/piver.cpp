// zmviGetLibVersion: the version record of this build, and the shared constants.
#include "core/frame.h"
#include "core/version.h"

namespace {

const LibraryVersion theVersion = {
    ZMV_VERSION_MAJOR,
    ZMV_VERSION_MINOR,
    ZMV_VERSION_PATCH,
    ZMV_VERSION_BUILD,
    ZMV_STR(ZMV_BUILD),
    "zmvIP " ZMV_TARGET " (" ZMV_STR(ZMV_BUILD) ")",
    ZMV_VERSION_TEXT,
    "May  9 2025",  // part of the record, not the date of this compilation: builds are reproducible
};

}  // namespace

#define ENTRY_OF ZMV_DEFINE
#define CONSTANT(name, value) extern "C" ZMV_API const double name = value;
#include "core/services.def"
VERSION_FAMILY
