#!/bin/bash
# stable_abi.sh SOURCE: every prototype of the last release is still there, word for word.
set -eu
cd "$1"
release=$(git describe --tags --abbrev=0 2>/dev/null) || { echo "skipped: there is no release yet"; exit 77; }
lost=$(comm -23 <(git show "$release:include/zmvip.h" | grep ZMV_API | sort) <(grep ZMV_API include/zmvip.h | sort))
[ -z "$lost" ] || { echo "lost or changed since $release:"; echo "$lost"; exit 1; }
