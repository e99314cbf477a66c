#!/bin/bash
# seconds.sh CXX MOST INCLUDE...: how much longer a compiler reads zmvip.hpp than zmvip.h, in seconds of its own time,
# the least of three; fails above MOST.
set -eu
cxx=$1 most=$2
shift 2
TIMEFORMAT=%U
least() {
    for _ in 1 2 3; do
        { time "$cxx" -std=c++17 -fsyntax-only "${@:2}" -include "$1" -x c++ /dev/null; } 2>&1
    done | sort -n | head -1
}
plain=$(least zmvip.h "${@/#/-I}") whole=$(least zmvip.hpp "${@/#/-I}")
echo "zmvip.h: $plain s, zmvip.hpp: $whole s"
awk "BEGIN { exit $whole - $plain > $most }"
