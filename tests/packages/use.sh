#!/bin/bash
# use.sh, in the sources' folder in a fresh Debian 12, beside the packages: installs them, uses them as a stranger would, and
# purges them.
set -eu
install() {
    apt-get install -qq --no-install-recommends "$@" >/dev/null
}

install ../libzmvip1_*.deb ../python3-zmvip_*.deb
python3 - <<'PYTHON'
import numpy
import zmvip
image = numpy.arange(12, dtype=numpy.uint8).reshape(3, 4)
assert (zmvip.add(image, image) == 2 * image).all()
PYTHON

install ../libzmvip-dev_*.deb ../libzmvip-doc_*.deb gcc g++ cmake ninja-build pkg-config man-db
mkdir -p /tmp/use/installed
for step in pkg_config find_package loader.{s3,v3,v4,best}; do
    echo "$step:"
    ZMV_PREFIX=/usr bash tests/api/installed.sh /tmp/use cc c++ "$PWD/tests/api" "$step" || [ $? = 77 ]
done
man zmviAdd_8u_C1RSfs | grep -q zmviAdd_8u_C1RSfs
broken=$(find -L /usr/share/doc/libzmvip-dev/ /usr/share/man/man3/zmv* -type l)
[ -z "$broken" ] || { echo "links to nowhere: $broken"; exit 1; }

apt-get purge -qq libzmvip1 libzmvip-dev libzmvip-doc python3-zmvip >/dev/null
left=$(find / \( -path /proc -o -path /tmp -o -path /var/cache/man \) -prune -o -name '*zmv*' -print)
[ -z "$left" ] || { echo "left after the purge: $left"; exit 1; }
