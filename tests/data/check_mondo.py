#!/usr/bin/env python3
"""Checks the world map, data/mondo.csv: its form, and what a reader of a map would miss at once.

Usage: check_mondo.py SOURCE_DIR [PROGRAM]
"""

import itertools
import math
import pathlib
import re
import sys

# A point on the coast of each of some countries, as latitude and longitude, to find a map that is
# mirrored, shifted or has its coordinates swapped.
KNOWN = [
    ("Portugal", 38.78, -9.50, "Cabo da Roca"),
    ("South Africa", -34.83, 20.00, "Cape Agulhas"),
    ("Norway", 71.17, 25.78, "North Cape"),
    ("New Zealand", -34.42, 172.68, "Cape Reinga"),
    ("United States of America", 48.38, -124.72, "Cape Flattery"),
]
# Name and number of a run, latitude, longitude.
ROW = re.compile(r"((\D*[^\d\s]\D*)\d+);(-?\d+\.?\d*);(-?\d+\.?\d*)")


def distance(a, b):
    """The angle between two points (latitude, longitude), all in degrees."""
    (lat1, lon1), (lat2, lon2) = (tuple(map(math.radians, p)) for p in (a, b))
    h = math.sin((lat2 - lat1) / 2) ** 2 + math.cos(lat1) * math.cos(lat2) * math.sin((lon2 - lon1) / 2) ** 2
    return math.degrees(2 * math.asin(math.sqrt(h)))


def faults_of_run(run, points):
    if len(points) < 2:
        yield f"{run} has one point alone"
    for a, b in itertools.pairwise(points):
        if distance(a, b) > 1.5 or abs(a[1] - b[1]) > (20 if abs(a[0]) < 80 else 180):
            yield f"{run} leaps from {a} to {b}"
        if abs(a[1]) == abs(b[1]) == 180:
            yield f"{run} runs along the antimeridian at {a}"
        if abs(a[0]) > 90 or abs(a[1]) > 180:
            yield f"{run} leaves the world at {a}"


def faults_of_map(text):
    first, *lines = text.split("\n")
    if not (first.startswith("#") and "Natural Earth" in first and ";" not in first):
        yield f"the first line does not name the source: {first!r}"
    if lines.pop() != "" or "\r" in text:
        yield "the lines do not end in a line feed each"
    rows = []
    for line in lines:
        row = ROW.fullmatch(line)
        if row:
            rows.append((row[2], row[1], (float(row[3]), float(row[4]))))
        elif not line.startswith("#"):
            yield f"not a name with a number, latitude and longitude: {line!r}"
    if len(rows) > 100_000:
        yield "more points than the table of the map has room for"

    for column in (0, 1):
        names = [name for name, _ in itertools.groupby(row[column] for row in rows)]
        if len(set(names)) != len(names):
            yield "a run or a country comes back after another one has begun"
        if len(names) < 150:
            yield f"only {len(names)} countries or runs"
    for run, points in itertools.groupby(rows, lambda row: row[1]):
        yield from faults_of_run(run, [point for _, _, point in points])
    for country, latitude, longitude, place in KNOWN:
        points = (point for name, _, point in rows if name == country)
        if min((distance(p, (latitude, longitude)) for p in points), default=180) > 0.3:
            yield f"{country} does not reach {place}"


def main():
    path = pathlib.Path(sys.argv[1]) / "data" / "mondo.csv"
    faults = list(faults_of_map(path.read_bytes().decode("utf-8")))
    print("\n".join([*faults[:20], f"{path.name}: {len(faults)} faults"]))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
