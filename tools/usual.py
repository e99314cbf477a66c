"""Everyday arguments of the functions of the Python package: of roles, and of names that stand for one thing in all families.
What the tests call them with, and the examples of the reference."""
import re

import numpy as np
from zmvip._arrays import DTYPES
from zmvip._members import members

# Parameters that may be anything, but not what they are of their kind.
USUAL = {"mask_size": 3, "block_size": 4, "window_size": 3, "kernel": np.arange(9).reshape(3, 3), "levels": [0, 60, 200, 256],
         "values": [250, 10, 90, 30], "lower_level": 0, "upper_level": 256, "n_levels": 9, "n_bit_size": 8, "table": None,
         "tables": None, "lower_bound": 50, "upper_bound": 200, "v_min": 0, "v_max": 255, "num_lobes": 3, "dst_order": None,
         "b": 0, "c": 0.5, "quad": [[2, 1], [20, 3], [19, 15], [1, 14]]}
BY_ROLE = {"constant": 5, "number": 1, "size": 3, "option": 0}
# Coefficients of maps, by how many there are.
COEFFICIENTS = {(2, 3): [[.9, .2, 2], [-.1, .8, 3]], (3, 3): [[.9, .2, 2], [-.1, .8, 3], [.001, .002, 1]],
                (2, 4): [[.001, .9, .2, 2], [.002, -.1, .8, 3]]}


def pixels(code, layout, width, height, seed=0):
    """An image, or planes, of small numbers."""
    rng, dtype = np.random.default_rng(seed), DTYPES[code]
    n = int(layout[-1])
    shape = (n, height, width) if "P" in layout else (height, width) if n == 1 else (height, width, n)
    if dtype.kind in "iu":
        values = rng.integers(0 if dtype.kind == "u" else -100, 250 if dtype.itemsize > 1 else 100, shape).astype(dtype)
    else:
        values = (rng.random(shape) * 250 + 1).astype(dtype)
    return tuple(values) if "P" in layout else values


def usual(m, python, a, width, height):
    """The value of an argument of a member, by its name in Python and what it is in C; the source has this size."""
    to = width * 4 // 3, height * 9 // 8
    if a.role == "map":
        return np.add.outer(np.arange(to[1]), np.arange(to[0])).astype(DTYPES["64f" if "double" in a.type else "32f"]) / 3
    if python in ("table", "tables"):
        return np.arange(256 * (3 if "24u" in m.name else 1)) % 256
    if python == "size":
        return (width * 4 // 7, height * 5 // 9) if "Super" in m.name else to  # which only reduces
    if python == "dst_order":
        return [2, 0, 1, 3][:int(m.to[-1]) if m.to != "AC4" else 3]
    if python == "coeffs":
        return COEFFICIENTS[tuple(int(n) for n in re.findall(r"\[(\d)\]", a.type))]
    if a.role == "rectangle" and not m.reads:
        return 0, 0, width, height
    if python in USUAL:
        return USUAL[python]
    return None if a.role in ("rectangle", "border value") else BY_ROLE.get(a.role, 1)


def images(engine, part, m, width, height):
    """The images of a call by their names in C, in the order in which Python takes them."""
    found = {n: pixels(m.source, m.from_, width, height, seed=i) for i, n in enumerate(m.reads + m.changes)}
    if engine.images == 2 and len(found) == 2 and m.facts["place"] == "second" and any(p[1] for p in engine.parts):
        found = dict(reversed(found.items()))
    return found


def keywords(engine, part, m, width, height):
    """What has to be said beside the images for this member to be called."""
    _, _, makers, _ = part
    found, roles = {}, {}
    for x in [m, *(x for f in makers[:1] for x in ([y for y in members(f) if y.source == m.source] or members(f))[:1])]:
        roles.update({a.name: a for a in x.arguments})
    for python, c, default in engine.rows[engine.images:]:
        if c == "nLevels" and "pLevels" in roles:  # their lengths
            continue
        if python == "dtype" and m.source != m.destination:
            found["dtype"] = DTYPES[m.destination].name
        if c in roles and (roles[c].role == "scale" or python == "size" or default == "None" or default is None):
            found[python] = 1 if roles[c].role == "scale" else usual(m, python, roles[c], width, height)
    found = {n: v for n, v in found.items() if v is not None}
    if "keep_alpha" in engine.keywords and "A" in m.to:
        found["keep_alpha"] = True
    if "layout" in engine.keywords and m.to != m.from_:
        found["layout"] = m.to.lstrip("A")
    if m.of_channel:
        found["channel"] = 0
    if "M" in m.letters:
        found["mask"] = pixels("8u", "C1", width, height, seed=9) > 40
    return found
