"""The call of a member: what every argument of it is, and of the members that serve it: its query, its initialiser."""
import ctypes
import re
from math import prod

import numpy as np

from . import _api
from ._arrays import number, numbers
from ._library import ctype, exported
from ._members import check, members, pair, word
from ._regions import Regions


class Call(Regions):
    """One member, and what its arguments are; of the members that serve it, too: its query, its initialiser."""

    def __init__(self, function, member, makers, setters, params, pictures, spec):
        self.function, self.member, self.params, self.setters, self.spec = function, member, params, setters, spec
        self.kept, self.flags, self.roi = [], 0, None
        self.pictures = pictures  # of the arguments of the member, by their names in C
        self.source = next((pictures[n] for n in member.reads + member.changes if n in pictures), None)
        self.large = member.large
        self.maker = max((m for m in makers if self.makes(m) >= 0), key=self.makes, default=None)
        self.whole = None

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

    def source_offset(self):
        point = self.asked("GetSrcOffset", "srcOffset")
        return (point.x, point.y) if point else (0, 0)

    def source_region(self):
        """The pixels of the source that the region of the result takes."""
        return self.asked("GetSrcRoi", "srcRoi")

    def service(self, ending):
        """The service of the call's page whose name ends so; None if there is none."""
        page = self.member.facts["page"]
        return next((f for f, facts in _api.FACTS.items() if facts["page"] == page and f.endswith(ending)), None)

    def asked(self, ending, result):
        family = self.service(ending)
        return family and self.serve(family)[result]

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
            value = word(python, value, a.enumeration)
            if value & _api.CONSTANTS["BORDER_IN_MEM"]:  # would be believed
                raise ValueError(f"{self.function.name}: {python}: which sides lie in memory follows from roi")
            return value | self.flags
        if a.role == "option":
            return word(python, value, a.enumeration)
        if a.name == "nLevels" and self.value("pLevels") is not None:
            return np.array([len(x) for x in self.per_channel("pLevels")], np.intc)
        if a.role == "table" and "* const*" in a.type:
            lengths = [len(x) for x in self.per_channel("pLevels")] if a.count else [None] * 4
            return self.addresses([numbers(python, x, a.type.split()[1].rstrip("*"), n)
                                   for x, n in zip(self.per_channel(a.name), lengths)])
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
        channels = self.used(self.member.from_)
        found = list(value) if np.ndim(value[0]) else [value] * channels
        if len(found) != channels or any(np.ndim(v) != 1 for v in found):
            raise ValueError(f"{self.function.called(c_name)}: takes an array, or {channels} of them, one a channel")
        return found

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
            if found.shape != (self.used(layout),):
                raise ValueError(f"{python}: takes {self.used(layout)} numbers, not {found.size}")
            if a.role != "table":
                found = np.concatenate([found, np.zeros(4, found.dtype)])  # of AC4 three or four may be read
        self.kept.append(found)
        return found
