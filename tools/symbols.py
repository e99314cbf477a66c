#!/usr/bin/python3
"""symbols.py API.JSON VERSION [--check]: brings debian/libzmvip1.symbols up to date: every name that the libraries export,
with the version that first had it, which is VERSION for names that are new.  A name that was there and is no longer is an
error: programs may use it.  With --check nothing is written, and a list that is not up to date is an error too."""
import json
import re
import sys
from pathlib import Path

project = Path(__file__).resolve().parent.parent
path = project / "debian/libzmvip1.symbols"


def version_script(name):
    """The node of a version script, and the names it gives."""
    text = (project / name).read_text()
    return text.split()[0], re.findall(r"[\w*]+(?=;)", text.partition("local:")[0])


families = json.loads(Path(sys.argv[1]).read_text())["families"]
version = sys.argv[2]
zmvip, _ = version_script("src/zmvip.map")
core, core_names = version_script("zmvcore/zmvcore.map")
names = [name for family in families for name in [*family["constants"], *(member["name"] for member in family["members"])]]

old = path.read_text() if path.exists() else ""
first = dict(line.split() for line in old.splitlines() if line.startswith(" "))
new = ""
for library, node, exported in ("libzmvcore.so.1", core, core_names), ("libzmvip.so.1", zmvip, names):
    new += f"{library} libzmvip1 #MINVER#\n* Build-Depends-Package: libzmvip-dev\n"
    for name in sorted(f"{name}@{node}" for name in [node, *exported]):
        new += f" {name} {first.pop(name, version)}\n"
if first:
    sys.exit(f"{path.name} has names that the libraries no longer export: {' '.join(first)}")
if "--check" not in sys.argv:
    path.write_text(new)
elif old != new:
    sys.exit(f"{path.name} lacks names: {' '.join(sorted({*new.split()} - {*old.split()})) or 'it is in another order'}")
