#!/bin/bash
# reproducible.sh SOURCE BUILD CC CXX: the same sources, built again in another folder, give the libraries of BUILD to
# the byte; of the three builds, which differ in a flag, the one that most people run.
set -eu
source=$1 build=$2 cc=$3 cxx=$4
export CCACHE_DISABLE=1  # it would answer with what it kept of the first time
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp -r "$source"/{CMakeLists.txt,cmake,include,python,src,zmvcore,tools} "$copy"
cmake -G Ninja -S "$copy" -B "$copy/and/deeper" -DZMV_BUILDS=v3 -DZMV_TESTS=OFF -DZMV_EXAMPLES=OFF -DCMAKE_C_COMPILER="$cc" \
    -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
cmake --build "$copy/and/deeper" >"$copy/log" 2>&1 || { tail -n 20 "$copy/log"; exit 1; }
libraries=$(cd "$copy/and/deeper/lib" && find . -name '*.so.1' | sort)
[ "$(wc -w <<<"$libraries")" = 2 ] || { echo "built: $libraries"; exit 1; }
for library in $libraries; do
    cmp "$build/lib/$library" "$copy/and/deeper/lib/$library"
done
