"""Arrays as images: element types, layouts, first pixel and step, and what of that a function can take."""
import numpy as np

CODES = {np.dtype(t): c for t, c in (
    ("u1", "8u"), ("i1", "8s"), ("u2", "16u"), ("i2", "16s"), ("u4", "32u"), ("i4", "32s"), ("u8", "64u"), ("i8", "64s"),
    ("f4", "32f"), ("f8", "64f"), ("c8", "32fc"))}
DTYPES = {c: t for t, c in CODES.items()}
C_DTYPES = {"int": np.intc, "float": np.float32, "double": np.float64} | {
    f"{sign}int{bits}_t": np.dtype(f"{sign}int{bits}").type for sign in ("", "u") for bits in (8, 16, 32, 64)}


class Picture:
    """An image of a call: an array, or a tuple of them, its planes; where it stands among the call's arrays."""

    def __init__(self, name, value, indices):
        self.name, self.indices, self.copied, self.converted = name, indices, False, False
        self.planar = isinstance(value, (tuple, list)) and bool(value) and all(isinstance(v, np.ndarray) for v in value)
        self.arrays = tuple(value) if self.planar else (value,)
        first = self.arrays[0]
        if first.ndim != 2 and (self.planar or first.ndim != 3):
            raise TypeError(f"{name}: an image has the shape (h, w) or (h, w, channels), planes (h, w), not {first.shape}")
        if any(a.shape != first.shape or a.dtype != first.dtype for a in self.arrays):
            raise ValueError(f"{name}: planes of different shapes or types")
        self.dtype = np.dtype(np.uint8) if first.dtype == bool else first.dtype.newbyteorder("=")
        if self.dtype not in CODES:
            raise TypeError(f"{name}: no element type of the library is {first.dtype}")
        self.code = CODES[self.dtype]
        self.height, self.width = first.shape[:2]
        self.channels = len(self.arrays) if self.planar else first.shape[2] if first.ndim == 3 else 1
        self.layout = f"{'P' if self.planar else 'C'}{self.channels}"
        self.pixel = self.dtype.itemsize * (1 if self.planar else self.channels)
        self.step = self.width * self.pixel

    def strided(self, steps):
        """The step that says where the rows are, or None where no step does, or not one that is accepted."""
        found = set()
        for a in self.arrays:
            if not a.dtype.isnative or (self.width != 1 and a.strides[1] != self.pixel) or (
                    a.ndim == 3 and a.shape[2] != 1 and a.strides[2] != self.dtype.itemsize):
                return None
            found.add(a.strides[0] if self.height != 1 else self.step)
        step = found.pop()
        accepted = {"positive": step >= self.width * self.pixel, "nonzero": step != 0, "any": True}[steps]
        return step if accepted and not found else None

    def of_type(self, wanted):
        """Numbers for a pointer of this type: converted, where they are of another."""
        if self.planar or self.channels != 1:
            raise TypeError(f"{self.name}: has the shape (h, w), not {self.arrays[0].shape}")
        self.converted = self.dtype != wanted
        self.dtype, self.pixel = np.dtype(wanted), np.dtype(wanted).itemsize
        return self

    def take(self, steps):
        """An input: by its own step, or by that of a copy."""
        step = None if self.converted else self.strided(steps)
        self.copied, self.step = step is None, self.width * self.pixel if step is None else step
        return self

    def give(self, steps):
        """An output: written where it is, or refused."""
        step = self.strided(steps)
        if step is None or (abs(step) < self.width * self.pixel and self.height > 1):
            first = self.arrays[0]
            raise ValueError(
                f"{self.name}: strides {first.strides} of {first.dtype} {first.shape} cannot be written by pointer and step"
                f"{' going upward' if steps == 'any' else ' going downward'}; leave {self.name} away, or write to "
                f"np.empty({first.shape}, '{self.dtype}') and copy")
        self.step = step
        return self

    def bounds(self):
        """Of every array: how many bytes it reaches below and above its first element."""
        for array, index in zip(self.arrays, self.indices):
            if self.copied:
                continue
            spans = [(n - 1) * s for n, s in zip(array.shape, array.strides)]
            yield index, sum(min(0, s) for s in spans), sum(max(0, s) for s in spans) + array.itemsize


def contiguous(array, dtype=None):
    return np.array(array, dtype=dtype or array.dtype.newbyteorder("="), order="C")


def numbers(name, value, kind, count=None):
    """An array of numbers for a pointer of this C type: as many as asked, one standing for all; none may change."""
    given = np.asarray(value)
    if given.dtype == object or given.dtype.kind not in "biuf":
        raise TypeError(f"{name}: takes numbers, not {value!r}")
    if count is not None and given.ndim == 0:
        given = np.full(count, given)
    wanted = np.dtype(C_DTYPES[kind])
    with np.errstate(all="ignore"):
        found = given.astype(wanted, order="C")
    if wanted.kind in "iu" and not np.array_equal(found, given):
        raise ValueError(f"{name}: {value!r} does not fit {wanted}")
    if count is not None and (found.size < count or found.ndim == 0):
        raise ValueError(f"{name}: takes {count} numbers, not {found.size}")
    return found


def number(name, value, kind):
    """One number for a C type."""
    found = numbers(name, value, kind)
    if found.size != 1:
        raise TypeError(f"{name}: takes one number, not {value!r}")
    return found.item()
