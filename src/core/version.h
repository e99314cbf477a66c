// The version that the library says it has.
#pragma once

#define ZMV_VERSION_MAJOR 2022
#define ZMV_VERSION_MINOR 2
#define ZMV_VERSION_PATCH 0
#define ZMV_VERSION_BUILD 0x42DB1A66
#define ZMV_VERSION_TEXT "2022.2.0 (r0x42db1a66)"
