#!/bin/bash
# metadata.sh SOURCE BUILD CC: what debian/ says agrees with the version and with what BUILD installs.  Exit status 77 means
# skipped.
set -euo pipefail
source=$1 build=$2 cc=$3
scratch=$build/debian
root=$scratch/root
rm -rf "$scratch"
mkdir -p "$scratch/build"
cd "$source"

fail() {
    echo "$*"
    exit 1
}

# One version, CMake's.
version=$(sed -n 's/^project(zmvip VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
[[ $(head -n1 debian/changelog) == "zmvip ($version) "* ]] || fail "debian/changelog does not begin with version $version"
[[ $(grep -m1 '^## ' CHANGELOG.md) == "## $version"* ]] || fail "CHANGELOG.md does not begin with version $version"

# Installed as for the packages, with what BUILD has, which is all but the reference: each file goes to one package.
flags=$(sed -n 's/.*dh_auto_configure -- //p' debian/rules)
# The flags are a list of words.
# shellcheck disable=SC2086
cmake -G Ninja -S . -B "$scratch/build" $flags -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_LIBDIR=lib/x86_64-linux-gnu \
    -DCMAKE_C_COMPILER="$cc" -DZMV_DOCS=OFF -DZMV_EXAMPLES=OFF >/dev/null
cp -a "$build"/{api.json,include,lib,python} "$scratch/build"
DESTDIR=$root cmake --install "$scratch/build" >/dev/null
packed=$(cat debian/{libzmvip1,libzmvip-dev,python3-zmvip}.install | (cd "$root" && while read -r pattern; do
    for path in $(compgen -G "$pattern" || echo "$pattern"); do find "$path" ! -type d; done
done) | LC_ALL=C sort)
installed=$(cd "$root" && find usr ! -type d | LC_ALL=C sort)
diff <(echo "$packed") <(echo "$installed") || fail "the packages (<) do not hold what is installed (>) once"

# shellcheck disable=SC2046
$cc -std=c99 tests/api/consumer/program.c -o "$scratch/program" \
    $(PKG_CONFIG_PATH=$root/usr/lib/x86_64-linux-gnu/pkgconfig pkg-config --cflags --libs zmvip)
LD_LIBRARY_PATH=$root/usr/lib/x86_64-linux-gnu "$scratch/program" >/dev/null
