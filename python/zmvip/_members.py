"""Members of the library as the package sees them, and its words and numbers as functions take them."""
import warnings
from collections import namedtuple
from functools import lru_cache

import numpy as np

from . import _api
from ._arrays import number
from ._library import refused, warned

Roi = namedtuple("Roi", "x y width height")
Argument = namedtuple("Argument", "name type role direction enumeration count")
SHAPES = lru_cache(None)(lambda shape: tuple(Argument(*a) for a in _api.SHAPES[shape]))
LIMIT = 2**31 - 1


class Member:
    def __init__(self, row, family):
        self.name, shape, self.source, self.destination, self.from_, self.to, self.letters, self.large, _ = row
        self.arguments, self.family = SHAPES(shape), family
        self.facts = _api.FACTS[family]
        of = lambda *directions: [a.name for a in self.arguments if a.role in ("image", "planes") and
                                  a.direction in directions]
        self.reads, self.changes, self.writes = of("in"), of("inout"), of("out")
        self.of_channel = self.letters.startswith("C")  # the only one of an image that it reads or writes

    def has(self, name):
        return any(a.name == name or a.role == name for a in self.arguments)

    def steps(self):
        free = self.facts["freeSteps"].split()
        return "any" if {"*", self.letters, self.to + self.letters} & set(free) else self.facts["steps"]


@lru_cache(None)
def members(family):
    found = tuple(Member(row, family) for row in _api.FAMILIES[family])
    if any(m.of_channel for m in found):  # there, C1C3 is one of three channels, too
        for m in found:
            m.of_channel |= m.from_ != m.to and "C1" in (m.from_, m.to)
    return found


def check(function, status, member):
    if status < 0:
        raise refused(function, member.name, member.family, status)
    if status > 0:
        warnings.warn(warned(function, member.name, member.family, status), stacklevel=7)


def word(name, value, enumeration):
    """The value of an option: a number, or words, which may be joined by |; of one like 3x3, its sides."""
    sides = "{0}x{1}".format(*pair(name, value)) if not isinstance(value, str) else value
    if sides in _api.ENUMERATIONS.get(enumeration, {}):
        value = sides
    if not isinstance(value, str):
        return number(name, value, "int64_t")
    words = _api.ENUMERATIONS[enumeration] if enumeration else {}
    unknown = [w for w in value.split("|") if w not in words]
    if unknown:
        raise ValueError(f"{name}: {unknown[0]!r} is none of {', '.join(words)}")
    found = 0
    for w in value.split("|"):
        found |= words[w]
    return found


def pair(name, value):
    """A size or a point: two numbers, or one for both."""
    x, y = (value, value) if np.ndim(value) == 0 else value
    return number(name, x, "int64_t"), number(name, y, "int64_t")
