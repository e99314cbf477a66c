#!/usr/bin/python3
"""Prints zmvip.hpp, what C++17 has of the library: tools/hpp.py api.json > zmvip.hpp.  For every member there is a line of a
table, with its query and the shape of its arguments; for every name and list of arguments a function.  With --calls it
prints a program that calls every function, and with -DEVERY_MEMBER for all images that it takes.  Nothing here knows a family."""
import re
import sys

from apijson import ENUMERATIONS, snake, word
from hppshape import TYPES, Left, Library, Shape, safe, squares


class Form:
    """The members of a name that take images in one order, with a row for each; or a service."""

    def __init__(self, name, shape, constant, first):
        self.name, self.shape, self.constant, self.first = name, shape, constant, first
        self.lists, self.rows, self.shapes, self.families = [], {}, {}, []

    def add(self, key, shape, large_names):
        if self.first:  # of two members for the same images the second is the one that is told everything
            for row in shape.users.rows.values():
                row[2] = None
        number = self.number_of(shape.users)
        s = self.shapes.setdefault((number, *shape.roles()), f"s{len(self.shapes)}")
        row = [s, shape.m.name, shape.query, shape.find, *large_names]
        while row[-1] is None:
            row.pop()
        self.rows[key] = [r or "nullptr" for r in row]
        if shape.family not in self.families:
            self.families.append(shape.family)

    def number_of(self, users):
        """The number of the list with these arguments; where types may be written in several ways, what is common stays."""
        said = lambda u: [(c, r[1], r[2]) for c, r in u.rows.items()]
        for i, other in enumerate(self.lists):
            both = {c: [k for k in r[0] if k in users.rows[c][0]] for c, r in other.rows.items() if c in users.rows}
            if other.results == users.results and said(other) == said(users) and all(both.values()):
                for c, kinds in both.items():
                    other.rows[c][0] = kinds
                return self.first + i
        self.lists.append(users)
        return self.first + len(self.lists) - 1

    def pictures(self):
        """The names of types and images."""
        shape, found = self.shape, []
        reads, writes = ([i for i, d in enumerate(shape.directions) if (d == "in") == which] for which in (True, False))
        for i, d in enumerate(shape.directions):
            if d == "in":
                kind, name = "S" if i == shape.source else f"S{i + 1}", "src" if len(reads) == 1 else "abcd"[reads.index(i)]
            else:
                kind = "D" if i == shape.target else f"D{i + 1}"
                name = "image" if d == "inout" else "dst" if len(writes) == 1 else f"dst{writes.index(i) + 1}"
            found.append((kind, name))
        return found

    def spread(self, images, users, texts):
        """Images, then what belongs to the user's list; a constant stands in place of the second image."""
        texts, images = list(texts), list(images)
        if self.constant:
            images.insert(1, texts.pop(users.at("value")))
        return ", ".join(images + texts)


def called(layout):
    return re.sub(r"one_of<(\d)>", r"a channel of \1", layout.replace("AC4", "keep_alpha").replace("planes_of", "planes"))


def declared(kind, name, default=None):
    return (kind.replace("@", " " + name) if "@" in kind else f"{kind} {name}".rstrip()) + (f" = {default}" if default else "")


class Printer:
    def __init__(self, path):
        self.library = Library(path)
        self.forms, self.left, self.extents, self.structs = {}, {}, {}, {}
        for name, parts in self.library.groups.items():
            for family, constant in parts:
                for m in family.members:
                    try:
                        if not m.large:
                            self.take(safe(name), parts, family, constant, m)
                    except Left as why:
                        self.left.setdefault(str(why), {})[family.name] = True
        self.drop_unused()

    # ---- Members ----

    def take(self, name, parts, family, constant, m):
        pictures = self.pictures(parts, family, m)
        directions = tuple(a["direction"] for a in pictures)
        shape = Shape(self.library, family, m, [a["name"] for a in pictures], directions)
        forms = self.forms.setdefault(name, {})
        if directions:
            key = self.key(m, parts, shape)
            pattern = directions, constant, *sorted({a["role"] for a in m.arguments} & {"mask", "spec object"})
            while pattern in forms and key in forms[pattern].rows:
                pattern += ("all",)
        else:
            typed = m.source if not any(a.get("enumeration") == "DATATYPE_" for a in m.arguments) else ""
            key, pattern = (TYPES[typed], "0"), tuple((c, *map(str, r)) for c, r in shape.users.rows.items())
        form = forms.setdefault(pattern, Form(f"{name.rstrip('_')}_{len(forms) + 1}", shape, constant, pattern.count("all")))
        large = self.library.large(m)
        query = large and self.library.large(self.library.members[shape.query]) if shape.query else None
        form.add(key, shape, [large, query])
        if family.facts["extent"] and "inout" not in directions:
            self.extents.setdefault(family.name, shape.extent())

    @staticmethod
    def pictures(parts, family, m):
        """The images of a member in the user's order: where a constant may stand for the second, that is C's first."""
        found = [a for a in m.arguments if a["role"] in ("image", "planes")]
        reads, changes, writes = ([a for a in found if a["direction"] == d] for d in ("in", "inout", "out"))
        if any(a["role"] == "step" and "[" in a["type"] for a in m.arguments):
            raise Left("planes of different sizes")
        if "1u" in (m.source, m.destination):
            raise Left("images of bits")
        if changes and any(a["name"] == "dstRoiSize" for a in m.arguments):
            raise Left("an image that grows in place")
        if changes and m.source != m.destination:
            raise Left("an image that becomes another type in place")
        order = reads + changes
        swapped = any(constant for _, constant in parts) and len(order) == 2 and family.facts["place"] == "second"
        return (order[::-1] if swapped else order) + writes

    @staticmethod
    def key(m, parts, shape):
        """Element types and layouts, as users have them: the fourth channel is left alone where the destination says so."""
        members = [x for f, _ in parts for x in f.members]
        of_channel = any(x.letters.startswith("C") for x in members)
        alpha = any(set(x.layouts) & {"AC1", "AP4"} for x in members)  # where it is alpha, there may be no other kind
        free = not any(x.layouts == ("C4", "C4") and (x.source, x.letters) == (m.source, m.letters) for x in members)

        def code(layout, other, to):
            n = int(layout[-1])
            if "P" in layout:
                return f"planes_of<{n}>"
            if n > 1 and (m.letters.startswith("C") or (of_channel and other == "C1")):
                return f"one_of<{n}>"
            return "AC4" if layout == "AC4" and (to or not shape.written) and not (alpha and free) else str(n)

        source = TYPES[m.source], code(*m.layouts, False)
        to = TYPES[m.destination], code(*m.layouts[::-1], True)
        return source + (to if to != source else ())

    def drop_unused(self):
        """Makers of objects that no function takes."""
        taken = {u for forms in self.forms.values() for f in forms.values() if f.shape.directions and f.shape.object
                 for u in [self.library.tag(f.shape.family)]}
        self.objects = sorted(t for t in taken if t.endswith("_object"))
        for forms in self.forms.values():
            for pattern, f in list(forms.items()):
                if f.shape.object and self.library.tag(f.shape.family) not in taken:
                    self.left.setdefault("objects for the above", {})[f.shape.family.name] = True
                    del forms[pattern]

    # ---- Tables ----

    def enumerations(self):
        borders = {a["enumeration"] for f in self.library.families for m in f.members for a in m.arguments if a["role"] == "border"}
        lines = []
        for prefix, enum in self.library.enums.items():
            values = [(self.library.enumerator(prefix, word(prefix, v["name"])), v["name"])
                      for e in self.library.api["enumerations"] if e["prefix"] == prefix for v in e["values"]]
            values = [(w, c) for w, c in values if not w.startswith("in_mem")]  # which sides those are follows from views
            lines += [f"enum class {enum} : int {{ {', '.join(f'{w} = {c}' for w, c in values)} }};",
                      "template <>", f"inline constexpr bool is_word<{enum}> = true;"]
            if squares(prefix):
                cases = [f"w == {enum}::{self.library.enumerator(prefix, w)} ? size{{{n}, {n}}} : " for w, n in squares(prefix).items()]
                lines.append(f"constexpr size sides_of({enum} w) {{ return {''.join(cases)}size{{}}; }}")
            if prefix in borders:
                lines += [f"inline constexpr {enum} {w} = {enum}::{w};" for w, _ in values if w not in self.library.functions]
        return lines

    @staticmethod
    def table(form):
        s = form.shape
        lines = [f"struct {form.name}" + (f" : form<{s.source}, {s.target}, {s.written}>" if s.directions else "") + " {"]
        for (number, takes, checks, asks, finds), name in form.shapes.items():
            args = lambda roles: roles[0] if roles and roles[0].startswith("remembered") else f"args<{', '.join(roles)}>"
            texts = [args(takes), f"checks<{', '.join(checks)}>", args(asks), args(finds)]
            while texts[-1].endswith("<>"):
                texts.pop()
            lines.append(f"    using {name} = shape<{number}, {', '.join(texts)}>;")
        return lines + [f"    static row<{', '.join(row)}> at(key<{', '.join(key)}>);" for key, row in form.rows.items()] + ["};"]

    # ---- Functions ----

    def value(self, name, users):
        """The type of what a function computes; the struct of several is printed once."""
        if len(users.results) < 2:
            return next(iter(users.results.values()), None)
        generic = any("S>" in k for k in users.results.values())
        self.structs.setdefault(name, (["template <class S>"] if generic else []) + [f"struct {name}_values {{"] +
                                [f"    {k} {safe(snake(c))};" for c, k in users.results.items()] + ["};"])
        return f"{name}_values{'<S>' if generic else ''}"

    @staticmethod
    def there_are(form):
        """The images that there are members for."""
        kinds, same = {}, {}
        for key in form.rows:
            types, layouts = (" to ".join(dict.fromkeys(key[i::2])) for i in (0, 1))
            kinds.setdefault(types, []).append("keep_alpha" if layouts == "4 to AC4" else called(layouts))
        for types, layouts in kinds.items():
            same.setdefault(", ".join(layouts), []).append(types)
        return "; ".join(f"{', '.join(types)}: {layouts}" for layouts, types in same.items())

    def function(self, name, form, place):
        users, number = form.lists[place], form.first + place
        rows = [users.rows[c] for c in users.ordered()]
        said, passed = [declared(k[0], n, d) for k, n, d in rows], [n for _, n, _ in rows]
        value, body, outs = self.value(name, users), [], "nullptr"
        if value:
            members = [f"&v.{safe(snake(c))}" for c in users.results] if len(users.results) > 1 else ["&v"]
            body, outs = [f"{value} v{{}};", f"void* const outs[] = {{{', '.join(members)}}};"], "outs"
        if form.shape.directions:
            images = form.pictures()
            kinds, names = ", ".join(k for k, _ in images), ", ".join(n for _, n in images)
            works = any("work" in shape[1] for shape in form.shapes if shape[0] == number)
            template = ", ".join(f"class {k}" for k, _ in images)
            template += f", detail::if_members_take_these<detail::{form.name}, {number}, {kinds}> = 0"
            body.insert(0, f'static_assert(detail::taken<detail::{form.name}, {kinds}>, "zmvip::{name}: no member takes these '
                           f'images together; there are {self.there_are(form)}");')
            call = f'call<detail::{form.name}>("{name}", detail::images({names}), {"&work" if works else "nullptr"}, {outs}'
            said = form.spread([f"const {k}& {n}" for k, n in images], users, said) + (", scratch work = {}" if works else "")
        else:
            typed, channels = self.library.told(form.shape.family) if form.shape.makes else (any("T>" in k[0] for k, _, _ in rows), False)
            template, T = ", ".join(["class T"] * typed + ["int C"] * channels), "T" if typed else "void"
            key, C = "T" if "void" not in next(iter(form.rows)) else "void", "C" if channels else "1"
            call, said = f'serve<detail::{form.name}, {key}, {T}, {C}>("{name}", {outs}', ", ".join(said)
            if form.shape.makes:
                value = self.library.spec(form.shape.family, T)
                sizes = [users.rows[c][1] if c in users.rows else "{}" for c in ("srcSize", "dstSize", "kernelSize", "largest")]
                call = f'maker::make<detail::{form.name}, {value}, {key}, {T}, {C}>("{name}", {{{", ".join(sizes)}, 0}}'
        call = f"detail::{call}{''.join(', ' + n for n in passed)})"
        body += [f"const status s = {call};", "return {s, v};"] if outs != "nullptr" else [f"return {call};"]
        banner = form.families[0].banner.replace("\n", " ")
        return [f"// {', '.join(f.name for f in form.families)}: {re.split('[.;:]( |$)|  ', banner)[0]}.",
                f"template <{template}>" if template else "inline",
                f"{f'result<{value}>' if value else 'status'} {name}({said}) {{", *("    " + b for b in body), "}"]

    def refusal(self, name, form, place):
        """For members without the last arguments of a longer list an overload with them, to say that they take none."""
        users, images = form.lists[place], form.pictures()
        here, kinds = users.ordered(), ", ".join(k for k, _ in images)
        longer = max((o for o in form.lists if o.ordered()[:len(here)] == here), key=lambda o: len(o.rows))
        extra = longer.ordered()[len(here):]
        if not extra or longer.rows[extra[0]][2] is None:
            return []
        said = [declared(users.rows[c][0][0], users.rows[c][1]) for c in here]
        said += [declared(longer.rows[c][0][0], "", longer.rows[c][2] if c != extra[0] else None) for c in extra]
        value = self.value(name, users)
        return [f"template <{', '.join('class ' + k for k, _ in images)}, "
                f"detail::if_members_take_these<detail::{form.name}, {form.first + place}, {kinds}> = 0>",
                f"{f'result<{value}>' if value else 'status'} {name}({form.spread([f'const {k}& {n}' for k, n in images], users, said)}) {{",
                f'    static_assert(!detail::taken<detail::{form.name}, {kinds}>, "zmvip::{name}: for images like these there is no '
                f'{longer.rows[extra[0]][1]}");',
                f"    return {name}({form.spread([n for _, n in images], users, [users.rows[c][1] for c in here])});", "}"]

    def text(self):
        functions = []
        for name, forms in self.forms.items():
            told_all = any("all" in p for p in forms)  # there the longer list is a member's
            for f in forms.values():
                for place in range(len(f.lists)):
                    functions += self.function(name, f, place)
                    functions += self.refusal(name, f, place) if f.shape.directions and not told_all else []
        return [
            "// zmvIP for C++17: one name for the members of a family, which is chosen by the images.  docs/cpp.md tells how.",
            "// Printed by tools/hpp.py.  SPDX-License-Identifier: Apache-2.0", "#ifndef ZMVIP_HPP", "#define ZMVIP_HPP", "",
            "#include <cstdlib>", "", '#include "zmvip_roles.hpp"', "", "namespace zmvip {", "", *self.enumerations(), "",
            *(f"struct {t};" for t in self.objects), "", "namespace detail {", "",
            *(line for lines in self.extents.values() for line in lines),
            *(line for forms in self.forms.values() for f in forms.values() for line in self.table(f)),
            "", "}  // namespace detail", "", *(line for lines in self.structs.values() for line in lines), *functions, "",
            "}  // namespace zmvip", "", "// What is left to zmvip.h:",
            *(f"//   {why}: {', '.join(names)}" for why, names in self.left.items()), "", "#endif"]

    # ---- Every overload ----

    def calls(self):
        lines = ["// Printed by tools/hpp.py.", "#include <zmvip.hpp>", "namespace zmvip::calls {", "template <class T>",
                 "std::conditional_t<std::is_array_v<T>, std::decay_t<T>, T> any();"]
        for name, forms in self.forms.items():
            for form in forms.values():
                for place, users in enumerate(form.lists):
                    lines += self.attempt(name, form, place, users)
        return lines + ["}  // namespace zmvip::calls"]

    def attempt(self, name, form, place, users):
        """A function that calls one of zmvip.hpp, for all images that it takes."""
        said = [f"any<{declared(users.rows[c][0][0], '').replace('@', '')}>()" for c in users.ordered()]
        shapes = {s for shape, s in form.shapes.items() if shape[0] == form.first + place}
        function = f"{form.name}_{place}"
        if not form.shape.directions:
            typed, channels = self.library.told(form.shape.family) if form.shape.makes else (False, False)
            given = ", ".join(["T"] * typed + ["3"] * channels)
            return ["template <class T>", f"void {function}() {{ static_cast<void>({name}{f'<{given}>' * bool(given)}({', '.join(said)})); }}",
                    *(f"template void {function}<{key[0] if key[0] != 'void' else 'uint8_t'}>();" for key in form.rows)]
        images = form.pictures()
        lines = [f"template <{', '.join('class ' + k for k, _ in images)}>",
                 f"void {function}({', '.join(f'{k} {n}' for k, n in images)}) {{",
                 f"    static_cast<void>({name}({form.spread([n for _, n in images], users, said)}));", "}"]
        some, rest = {}, []
        for key, row in form.rows.items():
            kinds = [(key[:2], "const ") if d == "in" else (key[-2:], "") for d in form.shape.directions]
            views = [f"planes<{const}{t}, {l[10:-1]}>" if "planes" in l else f"view<{const}{t}, {l}>" for (t, l), const in kinds]
            call = f"template void {function}({', '.join(views)});"
            if row[0] in shapes and some.setdefault(row[0], call) != call:
                rest.append(call)
        return lines + list(some.values()) + (["#ifdef EVERY_MEMBER", *rest, "#endif"] if rest else [])


if __name__ == "__main__":
    printer = Printer(sys.argv[1])
    print("\n".join(printer.calls() if "--calls" in sys.argv else printer.text()))
