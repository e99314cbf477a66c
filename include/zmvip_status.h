/* Text for status values.  Header only, so that the library exports nothing for it.
   SPDX-License-Identifier: Apache-2.0 */
#ifndef ZMVIP_STATUS_H
#define ZMVIP_STATUS_H

#include "zmvip_types.h"

#define ZMV_STATUS_NAME_CASE(value, name, sentence)                                                            \
    case value:                                                                                                \
        return #name;
#define ZMV_STATUS_SENTENCE_CASE(value, name, sentence)                                                        \
    case value:                                                                                                \
        return sentence;

/* "STATUS_BAD_SIZE" for -6, and so on; "unknown status" for a value that the library never returns. */
static inline const char* zmvStatusName(StatusCode status) {
    switch (status) {
        ZMV_STATUS_LIST(ZMV_STATUS_NAME_CASE)
        default:
            return "unknown status";
    }
}

/* What the status means, as a sentence for people. */
static inline const char* zmvStatusText(StatusCode status) {
    switch (status) {
        ZMV_STATUS_LIST(ZMV_STATUS_SENTENCE_CASE)
        default:
            return "this value is not a status of zmvIP";
    }
}

#undef ZMV_STATUS_NAME_CASE
#undef ZMV_STATUS_SENTENCE_CASE

#endif
