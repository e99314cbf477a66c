"""Prints the reference: tools/reference.py api.json examples.json SOURCES PICTURES OUT writes what Sphinx makes the site of to
OUT/pages, and manual pages to OUT/man3.  Nothing here knows a family: all comes from the rows, by way of api.json."""
import json
import os
import re
import shutil
import sys
import textwrap
import time
from pathlib import Path

from ctext import declared, wrapped

ROLES = {"image": "first pixel", "planes": "first pixels of the planes", "mask": "pixels where it is not zero count",
         "map": "a coordinate for each pixel of the result", "step": "bytes from one row to the next",
         "size": "in pixels", "point": "x and y", "rectangle": "x, y, width and height", "constant": "a value",
         "scale": "results are divided by 2 to its power", "border": "where pixels outside come from",
         "border value": "one number a channel, or null", "option": "an option", "number": "a number", "table": "numbers",
         "buffer": "work memory", "spec object": "what its initialiser has made", "init buffer": "work memory, for this call",
         "kernel": "the weights, row by row", "result": "where the result goes"}
STEPS = {"positive": "positive", "nonzero": "any but zero; rows go up where negative", "any": "any, zero and negative ones too"}
PLACE = {"apart": "no: source and destination must not overlap", "same": "yes: forms with I, or the same image with the same step",
         "second": "yes: forms with I overwrite the second image; elsewhere the destination may be one of the sources", "text": ""}
REACH = {"none": "the pixel itself", "anchor": "the mask round it", "radius": "a radius round it",
         "fixed": "a fixed neighbourhood", "query": "what the query says", "whole": "all of the source"}
PARTS = {"no": "", "add": "add up", "least": "the least counts", "greatest": "the greatest counts",
         "addIntegers": "add up, of integers", "extremes": "the least and the greatest count"}
IMAGES = {"image", "planes"}


def table(header, rows):
    """A table in Markdown; header: its words, between bars."""
    return "\n".join([f"| {header} |", "|---" * (header.count("|") + 1) + "|", *(f"| {' | '.join(row)} |" for row in rows)])


def code(text, language):
    return f"```{language}\n{text}\n```"


class Page:
    def __init__(self, area, name, families, title):
        self.area, self.families, self.title, self.path = area, families, title, f"{area}/{name}"


class Reference:
    def __init__(self, api, examples, sources):
        self.api, self.examples, self.sources = api, examples, sources
        self.families = {f["name"]: f for f in api["families"]}
        self.serves, grouped = {}, {}
        for f in api["families"]:
            for service in {f["facts"]["query"], f["facts"]["init"]} - {""}:
                self.serves.setdefault(service, []).append(f["name"])
        for f in sorted(api["families"], key=lambda f: f["name"] in self.serves):  # services behind what they serve
            grouped.setdefault((f["area"], f["page"]), []).append(f)
        self.pages = [Page(a, p, found, self.title(a, p)) for (a, p), found in grouped.items()]
        self.at = {f["name"]: page for page in self.pages for f in page.families}
        self.family_of = {m["name"]: f["name"] for f in api["families"] for m in f["members"]}
        self.sentences = {s["name"]: s["sentence"] for s in api["statuses"]}
        self.words = {}
        for e in api["enumerations"]:
            self.words.setdefault(e["prefix"], []).extend(v["name"] for v in e["values"])

    def title(self, area, page):
        first = (self.sources / "src" / area / f"{page}.families.def").read_text().splitlines()[0]
        words = re.sub(r"^// (The families of )?|[:.].*$", "", first)
        return words[0].upper() + words[1:]

    # What both kinds of pages have.

    def blocks(self, family):
        """The banner without the refusals: paragraphs, and tables as they stand."""
        found = []
        for line in family["banner"].split("Checked in this order.")[0].rstrip().split("\n"):
            kind = "table" if line.startswith(" ") else "text"
            if found and found[-1][0] == kind and (kind == "table" or not re.search(r"[.:]$", found[-1][1][-1])):
                found[-1][1].append(line)
            else:
                found.append((kind, [line]))
        return found

    def facts(self, family):
        """What the facts say in words, each with what it is about."""
        f, roles = family["facts"], {a["role"] for m in family["members"] for a in m["arguments"]}
        free = f" ({f['freeSteps'].replace('*', 'all')}: any)" if f["freeSteps"] else ""
        rows = [("Steps", STEPS[f["steps"]] + free), ("In place", PLACE[f["place"]]), ("A pixel takes", REACH[f["reach"]]),
                ("In tiles", "the bits of the whole" if f["tiles"] else "not the bits of the whole"),
                ("Results of parts", PARTS[f["combine"]]),
                ("Caller's rounding mode", "counts for 32f and 64f" if f["rounds"] == "floats" else "has no influence")]
        if not roles & IMAGES:
            rows = []
        services = [("Size of buffers", f["query"]), ("Its object is made by", f["init"]),
                    ("Serves", ", ".join(self.serves.get(family["name"], [])))]
        return [row for row in rows + services if row[1]]

    def arguments(self, family):
        """Every argument of the members: name, types, and what it is."""
        found = {}
        for m in family["members"]:
            for a in m["arguments"]:
                found.setdefault(a["name"], (a, []))[1].append(a["type"])
        for name, (a, types) in found.items():
            words = self.words.get(a.get("enumeration"), []) if a["role"] == "option" else []  # of borders, few take all
            is_word = [v["name"] for e in self.api["enumerations"] for v in e["values"]
                       if e["prefix"] == a.get("enumeration") and v["value"] == a.get("usual")]
            about = ROLES[a["role"]] if not words else ", ".join(words)
            yield name, list(dict.fromkeys(types)), about + (f"; usual: {is_word[0]}" if is_word else "")

    def plainest(self, family):
        known = self.examples.get(family["name"], {}).get("member")
        return next((m for m in family["members"] if m["name"] == known), family["members"][0])

    def prototype(self, m, width=84):
        return wrapped(f"{m['result']} {m['name']}(", [declared(a["type"], a["name"]) for a in m["arguments"]] or ["void"], ");",
                       width=width)

    # The site.

    def link(self, name, page):
        """A function in the text of a page: linked to its family."""
        family = name if name in self.families else self.family_of.get(name)
        if not family:
            return f"`{name}`"
        there = os.path.relpath(self.at[family].path + ".md", Path(page).parent)
        return f"[`{name}`]({there if self.at[family].path != page else ''}#{family.lower()})"

    def text(self, words, page):
        """Text of the rows as Markdown."""
        parts = re.split(r"\b(zmvi\w+|[A-Z]{3,}\w*_\w+)", " ".join(words.split()))
        return "".join(self.link(p, page) if i % 2 and p.startswith("zmvi") else f"`{p}`" if i % 2 else
                       re.sub(r"([\\`*_{}\[\]<>#|~$^])", r"\\\1", p) for i, p in enumerate(parts))

    def section(self, family, page):
        name, members = family["name"], family["members"]
        say = lambda words: self.text(words, page)
        out = [f"## {name}", f"```{{index}} {', '.join(dict.fromkeys([name, *(m['name'] for m in members)]))}\n```"]
        out += [code("\n".join(lines), "text") if kind == "table" else say(" ".join(lines))
                for kind, lines in self.blocks(family)]
        out.append(code(self.prototype(self.plainest(family)), "c"))
        out.append(table("argument | type | ", ([f"`{n}`", ", ".join(f"`{t}`" for t in types), say(about)]
                                                for n, types, about in self.arguments(family))))
        if len(members) > 1:
            by_types = {}
            for m in members:
                by_types.setdefault(" to ".join(m["types"]), []).append(f"`{m['name']}`")
            out += ["**Functions**", table("types | functions", ([t, " ".join(found)] for t, found in by_types.items()))]
        if self.facts(family):
            out.append(table(" | ", ([about, say(words)] for about, words in self.facts(family))))
        checks = family["facts"]["refusals"] + family["facts"]["warnings"]
        if checks:
            out += ["**Checks**, in this order: the first that fails is the status. After a warning (WARN) the work is done.",
                    table("status | when | its sentence", ([f"`{r['status']}`", say(r["condition"]),
                                                            say(self.sentences[r["status"]])] for r in checks))]
        example = self.examples.get(name)
        if example:
            out += ["**Example** in Python:", code(example["python"], "python"), "The same in C:", code(example["c"], "c")]
        return "\n\n".join(out)

    def write_site(self, out, pictures):
        shutil.copytree(self.sources / "docs/site", out, dirs_exist_ok=True)
        programs = self.write_programs(out, pictures)
        for page in self.pages:
            names = {f["name"] for f in page.families}
            used = [p for p in programs if names & p["families"]]
            used.sort(key=lambda p: (len(p["families"] - names), p["name"]))  # those that are about little else come first
            parts = [f"# {page.title}", ", ".join(self.link(f["name"], page.path) for f in page.families)]
            shown = [r for p in used[:3] for r in p["pictures"]][:6]
            if shown:
                parts.append(self.figures([["photograph", "", "The photograph", "before"], *shown], "../"))
            if used:
                parts.append("Programs: " + ", ".join(f"[{p['name']}](../programs/{Path(p['name']).stem}.md)" for p in used))
            parts += [self.section(f, page.path) for f in page.families]
            if used and not names & set(self.examples):
                parts += ["## A program", code(used[0]["text"], used[0]["language"])]
            self.write(out / f"{page.path}.md", "\n\n".join(parts))
        self.write_types(out)
        self.write_texts(out, programs)

    def figures(self, rows, up):
        return "```{rst-class} pictures\n```\n\n" + "\n".join(
            f"![{title}: {re.sub(r'[][]', '', sentence)}]({up}pictures/{name}.png)" for name, _, title, sentence in rows)

    def write_programs(self, out, pictures):
        """A page for every program among the examples, with the pictures that it has made."""
        (out / "pictures").mkdir(parents=True, exist_ok=True)
        shutil.copy(self.sources / "examples/images/chelsea.png", out / "pictures/photograph.png")
        found = []
        for file in sorted((self.sources / "examples").glob("*.[cp]*")):
            if file.suffix not in (".c", ".cpp", ".py"):
                continue
            text, made = file.read_text(), pictures / f"{file.stem}.tsv"
            rows = [line.split("\t") for line in made.read_text().splitlines()] if made.exists() else []
            rows = [r for r in rows if len(r) == 4 and (pictures / f"{r[0]}.png").exists()]
            for r in rows:
                shutil.copy(pictures / f"{r[0]}.png", out / "pictures")
            names = {self.family_of.get(n, n) for n in re.findall(r"zmvi\w+", text)}
            language = {".c": "c", ".cpp": "cpp", ".py": "python"}[file.suffix]
            found.append({"name": file.name, "pictures": rows, "text": text, "language": language,
                          "families": {n for n in names if n in self.families}})
            listed = "\n".join(f"- *{title}*: {sentence}" for _, _, title, sentence in rows)
            body = [f"# {file.name}", *([self.figures(rows, "../"), listed] if rows else []), code(text, language)]
            self.write(out / f"programs/{file.stem}.md", "\n\n".join(body))
        return found

    def write_types(self, out):
        self.write(out / "statuses.md", "\n\n".join([
            "# Statuses", "Negative values are errors: nothing has been written. Positive ones are warnings: the work is done. "
            "`zmvStatusText` gives the sentence. What a family checks, and which sizes or steps it means, is on its page: the "
            "first check that fails is the status.",
            table("name | value | ", ([f"`{s['name']}`", str(s["value"]), self.text(s["sentence"], "")]
                                      for s in self.api["statuses"]))]))
        self.write(out / "types.md", "\n\n".join([
            "# Types and words",
            table("struct | fields", ([f"`{s['name']}`", ", ".join(f"`{x['type']} {x['name']}`" for x in s["fields"])]
                                      for s in self.api["structs"])),
            table("word | value", ([f"`{v['name']}`", str(v["value"])] for e in self.api["enumerations"] for v in e["values"]))]))

    def write_texts(self, out, programs):
        """The texts of the project: links among them go to their pages, those to sources lose the link."""
        texts = [Path(t) for t in ("README.md", "CONTRIBUTING.md", "CHANGELOG.md")]
        texts += sorted(p.relative_to(self.sources) for p in (self.sources / "docs").glob("*.md"))
        names = {p["name"] for p in programs}

        def link(here, words, target):
            path, _, anchor = target.partition("#")
            if re.match(r"\w+:", target) or not path:
                return f"[{words}]({target})"
            path = Path(os.path.normpath(here.parent / path))
            if path.suffix == ".png":
                shutil.copy(self.sources / path, out)
            if path in texts or path.suffix == ".png":
                return f"[{words}]({path.name}{'#' + anchor if anchor else ''})"
            if path.name in names:
                return f"[{words}](programs/{path.stem}.md)"
            return f"`{words}`" if re.search("[./]", words) and "`" not in words else words

        for here in texts:
            words = re.sub(r"\[([^][]*)\]\(([^()\s]*)\)", lambda m: link(here, *m.groups()), (self.sources / here).read_text())
            if here.name != "CHANGELOG.md":
                words = re.sub(r"`(zmvi\w+)`", lambda m: self.link(m[1], here.name), words)
            if here.name == "README.md":
                words += self.contents([t.stem for t in texts if t != here], programs)
            self.write(out / ("index.md" if here.name == "README.md" else here.name), words)

    def contents(self, texts, programs):
        """What the side of every page has."""
        first = [t for t in ("which-function", "coming-from", "cpp", "python", "threads", "scale", "packaging") if t in texts]
        trees = {"Using it": first}
        for page in self.pages:
            trees.setdefault(f"Reference, {page.area}", []).append(page.path)
        trees |= {"Reference, words": ["statuses", "types"], "Programs": [f"programs/{Path(p['name']).stem}" for p in programs],
                  "The house": [t for t in texts if t not in first]}
        return "".join(f"\n```{{toctree}}\n:caption: {caption}\n:hidden:\n:maxdepth: 1\n\n" + "\n".join(paths) + "\n```\n"
                       for caption, paths in trees.items())

    @staticmethod
    def write(path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        if not path.exists() or path.read_text() != text:  # Sphinx reads again what is newer
            path.write_text(text)

    # Manual pages.

    def manual(self, family, date):
        roff = lambda s: re.sub(r"^([.'])", r"\\&\1", s.replace("\\", "\\e").replace("-", "\\-"), flags=re.M)
        para = lambda s: roff("\n".join(textwrap.wrap(" ".join(s.split()), 78, break_on_hyphens=False)))
        name, facts = family["name"], family["facts"]
        first = re.split(r"[.;:](\s|$)", self.blocks(family)[0][1][0])[0]
        out = [f'.TH {name} 3 "{date}" "zmvIP" "Functions of zmvIP"', ".nh", ".SH NAME", f"{name} \\- {roff(first)}",
               ".SH SYNOPSIS", ".nf", ".B #include <zmvip.h>", ".PP", roff(self.prototype(self.plainest(family), 72)), ".fi",
               ".SH DESCRIPTION"]
        for i, (kind, lines) in enumerate(self.blocks(family)):
            out += [".PP"] * bool(i)
            out += [".nf", roff("\n".join(lines)), ".fi"] if kind == "table" else [para(" ".join(lines))]
        out.append(".SH ARGUMENTS")
        for n, _, about in self.arguments(family):
            out += [".TP", f".I {n}", para(about)]
        out += [".SH FUNCTIONS", ".ad l", para(", ".join(m["name"] for m in family["members"]))]
        if facts["refusals"]:
            out += [".SH ERRORS", "In this order; the first check that fails is the status, and nothing is written."]
        for r in [*facts["refusals"], *facts["warnings"]]:
            out += [".TP", f".B {r['status']}", para(r["condition"])]
        example = self.examples.get(name)
        if example:
            out += [".SH EXAMPLES", ".nf", roff(example["c"]), ".fi"]
        near = [f["name"] for f in self.at[name].families if f["name"] != name]
        near = sorted(near, key=lambda n: n not in (facts["query"], facts["init"]))[:8]
        if near:
            out += [".SH SEE ALSO", " ,\n".join(f".BR {n} (3)" for n in near)]
        return "\n".join(out) + "\n"

    def write_manual(self, out):
        shutil.rmtree(out, ignore_errors=True)
        out.mkdir(parents=True)
        date = time.strftime("%Y-%m-%d", time.gmtime(int(os.environ.get("SOURCE_DATE_EPOCH", time.time()))))
        for name, family in self.families.items():
            (out / f"{name}.3").write_text(self.manual(family, date))
            for m in family["members"]:
                if m["name"] != name:
                    (out / f"{m['name']}.3").symlink_to(f"{name}.3")


def main(api, examples, sources, pictures, out):
    found = Reference(json.loads(Path(api).read_text()), json.loads(Path(examples).read_text()), Path(sources))
    found.write_site(Path(out) / "pages", Path(pictures))
    found.write_manual(Path(out) / "man3")


if __name__ == "__main__":
    main(*sys.argv[1:])
