#!/bin/bash
# clean.sh FOLDER: in FOLDER lie the source tarball and what is in it.  Packages are made in a clean chroot from Build-Depends
# alone, and are to hold the code of build/release, where that is built; lintian has nothing to say; they are used in
# another chroot, and purged.  Exit status 77 means skipped.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cd "$1"

for program in mmdebstrap lintian; do
    command -v $program >/dev/null || { echo "skipped: apt-get install $program"; exit 77; }
done
# shellcheck disable=SC2016
mirror=$(apt-get indextargets --format '$(SITE)' | sed -n '1s|.*//\([^/:]*\).*|\1|p')
getent hosts "$mirror" >/dev/null || { echo "skipped: no network"; exit 77; }

# fresh VARIANT SCRIPT: runs a script in a fresh Debian 12 whose /tmp/packages is this folder, and takes back what is new there.
# shellcheck disable=SC2016
fresh() {
    local clean='env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive'
    mmdebstrap --quiet --variant="$1" --customize-hook='mkdir "$1/tmp/packages"' --customize-hook='sync-in . /tmp/packages' \
        --customize-hook="$clean chroot \"\$1\" sh -euc 'cd /tmp/packages/zmvip-*/ && $2'" \
        --customize-hook='sync-out /tmp/packages .' bookworm /dev/null
}

echo "== build"
fresh buildd 'apt-get build-dep -qq --no-install-recommends . >/dev/null && dpkg-buildpackage -us -uc && debian/rules clean' \
    >../package.log 2>&1 || { tail -n 50 ../package.log; exit 1; }
ls -l ./*.deb

echo "== code"
dpkg-deb -x libzmvip1_*.deb libzmvip1
release=$here/../../build/release/lib
for library in libzmvcore.so.1 {,glibc-hwcaps/x86-64-v{3,4}/}libzmvip.so.1; do
    [ -e "$release/$library" ] || { echo "not compared: build/release has no $library"; continue; }
    objcopy -O binary -j .text -j .rodata "libzmvip1/usr/lib/x86_64-linux-gnu/$library" packaged.code
    objcopy -O binary -j .text -j .rodata "$release/$library" release.code
    cmp packaged.code release.code || { echo "$library is not that of build/release, if this is of the same commit"; exit 1; }
done

echo "== lintian"
lintian --fail-on error,warning ./*.changes

echo "== use"
fresh apt 'bash tests/packages/use.sh'
