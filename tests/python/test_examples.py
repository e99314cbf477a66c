"""The examples of the reference: compiled with all warnings, and each in C against the one in Python, to the bit."""
import ctypes
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import examples
import numpy as np
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
            subprocess.run([os.environ.get("CC", "cc"), "-std=c99", "-O0", "-Wall", "-Wextra", "-pedantic", "-Werror", "-shared", "-fPIC",
                            f"-I{ROOT}/include", source, "-o", library], check=True)
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


if __name__ == "__main__":
    unittest.main(argv=sys.argv)
