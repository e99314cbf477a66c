"""The examples of the reference: compiled with all warnings, and each in C against the one in Python, to the bit."""
import ctypes
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import examples
import numpy as np
import reference
import zmvip
from zmvip import _api
from zmvip._arrays import C_DTYPES
from zmvip._library import ctype

ROOT = Path(__file__).parents[2]
SCALARS = {"int": ctypes.c_int, "int64_t": ctypes.c_int64}


def in_bytes(value, kind):
    kind = kind.replace("const ", "").split("[")[0].rstrip("*")
    return bytes(ctype(kind)(*value)) if kind not in C_DTYPES else np.asarray(value, C_DTYPES[kind]).tobytes()


class Examples(unittest.TestCase):
    def setUp(self):
        self.found = examples.examples()
        with tempfile.TemporaryDirectory() as folder:
            source, library = Path(folder, "examples.c"), Path(folder, "examples.so")
            source.write_text(examples.program(self.found))
            subprocess.run([os.environ.get("CC", "cc"), "-std=c99", "-O0", "-Wall", "-Wextra", "-pedantic", "-Werror", "-shared",
                            "-fPIC", f"-I{ROOT}/include", source, "-o", library], check=True)
            ctypes.CDLL("libzmvip.so.1", ctypes.RTLD_GLOBAL)
            self.library = ctypes.CDLL(library)

    def test_same_bits(self):
        self.assertGreater(len(self.found), 100)
        for e in self.found:
            with self.subTest(e.family):
                several = isinstance(e.result, tuple) and hasattr(e.result, "_fields")
                due = list(e.result) if several else [e.result]
                values, kept, got = [], [], []
                for a, value in e.c.params:
                    if a.name in e.written:
                        kept.append(np.zeros_like(due[len(got)]))
                        if "AC4" in e.member:  # there Python has put the source's
                            kept[-1][..., 3] = due[len(got)][..., 3]
                        got.append((a, kept[-1]))
                        values.append(kept[-1].ctypes)
                    elif a.role == "result":
                        kept.append(np.zeros(4096, np.uint8))
                        got.append((a, kept[-1]))
                        values.append(kept[-1].ctypes)
                    else:
                        values.append(SCALARS.get(a.type, ctypes.c_void_p)(value) if isinstance(value, int) else value)
                self.assertGreaterEqual(getattr(self.library, f"example_{e.family}")(*values), 0)
                self.assertEqual(len(got), len(due))
                for (a, memory), value in zip(got, due):
                    expected = value.tobytes() if a.role == "image" else in_bytes(value, a.type)
                    self.assertEqual(memory.tobytes()[:len(expected)], expected, a.name)


class WhichFunction(unittest.TestCase):
    """docs/which-function.md: its names are those of the library, and its recipes make what they say."""

    text = (ROOT / "docs/which-function.md").read_text()

    def test_names(self):
        named = set(re.findall(r"zmvi[A-Z]\w+", self.text))
        self.assertEqual(named - set(_api.FACTS) - set(examples.MEMBERS), set())
        pages = {facts["page"] for f, facts in _api.FACTS.items() if f in named}
        self.assertEqual({facts["page"] for facts in _api.FACTS.values()} - pages, set())

    def test_recipes(self):
        photo, glass, leaf, paper = (np.random.default_rng(i).integers(0, 256, (30, 40, 4), "u1") for i in range(4))
        photo, paper[..., 3] = photo[..., :3].copy(), 255
        made = dict(np=np, zmvip=zmvip, photo=photo, glass=glass, leaf=leaf, paper=paper)
        for snippet in re.findall(r"```python\n(.*?)```", self.text, re.S):
            exec(snippet, made)
        self.assertLess(np.abs(made["gray"] - photo @ [.299, .587, .114]).max(), 2)
        self.assertTrue(np.array_equal(made["page"], np.where(made["gray"] > made["level"], 255, 0)))
        colour, alpha = (lambda x: x[..., :3].astype(float)), (lambda x: x[..., 3:] / 255)
        over = colour(glass) * alpha(glass) + colour(leaf) * alpha(leaf) * (1 - alpha(glass))
        whole = over + colour(paper) * (1 - alpha(glass)) * (1 - alpha(leaf))
        self.assertLess(np.abs(made["both"][..., :3] - over).max(), .51)
        self.assertLess(np.abs(made["shown"][..., :3] - whole).max(), 1.51)


class Reference(unittest.TestCase):
    """The pages that Sphinx gets, and the manual pages: every function is there, and no link leads nowhere."""

    def test_pages(self):
        with tempfile.TemporaryDirectory() as folder:
            out, table = Path(folder), Path(folder, "examples.json")
            table.write_text("{}")
            reference.main(Path(zmvip.__file__).parents[2] / "api.json", table, ROOT, out / "pictures", out)
            manual = {p.stem: p.read_text() for p in (out / "man3").iterdir()}
            self.assertEqual(set(manual), set(_api.FACTS) | set(examples.MEMBERS))
            for name in examples.MEMBERS:
                self.assertRegex(manual[name], rf"\b{name}\b")
            pages = {p: p.read_text() for p in (out / "pages").rglob("*.md")}
            anchors = {p: set(re.findall("^## (.*)$", text.lower(), re.M)) for p, text in pages.items()}
            entries = [name for text in pages.values() for line in re.findall("{index} (.*)", text) for name in line.split(", ")]
            self.assertEqual(sorted(entries), sorted(manual))
            for page, text in pages.items():
                for path, anchor in re.findall(r"\]\(([\w./-]*\.md)?(?:#(zmvi\w*))?\)", text):
                    to = (page.parent / path).resolve() if path else page
                    self.assertIn(to, pages, f"{page}: {path}")
                    self.assertIn(anchor, anchors[to] | {""}, page)


if __name__ == "__main__":
    unittest.main(argv=sys.argv)
