#!/usr/bin/python3
"""Prints zmvip.hpp, what C++17 has of the library: tools/hpp.py api.json > zmvip.hpp.  For every member there is a line
of a table, with its query and the shape of its arguments, for every name and list of arguments a function.  Nothing
here knows a family."""
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
        """The number of the list with these arguments; of several ways to write a type those in common stay."""
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
                kind = "S" if i == shape.source else f"S{i + 1}"
                name = "src" if len(reads) == 1 else "abcd"[reads.index(i)]
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
        return images + texts


def called(layout):
    layout = layout.replace("AC4", "keep_alpha").replace("planes_of", "planes")
    return re.sub(r"one_of<(\d)>", r"a channel of \1", layout)


def declared(kind, name, default=None):
    text = kind.replace("@", " " + name) if "@" in kind else f"{kind} {name}".rstrip()
    return text + (f" = {default}" if default else "")


def returned(value):
    return f"result<{value}>" if value else "status"


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
        if pattern not in forms:
            forms[pattern] = Form(f"{name.rstrip('_')}_{len(forms) + 1}", shape, constant, pattern.count("all"))
        large = self.library.large(m)
        query = large and self.library.large(self.library.members[shape.query]) if shape.query else None
        forms[pattern].add(key, shape, [large, query])
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
        if changes and m.source != m.destination:
            raise Left("an image that becomes another type in place")
        order = reads + changes
        swapped = any(constant for _, constant in parts) and len(order) == 2 and family.facts["place"] == "second"
        return (order[::-1] if swapped else order) + writes

    @staticmethod
    def key(m, parts, shape):
        """Element types and layouts, as users have them: the destination says whether the fourth channel is meant."""
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
        lines, members = [], self.library.members.values()
        borders = {a["enumeration"] for m in members for a in m.arguments if a["role"] == "border"}
        for prefix, enum in self.library.enums.items():
            values = [(self.library.enumerator(prefix, word(prefix, v["name"])), v["name"])
                      for e in self.library.api["enumerations"] if e["prefix"] == prefix for v in e["values"]]
            values = [(w, c) for w, c in values if not w.startswith("in_mem")]  # that follows from views
            lines += [f"enum class {enum} : int {{ {', '.join(f'{w} = {c}' for w, c in values)} }};",
                      "template <>", f"inline constexpr bool is_word<{enum}> = true;"]
            if squares(prefix):
                cases = [f"w == {enum}::{self.library.enumerator(prefix, w)} ? size{{{n}, {n}}} : "
                         for w, n in squares(prefix).items()]
                lines.append(f"constexpr size sides_of({enum} w) {{ return {''.join(cases)}size{{}}; }}")
            if prefix in borders:
                free = [w for w, _ in values if w not in self.library.functions]
                lines += [f"inline constexpr {enum} {w} = {enum}::{w};" for w in free]
        return lines

    @staticmethod
    def table(form):
        s = form.shape
        places = f" : form<{s.source}, {s.target}, {s.written}>" if s.directions else ""
        lines, args = [f"struct {form.name}{places} {{"], lambda roles: f"args<{', '.join(roles)}>"
        for (number, takes, checks, asks, finds), name in form.shapes.items():
            kept = asks and asks[0].startswith("remembered")  # no query, but what an object remembers of it
            texts = [args(takes), f"checks<{', '.join(checks)}>", asks[0] if kept else args(asks), args(finds)]
            while texts[-1].endswith("<>"):
                texts.pop()
            lines.append(f"    using {name} = shape<{number}, {', '.join(texts)}>;")
        rows = [f"    static row<{', '.join(row)}> at(key<{', '.join(key)}>);" for key, row in form.rows.items()]
        return lines + rows + ["};"]

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
        users = form.lists[place]
        rows = [users.rows[c] for c in users.ordered()]
        said, passed = [declared(k[0], n, d) for k, n, d in rows], "".join(", " + n for _, n, _ in rows)
        value, body, outs = self.value(name, users), [], "nullptr"
        if value:
            members = [f"&v.{safe(snake(c))}" for c in users.results] if len(users.results) > 1 else ["&v"]
            body, outs = [f"{value} v{{}};", f"void* const outs[] = {{{', '.join(members)}}};"], "outs"
        if form.shape.directions:
            template, said, call = self.with_images(name, form, place, said, outs)
            body.insert(0, f'static_assert({self.taken(form)}, "zmvip::{name}: no member takes these images together; '
                           f'there are {self.there_are(form)}");')
        elif form.shape.makes:
            template, call, value = self.maker(name, form)
        else:
            generic = any("T>" in k[0] for k, _, _ in rows)
            template, T, key = ["class T"] * generic, "T" if generic else "void", self.typed(form)
            call = f'serve<detail::{form.name}, {key}, {T}, 1>("{name}", {outs}'
        call = f"detail::{call}{passed})"
        body += [f"const status s = {call};", "return {s, v};"] if outs != "nullptr" else [f"return {call};"]
        banner = form.families[0].banner.replace("\n", " ")
        return [f"// {', '.join(f.name for f in form.families)}: {re.split('[.;:]( |$)|  ', banner)[0]}.",
                f"template <{', '.join(template)}>" if template else "inline",
                f"{returned(value)} {name}({', '.join(said)}) {{", *("    " + b for b in body), "}"]

    @staticmethod
    def taken(form):
        return f"detail::taken<detail::{form.name}, {', '.join(k for k, _ in form.pictures())}>"

    @staticmethod
    def template(form, place):
        kinds = [k for k, _ in form.pictures()]
        number = form.first + place
        return [*(f"class {k}" for k in kinds),
                f"detail::if_members_take_these<detail::{form.name}, {number}, {', '.join(kinds)}> = 0"]

    def with_images(self, name, form, place, said, outs):
        users, images = form.lists[place], form.pictures()
        works = any("work" in shape[1] for shape in form.shapes if shape[0] == form.first + place)
        said = form.spread([f"const {k}& {n}" for k, n in images], users, said) + ["scratch work = {}"] * works
        call = f'call<detail::{form.name}>("{name}", detail::images({", ".join(n for _, n in images)}), ' \
               f'{"&work" if works else "nullptr"}, {outs}'
        return self.template(form, place), said, call

    def maker(self, name, form):
        rows, (typed, channels) = form.lists[0].rows, self.library.told(form.shape.family)
        T, C = "T" if typed else "void", "C" if channels else "1"
        spec = self.library.spec(form.shape.family, T)
        sizes = [rows[c][1] if c in rows else "{}" for c in ("srcSize", "dstSize", "kernelSize", "largest")]
        call = f'maker::make<detail::{form.name}, {spec}, {self.typed(form)}, {T}, {C}>' \
               f'("{name}", {{{", ".join(sizes)}, 0}}'
        return ["class T"] * typed + ["int C"] * channels, call, spec

    @staticmethod
    def typed(form):
        """What the rows of a service are found by: a type, or nothing."""
        return "void" if "void" in next(iter(form.rows)) else "T"

    def refusal(self, name, form, place):
        """For members without the last arguments of a longer list an overload with them, to say that they take none."""
        users, images = form.lists[place], form.pictures()
        here = users.ordered()
        longer = max((o for o in form.lists if o.ordered()[:len(here)] == here), key=lambda o: len(o.rows))
        extra = longer.ordered()[len(here):]
        if not extra or longer.rows[extra[0]][2] is None:
            return []
        said = [declared(users.rows[c][0][0], users.rows[c][1]) for c in here]
        said += [declared(longer.rows[c][0][0], "", longer.rows[c][2] if c != extra[0] else None) for c in extra]
        said = form.spread([f"const {k}& {n}" for k, n in images], users, said)
        passed = form.spread([n for _, n in images], users, [users.rows[c][1] for c in here])
        return [f"template <{', '.join(self.template(form, place))}>",
                f"{returned(self.value(name, users))} {name}({', '.join(said)}) {{",
                f'    static_assert(!{self.taken(form)}, "zmvip::{name}: for images like these there is no '
                f'{longer.rows[extra[0]][1]}");', f"    return {name}({', '.join(passed)});", "}"]

    def text(self):
        functions = []
        for name, forms in self.forms.items():
            told_all = any("all" in p for p in forms)  # there the longer list is a member's
            for f in forms.values():
                for place in range(len(f.lists)):
                    functions += self.function(name, f, place)
                    functions += self.refusal(name, f, place) if f.shape.directions and not told_all else []
        return [
            "// zmvIP for C++17: a name for the members of a family; images say which is meant.  See docs/cpp.md.",
            "// Printed by tools/hpp.py.  SPDX-License-Identifier: Apache-2.0",
            "#ifndef ZMVIP_HPP", "#define ZMVIP_HPP", "",
            "#include <stdlib.h>", "", '#include "zmvip_roles.hpp"', "", "namespace zmvip {", "",
            *self.enumerations(), "", *(f"struct {t};" for t in self.objects), "", "namespace detail {", "",
            *(line for lines in self.extents.values() for line in lines),
            *(line for forms in self.forms.values() for f in forms.values() for line in self.table(f)),
            "", "}  // namespace detail", "", *(line for lines in self.structs.values() for line in lines),
            *functions, "", "}  // namespace zmvip", "", "// What is left to zmvip.h:",
            *(f"//   {why}: {', '.join(names)}" for why, names in self.left.items()), "", "#endif"]


if __name__ == "__main__":
    print("\n".join(Printer(sys.argv[1]).text()))
