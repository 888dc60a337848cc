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
PANELS_OF_DIAL = 2


class Sheet:
    def __init__(self, width, height, x, y, invert):
        self.width, self.height, self.x, self.y, self.invert = width, height, x, y, invert
        self.signs = (-1 if "x" in invert else 1, -1 if "y" in invert else 1)

    def options(self):
        size = ["--size", f"{self.width / 1000}x{self.height / 1000}",
                "--shift", f"{self.x / 1000},{self.y / 1000}"]
        return size + (["--invert", self.invert] if self.invert else [])


def near(a, b, slack=NEAR):
    return abs(a[0] - b[0]) <= slack and abs(a[1] - b[1]) <= slack


def same_ends(a, b):
    return near(a[0], b[0]) and near(a[1], b[1]) or near(a[0], b[1]) and near(a[1], b[0])


class Row:
    """An entity of the list in millimetres from the drawing's origin, y down, mirrored as it is seen."""

    def __init__(self, row, signs):
        def number(name):
            return float(row[name]) if row[name] else 0.0
        self.kind, self.layer = row["kind"], row["layer"]
        sx, sy = (1000, 1000) if self.layer in UNMIRRORED else (1000 * signs[0], 1000 * signs[1])
        self.a = (number("x1") * sx, number("y1") * sy)
        self.b = (number("x2") * sx, number("y2") * sy)
        self.radius, self.aspect = number("radius") * 1000, number("aspect")
        self.start, self.end = number("start"), number("end")
        self.ends = [self.a] if self.kind in "PC" else [self.a, self.b]
        self.far = any(abs(value) > FAR for end in self.ends for value in end) or self.radius > FAR
        self.empty = self.kind == "L" and self.a == self.b

    def radii(self):
        return self.radius * min(1, 1 / self.aspect), self.radius * min(1, self.aspect)


def moved(point, sheet):
    return point[0] + sheet.x, point[1] + sheet.y


# --- DXF: the drawing's own origin, y up, nothing cut

def check_dxf(path, rows, sheet):
    with open(path, encoding="cp1252") as file:
        tags = [(code, value) for code, value in ascii_tags_loader(file)]
    begin = tags.index((2, "ENTITIES")) + 1
    entities = []
    for code, value in tags[begin:]:
        if code == 0:
            entities.append({0: value})
        else:
            entities[-1][code] = value
    found = iter(entities)
    # The axes and selected pages are mirrored here alone, and a box turns its corners as it goes:
    # so only a drawing that is not inverted is compared to the last entity.
    for row in rows:
        if row.kind == "B":
            (x1, y1), (x2, y2) = row.a, row.b
            wanted = [((x1, y2), (x2, y2)), ((x2, y2), (x2, y1)), ((x2, y1), (x1, y1)), ((x1, y1), (x1, y2))]
        else:
            wanted = [row.ends]
        for ends in wanted:
            entity = next(found)
            place = [(float(entity[10]), -float(entity[20]))]
            if 11 in entity:
                place.append((float(entity[11]), -float(entity[21])))
            assert entity[8] == row.layer, (entity, row.layer)
            if row.kind == "B" and sheet.invert:
                continue
            assert all(map(near, place, ends)) or row.far, f"DXF {entity} for {ends}"
            if row.kind == "C":
                assert abs(float(entity[40]) - row.radius) < NEAR, entity
            if entity[0] == "ARC":
                for code, angle in ((50, row.start), (51, row.end)):
                    assert abs(float(entity[code]) - math.degrees(angle)) < 1e-3, (entity, angle)
    assert next(found)[0] == "ENDSEC"


# --- SVG: millimetres of the sheet, layer by layer in the order of their first ink

ELEMENT = re.compile(r'<(g|path|rect|circle|ellipse) ([^>]*)>')
PATH = re.compile(r"([MLhAz])([^MLhAz]*)")


def svg_shapes(text):
    for name, rest in ELEMENT.findall(text):
        of = dict(re.findall(r'([\w:-]+)="([^"]*)"', rest))
        if name == "g" and of.get("id") == "texts":
            return
        if name == "rect":
            x, y, w, h = (float(of[key]) for key in ("x", "y", "width", "height"))
            yield "B", ((x, y), (x + w, y + h))
        elif name in ("circle", "ellipse"):
            yield "C", ((float(of["cx"]), float(of["cy"])),
                        (float(of.get("r", of.get("rx", 0))), float(of.get("r", of.get("ry", 0)))))
        elif name == "path":
            steps = [(command, [float(n) for n in numbers.split()]) for command, numbers in PATH.findall(of["d"])]
            if any(command == "A" for command, _ in steps):
                yield "A", steps
                continue
            at = None
            for command, numbers in steps:
                if command == "h":
                    yield "P", (at,)
                elif command == "L":
                    yield "L", (at, tuple(numbers))
                if numbers and command != "h":
                    at = tuple(numbers)


def on_ellipse(row, centre, angle):
    wide, high = row.radii()
    return centre[0] + wide * math.cos(angle), centre[1] - high * math.sin(angle)


def arc(row, centre, steps=1):
    """Places along it, counter-clockwise as seen; a negative angle has a radius drawn to its end."""
    start = abs(row.start) if row.end else 0
    sweep = math.fmod(abs(row.end) - start, 2 * math.pi)
    if sweep < 1e-6:
        sweep += 2 * math.pi
    places = [on_ellipse(row, centre, start + sweep * step / steps) for step in range(steps + 1)]
    return places + [centre] * (steps > 1 and (row.start < 0 or row.end < 0))


def check_svg(path, rows, sheet):
    order = {}
    for row in rows:
        if not row.empty:
            order.setdefault(row.layer, len(order))
    found = svg_shapes(path.read_text(encoding="utf-8"))
    for row in sorted((row for row in rows if not row.empty), key=lambda each: order[each.layer]):
        kind, shape = next(found)
        ends = [moved(end, sheet) for end in row.ends]
        where = f"SVG {kind} {shape} for {row.kind} {ends}"
        if row.kind == "P" or row.kind == "C" and row.radius == 0:
            assert kind == "P" and near(shape[0], ends[0]), where
        elif row.kind == "L":
            assert kind == "L" and same_ends(shape, ends), where
        elif row.kind == "B":
            low, high = [tuple(map(pick, *ends)) for pick in (min, max)]
            assert kind == "B" and near(shape[0], low) and near(shape[1], high), where
        elif row.end == 0:
            assert kind == "C" and near(shape[0], ends[0]) and near(shape[1], row.radii()), where
        else:
            arcs = [numbers for command, numbers in shape if command == "A"]
            first = next(numbers for command, numbers in shape if command == ("L" if row.start < 0 else "M"))
            begin, end = arc(row, ends[0])
            # A rounded radius and a rounded centre add up at the arc's ends.
            assert kind == "A" and near(first, begin, 2 * NEAR) and near(arcs[-1][5:], end, 2 * NEAR), where
            assert near(arcs[0][:2], row.radii()), where
    assert next(found, None) is None, "SVG: more than the list"


# --- PDF: points of the sheet, cut to it; Cairo melts strokes that go straight on into one

NUMBER = re.compile(rb"-?[0-9.]+")


def pdf_paths(data):
    """The stroked paths as lists of sub-paths; each a list of (kind, places)."""
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
    return height, [path for path in paths if len(path) > 1]  # a closed one ends in a bare move


def off_sheet(ends, reach, sheet):
    """True for what Cairo leaves out: all its ink lies outside the sheet."""
    return (max(x for x, _ in ends) + reach < 0 or min(x for x, _ in ends) - reach > sheet.width or
            max(y for _, y in ends) + reach < 0 or min(y for _, y in ends) - reach > sheet.height)


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
    if low > high:
        return None
    return tuple(tuple(p + t * (q - p) for p, q in zip(a, b)) for t in (low, high))


def off_segment(p, a, b):
    """How far p lies from the segment."""
    length = (b[0] - a[0]) ** 2 + (b[1] - a[1]) ** 2
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
        return self.path

    def take_all(self):
        path = self.next_path()
        self.at = len(path) - 1
        return path

    def follow(self, a, b):
        """Goes on to the other end of a stroke; False when the path has no such stroke here."""
        for start, end in ((a, b), (b, a)):
            if self.place is None or isinstance(self.place, str) or not near(start, self.place):
                continue
            at = self.at
            while at + 1 < len(self.path) and off_segment(end, self.path[at], self.path[at + 1]) > 1.5 * NEAR:
                if not near(self.path[at + 1], self.place, 2 * NEAR):
                    break  # the stroke does not end here
                at += 1
            else:
                if at + 1 < len(self.path):
                    self.place = end
                    self.at = at + 1 if near(end, self.path[at + 1]) else at
                    return True
        return False

    def stroke(self, a, b):
        if self.follow(a, b):
            return
        if near(a, b, 2 * NEAR):
            return  # less than Cairo's own steps: it may have melted away
        self.next_path()
        assert self.follow(a, b), f"PDF: {self.path[:3]} for {a} {b}"


def check_pdf(path, rows, sheet):
    height, paths = pdf_paths(path.read_bytes())
    assert abs(height / 72 * 25.4 - sheet.height) < NEAR
    pen = Pen(paths)
    for row in rows:
        ends = [moved(end, sheet) for end in row.ends]
        if row.kind == "L":
            seen = None if row.empty else cut(*ends, sheet)
            if seen and not near(*seen, 0):
                pen.stroke(*seen)
        elif row.kind == "P" or row.kind == "C" and row.radius == 0:
            if 0 <= ends[0][0] < sheet.width and 0 <= ends[0][1] < sheet.height:
                dot = pen.take_all()
                assert len(dot) == 2 and near(dot[0], ends[0]), f"PDF: {dot} for the point {ends}"
        elif off_sheet(ends if row.kind == "B" else arc(row, ends[0], 256), 0.125, sheet):
            continue
        elif row.kind == "B":
            box = pen.take_all()
            low, high = [tuple(map(pick, *ends)) for pick in (min, max)]
            # Cairo rounds corner and sides, each to the 256th of a point.
            assert box[0] == "box" and near(box[1], low) and near(box[2], high, 2 * NEAR), f"PDF: {box} for {ends}"
        else:
            wide, high = row.radii()
            centre = ends[0]
            curve = [place for place in pen.take_all() if not isinstance(place, str)]
            for x, y in curve:
                dx, dy = x - centre[0], y - centre[1]
                off = math.hypot(dx, dy * wide / high) - wide
                assert abs(off) < 2 * NEAR or near((x, y), centre), f"PDF: {x, y} for {row.__dict__}"
    assert next(pen.paths, None) is None, "PDF: more than the list"


def dials():
    told = subprocess.run([PROGRAM, "list", "--json"], capture_output=True, check=True).stdout
    return [dial["item"] for dial in json.loads(told) if dial["draws"]]


BOXES = ["chkOreAstronomiche", "Ck_DayLightCurves", "ck_Lemniscate", "ck_Italiche", "ckTemp", "ckArabi", "ckRomani",
         "ckAlt", "ck_Sustilare", "ckFrame"]


def main():
    chance = random.Random(7)
    compared = 0
    for dial in dials():
        for number in range(PANELS_OF_DIAL):
            sheet = Sheet(chance.randrange(200, 900), chance.randrange(200, 900), chance.randrange(100, 450),
                          chance.randrange(50, 400), chance.choice(["", "x", "y", "xy"]) if number else "")
            words = [f"txtLAT={chance.uniform(30, 60):.3f}", f"txtDecl={chance.uniform(-50, 50):.3f}", "TxtHour=1"]
            words += [f"{box}={chance.randrange(2)}" for box in BOXES] if number else ["ckFrame=1"]
            with tempfile.TemporaryDirectory() as name:
                # The DXF of an inverted drawing turns the list over for good: it comes last.
                csv_file, svg, pdf, dxf = (Path(name) / f"it.{ending}" for ending in ("csv", "svg", "pdf", "dxf"))
                command = [PROGRAM, "run", dial, *words, *sheet.options(), "--folder", name, "-q",
                           *(word for file in (csv_file, svg, pdf, dxf) for word in ("-o", file))]
                subprocess.run(command, check=True, timeout=60, capture_output=True)
                rows = [Row(row, sheet.signs) for row in csv.DictReader(csv_file.open(encoding="utf-8"))
                        if row["kind"] in "PLBC"]
                try:
                    check_dxf(dxf, rows, sheet)
                    check_svg(svg, rows, sheet)
                    check_pdf(pdf, rows, sheet)
                except (AssertionError, StopIteration):
                    print("in", *map(str, command))
                    raise
                compared += len(rows)
    print(f"{compared} entities are the same in all files")


if __name__ == "__main__":
    main()
