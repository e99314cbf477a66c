"""What zmvip.hpp has to know of a member: which roles its arguments have, one after the other, and what is left for the
user to pass.  The roles themselves are in include/zmvip_roles.hpp.  Nothing here knows a family."""
import re

from apijson import ENUMERATIONS, argument_name, groups, load, snake, word, word_of

TYPES = {"8u": "uint8_t", "8s": "int8_t", "16u": "uint16_t", "16s": "int16_t", "32u": "uint32_t", "32s": "int32_t",
         "64s": "int64_t", "64u": "uint64_t", "32f": "float", "64f": "double", "16sc": "Complex16s",
         "32sc": "Complex32s", "32fc": "Complex32f", "": "void"}
RESERVED = {"and", "auto", "bool", "char", "default", "delete", "double", "float", "int", "long", "new", "not", "or",
            "short", "switch", "this", "union", "xor"}
WIDE = {"ImageSize": "size", "ImagePoint": "point", "ImageRect": "rect"}


class Left(Exception):
    """What is left to C, and why."""


def safe(name, taken=()):
    return name + "_" if name in RESERVED or name in taken else name


def base(kind):
    """uint8_t of const uint8_t* const[3]."""
    return re.sub(r"\bconst\b|[ *]|\[.*", "", kind)


def of(text, *names):
    """A role of arguments of the user's, whose places are known when all are."""
    return lambda at: text.format(*map(at, names))


class Library:
    """Families, by what they are to one another."""

    def __init__(self, path):
        self.api, self.families = load(path)
        self.named = {f.name: f for f in self.families}
        self.members = {m.name: m for f in self.families for m in f.members}
        queries = {f.facts["query"] for f in self.families}
        self.groups = groups(self.families, lambda f: f.name not in queries and f.members[0].arguments and
                             all(m.result == "StatusCode" for m in f.members))
        self.functions = {safe(n) for n in self.groups}
        self.enums = {p: safe(p[:-1].lower(), self.functions) for p in ENUMERATIONS if p != "DATATYPE_"}

    @staticmethod
    def enumerator(prefix, w):
        return safe(prefix.lower() + w if w[0].isdigit() else w)

    def default_of(self, a, family):
        """The usual value; None where the user has to say."""
        usual, enum = word_of(a), self.enums.get(a.get("enumeration"))
        refused = any(a["name"] in r["arguments"] for r in family.facts["refusals"])
        if a["role"] not in ("option", "border", "scale") or (enum and usual == 0 and refused):
            return None
        if isinstance(usual, str):
            return f"{enum}::{self.enumerator(a['enumeration'], usual)}"
        return "{}" if enum else str(usual)

    # Objects.

    def makes(self, f):
        specs = [a for a in f.members[0].arguments if a["role"] == "spec object"]
        return bool(f.facts["query"] and not f.roles() & {"image", "planes"} and
                    [a["direction"] for a in specs] == ["out"])

    def tag(self, family):
        """What tells the objects of different families apart."""
        kind = base(next(a["type"] for m in family.members for a in m.arguments if a["role"] == "spec object"))
        init = self.named.get(family.facts["init"], family)
        stem = re.sub(r"^zmvi|_?Get(Buf(fer)?)?Size$", "", init.facts["query"])
        return kind if kind != "uint8_t" else snake(stem) + "_object"

    def told(self, f):
        """What a maker has to be told of images: whether the type, whether the number of channels."""
        arguments = [a for m in (f.members[0], self.query_of(f, f.members[0])) for a in m.arguments]
        return (bool(f.members[0].source) or any(a.get("enumeration") == "DATATYPE_" for a in arguments),
                any(a["name"] == "numChannels" for a in arguments))

    def spec(self, family, element):
        tag = self.tag(family)
        makers = [f for f in self.families if self.makes(f) and self.tag(f) == tag]
        return f"spec<{tag}, {element}>" if any(self.told(f)[0] for f in makers) else f"spec<{tag}>"

    # Services of a member.

    def query_of(self, family, m):
        return self.serving(family.facts["query"], m)

    def serving(self, name, m):
        rows = [q for q in self.named[name].members if not q.large]
        return next((q for q in rows if q.source == m.source), rows[0])

    def large(self, m):
        """The member for 64-bit sizes, where nothing but sizes differs: objects are made for the one or the other."""
        specs = any(a["role"] == "spec object" for a in m.arguments)
        return None if specs else getattr(self.members.get(m.name + "_L"), "name", None)

    def finder(self, family):
        """The service that says where the source of a tile is."""
        if any(a["name"] == "dstOffset" for a in family.members[0].arguments):
            return next((f for f in self.families if f.page == family.page and f.name.endswith("GetSrcOffset")), None)
        return None


def squares(prefix):
    """Words like 3x3, and their sides."""
    return {w: int(w[0]) for w in ENUMERATIONS.get(prefix, {}) if re.fullmatch(r"(\d)x\1", w)}


class List:
    """The arguments of an overload that follow its images: ways to write the type, name and default, by name in C."""

    def __init__(self):
        self.rows, self.results = {}, {}

    def add(self, c, kinds, name, default=None):
        self.rows[c] = [kinds if isinstance(kinds, list) else [kinds], name, default]

    def ordered(self):
        """Objects first, what has a default last."""
        return sorted(self.rows, key=lambda c: (self.rows[c][2] is not None, "spec<" not in self.rows[c][0][0]))

    def at(self, c):
        return self.ordered().index(c)


class Shape:
    """What a member takes: the roles of its arguments and of those of its query; the user's list."""

    def __init__(self, library, family, m, order=(), directions=()):
        self.library, self.family, self.m, self.order, self.directions = library, family, m, order, directions
        self.users, self.takes, self.checks, self.asks, self.finds = List(), [], [], [], []
        self.query = self.find = None
        self.named = {a["name"]: a for a in m.arguments}
        self.object = next((a for a in m.arguments if a["role"] == "spec object"), None)
        written = [i for i, d in enumerate(directions) if d != "in"]
        read = [i for i, d in enumerate(directions) if d == "in"] or written
        self.source, self.target = (read or [0])[0], (written or read or [0])[0]
        self.written = sum(1 << i for i in written)
        # The names of their types as the templates have them.
        self.S = None if not directions else "D" if written and self.source == self.target else "S"
        self.D = None if not directions else "D" if written else "S"
        self.makes = not directions and library.makes(family)
        # An image that grows in place: C is told where its old part begins, which users see as a part of the whole.
        self.grows = "inout" in directions and {"srcRoiSize", "dstRoiSize", "top", "left"} <= set(self.named)
        self.arguments()
        if directions:
            self.look()
        if "buffer" in {a["role"] for a in m.arguments} or self.makes:
            self.ask()

    def roles(self):
        """Arguments, checks, the query's and the finder's arguments: with the places of the user's in the list."""
        return tuple(tuple(r(self.users.at) if callable(r) else r for r in roles)
                     for roles in (self.takes, self.checks, self.asks, self.finds))

    def image_of(self, c):
        """The image that a size is the size of."""
        digits = re.match(r"src(\d)Size$", c)
        if digits:
            return self.order.index("src" + digits[1])
        if self.grows and c == "srcRoiSize":
            return None
        return {"dstRoiSize": self.target, "dstTileSize": self.target, "dstSize": self.target, "roiSize": self.source,
                "srcRoiSize": self.source, "srcSize": self.source}.get(c)

    # ---- The member's own arguments ----

    def arguments(self):
        finder, last = self.library.finder(self.family) if self.directions else None, None
        for a in self.m.arguments:
            c, role = a["name"], a["role"]
            if role in ("image", "planes"):
                last = f"step<{self.order.index(c)}>"
                tile = finder and c == self.order[self.source]
                self.takes.append(of("pixels_inside<{}, {}>", "top", "left") if self.grows else
                                  f"{'pixels_of_tile' if tile else 'pixels'}<{self.order.index(c)}>")
                self.checks += [f"planes_alike<{self.order.index(c)}>"] if role == "planes" else []
            elif role == "step":
                self.takes.append(last)
            elif role in ("mask", "map"):
                self.users.add(c, f"const view<const {base(a['type'])}>&", safe(argument_name(a)))
                self.takes.append(of("data_of<{}>", c))
                self.checks.append(of(f"as_large<{self.target}, {{}}>", c))
                last = of("step_of<{}>", c)
            elif role == "result" and not (a.get("count") and not a["count"].isdigit()):
                self.takes.append(f"out<{len(self.users.results)}>")
                self.users.results[c] = self.result(a)
            else:
                self.takes.append(self.implied(a) or self.passed(a))
        if finder:
            f = self.library.serving(finder.name, self.m)
            self.find = f.name
            self.finds = [{"result": "found", "point": f"place_of<{self.target}>"}.get(a["role"]) or
                          of("data_of<{}>", self.object["name"]) for a in f.arguments]

    def implied(self, a):
        """The role of what follows from images, or from the type and channels that a maker is told."""
        c, role = a["name"], a["role"]
        if self.makes and role in ("spec object", "init buffer"):
            return "object" if role == "spec object" else "work"
        if a.get("enumeration") == "DATATYPE_":
            return "target_code" if c.startswith("dst") else "source_code"
        if self.directions and role == "size" and self.image_of(c) is not None:
            return f"size_of<{self.image_of(c)}>"
        return {"numChannels": "channels", "buffer": "work", "dstOffset": f"place_of<{self.target}>",
                "roiOffset": f"place_of<{self.source}>"}.get(c) if self.directions or self.makes else None

    def passed(self, a):
        """The role of what the user passes, who gets a line in the list."""
        c, kind, role, S = a["name"], a["type"], a["role"], self.S
        name = safe(snake(c) if role == "size" else argument_name(a))
        default, enum = self.library.default_of(a, self.family), self.library.enums.get(a.get("enumeration"))
        bounds = re.search(r"\[.*", kind)
        if role == "spec object":
            spec = self.library.spec(self.family, f"detail::element<{S}>" if S else "T")
            self.users.add(c, f"{'const ' if a['direction'] == 'in' else ''}{spec}&", name)
            return of("data_of<{}>", c)
        if enum:
            self.users.add(c, enum, name, default)
            return of("border<{}>", c) if role == "border" and self.window() else of("value<{}>", c)
        if S and role in ("constant", "border value", "table") and not (bounds or a.get("count") or "* const*" in kind):
            self.users.add(c, self.numbers(a), name, "{}" if role == "border value" else None)
            return of("value<{}>", c)
        if role == "rectangle":
            self.users.add(c, "const rect&", name, "everything" if S else None)
            return of("part<{}, 0>" if S else "value<{}>", c)
        if c == "anchor":
            line = kind == "int"
            self.users.add(c, "int" if line else "point", name, "int(middle.x)" if line else "middle")
            mask = "maskSize" if "maskSize" in self.named else "kernelSize"
            return of("anchor_in_line<{}, {}>" if line else "anchor<{}, value<{}>>", c, mask)
        pointer = "*" in kind or bounds
        self.users.add(c, WIDE.get(base(kind)) if base(kind) in WIDE and not pointer else
                       kind[:bounds.start()] + "@" + bounds[0] if bounds else kind, name, default)
        return of("value<{}>", c)

    def numbers(self, a):
        """The ways to write the type of a number for all channels, or of one for each."""
        first = a["role"] == "border value"  # that is of the source
        images = [(TYPES[self.m.source], self.S), (TYPES[self.m.destination], self.D)][::1 if first else -1]
        kind, image = base(a["type"]), images[0][1]
        elements = [f"detail::element<{i}>" for t, i in images if t == kind] + [kind]
        if not any("*" in b["type"] for m in self.family.members for b in m.arguments if b["name"] == a["name"]):
            return list(dict.fromkeys(elements))
        own = [f"const pixel_of<{image}>&"] if kind == images[0][0] else []
        return own + list(dict.fromkeys(f"const pixel<{e}, {image}::layout>&" for e in elements))

    def result(self, a):
        kind, bounds = base(a["type"]), re.findall(r"\[(\d)\]", a["type"])
        if len(bounds) == 2:
            return f"table<{kind}, {bounds[0]}, {bounds[1]}>"
        if bounds or a.get("count"):
            return f"std::array<{kind}, {bounds[0] if bounds else a['count']}>"
        element = f"detail::element<{self.S}>" if kind == TYPES[self.m.source] else kind
        return f"detail::each<{element}, {self.S}>" if self.S else kind

    # ---- What is looked at before a call ----

    def look(self):
        sizes, extent = {a["name"] for a in self.m.arguments if a["role"] == "size"}, self.family.facts["extent"]
        if extent and "inout" not in self.directions:
            names = self.extent_names()
            role = lambda n, at: f"value<{at(n)}>" if self.image_of(n) is None else f"size_of<{self.image_of(n)}>"
            struct = snake(self.family.name[4:]) + "_extent"
            self.checks += [lambda at, i=i: f"sized<{i}, {struct}<{', '.join(role(n, at) for n in names)}>>"
                            for i, d in enumerate(self.directions) if d == "out"]
        elif len(self.order) > 1 and not sizes & {"srcSize", "srcRoiSize", "dstTileSize"}:
            self.checks.append(f"of_one_size<{', '.join(map(str, range(len(self.order))))}>")
        window, bordered = self.window(), any(a["role"] == "border" for a in self.m.arguments)
        if window:
            self.checks.append(lambda at: f"within_reach<{window(at)}, {'false' if bordered else 'true'}>")
        if self.object and self.object["direction"] == "in":
            self.checks.append(of(f"made_for<{{}}, {self.source}, {self.target}>", self.object["name"]))

    def extent_names(self):
        return [n for n in self.named if re.search(rf"\b{n}\b", self.family.facts["extent"])]

    def extent(self):
        """The struct that computes the extent of a destination, of the expression in C."""
        names = {n: n[0].upper() + n[1:] for n in self.extent_names()}
        lines = [f"template <{', '.join(f'class {role}' for role in names.values())}>",
                 f"struct {snake(self.family.name[4:])}_extent {{", "    template <class C>",
                 "    static size get(const C& c) {"]
        for n, role in names.items():
            number = f"int {n} = int({role}::get(c))"
            lines.append(f"        const {number if self.named[n]['role'] != 'size' else f'size {n} = {role}::get(c)'};")
        return lines + [f"        return {{{self.family.facts['extent']}}};", "    }", "};"]

    def window(self):
        """What tells which source pixels a pixel of the result takes; None if it is none but itself, or all."""
        facts, named = self.family.facts, self.named
        if facts["reach"] not in ("anchor", "fixed", "radius") or facts["extent"]:
            return None
        words = [n for n, a in named.items() if squares(a.get("enumeration"))]
        digits = re.search(r"(\d)x\1", self.family.name)
        if "maskSize" in named and named["maskSize"]["type"] == "int":
            line = "in_row<{}, {}>" if self.family.name.endswith("Row") else "in_column<{}, {}>"
            return of(line, "anchor", "maskSize")
        if "maskSize" in named or "kernelSize" in named:
            mask, names = "value<{0}>", ["maskSize" if "maskSize" in named else "kernelSize"]
        elif self.object or words:
            mask, names = ("kernel_of<{0}>", [self.object["name"]]) if self.object else ("named<{0}>", words)
        elif digits:
            mask, names = f"square<{digits[1]}>", []
        else:
            raise Left("nothing tells what it reads round a pixel")
        if "anchor" not in named:
            return of(f"window<{mask}>", *names)
        return of(f"{'mirrored' if 'pKernel' in named else 'window'}<{mask}, anchor<{{1}}, {mask}>>", *names, "anchor")

    # ---- The query of buffers and objects ----

    def ask(self):
        query = self.library.query_of(self.family, self.m) if self.family.facts["query"] else None
        if not query:
            raise Left("no query")
        self.asks = [self.asked(a) for a in query.arguments]
        self.query = query.name
        if None in self.asks and not self.object:
            raise Left("a query that asks for more")
        if None in self.asks:  # what the maker was told; the object remembers the answer
            self.asks, self.query = [of("remembered<{}>", self.object["name"])], None

    def asked(self, a):
        """The role of an argument of a query; None if nothing tells it."""
        c, role, enum = a["name"], a["role"], a.get("enumeration")
        if role == "result":  # of the buffer, the object, the initialiser's buffer
            return f"bytes<{2 if 'nit' in c else 1 if re.search('[Ss]pec|State', c) else 0}>"
        if enum == "DATATYPE_" and c.startswith("kernel"):
            return f"constant<DATATYPE_{self.m.source.upper()}>" if self.makes else None
        if c in ("roiWidth", "width"):
            return f"width_of<{self.target}>"
        if role == "spec object":
            return of("data_of<{}>", self.object["name"])
        if self.implied(a) or c in self.users.rows:
            return self.implied(a) or of("value<{}>", c)
        if not self.makes:
            return None
        if role == "size":
            self.users.add("largest", "size", "largest")
            return of("value<{}>", "largest")
        if role == "option":  # the maker's name says it
            name = self.family.name.lower()
            words = [v["name"] for e in self.library.api["enumerations"] if e["prefix"] == enum for v in e["values"]
                     if word(enum, v["name"]) in name]
            return f"constant<{words[0] if words else int(not enum and c.lower() in name)}>"
        return None
