#!/bin/bash
# tests/faults/run.sh [NAME-PART]: puts faults in on purpose, one at a time, and expects the tests to catch each.
# Works on a copy of the sources; run before a release, some ten minutes.  Exit status 0: all were caught.
#
# The *.txt files beside it describe them in blocks, separated by an empty line:
#   what is wrong
#   file
#   - a piece of one line, which the file has once
#   + what stands there instead
#   program GoogleTest-filter [options]
set -eu
here=$(cd "$(dirname "$0")" && pwd)
only=${1-}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp -r "$here"/../../{CMakeLists.txt,cmake,include,src,zmvcore,tools,tests} "$scratch"
cd "$scratch"
for file in "$here"/*.txt; do cat "$file" && echo; done >faults
set -f  # from here on: a test filter is not a file name
build() { nice cmake --build build --target zmvip_s3 zmvip_tests "$@" >build.log 2>&1; }

# The baseline build is enough, and little optimised: one source makes all three, and faults are faults.
sed -i '/add_dependencies/d' tests/CMakeLists.txt tests/api/CMakeLists.txt
sed -i 's/"-O3"/"-O1"/' CMakeLists.txt
cmake -G Ninja -S . -B build -DZMV_EXAMPLES=OFF >/dev/null
build api_tests fake_core || { tail -n 30 build.log; exit 1; }

# check PROGRAM FILTER OPTIONS...: the status of the tests.  What hangs or crashes has been noticed too.
check() {
    local program=$1 filter=$2
    shift 2
    case $program in
        zmvip_tests) timeout 300 build/tests/zmvip_tests --build=s3 "$@" --gtest_filter="$filter" ;;
        streaming) timeout 300 build/tests/zmvip_tests --build=s3 --core=build/tests/fake_core/libzmvcore.so.1 --gtest_filter="$filter" ;;
        api_tests) timeout 300 build/tests/api/api_tests --gtest_filter="$filter" ;;
        *) echo "no program $program"; exit 1 ;;
    esac >test.log 2>&1
}

# A test that fails by itself, or runs nothing, would catch everything.
while IFS= read -r test; do
    # The test's words are arguments.
    # shellcheck disable=SC2086
    if ! check $test || grep -q ' 0 tests from' test.log; then
        echo "without any fault, this fails or runs nothing: $test"
        tail -n 5 test.log
        exit 1
    fi
done < <(grep -E '^(zmvip_tests|streaming|api_tests) ' faults | sort -u)

caught=0 missed=0
while IFS= read -r what && IFS= read -r file && IFS= read -r was && IFS= read -r now && IFS= read -r test; do
    IFS= read -r _ || true  # the empty line between blocks
    case $what in *"$only"*) ;; *) continue ;; esac
    cp "$file" whole
    if ! WAS=${was#- } NOW=${now#+ } perl -0pi -e '
            my $times = s/\Q$ENV{WAS}\E/$ENV{NOW}/g;
            END { exit($times == 1 ? 0 : 1) }' "$file"; then
        echo "stale    $what: $file has this not once: ${was#- }"
        missed=$((missed + 1))
        cp whole "$file"
        continue
    fi
    if ! build; then
        echo "stale    $what: does not compile"
        grep -m3 error build.log
        missed=$((missed + 1))
    # shellcheck disable=SC2086
    elif check $test; then
        echo "MISSED   $what"
        missed=$((missed + 1))
    else
        echo "caught   $what"
        { grep -m1 -E 'seed=|streams without' test.log || grep -m1 -A1 ': Failure' test.log || echo "no line: it crashed or hung"; } |
            sed 's/^/             /' | cut -c1-150
        caught=$((caught + 1))
    fi
    cp whole "$file"
done <faults
echo "$caught caught, $missed missed"
[ $missed = 0 ] && [ $caught != 0 ]
