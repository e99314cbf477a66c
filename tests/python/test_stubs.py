"""mypy over typed.py and the printed stubs: errors where the program says "wrong", none elsewhere.  77: there is no mypy."""
import os
import re
import subprocess
import sys

import zmvip

PROGRAM = os.path.join(os.path.dirname(os.path.abspath(__file__)), "typed.py")
try:
    import mypy  # noqa: F401
except ImportError as missing:
    print(f"skipped: {missing}")
    sys.exit(77)

found = subprocess.run([sys.executable, "-m", "mypy", "--strict", "--hide-error-context", "--cache-dir", os.devnull, PROGRAM],
                       env={**os.environ, "MYPYPATH": os.path.dirname(os.path.dirname(zmvip.__file__))},
                       capture_output=True, text=True).stdout
errors = {line for line in found.splitlines() if ": error: " in line}
here = {int(at) for line in errors for at in re.findall(r"^\S*typed\.py:(\d+):", line)}
with open(PROGRAM) as file:
    wrong = {at for at, line in enumerate(file, 1) if line.endswith("# wrong\n")}
stray = [line for line in errors if not re.match(r"\S*typed\.py:(\d+):", line)]
print("\n".join(stray[:20] + [line for line in errors if int((re.search(r":(\d+):", line) or [0, 0])[1]) not in wrong][:20]))
print("".join(f"line {at} is taken\n" for at in sorted(wrong - here)), end="")
sys.exit(bool(stray or here != wrong))
