"""The call of a function by its name in Python: which member it is, and what every argument of that is.  All of this is
worked out once for arrays of the same types, shapes and strides with the same other arguments, and kept as a Plan."""
import ctypes
import re
import warnings
from collections import namedtuple
from functools import lru_cache
from math import prod

import numpy as np

from . import _api
from ._arrays import number, numbers
from ._library import ctype, exported, refused, warned

exported = lru_cache(None)(exported)
Roi = namedtuple("Roi", "x y width height")
Argument = namedtuple("Argument", "name type role direction enumeration count")
SHAPES = lru_cache(None)(lambda shape: tuple(Argument(*a) for a in _api.SHAPES[shape]))
LIMIT = 2**31 - 1


class Member:
    def __init__(self, row, family):
        self.name, shape, self.source, self.destination, self.from_, self.to, self.letters, self.large, _ = row
        self.arguments, self.family = SHAPES(shape), family
        self.facts = _api.FACTS[family]
        of = lambda *directions: [a.name for a in self.arguments if a.role in ("image", "planes") and
                                  a.direction in directions]
        self.reads, self.changes, self.writes = of("in"), of("inout"), of("out")
        self.of_channel = self.letters.startswith("C")  # the only one of an image that it reads or writes

    def has(self, name):
        return any(a.name == name or a.role == name for a in self.arguments)

    def steps(self):
        free = self.facts["freeSteps"].split()
        return "any" if {"*", self.letters, self.to + self.letters} & set(free) else self.facts["steps"]


@lru_cache(None)
def members(family):
    found = tuple(Member(row, family) for row in _api.FAMILIES[family])
    if any(m.of_channel for m in found):  # there, C1C3 is one of three channels, too
        for m in found:
            m.of_channel |= m.from_ != m.to and "C1" in (m.from_, m.to)
    return found


def check(function, status, member):
    if status < 0:
        raise refused(function, member.name, member.family, status)
    if status > 0:
        warnings.warn(warned(function, member.name, member.family, status), stacklevel=7)


def word(name, value, enumeration):
    """The value of an option: a number, or words, which may be joined by |."""
    if not isinstance(value, str):
        return number(name, value, "int64_t")
    words = _api.ENUMERATIONS[enumeration] if enumeration else {}
    unknown = [w for w in value.split("|") if w not in words]
    if unknown:
        raise ValueError(f"{name}: {unknown[0]!r} is none of {', '.join(words)}")
    found = 0
    for w in value.split("|"):
        found |= words[w]
    return found


def pair(name, value):
    """A size or a point: two numbers, or one for both."""
    x, y = (value, value) if np.ndim(value) == 0 else value
    return number(name, x, "int64_t"), number(name, y, "int64_t")


class Call:
    """One member, and what its arguments are; of the members that serve it, too: its query, its initialiser."""

    def __init__(self, function, member, makers, setters, params, pictures, spec):
        self.function, self.member, self.params, self.setters, self.spec = function, member, params, setters, spec
        self.kept, self.flags, self.roi = [], 0, None
        self.pictures = pictures  # of the arguments of the member, by their names in C
        self.source = next((pictures[n] for n in member.reads + member.changes if n in pictures), None)
        self.large = member.large
        self.maker = max((m for m in makers if self.makes(m) >= 0), key=self.makes, default=None)
        self.whole = None

    # What is known of sizes.

    def makes(self, maker):
        """How many arguments of the user's an initialiser takes, -1 if one of its own is missing."""
        names = self.function.makes_of(self.pick(maker))
        if any(self.value(n) is None for n in names):
            return -1
        return sum(self.function.called(n) in self.params for n in names)

    def value(self, c_name):
        """What the user said of an argument by its name in C, or what stands for it."""
        python, default = self.function.named.get(c_name, (None, None))
        return self.params.get(python, default) if python else None

    def extent(self):
        """Width and height of the whole destination, or of what is read where nothing is written."""
        m, first = self.member, self.source
        if m.has("map"):
            return self.pictures["pxMap"].width, self.pictures["pxMap"].height
        if m.facts["extent"] and not m.changes:
            names = {a.name: self.argument(a) for a in m.arguments if a.role in ("option", "size") and
                     a.name not in ("dstRoiSize", "dstSize")}
            spaces = {**_api.CONSTANTS, "abs": abs, "labs": abs, **names}
            return tuple(int(eval(e, {"__builtins__": {}}, spaces)) for e in m.facts["extent"])
        if self.value("dstRoiSize") is not None or self.value("dstSize") is not None:
            return pair("size", self.params["size"])
        if self.sized() or first is None:
            out = self.pictures.get((m.writes or m.reads)[0])
            if out is None or self.roi is not None:
                raise TypeError(f"{self.function.name}: takes out, or size=(width, height)")
            return out.width, out.height
        return first.width, first.height

    def sized(self):
        """Whether the user says how large the destination is."""
        return self.function.named.get("dstRoiSize") or self.function.named.get("dstSize")

    def size(self, name):
        """An argument that is a size, as (width, height)."""
        if self.value(name) is not None:
            return pair(name, self.value(name))
        digits = re.match(r"src(\d?)(Roi)?Size$", name)
        if digits and (digits[1] or self.source):
            picture = self.pictures[f"src{digits[1]}"] if digits[1] else self.source
            return (picture.width, picture.height) if not self.sliced() else self.roi[2:]
        if name == "kernelSize" and self.value("pKernel") is not None:
            return np.shape(self.value("pKernel"))[::-1]
        if name in ("dstSize",) or (name == "dstRoiSize" and self.mode() == "crop"):
            return self.whole
        if name == "roiSize" and self.member.facts["extent"] and not self.member.changes:
            return self.source.width, self.source.height
        if name in ("roiSize", "dstRoiSize", "dstTileSize"):
            return self.roi[2:]
        if name in ("width", "roiWidth"):
            return self.roi[2:3]
        raise TypeError(f"{self.function.name}: takes {self.function.named.get(name, (name,))[0]}")

    # Regions.

    def mode(self):
        """How a region of the result is worked: tiles of its own argument, slices of all images, or a part of the whole."""
        m = self.member
        if m.has("dstOffset"):
            return "offset"
        if m.has("map"):
            return "maps"
        if (m.facts["extent"] and not m.changes) or not m.facts["tiles"] or m.has("srcRoiSize") or m.has("src1Size") or \
                (m.facts["reach"] == "whole" and m.writes):
            return "crop"
        return "slice"

    def sliced(self):
        return self.mode() == "slice"

    def reach(self):
        """How many pixels to the left, the right, above and below a pixel take part; None if nothing tells."""
        m, reach = self.member, self.member.facts["reach"]
        if reach == "fixed":
            text = f"{m.family} "
            for a in m.arguments:
                words = _api.ENUMERATIONS.get(a.enumeration, {})
                if a.role == "option" and any(re.search(r"\dx\d", w) for w in words):
                    value = word(a.name, self.value(a.name), a.enumeration)
                    text = next((w for w, v in words.items() if v == value), "")
            found = re.search(r"(\d)x(\d)", text)
            return (int(found[1]) // 2,) * 2 + (int(found[2]) // 2,) * 2 if found else None
        if reach == "anchor":
            kernel = self.value("pKernel")
            w, h = self.size("kernelSize") if kernel is not None else pair("mask_size", self.value("maskSize"))
            anchor = self.value("anchor")
            if m.has("anchor") and any(a.name == "maskSize" and a.type == "int" for a in m.arguments):
                x = (w - 1) // 2 if anchor is None else anchor
                return (x, w - 1 - x, 0, 0) if m.family.endswith("Row") else (0, 0, x, w - 1 - x)
            x, y = ((w - 1) // 2, (h - 1) // 2) if anchor is None else pair("anchor", anchor)
            if kernel is not None and m.has("anchor"):
                x, y = w - 1 - x, h - 1 - y
            return x, w - 1 - x, y, h - 1 - y
        return None if reach == "radius" else (0, 0, 0, 0)

    def around(self):
        """The region that has to be worked for the one that is asked for, and the flags of the sides in memory."""
        if self.mode() == "crop":
            return Roi(0, 0, *self.whole), 0
        if self.mode() != "slice" or self.member.facts["reach"] in ("none", "whole"):
            return self.roi, 0
        (x, y, w, h), (width, height), reach = self.roi, self.whole, self.reach()
        if reach is None:
            return Roi(0, 0, width, height), 0
        left, right, top, bottom = reach
        if not self.member.has("border"):
            x2, y2 = x + w, y + h
            if x < left or y < top or x2 + right > width or y2 + bottom > height:
                raise ValueError(
                    f"{self.member.name} reads neighbours from the image, which has to hold them: the largest roi is "
                    f"({left}, {top}, {width - left - right}, {height - top - bottom})")
            return self.roi, 0
        x2, y2 = x + w, y + h
        x, y = x if x >= left else 0, y if y >= top else 0
        x2, y2 = x2 if width - x2 >= right else width, y2 if height - y2 >= bottom else height
        words = _api.ENUMERATIONS["BORDER_"]
        flags = sum(words[f"in_mem_{side}"] for side, inside in
                    (("left", x > 0), ("top", y > 0), ("right", x2 < width), ("bottom", y2 < height)) if inside)
        return Roi(x, y, x2 - x, y2 - y), flags

    def offset(self, name):
        """Where the first pixel that a function is told of lies in an array."""
        picture, mode = self.pictures[name], self.mode()
        if mode == "slice" or (mode == "maps" and name in ("pxMap", "pyMap")):
            x, y = (self.roi.x, self.roi.y) if name not in self.member.writes + self.member.changes else (0, 0)
        elif mode == "offset" and name in self.member.reads:
            x, y = self.source_offset()
        else:
            x = y = 0
        return y * picture.step + x * picture.pixel

    def source_offset(self):
        page = self.member.facts["page"]
        family = next((f for f, facts in _api.FACTS.items() if facts["page"] == page and f.endswith("GetSrcOffset")), None)
        if not family:
            return 0, 0
        point = self.serve(family)["srcOffset"]
        return point.x, point.y

    # Members that serve this one.

    def pick(self, family):
        """The member of a family of services that goes with the call's."""
        kernel = self.value("pKernel")
        rows = [m for m in members(family) if m.large == self.large] or list(members(family))
        code = self.source.code if self.source else ""
        if kernel is not None and any(m.has("kernel") for m in rows):
            code = code if code.endswith("f") else "16s" if np.asarray(kernel).dtype.kind in "iub" else "32f"
        return next((m for m in rows if m.source == code), None) or next((m for m in rows if not m.source), rows[0])

    def serve(self, family):
        """Calls a service of the call, and gives its results by name."""
        m, results, values = self.pick(family), {}, []
        for a in m.arguments:
            if a.role == "result":
                kind = ctype(a.type.rstrip("*")) or ctypes.c_int
                results[a.name] = kind()
                values.append(ctypes.byref(results[a.name]))
            elif a.role == "spec object":
                values.append(self.object())
            else:
                values.append(self.passed(self.argument(a, m)))
        check(self.function, exported(m.name)(*values), m)
        return {n: getattr(v, "value", v) for n, v in results.items()}

    def sizes(self, family):
        """What a query reports: of the buffer, the spec object, the buffer of the initialiser."""
        return {("init" if "nit" in n else "spec" if re.search("[Ss]pec|State", n) else "buffer"): v
                for n, v in self.serve(family).items()} if family else {}

    def object(self):
        """The address of the spec object: made now, or kept by the caller's."""
        if not self.maker:
            raise TypeError(f"{self.function.name}: takes what one of its makers takes: " +
                            "; ".join(self.function.made_of()))
        m = self.pick(self.maker)
        words = []
        for a in m.arguments:
            if a.role not in ("spec object", "init buffer"):
                words.append(self.argument(a, m))
        key = (m.name, repr([(v.x, v.y) if hasattr(v, "x") else (v.width, v.height) if hasattr(v, "width") else v
                             for v in words if not isinstance(v, (np.ndarray, ctypes.Array))]), self.large)
        made = self.spec.objects if self.spec else self.__dict__.setdefault("own", {})
        if key not in made:
            sizes = self.sizes(m.facts["query"])
            memory = np.zeros(sizes["spec"] + 64, np.uint8)
            at = -memory.ctypes.data % 64 + memory.ctypes.data
            scratch = np.empty(sizes.get("init", 0) + 64, np.uint8)
            rest = iter(words)
            values = [at if a.role == "spec object" else scratch.ctypes.data if a.role == "init buffer" else
                      self.passed(next(rest)) for a in m.arguments]
            check(self.function, exported(m.name)(*values), m)
            for s in self.setters:
                self.set(members(s)[0], at)
            made[key] = memory, at
        memory, at = made[key]
        self.kept.append(memory)
        return at

    def set(self, m, at):
        said = [a.name for a in m.arguments if a.role != "spec object" and self.value(a.name) is not None]
        if said:
            values = [at if a.role == "spec object" else self.argument(a, m) if a.name in said else 0 for a in m.arguments]
            check(self.function, exported(m.name)(*values), m)

    # Arguments.

    def channels(self):
        return self.source.channels if self.source else 1

    def used(self, layout):
        return 3 if layout.startswith("AC4") and self.member.facts["page"] != "alpha" else int(layout[-1]) if layout else 1

    def structure(self, kind, values):
        return ctype(kind)(*values) if kind.startswith("Image") else values[0]

    def argument(self, a, of=None):
        """What an argument is that stays the same from call to call."""
        of, value = of or self.member, self.value(a.name)
        python = self.function.named.get(a.name, (a.name,))[0]
        if a.role == "size":
            return self.structure(a.type, self.size(a.name))
        if a.name == "dstOffset":
            return self.structure(a.type, self.roi[:2])
        if a.name == "roiOffset" and not a.name in self.function.named:
            return self.structure(a.type, self.roi[:2])
        if a.role == "point":
            if value is None:  # the middle
                w, h = self.size("kernelSize" if of.has("kernelSize") else "maskSize")
                value = ((w - 1) // 2, (h - 1) // 2)
            return self.structure(a.type, pair(python, value))
        if a.role == "rectangle":
            value = (0, 0, self.source.width, self.source.height) if value is None else value
            return ctype(a.type)(*(number(python, v, "int64_t") for v in value))
        if a.enumeration == "DATATYPE_":
            code = self.member.destination if a.name.startswith("dst") else self.member.source
            if a.name.startswith("kernel") and self.maker:
                code = self.pick(self.maker).source
            return _api.ENUMERATIONS["DATATYPE_"].get(code, 0)
        if a.name == "numChannels":
            counts = next((b for b in of.arguments if b.name == "nLevels"), None)
            return len(self.argument(counts, of)) if counts else self.channels()
        if a.role in ("option", "border") and value is None and of is not self.member:
            return self.named_by_maker(a)
        if a.role == "border":
            return word(python, value, a.enumeration) | self.flags
        if a.role == "option":
            return word(python, value, a.enumeration)
        if a.name == "nLevels" and self.value("pLevels") is not None:
            return np.array([len(x) for x in self.per_channel("pLevels")], np.intc)
        if a.role == "table" and "* const*" in a.type:
            return self.addresses([numbers(python, x, a.type.split()[1].rstrip("*")) for x in self.per_channel(a.name)])
        if a.role == "kernel":
            return numbers(python, value, a.type.split()[1].rstrip("*"))
        if a.role in ("table", "constant", "border value") and re.search(r"\*|\[", a.type):
            return self.table(a, python, value)
        if value is None and a.role == "border value":
            value = 0
        if value is None:
            raise TypeError(f"{self.function.name}: takes {python}")
        return number(python, value, a.type)

    def named_by_maker(self, a):
        """An option that only the query takes: the initialiser's name says it."""
        name = self.pick(self.maker).name.lower() if self.maker else ""
        words = _api.ENUMERATIONS.get(a.enumeration, {})
        if not words:
            return int(a.name.lower() in name)
        return next((v for w, v in words.items() if w in name), 0)

    def per_channel(self, c_name):
        """Arrays of the user's, one a channel; one alone stands for all."""
        value = self.value(c_name)
        nested = [np.ndim(v) > 0 for v in value]
        return list(value) if all(nested) else [value] * self.used(self.member.from_)

    def passed(self, value):
        """What ctypes takes for an argument; arrays stay while the call does."""
        self.kept.append(value)
        return value.ctypes.data if isinstance(value, np.ndarray) else value

    def addresses(self, arrays):
        self.kept += arrays
        found = (ctypes.c_void_p * len(arrays))(*(x.ctypes.data for x in arrays))
        self.kept.append(found)
        return found

    def table(self, a, python, value):
        """Numbers of the user's behind a pointer: as many as type, layout or count say."""
        if value is None:
            return None
        kind = re.sub(r"^const |[ *\[].*", "", re.sub(r"^const ", "", a.type))
        bounds = [int(n) for n in re.findall(r"\[(\d)\]", a.type)]
        count = int(eval(a.count, {"__builtins__": {}}, {b.name: self.argument(b) for b in self.member.arguments
                                                         if b.role == "number"})) if a.count else None
        if "* const[" in a.type:  # an array a channel
            one = self.value(a.name)
            tables = [one] * bounds[0] if np.ndim(one[0]) == 0 else list(one)
            if len(tables) < bounds[0]:
                raise ValueError(f"{python}: takes {bounds[0]} tables, not {len(tables)}")
            return self.addresses([numbers(python, t, kind, count) for t in tables])
        if count:
            if "24u" in self.member.name:
                count *= 3
            found = numbers(python, value, kind, count)
        elif bounds:
            found = numbers(python, value, kind, prod(bounds))
            if found.shape != tuple(bounds):
                raise ValueError(f"{python}: takes numbers of the shape {tuple(bounds)}, not {found.shape}")
        else:
            layout = self.member.to or self.member.from_
            found = numbers(python, value, kind, self.used(layout))
        self.kept.append(found)
        return found
