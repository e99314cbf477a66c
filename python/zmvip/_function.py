"""Functions as Python has them: what the user says is bound to a member, and the plan of the call is kept."""
import numpy as np

from . import _api
from ._arrays import C_DTYPES, CODES, DTYPES, Picture
from ._call import Call
from ._members import members
from ._plan import Plan
from ._spec import Spec

PLANS = 1000


class Function:
    def __init__(self, name):
        self.name = name
        self.images, self.rows, self.extras, self.parts = _api.FUNCTIONS[name]
        self.named = {"value": ("value", None)}  # of constants in place of an image
        for python, c, default in self.rows[self.images:]:
            for alias in ("dstRoiSize", "dstSize") if python == "size" else (c,):
                self.named[alias] = python, None if default is None else eval(default, {})
        self.keywords = {n for n, _ in self.extras}
        self.plans = {}

    # The call.

    def __call__(self, *args, **keywords):
        arrays, key = [], []
        try:
            scan(args, arrays, key)
            for name, value in keywords.items():
                key.append(name)
                scan((value,), arrays, key)
            key = tuple(key)
            plan = self.plans.get(key)
        except TypeError:  # something that is not hashable, or no array yet
            args, keywords = tuple(map(plain, args)), {n: plain(v) for n, v in keywords.items()}
            return self(*args, **keywords)
        if plan is None:
            plan = self.plan(args, keywords)
            if plan.lasting:
                if len(self.plans) >= PLANS:
                    self.plans.clear()
                self.plans[key] = plan.release()
        return plan.run(arrays, args, keywords)

    def bind(self, args, keywords):
        """What the user says by name, with the number of every array among the call's."""
        names = [row[0] for row in self.rows]
        if len(args) > len(names):
            raise TypeError(f"{self.name}: takes {', '.join(names)}, not {len(args)} arguments")
        said, numbered, at = {}, {}, 0
        for name, value in [*zip(names, args), *keywords.items()]:
            if name not in names and name not in self.keywords:
                raise TypeError(f"{self.name}: takes no {name}; there are {', '.join([*names, *sorted(self.keywords)])}")
            if name in said:
                raise TypeError(f"{self.name}: {name} is given twice")
            here = at
            at += count(value)
            if value is not None:
                said[name], numbered[name] = value, tuple(range(here, at))
        return said, numbered

    def plan(self, args, keywords, same=False):
        """The plan of a call; same: whether the destination is the image that a form in place overwrites."""
        said, numbered = self.bind(args, keywords)
        spec = said.pop("spec", None)
        if spec is not None:
            if not isinstance(spec, Spec) or spec.engine is not self:
                raise TypeError(f"{self.name}: spec is no object of this function")
            said = {**spec.params, **said}
        missing = [n for n, _, default in self.rows if default is None and n not in said]
        if missing:
            raise TypeError(f"{self.name}: takes {missing[0]}")
        pictures, constant = {}, {}
        for n, _, _ in self.rows[:self.images]:
            value = said.pop(n)
            if is_image(value):
                pictures[n] = Picture(n, value, numbered[n])
            elif pictures and any(part[1] for part in self.parts):
                constant["value"] = value
            else:
                raise TypeError(f"{self.name}: {n} is no image, neither an array (h, w) or (h, w, channels) nor planes")
        call, options, given = self.choose(said, numbered, pictures, constant, spec, same)
        return Plan(self, call, options, given, pictures, numbered)

    def called(self, c_name):
        """An argument by its name in C as the user has it."""
        return self.named.get(c_name, (c_name,))[0]

    # The member.

    def choose(self, said, numbered, pictures, constant, spec, same):
        """The call of the member that takes these arrays and arguments; what is given for its destinations."""
        options = {k: said.pop(k) for k in (*self.keywords, "dtype") if k in said}
        given = self.outputs(options.pop("out", None), numbered.get("out"))
        wanted = np.dtype(options["dtype"]) if "dtype" in options else None
        alpha = bool(options.get("keep_alpha", False))
        first = next(iter(pictures.values()), given[0] if given else None)
        if self.images == 0 and "out" in self.keywords and not given:
            raise TypeError(f"{self.name}: takes out")
        found = [(m, part) for part in self.parts for m in members(part[0]) if bool(constant) == part[1] and
                 self.fits(m, first, len(pictures), given, wanted, options)]
        found = self.narrowed(found, given, wanted, alpha)
        in_place = [f for f in found if f[0].changes]
        found = in_place if same or len(in_place) == len(found) else [f for f in found if not f[0].changes]
        refusals = []
        for m, (_, _, makers, setters) in found:
            call = Call(self, m, makers, setters, {**said, **constant}, self.placed(m, pictures, given, said, options, numbered),
                        spec)
            reason = self.misses(call, said, makers, setters)
            if not reason:
                return call, options, given
            refusals.append(reason)
        raise TypeError(f"{self.name}: {refusals[0] if refusals else self.none(first, options, given, wanted)}")

    def outputs(self, out, indices):
        """Destinations that the caller gives: an image, or a tuple of as many as there are."""
        if out is None:
            return []
        several = max(len(m.writes) for part in self.parts for m in members(part[0]))
        if several < 2:
            return [Picture("out", out, indices)]
        if not isinstance(out, (tuple, list)) or len(out) != several:
            raise TypeError(f"{self.name}: out is a tuple of {several} arrays")
        return [Picture("out", x, indices[i:i + 1]) for i, x in enumerate(out)]

    def fits(self, m, first, pictures, given, wanted, options):
        if m.large or (m.changes and m.has("dstRoiSize")) or ("M" in m.letters) != ("mask" in options) or \
                m.of_channel != ("channel" in options) or len(m.reads) + len(m.changes) != pictures:
            return False
        if first is None or not m.source:
            return True
        if first.code != m.source or first.layout != m.from_.lstrip("A"):
            return False
        if given:
            return all(g.code == m.destination and g.layout == m.to.lstrip("A") for g in given)
        return (wanted is None or CODES.get(wanted) == m.destination) and (
            "layout" not in options or options["layout"] == m.to.lstrip("A"))

    def narrowed(self, found, given, wanted, alpha):
        """Of members that fit those that are meant: with or without alpha, of the same type, of the same layout."""
        fitting = [f for f in found if ("A" in f[0].to) == alpha]
        if not fitting and any(m.from_ in ("AC1", "AP4") for part in self.parts for m in members(part[0])):
            fitting = found  # of images whose fourth channel is alpha, there is no other kind
        if given:
            return fitting
        for test in (lambda m: m.destination == m.source, lambda m: m.to == m.from_):
            if any(test(f[0]) for f in fitting):
                fitting = [f for f in fitting if test(f[0])]
        kinds, layouts = ({getattr(f[0], k) for f in fitting} for k in ("destination", "to"))
        if len(kinds) > 1:
            raise TypeError(f"{self.name}: takes dtype, one of {', '.join(sorted(str(DTYPES[k]) for k in kinds))}")
        if len(layouts) > 1:
            raise TypeError(f"{self.name}: takes layout, one of {', '.join(sorted(layouts))}")
        return fitting

    def placed(self, m, pictures, given, said, options, numbered):
        """The images of a call by the names that they have in C."""
        names = m.reads + m.changes
        if any(part[1] for part in self.parts) and len(names) == 2 and m.facts["place"] == "second":
            names = names[::-1]  # the image that a constant goes with comes first here, and is the second in C
        placed = dict(zip(names, pictures.values()))
        placed.update(zip(m.writes, given))
        for a in m.arguments:
            if a.role in ("map", "mask"):
                python = self.named[a.name][0] if a.role == "map" else "mask"
                value = {**said, **options}[python]
                if not is_image(value):
                    raise TypeError(f"{self.name}: {python} is no array (h, w)")
                placed[a.name] = Picture(python, value, numbered[python]).of_type(C_DTYPES[a.type.split()[1].rstrip("*")])
        return placed

    def misses(self, call, said, makers, setters):
        """What a member lacks, or takes not: None if nothing."""
        served = [call.pick(f) for f in ([call.maker] if call.maker else []) + list(setters)]
        taken = {self.named.get(a.name, (a.name,))[0] for m in [call.member, *served] for a in m.arguments}
        extra = [n for n in said if n not in taken]
        if extra:
            return f"{call.member.name} takes no {extra[0]}"
        if makers and not call.maker:
            return f"takes what its object is made of: {self.made_of()}"
        for a in call.member.arguments:
            python, default = self.named.get(a.name, (None, None))
            if python and default is None and python not in call.params and a.role in ("constant", "number", "table", "kernel", "option"):
                return f"{call.member.name} takes {python}"
        return None

    def makes_of(self, m):
        """What a user says of the arguments of an initialiser, but sizes, which images have; by names in C."""
        return [a.name for a in m.arguments if a.name in self.named and a.role not in ("size", "rectangle") and
                not (a.name == "nLevels" and m.has("pLevels"))]

    def made_of(self):
        makers = dict.fromkeys(maker for part in self.parts for maker in part[2])
        return "; or ".join(", ".join(map(self.called, self.makes_of(members(maker)[0]))) for maker in makers)

    def none(self, first, options, given, wanted):
        """Why no member takes these arrays, and what there is."""
        rows = [m for part in self.parts for m in members(part[0]) if not m.large]
        shapes = {"C1": "(h, w)", "P3": "3 planes", "P4": "4 planes", "AC4": "(h, w, 4) with keep_alpha=True"}
        kinds = {}
        for m in rows:
            to = "" if m.destination == m.source else f" to {DTYPES.get(m.destination, m.destination)}"
            shape = shapes.get(m.from_, f"(h, w, {m.from_[-1:]})")
            shape += "" if m.to.lstrip("A") == m.from_.lstrip("A") else f" to {shapes.get(m.to, f'(h, w, {m.to[-1:]})')}"
            shape += " with mask" if "M" in m.letters else ""
            kinds.setdefault(f"{DTYPES.get(m.source, m.source)}{to}", {}).setdefault(shape)
        there = "; ".join(f"{kind}: {', '.join(s)}" for kind, s in kinds.items())
        here = f"{first.dtype} {shapes.get(first.layout, f'(h, w, {first.channels})')}" if first else "this"
        here += f" to {wanted}" if wanted is not None else "".join(f" to {g.dtype} {g.layout}" for g in given[:1])
        return f"no member takes {here}{' with ' + ', '.join(sorted(options)) if options else ''}; there are {there}"


def is_image(value):
    return isinstance(value, np.ndarray) and value.ndim > 1 or (
        isinstance(value, (tuple, list)) and bool(value) and all(isinstance(v, np.ndarray) and v.ndim > 1 for v in value))


def count(value):
    return 1 if isinstance(value, np.ndarray) else sum(map(count, value)) if isinstance(value, (tuple, list)) else 0


def scan(values, arrays, key):
    """Takes the arrays out of arguments, and makes a key of all of them: numbers by what they print, as -0 is not 0."""
    for x in values:
        kind = type(x)
        if kind is np.ndarray:
            arrays.append(x)
            key.append((x.dtype, x.shape, x.strides))
        elif kind is int or kind is str or x is None or kind is bool or isinstance(x, Spec):
            key.append(x)
        elif kind is float:
            key.append((repr(x),))
        elif kind is tuple or kind is list:
            key.append((kind, len(x)))
            scan(x, arrays, key)
        else:
            raise TypeError


def plain(value):
    """Arrays and numbers of other makes as NumPy's arrays and Python's numbers."""
    if isinstance(value, (tuple, list)):
        return type(value)(map(plain, value)) if type(value) in (tuple, list) else tuple(map(plain, value))
    if value is None or type(value) in (int, float, str, bool, np.ndarray) or isinstance(value, Spec):
        return value
    if isinstance(value, (np.dtype, type)):
        return np.dtype(value).name
    found = np.asarray(value)
    if found.dtype == object:
        raise TypeError(f"{value!r} is neither an array nor a number")
    return found.item() if found.ndim == 0 else found.view(np.ndarray)
