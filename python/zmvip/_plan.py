"""A call that is worked out: what is left to do for other arrays of the same types, shapes and strides."""
import ctypes
import re
from collections import namedtuple
from functools import lru_cache

import numpy as np

from ._arrays import C_DTYPES, DTYPES, Picture, contiguous, number
from ._library import ctype, exported
from ._members import LIMIT, Roi, check, members

naming = lru_cache(None)(namedtuple)
snake = lambda name: re.sub(r"(?<=[a-z])(?=[A-Z])", "_", re.sub(r"^(p|dst)(?=[A-Z])", "", name)).lower()


class Plan:
    def __init__(self, function, call, options, given, pictures, numbered):
        self.function, self.call, self.member = function, call, call.member
        m = call.member
        self.detour = self.fresh = self.start = self.in_place = None
        self.outs, self.copies, self.slots, self.sets, self.buffers, self.results, self.apart = [], [], [], [], [], [], []
        values = [n for n, i in numbered.items() if i and n not in pictures and n not in ("out", "mask") and
                  not any(p.name == n for p in call.pictures.values())]
        self.lasting, self.total = not values, sum(map(len, numbered.values()))
        if m.reads + m.changes + m.writes:
            self.regions(call, options, given)
        if not self.detour:
            self.arrange(call, options, given)

    # Regions.

    def regions(self, call, options, given):
        m = call.member
        call.roi = Roi(*(number("roi", v, "int64_t") for v in options["roi"])) if "roi" in options else None
        call.whole = call.extent()
        whole = Roi(0, 0, *call.whole)
        call.roi = call.roi or whole
        x, y, w, h = call.roi
        if x < 0 or y < 0 or x + w > whole.width or y + h > whole.height or w < 0 or h < 0:
            raise ValueError(f"{self.function.name}: roi {tuple(call.roi)} is no part of {whole.width} x {whole.height} pixels")
        for g in given:
            if (g.width, g.height) != (w, h):
                raise ValueError(f"{self.function.name}: out is {g.width} x {g.height}, the result {w} x {h} pixels")
        if call.sliced():
            for n, p in call.pictures.items():
                if n not in m.writes and (p.width, p.height) != call.whole:
                    sizes = ", ".join(f"{q.name} is {q.width} x {q.height}" for k, q in call.pictures.items() if k not in m.writes)
                    raise ValueError(f"{self.function.name}: images of different sizes: {sizes} pixels")
        if len({p.layout for n, p in call.pictures.items() if n in m.reads + m.changes}) > 1 or \
                len({p.code for n, p in call.pictures.items() if n in m.reads + m.changes}) > 1:
            raise TypeError(f"{self.function.name}: images of different types or layouts")
        if len({(p.width, p.height) for n, p in call.pictures.items() if n in ("pxMap", "pyMap")}) > 1:
            raise ValueError(f"{self.function.name}: maps of different sizes")
        around, call.flags = call.around()
        if around != call.roi:
            self.detour = around, (slice(y - around.y, y - around.y + h), slice(x - around.x, x - around.x + w))
            self.kept_alpha = bool(options.get("keep_alpha"))
        if self.results_only() and "roi" in options and not call.sliced():
            raise ValueError(f"{self.function.name}: takes no roi")

    def results_only(self):
        return not self.member.writes and not self.member.changes

    # Arguments.

    def arrange(self, call, options, given):
        m, steps = call.member, call.member.steps()
        targets = {}
        if m.writes or m.changes:
            targets = self.destinations(call, given, steps, options)
        for n, p in call.pictures.items():
            if p not in targets.values():
                p.take("positive" if n == "mask" else steps)
                if p.copied:
                    self.copies += [(i, p.dtype) for i in p.indices]
        every = {**call.pictures, **targets}
        if max([0, *(v for p in every.values() for v in (p.width, p.height, abs(p.step)))]) > LIMIT:
            m = call.member = next((x for x in members(m.family) if x.name == m.name + "_L"), None)
            if m is None:
                raise ValueError(f"{self.function.name}: images of more than {LIMIT} pixels or bytes a row are not taken")
            call.large, self.member = True, m
        sizes = call.sizes(m.facts["query"]) if m.has("buffer") else {}
        self.values, last = [], None
        for position, a in enumerate(m.arguments):
            value = None
            if a.role in ("image", "planes", "mask", "map"):
                last = every[a.name]
                offset = call.offset(a.name) if a.name not in targets else 0
                if "channel" in options and last.channels > 1 and a.role == "image":
                    channel = number("channel", options["channel"], "int")
                    if not 0 <= channel < last.channels:
                        raise ValueError(f"{self.function.name}: channel {channel} of {last.channels}")
                    offset += channel * last.dtype.itemsize
                (self.sets if last.planar else self.slots).append(
                    (position, last.indices if last.planar else last.indices[0], offset))
            elif a.role == "step":
                value = last.step
            elif a.role == "buffer":
                self.buffers.append((position, sizes["buffer"]))
            elif a.role == "spec object":
                value = call.object()
            elif a.role == "result":
                self.results.append((position, *self.result(call, a)))
            else:
                value = call.passed(call.argument(a))
            self.values.append(value)
        self.called = exported(m.name)
        self.overlaps(call, targets)
        names = [snake(n) for n in (m.writes if len(m.writes) > 1 else [])] + [n for _, n, *_ in self.results]
        self.tuple = naming(f"{self.function.name}_result", tuple(names)) if len(names) > 1 else None

    def destinations(self, call, given, steps, options):
        """Where the results go: to the caller's arrays, or to new ones."""
        m, names = call.member, call.member.writes or call.member.changes
        if given:
            targets = dict(zip(names, (g.give(steps) for g in given)))
            self.outs = [(g.indices, g.planar) for g in given]
        else:
            dtype, layout, targets = DTYPES[m.destination], m.to.lstrip("A"), {}
            shape = (call.roi.height, call.roi.width)
            planes, at = int(layout[1]) if layout[0] == "P" else 0, self.total
            if not planes and layout != "C1":
                shape += (int(layout[1]),)
            partly = m.has("map") or m.has("table") or "mask" in options or "channel" in options or "A" in m.to
            self.fresh = np.zeros if partly else np.empty, shape, dtype, planes, len(names)
            for n in names:
                indices = tuple(range(at, at + (planes or 1)))
                at += planes or 1
                dummy = np.broadcast_to(np.zeros((), dtype), shape)
                picture = Picture("out", (dummy,) * planes if planes else dummy, indices)
                targets[n] = picture
                self.outs.append((indices, bool(planes)))
        if m.changes and not m.writes:  # worked in place: the second image goes there first
            source = call.pictures.get(m.changes[0])
            self.start = source and (source.indices, self.outs[0][0], 4)
        elif not given and "A" in m.to and "A" in m.from_ and call.source and (call.source.channels == 4):
            if (call.source.height, call.source.width) == call.whole[::-1]:
                self.start = call.source.indices, self.outs[0][0], 3
        if self.start:
            x, y, w, h = call.roi
            self.region = (slice(y, y + h), slice(x, x + w)) if call.sliced() else (slice(None),) * 2
        return targets

    def result(self, call, a):
        """How to make room for a result, and its name."""
        m = call.member
        name, kind = snake(a.name), re.sub(r"^const |[ *\[].*", "", a.type)
        channels = call.used(m.from_) if m.from_ else 1
        if a.count:
            maker = call.pick(call.maker)
            counts = next(b for b in maker.arguments if b.name == "nLevels")
            lengths = [int(eval(a.count, {"__builtins__": {}}, {"nLevels": int(n)}))
                       for n in np.atleast_1d(call.argument(counts, maker))]
            return (name, [np.dtype(C_DTYPES[kind])] * len(lengths), lengths) if "[" in a.type else \
                (name, np.dtype(C_DTYPES[kind]), lengths[0])
        bounds = [int(n) for n in re.findall(r"\[(\d)\]", a.type)]
        if ctype(kind) and kind not in C_DTYPES:
            return name, ctype(kind), None
        one = not bounds and channels == 1
        return name, np.dtype(C_DTYPES[kind]), None if one else tuple(bounds) or (channels,)

    def overlaps(self, call, targets):
        """Pairs of inputs and destinations that must not share memory, but as the facts allow."""
        m = call.member
        self.given = self.fresh is None
        if not self.given:
            return
        place = m.facts["place"]
        for t, target in targets.items():
            for n, p in call.pictures.items():
                if p is target or p.copied:
                    continue
                image = n in m.reads + m.changes
                fits = image and p.step == target.step and p.pixel == target.pixel and p.layout == target.layout
                way = None
                if fits and ((m.writes and place in ("same", "second")) or n in m.changes):
                    way = "as it is"
                elif fits and m.writes and any(x.changes and (x.source, x.from_) == (m.source, m.from_)
                                               for part in self.function.parts for x in members(part[0])):
                    way = "form"
                offset = call.offset(n) if image or not m.has("map") else 0
                self.apart.append((tuple(p.bounds()), tuple(target.bounds()), offset, way))

    def release(self):
        """Lets go of the arrays of the call that it was worked out for."""
        self.kept, self.call = self.call.kept, None
        return self

    # The call.

    def run(self, arrays, args, keywords):
        if self.detour:
            return self.around(args, keywords)
        for i, dtype in self.copies:
            arrays[i] = contiguous(arrays[i], dtype)
        if self.fresh:
            self.make(arrays)
        else:
            for indices, _ in self.outs:
                for i in indices:
                    if not arrays[i].flags.writeable:
                        raise ValueError(f"{self.function.name}: out is read-only; its strides are {arrays[i].strides}; "
                                         "leave out away, or write to a copy")
        at = [a.ctypes.data for a in arrays]
        for entry in self.apart:
            if overlap(entry, at):
                return self.together(arrays, at, args, keywords)
        return self.go(arrays, at)

    def room(self, args, keywords):
        """New memory for the results of the whole, with what calls that are given memory leave as it is."""
        arrays = []
        flatten((*args, *keywords.values()), arrays)
        self.make(arrays)
        if self.start and self.start[2] == 3:
            fill(arrays, *self.start, self.region)
        return self.made(arrays)

    def make(self, arrays):
        make, shape, dtype, planes, several = self.fresh
        for _ in range(several):
            arrays.extend(make((planes, *shape), dtype) if planes else (make(shape, dtype),))

    def made(self, arrays):
        out = [tuple(arrays[i] for i in indices) if planar else arrays[indices[0]] for indices, planar in self.outs]
        return self.tuple(*out) if len(out) > 1 else out[0]

    def go(self, arrays, at):
        if self.start:
            fill(arrays, *self.start, self.region)
        values = self.values.copy()
        for position, i, offset in self.slots:
            values[position] = at[i] + offset
        for position, indices, offset in self.sets:
            values[position] = (ctypes.c_void_p * len(indices))(*(at[i] + offset for i in indices))
        kept, found = [], []
        for position, size in self.buffers:
            memory = np.empty(size, np.uint8)
            kept.append(memory)
            values[position] = memory.ctypes.data
        for position, _, kind, count in self.results:
            room = kind() if type(kind) is type(ctypes.Structure) else \
                [np.zeros(n, k) for n, k in zip(count, kind)] if type(kind) is list else np.zeros(count or (), kind)
            found.append(room)
            values[position] = ctypes.addressof(room) if type(kind) is type(ctypes.Structure) else \
                (ctypes.c_void_p * len(room))(*(r.ctypes.data for r in room)) if type(room) is list else room.ctypes.data
        status = self.called(*values)
        if status:
            check(self.function, status, self.member)
        found = [tuple(getattr(r, f) for f, _ in r._fields_) if isinstance(r, ctypes.Structure) else
                 (r[0] if len(r) == 1 else tuple(r)) if type(r) is list else r if r.ndim else r.item() for r in found]
        out = [tuple(arrays[i] for i in indices) if planar else arrays[indices[0]] for indices, planar in self.outs]
        return self.tuple(*out, *found) if self.tuple else (out + found or [None])[0]

    def around(self, args, keywords):
        """A larger region than asked for, and a part of it."""
        region, part = self.detour
        out = keywords.get("out")
        found = self.function(*args, **{**keywords, "roi": tuple(region), "out": None})
        cut = lambda image: tuple(map(cut, image)) if isinstance(image, tuple) else image[part]
        if out is None:
            copied = lambda image: tuple(map(copied, image)) if isinstance(image, tuple) else image.copy()
            parts = copied(cut(found))
            return type(found)(*parts) if hasattr(found, "_fields") else parts
        fill = lambda to, image: [fill(*two) for two in zip(to, image)] if isinstance(to, tuple) else np.copyto(
            to[..., :3] if self.kept_alpha else to, image[..., :3] if self.kept_alpha else image)
        fill(out, cut(found))
        return type(found)(*out) if hasattr(found, "_fields") else out

    def together(self, arrays, at, args, keywords):
        """A call whose images overlap: in place where that is known to work, else from copies of what is overwritten."""
        form = None
        for entry in self.apart:
            inputs, targets, offset, way = entry
            if not overlap(entry, at):
                continue
            same = way and len(inputs) == len(targets) and all(
                at[i] + offset == at[t] for (i, *_), (t, *_) in zip(inputs, targets))
            if same and way == "form":
                form = True
            elif not same:
                for i, *_ in inputs:
                    arrays[i] = arrays[i].copy() if arrays[i].flags.c_contiguous else self.alike(arrays[i])
        if form:
            plan = self.in_place = self.in_place or self.function.plan(args, keywords, same=True).release()
            if all(e[3] for e in plan.apart):
                return plan.go(arrays, [a.ctypes.data for a in arrays])
        return self.go(arrays, [a.ctypes.data for a in arrays])

    @staticmethod
    def alike(array):
        """A copy with the same strides, as the plan has them."""
        low = sum(min(0, (n - 1) * s) for n, s in zip(array.shape, array.strides))
        high = sum(max(0, (n - 1) * s) for n, s in zip(array.shape, array.strides)) + array.itemsize
        found = np.ndarray(array.shape, array.dtype, np.empty(high - low, np.uint8), -low, array.strides)
        found[...] = array
        return found


def flatten(values, arrays):
    """The arrays among arguments, in the order in which a call numbers them."""
    for v in values:
        if isinstance(v, np.ndarray):
            arrays.append(v)
        elif isinstance(v, (tuple, list)):
            flatten(v, arrays)


def overlap(entry, at):
    inputs, targets, *_ = entry
    for i, low, high in inputs:
        for t, below, above in targets:
            if at[i] + low < at[t] + above and at[t] + below < at[i] + high:
                return True
    return False


def fill(arrays, source, target, channels, region):
    """The destination from the source's region: all of it, or its fourth channel or plane."""
    for i, t in (list(zip(source, target)) if channels == 4 else [(source[-1], target[-1])]):
        part = arrays[i][region]
        if channels == 3 and part.ndim == 3:
            arrays[t][..., 3] = part[..., 3]
        elif arrays[t].dtype != part.dtype:
            arrays[t].view(part.dtype)[...] = part
        else:
            arrays[t][...] = part
