#!/bin/bash
# tests/faults/run.sh [NAME-PART]   puts faults in on purpose, one at a time, and expects the tests to catch each
# tests/faults/run.sh --stale       only says which of them no longer fit the sources: a second
# Works on copies of the sources in build/faults; run before a release.  Exit status 0: all were caught, or all fit.
#
# The *.txt files beside it describe them in blocks, separated by an empty line:
#   what is wrong
#   file
#   - a piece of one line, which the file has once
#   + what stands there instead
#   program GoogleTest-filter [options]
set -eu
here=$(cd "$(dirname "$0")" && pwd)
project=$(cd "$here/../.." && pwd)
root=$project/build/faults

# ---- Do they fit? ----------------------------------------------------------------------------------------------------
# Reads all blocks; prints what is wrong with them.
# shellcheck disable=SC2016
stale() {
    cd "$project"
    perl -e '
        local $/ = "";
        my (%texts, $stale, $count);
        while (<>) {
            ++$count;
            chomp(my ($what, $file, $was, $now, $test, @more) = split /\n/);
            my $wrong = !defined $test || @more || $was !~ s/^- // || $now !~ s/^\+ // ? "is no block of five lines" : undef;
            if (!$wrong) {
                $texts{$file} //= do { local $/; open my $in, "<", $file or die "$file: $!\n"; <$in> };
                my $times = () = $texts{$file} =~ /\Q$was\E/g;
                $wrong = "$file has this $times times: $was" if $times != 1;
            }
            ++$stale, print "stale    $what: $wrong\n" if $wrong;
        }
        print "$count faults, ", $stale // 0, " stale\n";
        exit($stale || !$count ? 1 : 0);' "$here"/*.txt
}
if [ "${1-}" = --stale ]; then
    stale
    exit
fi

# ---- One fault, or one test without any ------------------------------------------------------------------------------
# Called by this script itself, several at a time, each in a copy of its own: $root/$SLOT.
tests=$root/build/tests/zmvip_tests

# check LIBRARIES PROGRAM FILTER OPTIONS...: the status of the tests.  What hangs or crashes has been noticed too.
check() {
    local libs=$1 program=$2 filter=$3
    shift 3
    case $program in
        zmvip_tests) timeout 120 "$tests" --build=s3 --libs="$libs" "$@" --gtest_fail_fast --gtest_filter="$filter" ;;
        streaming)
            timeout 120 "$tests" --build=s3 --libs="$libs" --core="$root/build/tests/fake_core/libzmvcore.so.1" \
                --gtest_filter="$filter" ;;
        api_tests) ZMV_LIBS=$libs timeout 120 "$root/build/tests/api/api_tests" --gtest_filter="$filter" ;;
        *) echo "no program $program"; exit 1 ;;
    esac >"$libs/../test.log" 2>&1
}

# compile OBJECTS...: these of the copy.
compile() {
    local object
    [ $# = 0 ] || for object; do
        rm -f "$object"
        ninja -C "$root/build" -t commands "$object" | tail -n 1 | sed "s#$root/whole/#$root/$SLOT/#g" >compile.sh
        sh compile.sh >build.log 2>&1 || return 1
    done
}

# build OBJECTS...: compiles these, the rest is the build without faults.
build() { compile "$@" && sh "$root/link.sh" >build.log 2>&1; }

# buildTests OBJECTS...: the same of the test program, where tests ask a header of the library itself.
buildTests() {
    compile "$@" && sh "$root/link_tests.sh" >build.log 2>&1 && tests=$PWD/tests/zmvip_tests
}

# caughtBy TEST...: whether the named test fails.  The modules that it names are tried first, three of them: a fault
# that these show needs no other, and a test that passes decides nothing until all are compiled.
# Status 0: caught, 1: not, 2: does not compile.
caughtBy() {
    local names modules objects first rest asking
    mapfile -t objects < <(awk -F'\t' -v file="$file" '$2 == file && $1 ~ /zmvip_s3/ { print $1 }' "$root/dependents")
    mapfile -t asking < <(awk -F'\t' -v file="$file" '$2 == file && /\.h$/ && $1 ~ /zmvip_tests/ { print $1 }' "$root/dependents")
    [ ${#objects[@]} -gt 0 ] || { echo "no module has $file" >build.log; return 2; }
    [ ${#asking[@]} = 0 ] || buildTests "${asking[@]}" || return 2
    names=$([ "$1" = api_tests ] || "$tests" --build=s3 --gtest_list_tests --gtest_filter="$2" | sed -n 's/^  //p')
    modules=$(awk -F'\t' 'NR == FNR { named[$1]; next } $1 in named { print $2 }' <(echo "$names") "$root/modules" | sort -u)
    mapfile -t first < <(printf '%s\n' "${objects[@]}" | grep -F "${modules:-none of them}" | head -n 3)
    mapfile -t rest < <(printf '%s\n' "${objects[@]}" | grep -vxF "$(printf '%s\n' "${first[@]-}")")
    if [ ${#first[@]} -gt 0 ]; then
        build "${first[@]}" || return 2
        check "$PWD/lib" "$@" || return 0
        [ ${#rest[@]} -gt 0 ] || return 1
    fi
    build "${rest[@]}" || return 2
    ! check "$PWD/lib" "$@"
}

if [ "${1-}" = --one ]; then
    set -f  # a test filter is not a file name
    cd "$root/$SLOT"
    { IFS= read -r what && IFS= read -r file && IFS= read -r was && IFS= read -r now && IFS= read -r test; } < <(awk -v n="$2" -v RS= 'NR == n' "$root/faults")
    if [ "${WITHOUT-}" ]; then
        # shellcheck disable=SC2086
        if ! check "$PWD/lib" $test || grep -q ' 0 tests from' test.log; then
            echo "without any fault, this fails or runs nothing: $test"
            tail -n 5 test.log
            exit 1
        fi
        exit 0
    fi
    WAS=${was#- } NOW=${now#+ } perl -0pi -e 's/\Q$ENV{WAS}\E/$ENV{NOW}/' "$file"
    status=0
    # shellcheck disable=SC2086
    caughtBy $test || status=$?
    case $status in
        0) result="caught   $what"$'\n'"$({ grep -m1 -E 'seed=|streams without' test.log ||
               grep -m1 -A1 ': Failure' test.log || echo "no line: it crashed or hung"; } | sed 's/^/             /' | cut -c1-150)" ;;
        1) result="MISSED   $what" ;;
        *) result="stale    $what: $(grep -m3 -E 'error|no module' build.log || echo 'does not compile')" ;;
    esac
    printf '%s\n' "$result"
    echo $status >>"$root/results"
    cp "$root/whole/$file" "$file"
    cp -rsf "$root/build/CMakeFiles/zmvip_s3.dir" CMakeFiles/
    cp -rsf "$root/build/tests/CMakeFiles/zmvip_tests.dir" tests/CMakeFiles/
    exit 0
fi

# ---- All of them -----------------------------------------------------------------------------------------------------
stale || exit 1
jobs=$(nproc)
mkdir -p "$root"
cd "$root"
rm -rf whole results faults [0-9]*
mkdir whole
cp -rp "$project"/{CMakeLists.txt,cmake,include,src,zmvcore,tools,tests} whole
for list in "$here"/*.txt; do cat "$list" && echo; done >faults
# The baseline build is enough, and little optimised: one source makes all three, and faults are faults.
cmake -G Ninja -S whole -B build -DCMAKE_BUILD_TYPE=Faults -DCMAKE_CXX_FLAGS=-O1 -DZMV_BUILDS=s3 -DZMV_EXAMPLES=OFF >build.log
nice cmake --build build --target zmvip_s3 zmvip_tests api_tests fake_core >build.log 2>&1 || { tail -n 30 build.log; exit 1; }
# Which module has which file, which family is whose, and how the library is linked.
ninja -C build -t deps | awk -v OFS='\t' '
    /^[^ ].*: #deps/ { object = $1; sub(/:$/, "", object) }
    /^ / && object ~ /zmvip_s3|zmvip_tests/ && sub(/.*\/whole\//, "") { print object, $0 }' >dependents
perl -0ne 'while (m#^/\* (\w+):.*?\n   src/([\w/., ]+) \*/#msg) { my $f = $1; print "$f\t$_\n" for $2 =~ /(\w+\.cpp)/g }' \
    whole/include/zmvip.h >modules
ninja -C build -t commands zmvip_s3 | grep -- ' -shared .*libzmvip' >link.sh
ninja -C build -t commands zmvip_tests | grep -- ' -o tests/zmvip_tests ' >link_tests.sh
for slot in $(seq "$jobs"); do
    mkdir -p "$slot/CMakeFiles" "$slot/tests/CMakeFiles" "$slot/lib"
    cp -r whole/{include,src,tests,tools} "$slot"
    cp -rs "$root/build/CMakeFiles/zmvip_s3.dir" "$slot/CMakeFiles/"
    cp -rs "$root/build/tests/CMakeFiles/zmvip_tests.dir" "$slot/tests/CMakeFiles/"
    cp build/lib/lib* "$slot/lib/"
    cp build/libcatalog.a "$slot/"
done
# each BLOCKS: of the numbers on standard input, as many at a time as there are processors.
each() { xargs -P "$jobs" -n 1 --process-slot-var=SLOT -- nice bash -c 'SLOT=$((SLOT + 1)) exec bash "$0" --one "$1"' "$here/run.sh"; }

# A test that fails by itself, or runs nothing, would catch everything.
chosen=$(awk -v RS= -F'\n' -v part="${1-}" 'index($1, part) { print NR }' faults)
[ "$chosen" ] || { echo "no fault has '$1' in its name"; exit 1; }
awk -v RS= -F'\n' -v part="${1-}" 'index($1, part) && !seen[$5]++ { print NR }' faults | WITHOUT=1 each
echo "$chosen" | each
caught=$(grep -cx 0 results || true) all=$(wc -w <<<"$chosen")
echo "$caught caught, $((all - caught)) missed or stale"
[ "$caught" = "$all" ]
