"""The Python package against the functions of the library as they are in C, and against NumPy where that is an oracle."""
import ctypes
import itertools
import mmap
import pickle
import random
import re
import sys
import threading
import traceback
import unittest
import warnings

import numpy as np
import usual
import zmvip
from zmvip import _api, raw
from zmvip._arrays import C_DTYPES, DTYPES

try:
    import dask.array
    import zmvip.dask
except ImportError:
    dask = None

W, H = 23, 17
PAGE = mmap.PAGESIZE
LIBC = ctypes.CDLL(None)


def guarded(array, at_end=True):
    """The same array between two pages that nobody may read, flush against one of them."""
    size = -(-max(array.nbytes, 1) // PAGE) * PAGE
    memory = mmap.mmap(-1, size + 2 * PAGE)
    start = np.frombuffer(memory, np.uint8).ctypes.data
    for page in (start, start + PAGE + size):
        LIBC.mprotect(ctypes.c_void_p(page), ctypes.c_size_t(PAGE), 0)
    offset = PAGE + (size - array.nbytes if at_end else 0)
    found = np.frombuffer(memory, array.dtype, array.size, offset).reshape(array.shape)
    found[...] = array
    return found


def views(image):
    """The same pixels in memory of other kinds."""
    h, w = image.shape[:2]
    padded = np.zeros((h, w + 5, *image.shape[2:]), image.dtype)
    padded[:, :w] = image
    around = np.zeros((h + 4, w + 7, *image.shape[2:]), image.dtype)
    around[2:2 + h, 3:3 + w] = image
    yield "padded", padded[:, :w]
    yield "cropped", around[2:2 + h, 3:3 + w]
    yield "upside down", np.ascontiguousarray(image[::-1])[::-1]
    yield "mirrored", np.ascontiguousarray(image[:, ::-1])[:, ::-1]
    yield "transposed", np.ascontiguousarray(image.swapaxes(0, 1)).swapaxes(0, 1)
    yield "of foreign bytes", image.astype(image.dtype.newbyteorder())
    yield "unreadable before", guarded(image, False)
    yield "unreadable behind", guarded(image)


def pixels(code, layout, w=W, h=H, seed=0):
    return usual.pixels(code, layout, w, h, seed)


def each(f, image):
    return tuple(map(f, image)) if isinstance(image, tuple) else f(image)


def flat(result):
    """All arrays and numbers of a result."""
    return [x for r in result for x in flat(r)] if isinstance(result, tuple) else [np.asarray(result)]


def same(one, two):
    one, two = flat(one), flat(two)
    return len(one) == len(two) and all(a.shape == b.shape and (a.tobytes() if a.ndim else repr(a.item())) ==
                                        (b.tobytes() if b.ndim else repr(b.item())) for a, b in zip(one, two))


class Case:
    """A member: the function that calls it, and everyday arguments."""

    def __init__(self, name, part, m):
        self.function, self.engine, self.m = getattr(zmvip, name), getattr(zmvip, name).engine, m
        self.family, self.constant, self.makers, _ = part
        self.images = usual.images(self.engine, part, m, W, H)
        self.keywords = usual.keywords(self.engine, part, m, W, H)
        if self.constant:
            self.images["b"] = 5

    def out(self):
        """Memory for the results, with something in it."""
        found = [pixels(self.m.destination, self.layout(), *self.extent, seed=7) for _ in self.m.writes or self.m.changes]
        return tuple(found) if len(found) > 1 else found[0]

    def layout(self):
        return "C3" if "24u" in self.m.name else self.m.to

    @property
    def extent(self):
        sized = flat(self.call())[0] if self.m.reads + self.m.changes else np.empty((H, W))
        return sized.shape[1::-1]

    def call(self, images=None, **keywords):
        return self.function(*(images or self.images.values()), **{**self.keywords, **keywords})

    def raw(self, out):
        """The function in C, its arguments made here; spec objects by the initialiser that comes first."""
        m, spec = self.m, ctypes.create_string_buffer(1 << 20)
        images = {**self.images, **self.keywords, **dict(zip(m.writes or m.changes, out if len(m.writes) > 1 else [out]))}
        if "mask" in images:
            images["mask"] = images["mask"].view(np.uint8)
        for family in self.makers[:1]:
            maker = next((x for x in members(family) if x.source == m.source), members(family)[0])
            assert getattr(raw, maker.name)(*self.values(maker, images, out, spec, [])) >= 0, maker.name
        results = []
        assert getattr(raw, m.name)(*self.values(m, images, out, spec, results)) >= 0, m.name
        used = 3 if m.from_ == "AC4" else int(m.from_[-1])
        results = tuple(r if r.ndim == 0 or m.has("spec object") else r[:used] for r in results)
        return out if m.writes or m.changes else results if len(results) > 1 else results[0]

    def values(self, m, images, out, spec, results):
        """What the arguments of a member are, or of its initialiser."""
        values, last, self.kept = [], None, [images]
        channels = 3 if self.m.from_ == "AC4" else int(self.m.from_[-1])
        for a in m.arguments:
            said = self.keywords.get(self.engine.called(a.name))
            kind = C_DTYPES.get(re.sub(r"^const |[ *\[].*", "", re.sub("^const ", "", a.type)))
            if a.role in ("image", "planes", "mask", "map"):
                last = images[a.name] if a.role != "map" else said
                value = (ctypes.c_void_p * len(last))(*(p.ctypes.data for p in last)) if isinstance(last, tuple) else last.ctypes
            elif a.role == "step":
                value = (last[0] if isinstance(last, tuple) else last).strides[0]
            elif a.role == "size":
                w, h = said if isinstance(said, tuple) else (said, said) if said is not None else (3, 3) if a.name == "kernelSize" \
                    else (W, H) if not a.name.startswith("dst") else flat(out)[0].shape[1::-1]
                value = getattr(raw, a.type)(w, h) if a.type.startswith("Image") else w
            elif a.role == "point":
                at = 0 if a.name.endswith("Offset") else 1  # the image is the whole; masks are of 3 x 3
                value = raw.ImagePoint(at, at) if a.type == "ImagePoint" else at
            elif a.role == "rectangle":
                value = getattr(raw, a.type)(0, 0, W, H)
            elif a.role in ("buffer", "init buffer"):
                value = ctypes.create_string_buffer(1 << 20)
            elif a.role == "spec object":
                value = spec
            elif a.role == "result":
                if "[" in a.type or m.has("spec object"):  # counts: an array a channel
                    results += [np.zeros(len(self.keywords["levels"]) - 1, kind) for _ in range(channels)]
                    value = (ctypes.c_void_p * channels)(*(r.ctypes.data for r in results)) if "[" in a.type else results[0].ctypes
                else:
                    results.append(np.zeros(4 if channels > 1 else (), kind))
                    value = results[-1].ctypes
            elif a.role == "border value":
                value = None if "*" in a.type else 0
            elif a.enumeration == "DATATYPE_":
                value = _api.ENUMERATIONS["DATATYPE_"][self.m.source]
            elif a.name == "numChannels":
                value = channels
            elif a.role in ("option", "border"):
                words = _api.ENUMERATIONS.get(a.enumeration, {})
                value = said if said is not None else self.engine.named[a.name][1] if a.name in self.engine.named else 0
                value = words.get(value, words.get(f"{value}x{value}", value))
            elif a.name == "nLevels":
                value = np.full(channels, len(self.keywords["levels"]), kind).ctypes
            elif re.search(r"\* ?const ?(\*|\[)", a.type):  # a table a channel
                one = np.asarray(said).astype(kind)
                value = (ctypes.c_void_p * channels)(*[one.ctypes.data] * channels)
                self.kept.append(one)
            else:
                value = 5 if said is None else said
                value = (np.resize(value, 1024).astype(kind) if np.ndim(value) == 0 else np.asarray(value).astype(kind)).ctypes \
                    if re.search(r"[*\[]", a.type) else value
            values.append(value)
        self.kept.append(values)
        return values


from zmvip._members import members  # noqa: E402


def cases(wanted=lambda m: True):
    for name, (_, _, _, parts) in _api.FUNCTIONS.items():
        for part in parts:
            for m in members(part[0]):
                if (m.reads or m.writes or m.changes) and not m.large and not m.changes and wanted(m) and not (
                        {"1u", "16sc", "32sc"} & {m.source, m.destination}):
                    yield Case(name, part, m)


def needs_inside(case):
    """Whether neighbours have to lie in the image: then a roi does too."""
    return case.m.facts["reach"] in ("anchor", "radius", "fixed") and not case.m.has("border") and not case.m.facts["extent"]


class Families(unittest.TestCase):
    """Every member: in all kinds of memory, in place, by regions, in tiles."""

    def test_members_are_chosen(self):
        for case in cases():
            with self.subTest(case.m.name):
                roi = {"roi": (2, 2, 9, 8)} if needs_inside(case) else {}
                out = {"out": pixels(case.m.to and case.m.destination, case.m.to)} if not case.m.reads else {}
                plan = case.engine.plan(tuple(case.images.values()), {**case.keywords, **roi, **out})
                self.assertEqual(plan.member.name, case.m.name)

    def test_raw(self):
        for case in cases():
            with self.subTest(case.m.name):
                if case.m.writes:
                    inside = needs_inside(case)
                    out, expected = case.out() if not inside else pixels(case.m.destination, case.m.to, seed=7), None
                    if inside:
                        whole, part = (W, H), (slice(2, H - 2), slice(2, W - 2))
                        images = {n: np.pad(i, [(2, 2), (2, 2)] + [(0, 0)] * (i.ndim - 2), "edge") for n, i in case.images.items()}
                        found = case.call(images.values(), roi=(2, 2, W, H), out=np.zeros_like(out))
                        case.images = {n: i[2:-2, 2:-2] for n, i in images.items()}
                        expected = case.raw(np.zeros_like(out))
                        self.assertTrue(same(found, expected))
                        continue
                    expected = case.raw(each(np.copy, out))
                    self.assertTrue(same(case.call(out=each(np.copy, out)), expected))
                else:
                    self.assertTrue(same(case.call(), case.raw(None)))

    def test_views(self):
        """A third of the kinds of memory each: families see all of them."""
        for number, case in enumerate(cases()):
            with self.subTest(case.m.name):
                roi = {"roi": (2, 3, W - 7, H - 5)} if needs_inside(case) else {}
                given = {} if case.m.reads else {"out": np.zeros_like(case.out())}
                expected = case.call(**roi, **given)
                for kind, view in itertools.islice(self.views(case.images), number % 3, None, 3):
                    if view:
                        self.assertTrue(same(case.call(view, **roi, **given), expected), kind)
                if case.m.writes and len(case.m.writes) == 1:
                    outs = views(flat(expected)[0]) if not isinstance(expected, tuple) else iter(())
                    for kind, out in itertools.islice(outs, number % 3, None, 3):
                        if kind in ("mirrored", "transposed") or not out.dtype.isnative:
                            with self.assertRaisesRegex(ValueError, "strides"):
                                case.call(out=out, **roi)
                        elif kind != "upside down":
                            self.assertIs(case.call(out=out, **roi), out)
                            self.assertTrue(case.m.of_channel or "M" in case.m.letters or "A" in case.m.to or same(out, expected), kind)

    @staticmethod
    def views(images):
        pixels = [i for i in images.values() if not isinstance(i, int)]
        for found in zip(*(zip(*(views(p) for p in i)) if isinstance(i, tuple) else views(i) for i in pixels)):
            if isinstance(found[0][0], tuple):
                yield found[0][0][0], [tuple(v for _, v in f) for f in found] + [i for i in images.values() if isinstance(i, int)]
            else:
                yield found[0][0], [v for _, v in found] + [i for i in images.values() if isinstance(i, int)]

    def test_overlap(self):
        """In place and with other overlap: as from copies."""
        for case in cases(lambda m: m.writes and m.reads and m.layout_same() and m.source == m.destination):
            if len(case.m.writes) > 1 or needs_inside(case) or case.extent != (W, H) or "P" in case.m.to:
                continue
            for which, shift in itertools.product(range(len(case.m.reads)), (0, 1, -1)):
                with self.subTest(case.m.name, which=which, shift=shift):
                    memory = pixels(case.m.source, case.m.from_, W, H + 2, seed=3)
                    images = list(case.images.values())
                    if isinstance(images[which], int):
                        continue
                    images[which] = memory[1:-1]
                    out = memory[1 + shift:H + 1 + shift]
                    expected = case.call([np.copy(i) if not isinstance(i, int) else i for i in images], out=out.copy())
                    self.assertTrue(same(case.call(images, out=out), expected))

    def on_dask(self, case, tile, region, whole):
        """The same in blocks of dask arrays, where there is dask."""
        if not dask or set(case.keywords) & {"mask", "out"} or case.m.has("map") or "coeffs" in case.keywords:
            return
        chunks = tile[1] + 3, tile[0] + 3
        lazy = lambda image: image if isinstance(image, int) else \
            each(lambda a: dask.array.from_array(a, (*chunks, *a.shape[2:])), image)
        found = getattr(zmvip.dask, case.function.__name__)(*map(lazy, case.images.values()), **case.keywords, **region)
        self.assertTrue(same(dask.compute(found, scheduler="synchronous")[0], whole))

    def test_regions_and_tiles(self):
        chance = random.Random(1)
        for case in cases(lambda m: m.reads):
            inside = needs_inside(case)
            region = {"roi": (2, 3, W - 7, H - 5)} if inside else {}
            with self.subTest(case.m.name):
                whole = case.call(**region)
                tile = chance.sample((chance.randint(1, 9), 9), 2)
                try:
                    found = zmvip.parallel(case.function, *case.images.values(), threads=2, tile=tile, **case.keywords, **region)
                except ValueError as error:
                    self.assertIn("is not worked in tiles", str(error))
                    self.assertFalse(case.m.writes and case.m.facts["tiles"] and case.m.facts["reach"] != "whole" and
                                     not case.m.facts["extent"] and not case.m.has("srcRoiSize"))
                else:
                    self.assertTrue(same(found, whole), tile)
                    self.on_dask(case, tile, region, whole)
                if not case.m.writes or inside:
                    continue
                w, h = case.extent
                for _ in range(3):
                    x, y = chance.randrange(w), chance.randrange(h)
                    roi = x, y, chance.randint(1, w - x), chance.randint(1, h - y)
                    cut = lambda image: each(cut, image) if isinstance(image, tuple) else image[y:y + roi[3], x:x + roi[2]]
                    self.assertTrue(same(case.call(roi=roi), cut(whole)), roi)


class Oracles(unittest.TestCase):
    """Where NumPy computes the same; the objects of telling families."""

    def setUp(self):
        self.a, self.b = pixels("8u", "C3", seed=1), pixels("8u", "C3", seed=2)
        self.gray = self.a[..., 0].copy()

    def test_arithmetic(self):
        a, b = self.a.astype(int), self.b.astype(int)
        clip = lambda x: np.clip(x, 0, 255).astype(np.uint8)
        self.assertTrue(same(zmvip.add(self.a, self.b), clip(a + b)))
        self.assertTrue(same(zmvip.add(self.a, self.b, scale=1), clip(np.rint((a + b) / 2))))
        self.assertTrue(same(zmvip.sub(self.a, self.b), clip(a - b)))
        self.assertTrue(same(zmvip.sub(self.a, (1, 2, 3)), clip(a - (1, 2, 3))))
        self.assertTrue(same(zmvip.sub(self.a, self.b, out=self.b.copy()), clip(a - b)))
        self.assertTrue(same(zmvip.div(self.a, 3), clip(np.rint(a / 3))))
        self.assertTrue(same(zmvip.convert(self.a, "float32"), self.a.astype(np.float32)))
        self.assertTrue(same(zmvip.convert(self.a, dtype=np.uint16), self.a.astype(np.uint16)))
        self.assertTrue(same(zmvip.transpose(self.a), self.a.swapaxes(0, 1)))
        self.assertTrue(same(zmvip.mirror(self.a, "diagonal_a"), self.a.swapaxes(0, 1)))
        self.assertTrue(same(zmvip.copy(self.a, layout="P3"), tuple(np.moveaxis(self.a, 2, 0))))
        turn = zmvip.get_rotate_transform(90, 3, 4)
        self.assertTrue(np.allclose(turn, [[0, 1, 3], [-1, 0, 4]]))
        zeros = zmvip.set(0.0, out=np.ones((2, 2), np.float32)), zmvip.set(-0.0, out=np.ones((2, 2), np.float32))
        self.assertEqual([np.signbit(z).all() for z in zeros], [False, True])

    def test_box(self):
        image = np.pad(self.a.astype(float), ((2, 2), (1, 1), (0, 0)), "edge")
        windows = np.lib.stride_tricks.sliding_window_view(image, (5, 3), (0, 1)).mean((-1, -2))
        self.assertLessEqual(np.abs(zmvip.filter_box(self.a, (3, 5)) - windows).max(), 0.51)
        constant = zmvip.filter_box(self.a, 3, border="constant", border_value=(1, 2, 3))
        self.assertTrue(same(constant, zmvip.filter_box(np.pad(self.a, ((1, 1), (1, 1), (0, 0)), constant_values=0)
                             + np.pad(np.zeros_like(self.a), ((1, 1), (1, 1), (0, 0))) + self.frame((1, 2, 3)), 3)[1:-1, 1:-1]))

    def frame(self, value):
        found = np.full((H + 2, W + 2, 3), value, np.uint8)
        found[1:-1, 1:-1] = 0
        return found

    def test_results(self):
        self.assertEqual(zmvip.sum(self.gray), self.gray.sum())
        low, high = zmvip.min_max(self.a)
        self.assertTrue(same((low, high), (self.a.min((0, 1)), self.a.max((0, 1)))))
        found = zmvip.max_indx(self.gray)
        self.assertEqual((found.index_y, found.index_x), np.unravel_index(self.gray.argmax(), self.gray.shape))
        self.assertEqual(zmvip.sum(self.gray, roi=(3, 4, 5, 6)), self.gray[4:10, 3:8].sum())

    def test_objects(self):
        levels = [0, 20, 100, 256]
        kept = zmvip.Histogram(levels=levels)
        due = np.histogram(self.gray, levels)[0]
        again = pickle.loads(pickle.dumps(kept))
        for found in (zmvip.histogram(self.gray, levels), kept(self.gray), again(self.gray), zmvip.parallel(kept, self.gray, tile=5)):
            self.assertEqual(found.tolist(), due.tolist())
        uniform = zmvip.histogram(self.a, lower_level=0, upper_level=256, n_levels=9)
        self.assertEqual([u.tolist() for u in uniform], [np.histogram(self.a[..., c], 8, (0, 256))[0].tolist() for c in range(3)])
        curve = zmvip.LUT([0, 128, 256], [255, 127, 0], interpolation="linear")
        exact = np.interp(self.gray, [0, 128, 256], [255, 127, 0])
        self.assertLessEqual(np.abs(curve(self.gray) - exact).max(), 0.5)
        found, threads = [None] * 8, []
        for i in range(8):
            threads.append(threading.Thread(target=lambda i=i: found.__setitem__(i, curve(self.a))))
            threads[-1].start()
        for t in threads:
            t.join()
        self.assertTrue(all(same(f, curve(self.a)) for f in found))
        self.assertIs(pickle.loads(pickle.dumps(zmvip.add)), zmvip.add)

    def dask_refusals(self):
        if not dask:
            return ()
        blocks = dask.array.from_array(self.gray)
        unknown = dask.array.concatenate([blocks[blocks[:, 0] > 5]])
        return ((AttributeError, "zmvip.dask has no nothing", lambda: zmvip.dask.nothing),
                (TypeError, "dask: add takes no out here", lambda: zmvip.dask.add(blocks, 1, out=self.gray)),
                (ValueError, "dask: remap: nothing tells", lambda: zmvip.dask.remap(blocks, *[np.ones((H, W), "f4")] * 2)),
                (TypeError, "dask: add: takes a dask array", lambda: zmvip.dask.add(self.gray, 1)),
                (ValueError, "dask: add: takes arrays of known sizes", lambda: zmvip.dask.add(unknown, 1)))

    def test_refusals(self):
        """Each says who, what and why; none in the package goes untried."""
        a, gray, locked, floats, tried = self.a, self.gray, self.gray.copy(), self.gray.astype("f4"), set()
        locked.flags.writeable = False
        for kind, words, call in (
                (TypeError, "no member takes complex64", lambda: zmvip.add(gray.astype("c8"), 1)),
                (TypeError, r"uint8 \(h, w, 4\).*keep_alpha=True", lambda: zmvip.threshold(np.zeros((4, 4, 4), "u1"), 5)),
                (TypeError, "takes dtype, one of", lambda: zmvip.convert(a)),
                (TypeError, "takes no mask", lambda: zmvip.add(a, a, mask=gray)),
                (TypeError, "takes no colour; there are a, b, scale", lambda: zmvip.add(a, a, colour=1)),
                (TypeError, "img is no image", lambda: zmvip.sum(5)),
                (TypeError, "takes mask_size", lambda: zmvip.filter_box(a)),
                (TypeError, "takes no scale", lambda: zmvip.add(gray.astype("f4"), 1, scale=1)),
                (TypeError, "made of: levels; or lower_level", lambda: zmvip.histogram(gray)),
                (TypeError, "takes out", lambda: zmvip.set(1)),
                (ValueError, "different sizes: .*b is 23 x 16", lambda: zmvip.add(gray, gray[1:])),
                (ValueError, "value: 300 does not fit uint8", lambda: zmvip.add(gray, 300)),
                (ValueError, "strides .* cannot be written", lambda: zmvip.add(gray, 1, out=np.zeros((H, W * 2), "u1")[:, ::2])),
                (ValueError, "read-only", lambda: zmvip.add(gray, 1, out=locked)),
                (ValueError, "out is 5 x 5, the result 23 x 17", lambda: zmvip.add(gray, 1, out=np.zeros((5, 5), "u1"))),
                (ValueError, "roi .* no part of 23 x 17", lambda: zmvip.add(gray, 1, roi=(20, 0, 9, 9))),
                (ValueError, r"largest roi is \(1, 0, 21, 17\)", lambda: zmvip.sum_window_row(gray, 3)),
                (ValueError, "'wrap' is none of replicate, mirror", lambda: zmvip.filter_box(gray, 3, border="wrap")),
                (ValueError, "follows from roi", lambda: zmvip.filter_box(gray, 3, border="replicate|in_mem_top")),
                (ValueError, "values: takes 3 numbers, not 2", lambda: zmvip.lut(gray, [0, 9, 99], [1, 2])),
                (ValueError, "dst_order: takes 3 numbers", lambda: zmvip.swap_channels(a, [0, 1])),
                (ValueError, "not worked in tiles", lambda: zmvip.parallel(zmvip.transpose, gray)),
                (TypeError, r"img: an image has the shape .*not \(2, 2, 2, 2\)", lambda: zmvip.sum(np.zeros((2, 2, 2, 2), "u1"))),
                (ValueError, "img: planes of different shapes", lambda: zmvip.copy((gray, gray, gray[1:]))),
                (TypeError, "img: no element type of the library is float16", lambda: zmvip.sum(gray.astype("f2"))),
                (TypeError, r"mask: has the shape \(h, w\)", lambda: zmvip.copy(gray, mask=a, out=gray.copy())),
                (TypeError, "copy: mask is no array", lambda: zmvip.copy(gray, mask=5, out=gray.copy())),
                (TypeError, "value: takes numbers, not 'x'", lambda: zmvip.add(gray, "x")),
                (TypeError, "object .* is neither an array nor a number", lambda: zmvip.add(gray, object())),
                (ValueError, "value: takes 3 numbers, not 4", lambda: zmvip.add(a, (1, 2, 3, 4))),
                (TypeError, r"value: takes one number, not \(1, 2\)", lambda: zmvip.add(gray, (1, 2))),
                (TypeError, "add: takes a, b, scale, not 4 arguments", lambda: zmvip.add(gray, gray, 0, 4)),
                (TypeError, "add: b is given twice", lambda: zmvip.add(gray, gray, b=gray)),
                (TypeError, "lut: spec is no object of this", lambda: zmvip.lut(gray, spec=zmvip.Filter(np.ones((3, 3))))),
                (TypeError, "block_min_max: out is a tuple of 2", lambda: zmvip.block_min_max(gray, 4, out=gray.copy())),
                (TypeError, "dup: takes layout, one of C3, C4", lambda: zmvip.dup(gray)),
                (TypeError, "add: images of different types", lambda: zmvip.add(gray, floats)),
                (ValueError, "remap: maps of different sizes", lambda: zmvip.remap(gray, floats, floats[1:])),
                (ValueError, "copy: channel 5 of 3", lambda: zmvip.copy(a, channel=5)),
                (ValueError, "set: takes no roi but", lambda: zmvip.set(1, out=gray.copy(), roi=(0, 0, 1, 1))),
                (TypeError, r"resize_linear: takes out, or size=\(width, height\)", lambda: zmvip.resize_linear(gray)),
                (TypeError, "LUT: takes levels, values, interpolation$", lambda: zmvip.LUT(1, 2, 3, 4)),
                (TypeError, "LUT: .* not colour", lambda: zmvip.LUT(levels=[1], colour=3)),
                (AttributeError, "zmvip has no nothing", lambda: zmvip.nothing),
                (AttributeError, "zmvip.raw has no nothing", lambda: raw.nothing),
                (ValueError, "more than 2147483647 pixels or bytes a row", lambda: zmvip.sum(np.zeros((1, 2**31), "u1"))),
                (ValueError, "levels: takes an array, or 3 of them", lambda: zmvip.histogram(a, [[0, 1, 2], [0, 1, 3]])),
                (ValueError, "tables: takes 3 tables, not 2", lambda: zmvip.lut_palette(a, 8, tables=[[0] * 256] * 2)),
                (ValueError, r"coeffs: takes numbers of the shape \(2, 3\)", lambda: zmvip.get_affine_quad((0, 0, 4, 4), [1] * 6)),
                (zmvip.Error, "filter_box: mask_size: width or height .*STATUS_BAD_MASK_SIZE", lambda: zmvip.filter_box(a, 0)),
                *self.dask_refusals()):
            with self.subTest(words):
                try:
                    self.fail(f"not refused: {call()}")
                except kind as error:
                    self.assertRegex(str(error), words)
                    *_, (frame, line) = traceback.walk_tb(error.__traceback__)
                    tried.add((frame.f_code.co_filename, line))
        later = "nothing tells what|takes no roi\"|takes {python}|takes {self.function.named"  # of families to come
        untried = []
        for path in {path for path, _ in tried}:
            with open(path) as file:
                lines = list(enumerate(file, 1))
            untried += [text for at, text in lines if re.search(r"raise \w+\(", text) and (path, at) not in tried and
                        not re.search(later, "".join(t for _, t in lines[at - 1:at + 1]))]
        self.assertEqual(untried, [])
        with self.assertRaises(zmvip.Error) as caught:
            zmvip.div(gray, 0)
        self.assertEqual((caught.exception.function, caught.exception.name, caught.exception.member),
                         ("div", "STATUS_DIV_BY_ZERO", "zmviDivC_8u_C1RSfs"))
        self.assertEqual(str(pickle.loads(pickle.dumps(caught.exception))), str(caught.exception))
        with self.assertWarnsRegex(zmvip.StatusWarning, "div: a divisor is zero"):
            zmvip.div(gray, gray * 0)


def layout_same(m):
    return m.from_ == m.to


type(next(cases()).m).layout_same = layout_same

if __name__ == "__main__":
    warnings.simplefilter("ignore", zmvip.StatusWarning)
    unittest.main(argv=sys.argv, warnings="ignore")
