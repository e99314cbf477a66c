#!/bin/bash
# installed.sh BUILD CC CXX HERE STEP: installs BUILD to a scratch prefix, or takes what is in ZMV_PREFIX, and uses it as
# a stranger would.  Exit status 77 means skipped.
set -eu
build=$1 cc=$2 cxx=$3 here=$4 step=$5
scratch=$build/installed
prefix=${ZMV_PREFIX-$scratch/prefix}
loader=/lib64/ld-linux-x86-64.so.2

# Which build must run here when nothing is masked: the best whose folder the loader itself says it searches.
best() {
    local help
    help=$($loader --help)
    case $help in
        *"x86-64-v4 (supported, searched)"*) echo v4 ;;
        *"x86-64-v3 (supported, searched)"*) echo v3 ;;
        *) echo s3 ;;
    esac
}

# expect BUILD LOADER-ARGUMENTS...: the build that both programs print, found through LD_LIBRARY_PATH by the one and
# through the RUNPATH that CMake gave it by the other.
expect() {
    local wanted=$1 got
    shift
    got=$(LD_LIBRARY_PATH=$prefix/lib $loader "$@" "$scratch/by_pkg_config")
    [ "$got" = "$wanted" ] || { echo "LD_LIBRARY_PATH, $*: build $got runs, not $wanted"; exit 1; }
    got=$(env -u LD_LIBRARY_PATH $loader "$@" "$scratch/stranger/program")
    [ "$got" = "$wanted" ] || { echo "RUNPATH, $*: build $got runs, not $wanted"; exit 1; }
}

expectMasked() {
    local wanted=$1 mask=$2
    case $($loader --help) in
        *"x86-64-$wanted (supported, searched)"*) expect "$wanted" --glibc-hwcaps-mask "$mask" ;;
        *) echo "skipped: this processor cannot run the $wanted build" && exit 77 ;;
    esac
}

case $step in
    install)
        rm -rf "$scratch"
        cmake --install "$build" --prefix "$prefix" >/dev/null
        ;;
    tree)
        diff - <(cd "$prefix" && find . ! -type d | LC_ALL=C sort) <<'TREE'
./include/zmvcore.h
./include/zmvip.h
./include/zmvip.hpp
./include/zmvip_call.hpp
./include/zmvip_roles.hpp
./include/zmvip_status.h
./include/zmvip_types.h
./include/zmvip_values.hpp
./include/zmvip_view.hpp
./lib/cmake/zmvip/zmvip-config-version.cmake
./lib/cmake/zmvip/zmvip-config.cmake
./lib/glibc-hwcaps/x86-64-v3/libzmvip.so.1
./lib/glibc-hwcaps/x86-64-v4/libzmvip.so.1
./lib/libzmvcore.so
./lib/libzmvcore.so.1
./lib/libzmvip.so
./lib/libzmvip.so.1
./lib/pkgconfig/zmvip.pc
./lib/python3/dist-packages/zmvip/__init__.py
./lib/python3/dist-packages/zmvip/__init__.pyi
./lib/python3/dist-packages/zmvip/_api.py
./lib/python3/dist-packages/zmvip/_arrays.py
./lib/python3/dist-packages/zmvip/_call.py
./lib/python3/dist-packages/zmvip/_docs.py
./lib/python3/dist-packages/zmvip/_function.py
./lib/python3/dist-packages/zmvip/_library.py
./lib/python3/dist-packages/zmvip/_members.py
./lib/python3/dist-packages/zmvip/_parallel.py
./lib/python3/dist-packages/zmvip/_plan.py
./lib/python3/dist-packages/zmvip/_regions.py
./lib/python3/dist-packages/zmvip/_spec.py
./lib/python3/dist-packages/zmvip/dask.py
./lib/python3/dist-packages/zmvip/py.typed
./lib/python3/dist-packages/zmvip/raw.py
./lib/python3/dist-packages/zmvip/raw.pyi
./share/zmvip/api.json
TREE
        ;;
    pkg_config)
        flags="$(PKG_CONFIG_PATH=$prefix/lib/pkgconfig pkg-config --cflags --libs zmvip) -Wall -Wextra -pedantic -Werror"
        # The flags are a list of words.
        # shellcheck disable=SC2086
        $cc -std=c99 "$here/consumer/program.c" $flags -o "$scratch/by_pkg_config"
        # shellcheck disable=SC2086
        $cxx -std=c++17 "$here/consumer/program.cpp" $flags -o "$scratch/by_pkg_config_cxx"
        LD_LIBRARY_PATH=$prefix/lib "$scratch/by_pkg_config"
        LD_LIBRARY_PATH=$prefix/lib "$scratch/by_pkg_config_cxx"
        ;;
    find_package)
        cmake -G Ninja -S "$here/consumer" -B "$scratch/stranger" -DCMAKE_PREFIX_PATH="$prefix" \
              -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
        cmake --build "$scratch/stranger" >/dev/null
        "$scratch/stranger/program"
        "$scratch/stranger/program_cxx"
        ;;
    absolute_path)
        # Preloaded by its path, as dlopen would: the loader does not look for better builds, and the baseline is right.
        got=$(LD_PRELOAD=$prefix/lib/libzmvip.so.1 "$scratch/stranger/program")
        [ "$got" = s3 ] || { echo "by its absolute path, build $got runs, not s3"; exit 1; }
        ;;
    loader.s3) expect s3 --glibc-hwcaps-mask x86-64-v2 ;;
    loader.v3) expectMasked v3 x86-64-v3 ;;
    loader.v4) expectMasked v4 x86-64-v4 ;;
    loader.best) expect "$(best)" ;;
    *) echo "unknown step $step" && exit 1 ;;
esac
