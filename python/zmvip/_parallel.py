"""One call on many cores: tiles of the result, each by its own call with roi=, so that neighbours are read in place."""
import os
from concurrent.futures import ThreadPoolExecutor

import numpy as np

from ._arrays import contiguous
from ._function import plain
from ._plan import naming
from ._spec import Spec

REASONS = {"size": "a tile of its result takes the whole image", "combine": "its results for parts do not make that of the "
           "whole to the bit", "service": "it takes no image"}


def parallel(function, *args, threads=None, tile=(1024, 1024), **keywords):
    """function(*args, **keywords) on several threads, in tiles of the result of at most that width and height: the same
    bits.  function is one of this package or an object that keeps its arguments.  What tiles would change is refused."""
    if isinstance(function, Spec):
        keywords["spec"] = function
    engine = function.engine
    args, keywords = tuple(map(plain, args)), {n: plain(v) for n, v in keywords.items()}
    plan = engine.plan(args, keywords)
    call = plan.call
    how = tiled(engine, plan, "parallel")
    args, keywords = once(engine, plan, args, keywords)
    x, y, w, h = call.roi
    workers = threads or len(os.sched_getaffinity(0))
    regions = tiles(w, h, tile, reach(call))
    out = keywords.pop("out", None)
    if not how and out is None:
        out = plan.room(args, keywords)

    def work(region):
        left, top, width, height = region
        roi = x + left, y + top, width, height
        if how:
            return engine(*args, **{**keywords, "roi": roi})
        cut = lambda image: tuple(map(cut, image)) if isinstance(image, tuple) else \
            image[top:top + height, left:left + width]
        engine(*args, **{**keywords, "roi": roi, "out": cut(out)})

    with ThreadPoolExecutor(workers) as pool:
        found = list(pool.map(work, regions))
    return together(found, how, naming_of(plan)) if how else out


def tiled(engine, plan, caller):
    """How the results of parts make that of the whole; None where tiles are parts of the result."""
    call, facts = plan.call, plan.member.facts
    writes = plan.member.writes or plan.member.changes
    why, how = None if call.pictures else "service", None
    if not why and writes:
        why = "size" if not facts["tiles"] or call.mode() == "crop" else None
    elif not why:
        integers = not plan.member.source.endswith("f")
        how = {"addIntegers": "add" if integers else "no"}.get(facts["combine"], facts["combine"])
        why = "combine" if how == "no" or call.mode() != "slice" else None
    if why:
        raise ValueError(f"{caller}: {engine.name} of {plan.member.source} is not worked in tiles: {REASONS[why]}")
    return how


def reach(call):
    """How wide and high tiles have to be at least."""
    found = call.reach() if call.mode() == "slice" else (0, 0, 0, 0)
    return (max(found[:2]), max(found[2:])) if found else call.whole


def tiles(width, height, tile, least):
    """Regions of nearly the same size, none narrower than what a pixel takes of its neighbours."""
    cuts = []
    for length, wanted, reach in zip((width, height), np.broadcast_to(tile, 2).tolist(), least):
        count = max(1, min(-(-length // max(wanted, 1)), length // max(reach, 1)))
        cuts.append([length * i // count for i in range(count + 1)])
    return [(left, top, right - left, bottom - top) for top, bottom in zip(cuts[1], cuts[1][1:])
            for left, right in zip(cuts[0], cuts[0][1:])]


def once(engine, plan, args, keywords):
    """Copies, of the whole, what every tile would have to copy: inputs that no step describes, or that tiles overwrite."""
    said, numbered = engine.bind(args, keywords)
    where = {i: n for n, indices in numbered.items() for i in indices}
    copied = {where[i] for i, _ in plan.copies} | {p.name for p in plan.call.pictures.values() if p.copied}
    out = said.get("out")
    if out is not None:
        targets = out if isinstance(out, tuple) else (out,)
        for p in plan.call.pictures.values():
            still = plan.member.facts["reach"] == "none" and plan.call.mode() == "slice"
            for a in p.arrays:
                same = still and any(a.ctypes.data == t.ctypes.data and a.strides == t.strides for t in targets)
                if p.name != "out" and not same and any(np.may_share_memory(a, t) for t in targets):
                    copied.add(p.name)
    names = [row[0] for row in engine.rows]
    copy = lambda v: tuple(map(contiguous, v)) if isinstance(v, (tuple, list)) else contiguous(v)
    return (tuple(copy(v) if n in copied else v for n, v in zip(names, args)),
            {n: copy(v) if n in copied else v for n, v in keywords.items()})


def least(a, b):
    """The smaller of two, element by element; NaN only where both are, and -0 before 0."""
    take = (a < b) | np.isnan(b) | ((a == b) & np.signbit(a))
    return np.where(take, a, b)


def naming_of(plan):
    """The names of results, and of their tuple if they are several."""
    return [name for _, name, *_ in plan.results], plan.tuple and plan.tuple.__name__


def together(found, how, names):
    """The result of the whole from those of its parts."""
    def join(name, parts):
        if isinstance(parts[0], tuple):
            return tuple(join(name, channel) for channel in zip(*parts))
        kind, total = np.asarray(parts[0]).dtype, np.asarray(parts[0])
        for part in map(np.asarray, parts[1:]):
            if how == "add":  # counts stay at the largest there is
                total = total + part if kind.kind == "f" else np.minimum(
                    total.astype(np.int64) + part, np.iinfo(np.int32).max).astype(total.dtype)
            else:
                smaller = how == "least" or (how == "extremes" and name == "min")
                total = least(total, part) if smaller else -least(-total, -part) if kind.kind == "f" else \
                    np.maximum(total, part)
        return total.item() if total.ndim == 0 else total.astype(kind)

    fields, kind = names
    if kind:
        return naming(kind, tuple(fields))(*(join(n, [f[i] for f in found]) for i, n in enumerate(fields)))
    return join(fields[0], found)
