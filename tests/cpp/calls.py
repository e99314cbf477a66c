#!/usr/bin/python3
"""Prints a program that only has to compile: tests/cpp/calls.py api.json > calls.cpp.  It calls every overload of
zmvip.hpp for each shape of arguments, and with -DEVERY_MEMBER for all images that it takes."""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[2] / "tools"))
from hpp import Printer, declared  # noqa: E402


def calls(printer):
    lines = ["// Printed by tests/cpp/calls.py.", "#include <zmvip.hpp>", "namespace zmvip::calls {",
             "template <class T>", "std::conditional_t<std::is_array_v<T>, std::decay_t<T>, T> any();"]
    for name, forms in printer.forms.items():
        for form in forms.values():
            for place in range(len(form.lists)):
                lines += attempt(printer, name, form, place)
    return lines + ["}  // namespace zmvip::calls"]


def attempt(printer, name, form, place):
    """A function that calls one of zmvip.hpp, for all images that it takes."""
    users, function = form.lists[place], f"{form.name}_{place}"
    said = [f"any<{declared(users.rows[c][0][0], '').replace('@', '')}>()" for c in users.ordered()]
    called = lambda given: f"    static_cast<void>({name}({', '.join(given)}));"
    if not form.shape.directions:
        typed, channels = printer.library.told(form.shape.family) if form.shape.makes else (False, False)
        given = f"<{', '.join(['T'] * typed + ['3'] * channels)}>" if typed or channels else ""
        types = ["uint8_t" if key[0] == "void" else key[0] for key in form.rows]
        call = called(said).replace(f"({name}(", f"({name}{given}(")
        return ["template <class T>", f"void {function}() {{", call, "}",
                *(f"template void {function}<{t}>();" for t in types)]
    images, some, rest = form.pictures(), {}, []
    shapes = {s for shape, s in form.shapes.items() if shape[0] == form.first + place}
    for key, row in form.rows.items():
        kinds = [(key[:2], "const ") if d == "in" else (key[-2:], "") for d in form.shape.directions]
        views = [f"planes<{const}{t}, {l[10:-1]}>" if "planes" in l else f"view<{const}{t}, {l}>"
                 for (t, l), const in kinds]
        call = f"template void {function}({', '.join(views)});"
        if row[0] in shapes and some.setdefault(row[0], call) != call:
            rest.append(call)
    return [f"template <{', '.join('class ' + k for k, _ in images)}>",
            f"void {function}({', '.join(f'{k} {n}' for k, n in images)}) {{",
            called(form.spread([n for _, n in images], users, said)), "}", *some.values(),
            *(["#ifdef EVERY_MEMBER", *rest, "#endif"] if rest else [])]


if __name__ == "__main__":
    print("\n".join(calls(Printer(sys.argv[1]))))
