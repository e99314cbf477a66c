#!/usr/bin/python3
"""Prints what the Python package has of the library: tools/python.py api.json FOLDER writes _api.py (members, facts and
the functions that are made of them), _docs.py, __init__.pyi and raw.pyi.  Nothing here knows a family: what it does not
find in the roles and facts of api.json stays with zmvip.raw."""
import re
import sys
from pathlib import Path

from apijson import ENUMERATIONS, RENAMED, argument_name, groups, load, makers, word_of

# Arguments that the package works out by itself: by role, or by a name that stands for one thing in all families.
IMPLIED_ROLES = {"image", "planes", "step", "buffer", "spec object", "init buffer", "result", "mask"}
IMPLIED = {"roiSize", "srcRoiSize", "srcSize", "src1Size", "src2Size", "width", "height", "roiWidth", "dstTileSize",
           "dstOffset", "roiOffset", "numChannels", "nLevels"}
TYPES = {"8u": "uint8", "8s": "int8", "16u": "uint16", "16s": "int16", "32u": "uint32", "32s": "int32", "64s": "int64",
         "64u": "uint64", "32f": "float32", "64f": "float64", "32fc": "complex64"}


def implied(argument, siblings):
    name = argument["name"]
    if name == "nLevels":  # the lengths of the levels, where there are any
        return any(a["name"] == "pLevels" for a in siblings)
    if name == "kernelSize":
        return any(a["role"] == "kernel" for a in siblings)
    return argument["role"] in IMPLIED_ROLES or name in IMPLIED or argument.get("enumeration") == "DATATYPE_"


def parameters(arguments, facts):
    """What a user of these arguments says: (Python's name, C's name, default), the default None if there is none."""
    found = []
    if not {a["role"] for a in arguments} & {"image", "planes", "spec object"}:  # a service: nothing to take it from
        return [(argument_name(a), a["name"], None) for a in arguments if a["role"] != "result"]
    sized = any(a["role"] in ("size", "map") and re.match(r"src\w*Size", a["name"]) or a["role"] == "map"
                for a in arguments)
    for a in arguments:
        if implied(a, arguments) or (RENAMED.get(a["name"]) == "size" and
                                     (not sized or any(b["role"] == "map" for b in arguments))):
            continue
        default = None
        refused = any(a["name"] in r["arguments"] for r in facts["refusals"])
        if a["role"] in ("scale", "option", "border") and not (refused and word_of(a) == 0 and a.get("enumeration")):
            default = repr(word_of(a))
        elif a["role"] in ("border value", "rectangle") or a["name"] in ("anchor", "dstRoiSize", "dstSize"):
            default = "None"
        found.append((argument_name(a), a["name"], default))
    return found


def signature(parts, families):
    """Names of images and the other parameters of a group: (Python's name, names in C, default or None)."""
    images = max(f.images() for f, _ in parts)
    everywhere, params = None, {}
    for f, constant in parts:
        inits, setters = makers(f, families)
        forms = [parameters(m.arguments, f.facts) for m in f.offered()]
        forms = [form + parameters(m.arguments, i.facts) for form in forms for i in inits for m in i.members] if inits else forms
        extra = [p for s in setters for p in parameters(s.members[0].arguments, s.facts)]
        for form in forms:
            form = [p for p in form if not (constant and p[1] == "value")]
            for python, c, default in form:
                params.setdefault(python, (c, default))
            required = {p[0] for p in form if p[2] is None}
            everywhere = required if everywhere is None else everywhere & required
        for python, c, default in extra:
            params.setdefault(python, (c, "None"))
    targets = {}
    for f, _ in parts:
        for m in f.offered():
            targets.setdefault(m.source, set()).add(m.destination)
    names = ["img"] if images == 1 else ["a", "b", "c", "d"][:images]
    rows = [(n, "", None) for n in names]
    rows += [(n, c, None) for n, (c, d) in params.items() if d is None and n in everywhere]
    if any(len(t) > 1 for t in targets.values()):
        rows.append(("dtype", "", "None"))
    rows += sorted(((n, c, d or "None") for n, (c, d) in params.items() if not (d is None and n in everywhere)),
                   key=lambda row: row[0] != "size")
    return len(names), rows


def keywords(parts):
    """Keywords that go with images."""
    members = [m for f, _ in parts for m in f.offered()]
    roles = set.union(*(f.roles() for f, _ in parts))
    if not roles & {"image", "planes"}:
        return []
    writes = any(a["role"] in ("image", "planes") and a["direction"] != "in" for m in members for a in m.arguments)
    layouts = {}
    for m in members:
        layouts.setdefault(m.layouts[0], set()).add(m.layouts[1])
    return ([("out", "None")] if writes else []) + [("roi", "None")] + \
        ([("mask", "None")] if "mask" in roles else []) + \
        ([("channel", "None")] if any(m.letters.startswith("C") for m in members) else []) + \
        ([("layout", "None")] if any(len(t) > 1 for t in layouts.values()) else []) + \
        ([("keep_alpha", "False")] if any("A" in m.layouts[0] + m.layouts[1] for m in members) else []) + \
        ([("spec", "None")] if "spec object" in roles else [])


def class_name(parts):
    return parts[0][0].name.removeprefix("zmvi").replace("Border", "").replace("_", "")


def python_expression(text):
    """An expression in C as one in Python."""
    text = re.sub(r"^(.*?) \? (.*?) : (.*)$", r"(\2) if (\1) else (\3)", text.strip())
    return text.replace("/", "//")


def row(m, shapes):
    shape = tuple((a["name"], a["type"], a["role"], a["direction"], a.get("enumeration", ""), a.get("count", ""))
                  for a in m.arguments)
    return (m.name, shapes.setdefault(shape, len(shapes)), m.source, m.destination, *m.layouts,
            m.letters, m.large, m.result)


def print_table(api, families, found):
    shapes, lines = {}, []
    rows = {f.name: [row(m, shapes) for m in f.members] for f in families}
    facts = {f.name: {k: f.facts[k] for k in ("steps", "freeSteps", "place", "query", "init", "reach", "tiles", "combine")} |
             {"extent": tuple(map(python_expression, f.facts["extent"].split(","))) if f.facts["extent"] else (),
              "refusals": [(r["status"], r["arguments"], r["condition"]) for r in f.facts["refusals"]],
              "warnings": [(w["status"], w["condition"]) for w in f.facts["warnings"]], "page": f.page}
             for f in families}
    table = {}
    for name, parts in found.items():
        images, rows_of = signature(parts, families)
        table[name] = (images, tuple(rows_of), tuple(keywords(parts)),
                       tuple((f.name, constant, tuple(i.name for i in makers(f, families)[0]),
                              tuple(s.name for s in makers(f, families)[1])) for f, constant in parts))
    specs = {class_name(p): n for n, p in found.items() if any(f.facts["init"] for f, _ in p)}
    lines.append('"""What the library has; printed by tools/python.py from api.json."""')
    lines.append(f"VERSION = {api['version']['text']!r}")
    lines.append(f"STATUSES = {({s['value']: (s['name'], s['sentence']) for s in api['statuses']})!r}")
    constants = {v["name"]: v["value"] for e in api["enumerations"] for v in e["values"]}
    lines.append(f"CONSTANTS = {constants!r}")
    lines.append(f"ENUMERATIONS = {ENUMERATIONS!r}")
    lines.append(f"STRUCTS = {({s['name']: [(x['name'], x['type']) for x in s['fields']] for s in api['structs']})!r}")
    lines.append("SHAPES = (" + "".join(f"\n    {s!r}," for s in shapes) + ")")
    lines.append("FAMILIES = {" + "".join(f"\n    {n!r}: {tuple(r)!r}," for n, r in rows.items()) + "}")
    lines.append("FACTS = {" + "".join(f"\n    {n!r}: {f!r}," for n, f in facts.items()) + "}")
    lines.append("FUNCTIONS = {" + "".join(f"\n    {n!r}: {f!r}," for n, f in table.items()) + "}")
    lines.append(f"SPECS = {specs!r}")
    return "\n".join(lines) + "\n", table


def forms(f):
    """The members of a family in Python's words: one line for each set of layouts."""
    by_types = {}
    for m in f.offered():
        source, to = m.layouts
        words = source + ("" if source == to else " to " + to) + (" in place" if "I" in m.letters else "") + \
            (" with mask" if "M" in m.letters else "") + (" of a channel" if m.letters.startswith("C") else "")
        types = TYPES.get(m.source, m.source) + ("" if m.source == m.destination else " to " + TYPES[m.destination])
        if types:
            by_types.setdefault(words.strip(), {}).setdefault(types, 0)
    by_list = {}
    for layout, types in by_types.items():
        by_list.setdefault(", ".join(types), []).append(layout)
    return [f"  {', '.join(layouts)}: {types}" for types, layouts in by_list.items()]


def documentation(parts, found, families):
    blocks = []
    for f, constant in parts:
        lines = [f"{f.name}{' (a constant in place of the second image)' if constant else ''}: {f.banner}"]
        inits, setters = makers(f, families)
        lines += [f"{i.name}: {i.banner}" for i in inits + setters]
        lines += ["Layouts and types:"] + forms(f) if any(m.layouts[0] for m in f.members) else []
        blocks.append("\n".join(lines))
    return "\n\n".join(blocks)


def annotation(name, c, parts, families):
    arguments = [a for f, _ in parts for g in [f, *makers(f, families)[0], *makers(f, families)[1]]
                 for m in g.members for a in m.arguments if a["name"] == c]
    role = arguments[0]["role"] if arguments else ""
    if name == "dtype":
        return "DTypeLike"
    if role in ("option", "border"):
        words = [w for w in ENUMERATIONS.get(arguments[0].get("enumeration"), {}) if not w.startswith("in_mem")]
        free = "str | int" if role == "option" else "int"  # flags may be joined; which sides are in memory follows
        return ("Literal[" + ", ".join(f'"{w}"' for w in words) + f"] | {free}") if words else "int"
    if role == "size":
        return "int | tuple[int, int]"
    if role in ("constant", "border value"):
        return "Constant"
    return {"scale": "int", "point": "int | tuple[int, int]", "rectangle": "tuple[int, int, int, int]",
            "number": "float" if re.search("float|double", arguments[0]["type"]) else "int"}.get(role, "ArrayLike") \
        if role else "Image"


def print_stubs(table, found, families):
    lines = ['"""Printed by tools/python.py from api.json."""', "from typing import Any, Callable, Literal, NamedTuple",
             "from numpy import ndarray", "from numpy.typing import ArrayLike, DTypeLike", "from . import raw as raw",
             "Image = ndarray | tuple[ndarray, ...] | list[ndarray]",
             "Constant = float | tuple[float, ...] | list[float] | ndarray", "Out = Image | None", "Roi = tuple[int, int, int, int] | None",
             "class Error(ValueError):", "    function: str", "    arguments: tuple[str, ...]", "    condition: str",
             "    status: int", "    name: str", "class StatusWarning(UserWarning): ...", "__version__: str",
             "def parallel(function: Callable[..., Any], *args: Any, threads: int | None = None,",
             "             tile: tuple[int, int] = (1024, 1024), **keywords: Any) -> Any: ..."]
    for name, (images, rows, extras, _) in table.items():
        parts = found[name]
        joined = any(constant for _, constant in parts)
        named = []
        for i, (python, c, default) in enumerate(rows):
            kind = annotation(python, c, parts, families)
            kind = "Image | Constant" if joined and i == 1 else kind
            optional = " | None" if default == "None" else ""
            named.append(f"{python}: {kind}{optional}" + (f" = {default}" if default is not None else ""))
        kinds = {"out": "Out", "roi": "Roi", "mask": "ndarray | None", "channel": "int | None", "layout": "str | None",
                 "keep_alpha": "bool", "spec": "Any"}
        named += (["*"] if extras else []) + [f"{n}: {kinds[n]} = {d}" for n, d in extras]
        lines.append(f"def {name}({', '.join(named)}) -> Any: ...")
        if any(f.facts["init"] for f, _ in parts):
            own = [n for n in named[images:] if not n.startswith(("*", "out:", "roi:", "spec:", "layout:"))]
            lines += [f"class {class_name(parts)}:", f"    def __init__(self, {', '.join(own)}) -> None: ...",
                      "    def __call__(self, *args: Any, **keywords: Any) -> Any: ..."]
    return "\n".join(lines) + "\n"


def print_raw(api, families):
    lines = ['"""Printed by tools/python.py from api.json."""', "from typing import Any", "from ctypes import Structure"]
    for struct in api["structs"]:
        lines += [f"class {struct['name']}(Structure):", "    def __init__(self, *values: Any, **fields: Any) -> None: ..."]
        lines += [f"    {f['name']}: Any" for f in struct["fields"]]
    lines += [f"{v['name']}: int" for e in api["enumerations"] for v in e["values"]]
    lines += [f"{s['name']}: int" for s in api["statuses"]]
    for f in families:
        for m in f.members:
            kinds = [a["name"] + ": " + ("float" if a["type"] in ("float", "double") else "int" if re.fullmatch(r"u?int\d*(_t)?", a["type"])
                                         else "Any") for a in m.arguments]
            lines.append(f"def {m.name}({', '.join(kinds)}) -> {'int' if m.result == 'StatusCode' else 'Any'}: ...")
    return "\n".join(lines) + "\n"


def main(source, folder):
    api, families = load(source)
    found = groups(families)
    text, table = print_table(api, families, found)
    folder = Path(folder)
    docs = {name: documentation(parts, found, families) for name, parts in found.items()}
    (folder / "_api.py").write_text(text)
    (folder / "_docs.py").write_text('"""Printed by tools/python.py from api.json."""\n'
                                     "TEXTS = {" + "".join(f"\n    {n!r}: {d!r}," for n, d in docs.items()) + "}\n")
    (folder / "__init__.pyi").write_text(print_stubs(table, found, families))
    (folder / "raw.pyi").write_text(print_raw(api, families))
    (folder / "py.typed").write_text("")


if __name__ == "__main__":
    main(*sys.argv[1:])
