#!/bin/bash
# reproducible.sh SOURCE CC CXX: the same sources, built in two folders, give the same libraries to the byte.
set -eu
source=$1 cc=$2 cxx=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for copy in one another/and/deeper; do
    mkdir -p "$scratch/$copy"
    cp -r "$source"/{CMakeLists.txt,cmake,include,src,zmvcore,tools} "$scratch/$copy"
    cmake -G Ninja -S "$scratch/$copy" -B "$scratch/$copy/build" -DZMV_TESTS=OFF -DZMV_EXAMPLES=OFF \
          -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
    cmake --build "$scratch/$copy/build" >/dev/null
done
cd "$scratch"
libraries=$(cd one/build/lib && find . -name '*.so.1' | sort)
[ "$(wc -w <<<"$libraries")" = 4 ] || { echo "built: $libraries"; exit 1; }
for library in $libraries; do
    cmp "one/build/lib/$library" "another/and/deeper/build/lib/$library"
done
