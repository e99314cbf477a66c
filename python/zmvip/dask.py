"""The functions of zmvip on dask arrays: zmvip.dask.filter_box(array, 31) is lazy, and gives the bits of the whole.

Each block of the result is a call of its own, on any core or machine that has this package: it takes its own pixels and
as many beside them as its kernel reaches, or, to resize, what the library says that it needs.  Functions whose results
are numbers give them for the whole, where those of blocks make them.  What blocks would change is refused, as by
zmvip.parallel.
"""
from functools import partial

import dask
import dask.array
import numpy as np

import zmvip
from ._function import plain
from ._parallel import naming_of, reach, tiled, tiles, together
from ._spec import Spec


def __getattr__(name):
    from . import _api
    if name in _api.FUNCTIONS or name in _api.SPECS:
        return partial(lazily, getattr(zmvip, name)) if name in _api.FUNCTIONS else \
            lambda *args, **keywords: partial(lazily, getattr(zmvip, name)(*args, **keywords))
    raise AttributeError(f"zmvip.dask has no {name}")


def lazily(function, *args, **keywords):
    """function(*args, **keywords), of dask arrays: a dask array, a tuple of them, or numbers that compute() gives."""
    if isinstance(function, Spec):
        keywords["spec"] = function
    engine = function.engine
    unknown = [n for n in ("out", "mask") if n in keywords]
    if unknown:
        raise TypeError(f"dask: {engine.name} takes no {unknown[0]} here")
    every = [a for v in (*args, *keywords.values()) for a in (v if isinstance(v, (tuple, list)) else [v]) if is_lazy(a)]
    if not every:
        raise TypeError(f"dask: {engine.name}: takes a dask array")
    if np.isnan([n for a in every for n in a.shape]).any():
        raise ValueError(f"dask: {engine.name}: takes arrays of known sizes")
    plan = engine.plan(tuple(map(stand_in, args)), {n: stand_in(v) for n, v in keywords.items()})
    call = plan.call
    how = tiled(engine, plan, "dask")
    mode = call.mode()
    if mode == "maps" or (mode == "offset" and not call.service("GetSrcRoi")):
        raise ValueError(f"dask: {engine.name}: nothing tells which part of the image a block takes")
    x, y, w, h = call.roi
    rows, columns = every[0].chunks[:2]
    least = reach(call)
    if mode == "slice" and (w, h) == call.whole and min(columns) >= least[0] and min(rows) >= least[1]:
        edges = [np.cumsum((0, *c)).tolist() for c in (columns, rows)]
        regions = [(l, t, r - l, b - t) for t, b in zip(edges[1], edges[1][1:]) for l, r in zip(edges[0], edges[0][1:])]
    else:
        regions = tiles(w, h, (max(columns), max(rows)), least)
    keywords.pop("roi", None)
    whole = call.source.height, call.source.width
    work = dask.delayed(block, pure=True)
    found = []
    for left, top, width, height in regions:
        region = x + left, y + top, width, height
        part, origin = sources(call, region)
        found.append(work(engine.name, on_images(engine, args, keywords, lambda a: a[part]), region, origin, whole))
    if how:
        return dask.delayed(together)(found, how, naming_of(plan))
    return assembled(plan, found, regions)


def is_lazy(value):
    return isinstance(value, dask.array.Array)


def on_images(engine, args, keywords, f):
    """The arguments with f of each image, or plane, in its place."""
    each = lambda v: tuple(map(each, v)) if isinstance(v, (tuple, list)) else f(v) if getattr(v, "ndim", 0) > 1 else v
    names = [row[0] for row in engine.rows[:engine.images]]
    return ([each(a) if i < engine.images else a for i, a in enumerate(args)],
            {n: each(v) if n in names else v for n, v in keywords.items()})


def stand_in(value):
    """An array of the same type and shape that takes no memory: enough to plan with."""
    if isinstance(value, (tuple, list)):
        return type(value)(map(stand_in, value))
    return np.broadcast_to(np.zeros((), value.dtype), value.shape) if is_lazy(value) else plain(value)


def sources(call, region):
    """The part of the sources that a region of the result takes, as slices, and where it begins."""
    x, y, w, h = region
    if call.mode() == "slice":
        left, right, top, bottom = call.reach() or (call.whole[0], call.whole[0], call.whole[1], call.whole[1])
        x, y, w, h = max(0, x - left), max(0, y - top), min(x + w + right, call.whole[0]), min(y + h + bottom, call.whole[1])
    else:
        call.roi = type(call.roi)(*region)
        found = call.source_region()
        x, y, w, h = found.x, found.y, found.x + found.width, found.y + found.height
    return (slice(y, h), slice(x, w)), (x, y)


def block(name, arguments, region, origin, whole):
    """A region of the result from parts of the images, which seem to be there as a whole: so neighbours, places and sizes
    are those of the whole, and what is not there is never looked at."""
    (args, keywords), function = arguments, getattr(zmvip, name)

    def seeming(image):
        rows = np.empty((len(image), *whole[1:], *image.shape[2:]), image.dtype)  # no row overlaps the next
        rows[:, :image.shape[1]] = image
        start = rows.ctypes.data - origin[1] * rows.strides[0] - origin[0] * rows.strides[1]
        places = {"data": (start, True), "shape": (*whole, *image.shape[2:]), "strides": rows.strides,
                  "typestr": image.dtype.str, "version": 3}
        return np.asarray(type("Seeming", (), {"__array_interface__": places, "rows": rows})())

    args, keywords = on_images(function.engine, args, keywords, seeming)
    return function(*args, **keywords, roi=region)


def assembled(plan, found, regions):
    """Blocks as one array, as planes, or as several results."""
    _, shape, dtype, planes, several = plan.fresh
    across = len({r[0] for r in regions})

    def joined(pick):
        parts = [dask.array.from_delayed(pick(f), (r[3], r[2], *shape[2:]), dtype) for f, r in zip(found, regions)]
        lines = [dask.array.concatenate(parts[i:i + across], axis=1) for i in range(0, len(parts), across)]
        return dask.array.concatenate(lines, axis=0)

    def image(pick):
        return tuple(joined(lambda f, i=i: pick(f)[i]) for i in range(planes)) if planes else joined(pick)

    return plan.tuple(*(image(lambda f, i=i: f[i]) for i in range(several))) if several > 1 else image(lambda f: f)
