"""The files of one run tell the same geometry to a thousandth of a millimetre.

usage: check_formats.py SOURCE_DIR PROGRAM

The entity list is the truth; DXF, SVG and PDF are read by readers of their own and held against it
stroke by stroke, in drawing order. Texts are not compared.
"""
import csv
import json
import math
import random
import re
import subprocess
import sys
import tempfile
import zlib
from pathlib import Path

try:
    import ezdxf
except ImportError:
    print("skipped: python3-ezdxf is not installed")
    sys.exit(0)

PROGRAM = sys.argv[2]
NEAR = 0.001 + 1e-9  # mm
FAR = 1e6  # mm: beyond a kilometre the drawings end in their own ways
UNMIRRORED = {"AssiXY", "sys:page"}


class Sheet:
    """Its size and its origin from the upper left corner in millimetres, and the inverted axes."""

    def __init__(self, chance, invert):
        self.width, self.height = chance.randrange(200, 900), chance.randrange(200, 900)
        self.x, self.y, self.invert = chance.randrange(100, 450), chance.randrange(50, 400), invert
        self.scales = [-1000 if axis in invert else 1000 for axis in "xy"]

    def options(self):
        return ["--size", f"{self.width / 1000}x{self.height / 1000}", "--shift", f"{self.x / 1000},{self.y / 1000}",
                *(["--invert", self.invert] if self.invert else [])]

    def holds(self, point):
        return 0 <= point[0] < self.width and 0 <= point[1] < self.height


class Row:
    """An entity of the list in millimetres, y down: seen from the drawing's origin, and on the sheet."""

    def __init__(self, cells, sheet):
        self.kind, self.layer = cells[0], cells[12]
        x1, y1, x2, y2, radius, self.aspect, self.start, self.end = (float(cell or 0) for cell in cells[1:9])
        sx, sy = (1000, 1000) if self.layer in UNMIRRORED else sheet.scales
        self.ends = [(x1 * sx, y1 * sy)] if self.kind in "PC" else [(x1 * sx, y1 * sy), (x2 * sx, y2 * sy)]
        self.placed = [(x + sheet.x, y + sheet.y) for x, y in self.ends]
        self.radius = radius * 1000
        self.dot = self.kind == "P" or self.kind == "C" and radius == 0
        self.empty = self.kind == "L" and self.ends[0] == self.ends[1]

    def __str__(self):
        return f"{self.kind} {self.ends} {self.radius} on {self.layer}"

    def far(self):
        return self.radius > FAR or any(abs(value) > FAR for end in self.ends for value in end)

    def radii(self):
        return self.radius * min(1, 1 / self.aspect), self.radius * min(1, self.aspect)

    def corners(self):
        """The upper left and the lower right of a box."""
        return [tuple(map(pick, *self.placed)) for pick in (min, max)]

    def arc(self, steps=1):
        """Places along a circle, counter-clockwise as seen."""
        sweep = math.fmod(self.end - self.start, 2 * math.pi) if self.end else 0
        sweep += 2 * math.pi if sweep < 1e-6 else 0
        (x, y), (wide, high) = self.placed[0], self.radii()
        angles = [self.start + sweep * step / steps for step in range(steps + 1)]
        return [(x + wide * math.cos(angle), y - high * math.sin(angle)) for angle in angles]


def near(a, b, slack=NEAR):
    return abs(a[0] - b[0]) <= slack and abs(a[1] - b[1]) <= slack


# --- DXF: the drawing's own origin, y up, nothing cut

def check_dxf(path, rows, sheet):
    document = ezdxf.readfile(path)
    found = iter(document.modelspace())
    for row in rows:
        wanted, kind = [row.ends], {"P": "POINT", "L": "LINE", "B": "LINE", "C": "ARC" if row.end else "CIRCLE"}[row.kind]
        if row.kind == "B":
            (x1, y1), (x2, y2) = row.ends
            wanted = [((x1, y2), (x2, y2)), ((x2, y2), (x2, y1)), ((x2, y1), (x1, y1)), ((x1, y1), (x1, y2))]
        for ends in wanted:
            entity = next(found)
            has = entity.dxfattribs()
            places = [(has[name].x, -has[name].y) for name in ("location", "center", "start", "end") if name in has]
            same = entity.dxftype() == kind and has["layer"] == row.layer
            # A box of an inverted drawing turns its corners as it goes.
            same &= row.kind == "B" and sheet.invert != "" or all(map(near, places, ends)) or row.far()
            same &= row.kind != "C" or abs(has["radius"] - row.radius) < NEAR
            if kind == "ARC":
                angles = math.degrees(row.start), math.degrees(row.end)
                same &= near((has["start_angle"], has["end_angle"]), angles)
            assert same, f"DXF {entity} {has} for {row}"
    assert next(found, None) is None, "DXF: more than the list"
    errors = [error.message for error in document.audit().errors]
    assert not errors, errors[:3]


# --- SVG: millimetres of the sheet, layer by layer in the order of their first ink

ELEMENT = re.compile(r'<(g|path|rect|circle|ellipse) ([^>]*)>')
PATH = re.compile(r"([MLhA])([^MLhAz]*)")


def svg_shapes(text):
    """Each layer's label, then its strokes, boxes, dots, circles and arcs: kind, two places, and radii."""
    for name, rest in ELEMENT.findall(text):
        of = dict(re.findall(r'([\w:-]+)="([^"]*)"', rest))
        if name == "g" and of.get("id") == "texts":
            return
        if name == "g" and "inkscape:label" in of:
            yield "g", of["inkscape:label"], None, None
        elif name == "rect":
            x, y, w, h = (float(of[key]) for key in ("x", "y", "width", "height"))
            yield "B", (x, y), (x + w, y + h), None
        elif name in ("circle", "ellipse"):
            centre = (float(of["cx"]), float(of["cy"]))
            yield "C", centre, centre, [float(of.get("r", of.get(key, 0))) for key in ("rx", "ry")]
        elif name == "path":
            start = at = radii = None
            for command, numbers in PATH.findall(of["d"]):
                last, numbers = at, [float(number) for number in numbers.split()]
                if command == "h":
                    yield "P", at, at, None
                    continue
                at = tuple(numbers[-2:])
                if command == "A":
                    radii = numbers[:2]
                elif command == "L":
                    yield "L", last, at, None
                else:
                    start = at
            if radii:
                yield "A", start, at, radii


def check_svg(path, rows, sheet):
    order, layer = {}, None
    for row in rows:
        order.setdefault(row.layer, len(order))
    found = svg_shapes(path.read_text(encoding="utf-8"))
    for row in sorted(rows, key=lambda each: order[each.layer]):
        kind, a, b, radii = next(found)
        if row.layer != layer:
            layer = row.layer
            assert (kind, a) == ("g", layer), f"SVG: {kind} {a} for the layer {layer}"
            kind, a, b, radii = next(found)
        if row.dot:
            wanted, ends = "P", row.placed * 2
        elif row.kind == "C":
            wanted, ends = ("A", row.arc()) if row.end else ("C", row.placed * 2)
        else:
            wanted, ends = row.kind, row.corners() if row.kind == "B" else row.placed
        # A rounded radius and a rounded centre add up at an arc's ends.
        slack = 2 * NEAR if kind == "A" else NEAR
        same = near(a, ends[0], slack) and near(b, ends[1], slack)
        same |= kind == "L" and near(a, ends[1]) and near(b, ends[0])
        assert kind == wanted and same and (not radii or near(radii, row.radii())), f"SVG {kind, a, b, radii} for {row}"
    assert next(found, None) is None, "SVG: more than the list"


# --- PDF: points of the sheet, cut to it; Cairo melts strokes that go straight on into one

NUMBER = re.compile(rb"-?[0-9.]+")


def pdf_shapes(data):
    """The page's height, and what is stroked in order: a kind and places, of a curve all that it goes through."""
    begin = re.search(rb"stream\r?\n", data).end()
    words = zlib.decompressobj().decompress(data[begin:]).split()
    text = words.index(b"BT") if b"BT" in words else len(words)
    height = float(words[words.index(b"cm") - 1])
    numbers, shapes = [], []
    for word in words[:text]:
        if NUMBER.fullmatch(word):
            numbers.append(float(word))
            continue
        places = [(x / 72 * 25.4, y / 72 * 25.4) for x, y in zip(numbers[::2], numbers[1::2])]
        if word == b"l":
            shapes.append(("L", [at, places[0]]))
        elif word == b"c" and begun:
            shapes.append(("C", [at, places[2]]))
        elif word == b"c":
            shapes[-1][1].append(places[2])
        elif word == b"re":
            (x, y), (w, h) = places
            shapes.append(("B", [(x, y), (x + w, y + h)]))
        begun = word == b"m"
        at = places[-1] if places else None
        numbers = []
    return height / 72 * 25.4, shapes


def off_sheet(places, sheet):
    """True for what Cairo leaves out: all its ink lies outside the sheet."""
    xs, ys = zip(*places)
    return max(xs) < -0.125 or min(xs) > sheet.width + 0.125 or max(ys) < -0.125 or min(ys) > sheet.height + 0.125


def cut(a, b, sheet):
    """The part of a line on the sheet, or None."""
    low, high = 0.0, 1.0
    for axis, size in ((0, sheet.width), (1, sheet.height)):
        d = b[axis] - a[axis]
        if d == 0:
            if not 0 <= a[axis] <= size:
                return None
            continue
        s, t = sorted(((0 - a[axis]) / d, (size - a[axis]) / d))
        low, high = max(low, s), min(high, t)
    if low >= high:
        return None
    return tuple(tuple(p + t * (q - p) for p, q in zip(a, b)) for t in (low, high))


def off_segment(p, a, b):
    """How far p lies from the segment."""
    length = math.dist(a, b) ** 2
    t = 0 if length == 0 else ((p[0] - a[0]) * (b[0] - a[0]) + (p[1] - a[1]) * (b[1] - a[1])) / length
    t = min(1, max(0, t))
    return math.dist(p, (a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1])))


class Pen:
    """Walks along the PDF's shapes; one is done when each of its places is an entity's end."""

    def __init__(self, shapes):
        self.shapes, self.left = iter(shapes), []

    def shape(self):
        if not self.left:
            self.kind, self.places = next(self.shapes, (None, []))
            self.left = self.places
        return self.kind, self.places

    def stroke(self, a, b):
        kind, places = self.shape()
        if kind == "L" and all(off_segment(end, *places) <= 1.5 * NEAR for end in (a, b)):
            self.left = [place for place in self.left if not near(place, a) and not near(place, b)]
        else:  # less than Cairo's own steps may have melted away
            assert near(a, b, 2 * NEAR), f"PDF: {kind} {places} for {a} {b}"

    def take(self, kind, row):
        seen, places = self.shape()
        assert seen == kind, f"PDF: {seen} {places} for {row}"
        self.left = []
        return places


def check_pdf(path, rows, sheet):
    height, shapes = pdf_shapes(path.read_bytes())
    assert abs(height - sheet.height) < NEAR
    pen = Pen(shapes)
    for row in rows:
        if row.kind == "L":
            if seen := cut(*row.placed, sheet):
                pen.stroke(*seen)
        elif row.dot:
            if sheet.holds(row.placed[0]):
                dot = pen.take("L", row)
                assert all(map(near, dot, row.placed * 2)), f"PDF: {dot} for {row}"
        elif off_sheet(row.placed if row.kind == "B" else row.arc(256), sheet):
            continue
        elif row.kind == "B":
            # Cairo rounds corner and sides, each to the 256th of a point.
            corners = pen.take("B", row)
            assert all(map(near, corners, row.corners(), (NEAR, 2 * NEAR))), f"PDF: {corners} for {row}"
        else:
            (x, y), (wide, high) = row.placed[0], row.radii()
            for place in pen.take("C", row):
                off = math.hypot(place[0] - x, (place[1] - y) * wide / high) - wide
                assert abs(off) < 2 * NEAR, f"PDF: {place} for {row}"
    assert not pen.left and pen.shape() == (None, []), "PDF: more than the list"


BOXES = ["chkOreAstronomiche", "Ck_DayLightCurves", "ck_Lemniscate", "ck_Italiche", "ckTemp", "ckArabi", "ckRomani",
         "ckAlt", "ck_Sustilare"]


def main():
    chance = random.Random(7)
    compared = 0
    told = subprocess.run([PROGRAM, "list", "--json"], capture_output=True, check=True).stdout
    dials = [dial["item"] for dial in json.loads(told) if dial["draws"]]
    for number, dial in enumerate(dials):
        sheet = Sheet(chance, ("", "x", "y", "xy")[number % 4])
        words = [f"txtLAT={chance.uniform(30, 60):.3f}", f"txtDecl={chance.uniform(-50, 50):.3f}", "TxtHour=1", "ckFrame=1"]
        words += [f"{box}={chance.randrange(2)}" for box in BOXES]
        with tempfile.TemporaryDirectory() as name:
            # The DXF of an inverted drawing turns the list over for good: it comes last.
            files = [Path(name) / f"it.{ending}" for ending in ("csv", "svg", "pdf", "dxf")]
            command = [PROGRAM, "run", dial, *words, *sheet.options(), "--folder", name, "-q",
                       *(word for file in files for word in ("-o", file))]
            subprocess.run(command, check=True, timeout=60, capture_output=True)
            with files[0].open(encoding="utf-8") as lines:
                rows = [Row(cells, sheet) for cells in csv.reader(lines) if cells[0] in "PLBC"]
            try:
                check_dxf(files[3], rows, sheet)
                check_svg(files[1], [row for row in rows if not row.empty], sheet)
                check_pdf(files[2], rows, sheet)
            except (AssertionError, StopIteration):
                print("in", *map(str, command))
                raise
            compared += len(rows)
    print(f"{compared} entities are the same in all files")


if __name__ == "__main__":
    main()
