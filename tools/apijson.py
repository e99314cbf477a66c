"""What generators have of api.json: members and families, and the names that they go by in other languages.  Nothing here
knows a family."""
import json
import keyword
import re
from pathlib import Path

RENAMED = {"scaleFactor": "scale", "borderType": "border", "dstRoiSize": "size", "dstSize": "size"}
WORDS = {"repl": "replicate", "const": "constant"}  # words of enumerations that are short in C
LAYOUT = re.compile(r"A?[CP]\d")
ENUMERATIONS = {}  # words and their values, by the prefix of their names in C


def load(path):
    """What is in api.json, and its families."""
    api = json.loads(Path(path).read_text())
    for e in api["enumerations"]:
        words = ENUMERATIONS.setdefault(e["prefix"], {})
        for v in e["values"]:
            words[word(e["prefix"], v["name"])] = v["value"]
    return api, [Family(f) for f in api["families"]]


def word(prefix, name):
    """MASK_3X3 as 3x3."""
    name = name[len(prefix):].lower()
    return WORDS.get(name, name)


def snake(name):
    """pIndexX and LUTPalette as index_x and lut_palette."""
    name = re.sub(r"^p(?=[A-Z])", "", name)
    name = re.sub(r"([A-Z]+)([A-Z][a-z])", r"\1_\2", re.sub(r"([a-z0-9])([A-Z])", r"\1_\2", name))
    name = re.sub(r"_+", "_", name).lower()
    return name + "_" if keyword.iskeyword(name) else name


def argument_name(argument):
    name = argument["name"]
    return "mask_size" if name == "mask" and argument["role"] == "option" else RENAMED.get(name) or snake(name)


def word_of(argument):
    value = argument.get("usual", 0)
    return next((w for w, v in ENUMERATIONS.get(argument.get("enumeration"), {}).items() if v == value), value)


class Member:
    """A member, and what its name says."""

    def __init__(self, json_member):
        self.name, self.result = json_member["name"], json_member["result"]
        self.arguments, self.letters, self.large = (json_member[k] for k in ("arguments", "letters", "large"))
        types = json_member["types"] or [""]
        layouts = LAYOUT.findall(json_member["layout"]) or [""]
        self.source, self.destination = types[0], types[-1]
        self.layouts = layouts[0], "C3" if "24u" in self.name else layouts[-1]


class Family:
    def __init__(self, json_family):
        self.name, self.facts, self.banner = (json_family[k] for k in ("name", "facts", "banner"))
        self.page = json_family["page"]
        self.members = [Member(m) for m in json_family["members"]]

    def roles(self):
        return {a["role"] for m in self.members for a in m.arguments}

    def specs(self, direction):
        return any(a["role"] == "spec object" and (a["direction"] == "in") == (direction == "in")
                   for m in self.members for a in m.arguments)

    def images(self):
        return max((sum(a["role"] in ("image", "planes") and a["direction"] != "out" for a in m.arguments)
                    for m in self.members), default=0)

    def callable(self):
        """Whether calls can be made from roles and facts alone."""
        roles, facts = self.roles(), self.facts
        if any(m.result != "StatusCode" or not m.arguments for m in self.members):
            return False
        if not roles & {"image", "planes"}:  # a service that computes something
            return not roles & {"spec object", "buffer", "init buffer"} and not re.search(r"Size$", self.name)
        if self.specs("out") or (roles & {"spec object"} and not facts["init"]):
            return False
        if facts["reach"] in ("anchor", "radius", "fixed") and "border" not in roles and not facts["extent"]:
            words = [w for a in self.members[0].arguments for w in
                     [a["name"], *ENUMERATIONS.get(a.get("enumeration"), {})]]
            return bool(re.search(r"\dx\d|maskSize|kernelSize", " ".join(words + [self.name])))
        told = {a["name"] for m in self.members for a in m.arguments if a["role"] == "size"}
        return bool(facts["extent"] or told & {"roiSize", "dstRoiSize", "dstSize", "dstTileSize"})

    def offered(self):
        return [m for m in self.members if not {"1u", "16sc", "32sc"} & {m.source, m.destination} and
                not any(a["role"] == "step" and "[" in a["type"] for a in m.arguments)]


def makers(family, families):
    """The initialisers that serve a family, with the part of their names that tells them apart, and the setters."""
    if not family.facts["init"]:
        return [], []
    query = next(f for f in families if f.name == family.facts["init"]).facts["query"]
    stem = family.name.rstrip("_") if query != family.facts["query"] else family.name
    found = [f for f in families if f.specs("out") and not f.roles() & {"image", "planes"} and f.facts["query"] == query
             and f.name.startswith(stem)]
    names = {f.name for f in found}
    setters = [f for f in families if f.specs("out") and not f.roles() & {"image", "planes"} and not f.facts["query"]
               and f.name not in names and f.page == family.page and f.facts["init"]]
    return found, setters


def groups(families, offered=lambda f: f.callable() and f.offered()):
    """One name a family: image and constant forms together, with the border or without."""
    named = {f.name: f for f in families}
    found = {}
    for f in filter(offered, families):
        shorter = (f.name[:c.start()] + f.name[c.end():] for c in re.finditer(r"C(?=[A-Z]|$)", f.name))
        whole = next((named[n] for n in shorter if n in named), None)
        constant = bool(whole and f.images() == 1 and whole.images() == 2)
        name = (whole if constant else f).name.removeprefix("zmvi")
        if "border" in f.roles():
            name = name.replace("Border", "")
        found.setdefault(snake(name), []).append((f, constant))
    return found
