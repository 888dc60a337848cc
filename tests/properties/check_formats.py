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
    from ezdxf.lldxf.tagger import ascii_tags_loader
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

def dxf_entities(path):
    with open(path, encoding="cp1252") as file:
        entity = {}
        for code, value in ascii_tags_loader(file):
            if code == 0:
                yield entity
                entity = {}
            entity[code] = value


def check_dxf(path, rows, sheet):
    found = dxf_entities(path)
    while next(found).get(2) != "ENTITIES":
        pass
    for row in rows:
        wanted, kind = [row.ends], {"P": "POINT", "L": "LINE", "B": "LINE", "C": "ARC" if row.end else "CIRCLE"}[row.kind]
        if row.kind == "B":
            (x1, y1), (x2, y2) = row.ends
            wanted = [((x1, y2), (x2, y2)), ((x2, y2), (x2, y1)), ((x2, y1), (x1, y1)), ((x1, y1), (x1, y2))]
        for ends in wanted:
            entity = next(found)
            place = [(float(entity[10]), -float(entity[20]))]
            if 11 in entity:
                place.append((float(entity[11]), -float(entity[21])))
            assert entity[0] == kind and entity[8] == row.layer, f"DXF {entity} for {row}"
            # A box of an inverted drawing turns its corners as it goes.
            turned = row.kind == "B" and sheet.invert
            assert turned or all(map(near, place, ends)) or row.far(), f"DXF {entity} for {row}"
            if row.kind == "C":
                assert abs(float(entity[40]) - row.radius) < NEAR, f"DXF {entity} for {row}"
            if kind == "ARC":
                for code, angle in ((50, row.start), (51, row.end)):
                    assert abs(float(entity[code]) - math.degrees(angle)) < 1e-3, f"DXF {entity} for {row}"
    assert next(found)[0] == "ENDSEC"


# --- SVG: millimetres of the sheet, layer by layer in the order of their first ink

ELEMENT = re.compile(r'<(g|path|rect|circle|ellipse) ([^>]*)>')
PATH = re.compile(r"([MLhA])([^MLhAz]*)")


def svg_shapes(text):
    """Each stroke, box, dot, circle or arc: its kind, two places, and a circle's or arc's radii."""
    for name, rest in ELEMENT.findall(text):
        of = dict(re.findall(r'([\w:-]+)="([^"]*)"', rest))
        if name == "g" and of.get("id") == "texts":
            return
        if name == "rect":
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
    order = {}
    for row in rows:
        order.setdefault(row.layer, len(order))
    found = svg_shapes(path.read_text(encoding="utf-8"))
    for row in sorted(rows, key=lambda each: order[each.layer]):
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


def pdf_paths(data):
    """The page's height, and the sub-paths that are stroked: lists of places and of words for their kind."""
    begin = re.search(rb"stream\r?\n", data).end()
    words = zlib.decompressobj().decompress(data[begin:]).split()
    text = words.index(b"BT") if b"BT" in words else len(words)
    height = float(words[words.index(b"cm") - 1])
    numbers, paths = [], []
    for word in words[:text]:
        if NUMBER.fullmatch(word):
            numbers.append(float(word))
            continue
        places = [(x / 72 * 25.4, y / 72 * 25.4) for x, y in zip(numbers[::2], numbers[1::2])]
        if word == b"m":
            paths.append([places[0]])
        elif word == b"l":
            paths[-1].append(places[0])
        elif word == b"c":
            paths[-1] += ["curve", places[2]]
        elif word == b"re":
            (x, y), (w, h) = places
            paths.append(["box", (x, y), (x + w, y + h)])
        numbers = []
    return height / 72 * 25.4, [path for path in paths if len(path) > 1]  # a closed one ends in a bare move


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
    """Walks along the PDF's paths as the strokes of the list ask for it."""

    def __init__(self, paths):
        self.paths, self.path, self.at, self.place = iter(paths), [None], 0, None

    def next_path(self):
        assert self.at >= len(self.path) - 1, f"PDF: {self.path[self.at:]} is not in the list"
        self.path, self.at = next(self.paths, [None]), 0
        self.place = self.path[0]

    def take_all(self):
        self.next_path()
        self.at = len(self.path) - 1
        return self.path

    def follow(self, a, b):
        """Goes on to the other end of a stroke; False when the path has no such stroke here."""
        for start, end in ((a, b), (b, a)):
            if self.place is None or isinstance(self.place, str) or not near(start, self.place):
                continue
            for at in range(self.at, len(self.path) - 1):
                if off_segment(end, self.path[at], self.path[at + 1]) <= 1.5 * NEAR:
                    self.place = end
                    self.at = at + 1 if near(end, self.path[at + 1]) else at
                    return True
                if not near(self.path[at + 1], self.place, 2 * NEAR):
                    break  # the stroke does not end here
        return False

    def stroke(self, a, b):
        if not self.follow(a, b) and not near(a, b, 2 * NEAR):  # less than Cairo's own steps may have melted away
            self.next_path()
            assert self.follow(a, b), f"PDF: {self.path[:3]} for {a} {b}"


def check_pdf(path, rows, sheet):
    height, paths = pdf_paths(path.read_bytes())
    assert abs(height - sheet.height) < NEAR
    pen = Pen(paths)
    for row in rows:
        if row.kind == "L":
            if seen := cut(*row.placed, sheet):
                pen.stroke(*seen)
        elif row.dot:
            if sheet.holds(row.placed[0]):
                dot = pen.take_all()
                assert len(dot) == 2 and near(dot[0], row.placed[0]), f"PDF: {dot} for {row}"
        elif off_sheet(row.placed if row.kind == "B" else row.arc(256), sheet):
            continue
        elif row.kind == "B":
            kind, *corners = pen.take_all()
            # Cairo rounds corner and sides, each to the 256th of a point.
            assert kind == "box" and all(map(near, corners, row.corners(), (NEAR, 2 * NEAR))), f"PDF: {corners} for {row}"
        else:
            (x, y), (wide, high) = row.placed[0], row.radii()
            for place in pen.take_all():
                if not isinstance(place, str):
                    off = math.hypot(place[0] - x, (place[1] - y) * wide / high) - wide
                    assert abs(off) < 2 * NEAR, f"PDF: {place} for {row}"
    assert next(pen.paths, None) is None, "PDF: more than the list"


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
