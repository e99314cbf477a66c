"""test_coming_from.py cv2|PIL|scipy: every line of docs/coming-from.md that is about this library, on the photographs: both
sides give the same, or differ by what the line says and not by less than half of it.  77: the library, or Pillow, which
reads photographs, is missing."""
import importlib.util
import os
import re
import sys
import unittest
import warnings

import numpy as np
import zmvip

LIBRARY = sys.argv.pop()
for needed in (LIBRARY, "PIL"):
    if not importlib.util.find_spec(needed):
        print(f"skipped: there is no {needed}")
        sys.exit(77)

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
STATED = re.compile(r"(?:equal|up to (?P<most>[\d.e-]+)(?: in (?P<share>[\d.]+) %)?)(?:[,:;] |$)")


def read():
    """The blocks of code that come first, and the lines of the tables that are about the library."""
    with open(os.path.join(ROOT, "docs", "coming-from.md")) as file:
        text = file.read()
    rows = [[c.strip() for c in line.strip("|").split(" | ")] for line in text.splitlines() if line.startswith("| `")]
    library = lambda there: "cv2" if "cv2." in there else "scipy" if "ndi." in there else "PIL"
    blocks = re.findall(r"```python\n(.*?)```", text, re.S)
    blocks[0] = re.sub(r"(?m)^(import|from) (?!PIL|numpy|zmvip|%s).*$" % LIBRARY, "", blocks[0])
    return blocks, [(there.strip("`"), here.strip("`"), d) for there, here, d in rows if library(there) == LIBRARY]


def names(blocks, change=lambda image: image):
    """What the page's code defines; of changed photographs too."""
    found = {}
    exec(blocks[0], found)
    found.update({n: change(v) for n, v in found.items() if isinstance(v, np.ndarray)})
    for block in blocks[1:]:
        exec(block, found)
    return found


def number(result):
    return np.stack([np.asarray(r, float) for r in result]) if isinstance(result, (tuple, list)) else np.asarray(result, float)


def passes(there, here, stated):
    """None if the two differ by what is stated, else what they differ by."""
    if there.shape != here.shape:
        return f"shapes {there.shape} and {here.shape}"
    apart = np.abs(there - here)
    most, share = apart.max(), 100 * (apart > 0).mean()
    said = [float(stated[n] or default) for n, default in (("most", 0), ("share", share))]
    if not all(of / 2 < n <= of or n == of for n, of in zip((most, share), said)):
        return f"up to {most:.3g} in {share:.2g} %"


class Lines(unittest.TestCase):
    def test_lines(self):
        blocks, rows = read()
        self.assertGreater(len(rows), 10)
        plain, changed = names(blocks), names(blocks, lambda image: 255 - image // 2)
        for there, here, difference in rows:
            with self.subTest(there):
                stated = STATED.match(difference)
                self.assertTrue(stated, difference)
                left, right = number(eval(there, plain)), number(eval(here, plain))
                self.assertIsNone(passes(left, right, stated))
                others = [x for x in (np.roll(right, 1, -1) if right.ndim else right, number(eval(here, changed)))
                          if x.shape != right.shape or (x != right).any()]
                self.assertTrue(others and all(passes(left, x, stated) for x in others), "anything would do")


if __name__ == "__main__":
    warnings.simplefilter("ignore", zmvip.StatusWarning)
    os.chdir(os.path.join(ROOT, "examples", "images"))
    unittest.main(warnings="ignore")
