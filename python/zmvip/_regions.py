"""How large the images of a call are, and which region of them a region of the result is made of."""
import re

import numpy as np

from . import _api
from ._members import Roi, pair, word


class Regions:
    """What a call knows of its sizes: a part of Call, which has member, function, params, pictures, roi and whole."""

    def extent(self):
        """Width and height of the whole destination, or of what is read where nothing is written."""
        m, first = self.member, self.source
        if m.has("map"):
            return self.pictures["pxMap"].width, self.pictures["pxMap"].height
        if m.facts["extent"] and not m.changes:
            names = {a.name: self.argument(a) for a in m.arguments if a.role in ("option", "size") and
                     a.name not in ("dstRoiSize", "dstSize")}
            spaces = {**_api.CONSTANTS, "abs": abs, "labs": abs, **names}
            return tuple(int(eval(e, {"__builtins__": {}}, spaces)) for e in m.facts["extent"])
        if self.value("dstRoiSize") is not None or self.value("dstSize") is not None:
            return pair("size", self.params["size"])
        if self.sized() or first is None:
            if first is None and self.roi:
                raise ValueError(f"{self.function.name}: takes no roi but that of an image it reads: give a part as out")
            out = self.pictures.get((m.writes or m.reads)[0])
            if out is None or self.roi is not None:
                raise TypeError(f"{self.function.name}: takes out, or size=(width, height)")
            return out.width, out.height
        return first.width, first.height

    def sized(self):
        """Whether the user says how large the destination is."""
        return self.function.named.get("dstRoiSize") or self.function.named.get("dstSize")

    def size(self, name):
        """An argument that is a size, as (width, height)."""
        if self.value(name) is not None:
            return pair(name, self.value(name))
        digits = re.match(r"src(\d?)(Roi)?Size$", name)
        if digits and (digits[1] or self.source):
            picture = self.pictures[f"src{digits[1]}"] if digits[1] else self.source
            return (picture.width, picture.height) if not self.sliced() else self.roi[2:]
        if name == "kernelSize" and self.value("pKernel") is not None:
            return np.shape(self.value("pKernel"))[::-1]
        if name in ("dstSize",) or (name == "dstRoiSize" and self.mode() == "crop"):
            return self.whole
        if name == "roiSize" and self.member.facts["extent"] and not self.member.changes:
            return self.source.width, self.source.height
        if name in ("roiSize", "dstRoiSize", "dstTileSize"):
            return self.roi[2:]
        if name in ("width", "roiWidth"):
            return self.roi[2:3]
        raise TypeError(f"{self.function.name}: takes {self.function.named.get(name, (name,))[0]}")

    # Regions.

    def mode(self):
        """How a region of the result is worked: tiles of its own argument, slices of all images, or a part of the whole."""
        m = self.member
        if m.has("dstOffset"):
            return "offset"
        if m.has("map"):
            return "maps"
        if (m.facts["extent"] and not m.changes) or not m.facts["tiles"] or m.has("srcRoiSize") or m.has("src1Size") or \
                (m.facts["reach"] == "whole" and m.writes):
            return "crop"
        return "slice"

    def sliced(self):
        return self.mode() == "slice"

    def reach(self):
        """How many pixels to the left, the right, above and below a pixel take part; None if nothing tells."""
        m, reach = self.member, self.member.facts["reach"]
        if reach not in ("anchor", "fixed"):
            return None if reach == "radius" else (0, 0, 0, 0)
        sides = self.window()
        if sides is None:
            return None
        (w, h), anchor = sides, self.value("anchor")
        if m.has("anchor") and any(a.name == "maskSize" and a.type == "int" for a in m.arguments):
            x = (w - 1) // 2 if anchor is None else pair("anchor", anchor)[0]
            return (x, w - 1 - x, 0, 0) if m.family.endswith("Row") else (0, 0, x, w - 1 - x)
        x, y = ((w - 1) // 2, (h - 1) // 2) if anchor is None else pair("anchor", anchor)
        if self.value("pKernel") is not None and m.has("anchor"):
            x, y = w - 1 - x, h - 1 - y
        return x, w - 1 - x, y, h - 1 - y

    def window(self):
        """Width and height of what is looked at round a pixel: of a kernel, a mask, a word or a name like 3x3."""
        if self.value("pKernel") is not None:
            return self.size("kernelSize")
        if self.value("maskSize") is not None:
            return pair("mask_size", self.value("maskSize"))
        text = self.member.family
        for a in self.member.arguments:
            words = _api.ENUMERATIONS.get(a.enumeration, {})
            if a.role == "option" and any(re.match(r"\dx\d", w) for w in words):
                value = word(self.function.called(a.name), self.value(a.name), a.enumeration)
                text = next((w for w, v in words.items() if v == value), "")
        found = re.search(r"(\d)x(\d)", text)
        return found and (max(map(int, found.groups())),) * 2

    def around(self):
        """The region that has to be worked for the one that is asked for, and the flags of the sides in memory."""
        if self.mode() == "crop":
            return Roi(0, 0, *self.whole), 0
        if self.mode() != "slice" or self.member.facts["reach"] in ("none", "whole"):
            return self.roi, 0
        (x, y, w, h), (width, height), reach = self.roi, self.whole, self.reach()
        if reach is None and self.member.has("border"):
            return Roi(0, 0, width, height), 0
        if reach is None:
            raise ValueError(f"{self.function.name}: nothing tells what {self.member.name} reads round a pixel; see zmvip.raw")
        left, right, top, bottom = reach
        if not self.member.has("border"):
            x2, y2 = x + w, y + h
            if x < left or y < top or x2 + right > width or y2 + bottom > height:
                raise ValueError(
                    f"{self.member.name} reads neighbours from the image, which has to hold them: the largest roi is "
                    f"({left}, {top}, {width - left - right}, {height - top - bottom})")
            return self.roi, 0
        x2, y2 = x + w, y + h
        x, y = x if x >= left else 0, y if y >= top else 0
        x2, y2 = x2 if width - x2 >= right else width, y2 if height - y2 >= bottom else height
        words = _api.ENUMERATIONS["BORDER_"]
        flags = sum(words[f"in_mem_{side}"] for side, inside in
                    (("left", x > 0), ("top", y > 0), ("right", x2 < width), ("bottom", y2 < height)) if inside)
        return Roi(x, y, x2 - x, y2 - y), flags

    def offset(self, name):
        """Where the first pixel that a function is told of lies in an array."""
        picture, mode = self.pictures[name], self.mode()
        if mode == "slice" or (mode == "maps" and name in ("pxMap", "pyMap")):
            x, y = (self.roi.x, self.roi.y) if name not in self.member.writes + self.member.changes else (0, 0)
        elif mode == "offset" and name in self.member.reads:
            x, y = self.source_offset()
        else:
            x = y = 0
        return y * picture.step + x * picture.pixel
