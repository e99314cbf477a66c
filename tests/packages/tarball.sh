#!/bin/bash
# tarball.sh SOURCE BUILD: another clone, in other settings, makes the same source tarball of the same commit.  Exit status 77
# means skipped.
set -eu
git -C "$1" rev-parse -q --verify HEAD >/dev/null 2>&1 || { echo "skipped: no git repository"; exit 77; }
scratch=$2/tarball
rm -rf "$scratch"
for clone in 1 2; do git clone -q "$1" "$scratch/$clone"; done
"$scratch/1/tools/package" --source >/dev/null
git -C "$scratch/2" config core.autocrlf true
git -C "$scratch/2" config tar.umask 077
(umask 077 && TZ=Asia/Tokyo LC_ALL=C "$scratch/2/tools/package" --source >/dev/null)
cd "$scratch"
cmp 1/build/package/*.gz 2/build/package/*.gz
cmp 1/build/package/*.sha256 2/build/package/*.sha256
for clone in 1 2; do (cd $clone/build/package && sha256sum --quiet -c ./*.sha256); done
