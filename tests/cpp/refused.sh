#!/bin/bash
# refused.sh CXX HERE INCLUDE...: compiles every case of refused.cpp; all but the first have to fail and say why.  What
# docs/cpp.md shows has to compile.
set -u
cxx=$1 here=$2
shift 2
bad=0
try() { "$cxx" -std=c++17 -fsyntax-only -Wall -Wextra -Werror "${@/#/-I}" -DCASE="$number" "$here/refused.cpp" 2>&1; }
{
    echo '#include <zmvip.hpp>
          struct { template <class F> void run(F f) { f(); } } pool;
          void shown(zmvip::image<uint8_t, 3>& small) {'
    # shellcheck disable=SC2016
    sed -n '/^```cpp/,/^```$/{/^```\|#include/!p}' "$here/../../docs/cpp.md"
    echo '}'
} | "$cxx" -std=c++17 -fsyntax-only "${@/#/-I}" -x c++ - || exit 1
number=0
try "$@" || { echo "case 0 does not compile" && exit 1; }
tried=0
while read -r number message; do
    tried=$number
    if said=$(try "$@"); then
        echo "case $number compiles" && bad=1
    elif ! grep -Eq "(error|note):.*($message)" <<<"$said"; then
        printf 'case %s does not say "%s", but\n%s\n' "$number" "$message" "$said" && bad=1
    fi
done < <(sed -nE 's,^#elif CASE == ([0-9]+)  // (.*),\1 \2,p' "$here/refused.cpp")
[ "$tried" -gt 10 ] && exit $bad
