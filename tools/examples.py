"""Examples of every function of the Python package, in Python and in C: tools/examples.py FOLDER writes examples.json, by
family, and examples.c.  The one in C is what the library saw of the one in Python, written down: its queries, objects and
buffers come along by themselves.  Nothing here knows a family."""
import ctypes
import json
import re
import sys
import warnings
from pathlib import Path

import numpy as np
import usual
import zmvip
from ctext import declared, wrapped
from zmvip import _api, _call, _members, _plan
from zmvip._call import Call

WIDTH, HEIGHT = 64, 48
LONG = 16  # more numbers than that are not printed
MEMBERS = {m.name: m for f in _api.FAMILIES for m in _members.members(f)}
QUERIES = {f["query"] for f in _api.FACTS.values()}
NAMES = {}
for _name, _value in _api.CONSTANTS.items():
    for _prefix in _api.ENUMERATIONS:
        if _name.startswith(_prefix):
            NAMES.setdefault((_prefix, _value), _name)


class Noted:
    """While it is entered: the calls of the library as they come, and the arrays behind addresses."""

    def __enter__(self):
        self.calls, self.arrays = [], {}
        self.real = _call.exported, Call.passed, Call.addresses
        exported, passed, addresses = self.real

        def recorded(name):
            return lambda *values: (self.calls.append((MEMBERS[name], values)), exported(name)(*values))[1]

        def keep(array):
            self.arrays[array.ctypes.data] = array
            return array

        _call.exported = _plan.exported = recorded
        Call.passed = lambda call, value: passed(call, keep(value) if isinstance(value, np.ndarray) else value)
        Call.addresses = lambda call, arrays: addresses(call, list(map(keep, arrays)))
        return self

    def __exit__(self, *_):
        _call.exported = _plan.exported = self.real[0]
        _, Call.passed, Call.addresses = self.real


def literal(value, kind):
    return f"{float(value)!r}f" if kind == "float" else repr(float(value)) if kind == "double" else str(int(value))


class InC:
    """The calls of an example as a function in C: what it takes, and its text."""

    def __init__(self, name, noted):
        self.arrays, self.params, self.before, self.lines, self.freed, self.sizes = noted.arrays, [], [], [], [], {}
        main = noted.calls[-1]
        served = {m.name: (m, v) for m, v in reversed(noted.calls[:-1]) if m.family in QUERIES or not m.has("result")}
        for m, values in [*reversed(served.values()), main]:
            words = [self.word(a, v, m is main[0]) for a, v in zip(m.arguments, values)]
            start = "    if (status >= 0) status = " if self.lines else "    StatusCode status = "
            if m is main[0] and not self.freed:
                start = "    return "
            self.lines += [*self.before, wrapped(f"{start}{m.name}(", words, ");", 8)]
            self.before = []
        self.lines += [f"    free({memory});" for memory in reversed(self.freed)] + ["    return status;"] * bool(self.freed)
        self.member = main[0].name
        head = wrapped(f"StatusCode {name}(", [declared(a.type, a.name) for a, _ in self.params], ")")
        self.text = "\n".join([head, "{", *self.lines, "}"])

    def word(self, a, value, main):
        if main and (a.role in ("image", "planes", "mask", "map", "step", "result")):
            self.params.append((a, value))
            return a.name
        if a.role == "result":
            kind = "init" if "nit" in a.name else "spec" if re.search("[Ss]pec|State", a.name) else "buffer"
            self.sizes[kind] = f"{kind}Size"
            self.before.append(f"    {a.type.rstrip('*')} {kind}Size = 0;")
            return f"&{kind}Size"
        if a.role in ("buffer", "init buffer", "spec object"):
            kind = a.role.split()[0]
            name = {"init": "initBuffer"}.get(kind, kind)
            if name not in self.freed:
                self.freed.append(name)
                self.before.append(f"    {a.type.replace('const ', '')} {name} = malloc({self.sizes[kind]});")
            return name
        if value is None:
            return "NULL"
        if isinstance(value, ctypes.Structure):
            fields = ", ".join(str(getattr(value, f)) for f, _ in value._fields_)
            return self.local(a.type, a.name, f"{{{fields}}}")
        if a.enumeration:
            return NAMES.get((a.enumeration, value), str(value))
        kind = re.sub(r"const |[*\[].*", "", a.type).strip()
        if isinstance(value, ctypes.Array):  # of arrays, one a channel
            arrays = [self.arrays[v] for v in value]
            each = [self.local(f"const {kind}[{len(x)}]", f"{a.name}{i}", self.numbers(x, kind)) for i, x in enumerate(arrays)]
            return self.local(f"const {kind}* const[{len(each)}]", a.name, f"{{{', '.join(each)}}}")
        if "*" not in a.type and "[" not in a.type:
            return literal(value, kind)
        array = self.arrays[value]
        if array.size > LONG:
            self.params.append((a, value))
            return a.name
        if a.role != "table" and a.role != "kernel" and "[" not in a.type and not a.count:
            array = array[:-4]  # where room for a fourth channel is
        if "[" not in a.type:
            array = array.ravel()
        return self.local(f"const {kind}" + "".join(f"[{n}]" for n in array.shape), a.name, self.numbers(array, kind))

    def numbers(self, array, kind):
        return "{" + ", ".join(self.numbers(x, kind) if np.ndim(x) else literal(x, kind) for x in array) + "}"

    def local(self, kind, name, value):
        line = f"    {declared(kind if kind.startswith('const ') else 'const ' + kind, name)} = {value};"
        said = [x for x in self.lines + self.before if f" {name} = " in x or f" {name}[" in x]
        if not said:
            self.before.append(line)
        elif said != [line]:  # the same name for something else
            return self.local(kind, name + "2", value)
        return name


class Example:
    """A family's example: the call in Python, its result, and the same in C."""

    def __init__(self, name, part, m):
        function = getattr(zmvip, name)
        engine, self.family = function.engine, part[0]
        self.values = usual.images(engine, part, m, WIDTH, HEIGHT)
        said = usual.keywords(engine, part, m, WIDTH, HEIGHT)
        arguments = list(self.values) + (["5"] if part[1] else [])
        writes = m.writes or m.changes
        inside = m.facts["reach"] in ("anchor", "radius", "fixed") and not m.has("border") and not m.facts["extent"]
        if inside:
            said["roi"] = 4, 4, WIDTH - 8, HEIGHT - 8
        if engine.images == 0 and "out" in engine.keywords:
            self.values[writes[0]] = np.zeros_like(usual.pixels(m.destination, m.to, WIDTH, HEIGHT))
            said["out"] = writes[0]
        for n, value in said.items():
            if isinstance(value, np.ndarray) and value.size > LONG or n == "mask":
                self.values[n], said[n] = value, n
            elif n != "out":
                said[n] = repr(value.tolist() if isinstance(value, np.ndarray) else value)
        results = writes or [a.name for a in m.arguments if a.role == "result"]
        named = "" if "out" in said else f"{re.sub('^p(?=[A-Z])', '', results[0]) if len(results) == 1 else 'found'} = "
        self.call = f"zmvip.{name}({', '.join(arguments + [f'{n}={v}' for n, v in said.items()])})"
        self.python = named + self.call
        self.written = writes
        with Noted() as noted:
            self.noted = noted
            self.result = eval(self.call, {"zmvip": zmvip, **self.values})
        function.engine.plans.clear()  # they would call what noted the calls
        self.c = InC(f"example_{self.family}", noted)
        self.member = self.c.member


def chosen(family):
    """The plainest member of a family."""
    rows = [m for m in _members.members(family) if not m.large and not {"1u", "16sc", "32sc"} & {m.source, m.destination} and
            not any(a.role == "step" and "[" in a.type for a in m.arguments)]
    return min(rows, key=lambda m: (bool(m.changes), "M" in m.letters, m.of_channel, m.source != "8u", "A" in m.to,
                                    m.from_ != "C1", m.to != "C1", m.source == m.destination, len(m.arguments)))


def examples():
    warnings.simplefilter("ignore", zmvip.StatusWarning)
    return [Example(name, part, chosen(part[0])) for name, row in _api.FUNCTIONS.items() for part in row[3]]


def program(found):
    return "#include <stdlib.h>\n#include <zmvip.h>\n\n" + "\n\n".join(e.c.text for e in found) + "\n"


def main(folder):
    found = examples()
    table = {e.family: {"member": e.member, "python": e.python, "c": e.c.text} for e in found}
    (Path(folder) / "examples.json").write_text(json.dumps(table, indent=1))
    (Path(folder) / "examples.c").write_text(program(found))


if __name__ == "__main__":
    main(*sys.argv[1:])
