#!/usr/bin/python3
"""Turns the lettering of the picture sources into outlines, in place.

A picture must look the same on a machine that lacks our font, so the SVG
sources hold no <text>. A line of lettering is one <path> that carries its own
recipe:

    <path data-text="Sensor 1" data-font="Inter-SemiBold" data-x="93" data-y="40"
          data-cap="7" data-xheight="5" data-anchor="middle" d="..."/>

Edit the recipe (or write a new path without d="") and run

    tools/pictures/outline_text.py images2/Bord.svg

which rewrites every d="". Running it twice changes nothing. Only who draws
needs this script and its two Debian packages, python3-fonttools and
fonts-inter; the build needs neither.

data-x, data-y   start of the base line, in user units
data-cap         height of a capital; data-xheight, height of an x. Whole
                 numbers put the tops of all letters on the pixel grid, which
                 is what keeps small lettering sharp
data-stretch     width factor (1), data-tracking: extra space per letter (0)
data-anchor      start (default), middle or end
"""

import re
import sys
from functools import lru_cache

from fontTools.pens.basePen import BasePen
from fontTools.ttLib import TTFont

FOLDER = "/usr/share/fonts/opentype/inter/"


class Face:
    def __init__(self, name):
        self.font = TTFont(FOLDER + name + ".otf")
        self.glyphs = self.font.getGlyphSet()
        self.names = self.font.getBestCmap()
        self.capital = self.font["OS/2"].sCapHeight
        self.small = self.font["OS/2"].sxHeight
        self.pairs = list(self._pair_tables())

    def _pair_tables(self):
        table = self.font["GPOS"].table
        wanted = {
            index
            for record in table.FeatureList.FeatureRecord
            if record.FeatureTag == "kern"
            for index in record.Feature.LookupListIndex
        }
        for index in sorted(wanted):
            for sub in table.LookupList.Lookup[index].SubTable:
                sub = getattr(sub, "ExtSubTable", sub)
                if sub.LookupType == 2:
                    yield sub

    def kern(self, left, right):
        for sub in self.pairs:
            if left not in sub.Coverage.glyphs:
                continue
            if sub.Format == 1:
                for pair in sub.PairSet[sub.Coverage.glyphs.index(left)].PairValueRecord:
                    if pair.SecondGlyph == right:
                        return (pair.Value1.XAdvance or 0) if pair.Value1 else 0
            else:
                first = sub.ClassDef1.classDefs.get(left, 0)
                second = sub.ClassDef2.classDefs.get(right, 0)
                value = sub.Class1Record[first].Class2Record[second].Value1
                return (getattr(value, "XAdvance", 0) or 0) if value else 0
        return 0


@lru_cache(maxsize=None)
def face(name):
    return Face(name)


class GridPen(BasePen):
    """Writes path data, bending heights so that lines of letters meet pixels."""

    OVERSHOOT = 30  # font units by which round letters rise above flat ones

    def __init__(self, glyphs, heights, scale):
        super().__init__(glyphs)
        self.heights = heights
        self.scale = scale
        self.left = 0.0
        self.base = 0.0
        self.data = []

    def _height(self, y):
        knots = [(0, 0.0)]
        for units, target in self.heights:
            knots.append((units, target))
        if y < 0:
            slope = self.heights[-1][1] / self.heights[-1][0]
            return min(0.0, (y + self.OVERSHOOT) * slope)
        below = knots[0]
        for knot in knots[1:]:
            low = below[0] + (self.OVERSHOOT if below[0] else 0)
            if y <= knot[0]:
                if y <= low:
                    return below[1]
                return below[1] + (y - low) * (knot[1] - below[1]) / (knot[0] - low)
            below = knot
        slope = below[1] / below[0]
        return below[1] + max(0.0, y - below[0] - self.OVERSHOOT) * slope

    def _at(self, point):
        x = self.left + point[0] * self.scale
        y = self.base - self._height(point[1])
        return f"{x:.2f} {y:.2f}".replace(".00", "")

    def _moveTo(self, p):
        self.data.append("M" + self._at(p))

    def _lineTo(self, p):
        self.data.append("L" + self._at(p))

    def _curveToOne(self, a, b, c):
        self.data.append(f"C{self._at(a)} {self._at(b)} {self._at(c)}")

    def _closePath(self):
        self.data.append("Z")


def outline(recipe):
    type_face = face(recipe.get("font", "Inter-Medium"))
    cap = float(recipe["cap"])
    heights = [(type_face.capital, cap)]
    if "xheight" in recipe:
        heights.insert(0, (type_face.small, float(recipe["xheight"])))
    scale = cap / type_face.capital * float(recipe.get("stretch", 1))
    tracking = float(recipe.get("tracking", 0))
    text = recipe["text"].replace("&amp;", "&").replace("&gt;", ">")

    glyphs = [type_face.names[ord(letter)] for letter in text]
    places, x = [], 0.0
    for index, name in enumerate(glyphs):
        if index:
            x += type_face.kern(glyphs[index - 1], name) * scale + tracking
        places.append(x)
        x += type_face.glyphs[name].width * scale

    shift = {"start": 0.0, "middle": -x / 2, "end": -x}[recipe.get("anchor", "start")]
    pen = GridPen(type_face.glyphs, heights, scale)
    pen.base = float(recipe["y"])
    for name, place in zip(glyphs, places):
        pen.left = float(recipe["x"]) + shift + place
        type_face.glyphs[name].draw(pen)
    return "".join(pen.data)


def rewrite(match):
    element = match.group(0)
    recipe = dict(re.findall(r'data-([a-z]+)="([^"]*)"', element))
    bare = re.sub(r'\s+d="[^"]*"', "", element)
    return bare[:-2].rstrip() + f' d="{outline(recipe)}"/>'


def main():
    if len(sys.argv) < 2:
        sys.exit("usage: outline_text.py PICTURE.svg ...")
    for path in sys.argv[1:]:
        with open(path, encoding="utf-8") as file:
            before = file.read()
        after = re.sub(r"<path\b[^>]*\bdata-text=[^>]*/>", rewrite, before)
        if after != before:
            with open(path, "w", encoding="utf-8") as file:
                file.write(after)


if __name__ == "__main__":
    main()
