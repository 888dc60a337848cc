#!/usr/bin/env python3
"""Checks the world map, data/mondo.csv: its form, and what a reader of a map would miss at once.

Usage: check_mondo.py SOURCE_DIR [PROGRAM]
"""

import itertools
import math
import pathlib
import sys

# A point on the coast of each of some countries, as latitude and longitude, to find a map that is
# mirrored, shifted or has its coordinates swapped.
KNOWN = [
    ("Portugal", 38.78, -9.50, "Cabo da Roca"),
    ("South Africa", -34.83, 20.00, "Cape Agulhas"),
    ("Chile", -55.98, -67.27, "Cape Horn"),
    ("India", 8.08, 77.55, "Cape Comorin"),
    ("Australia", -10.69, 142.53, "Cape York"),
    ("Norway", 71.17, 25.78, "North Cape"),
    ("New Zealand", -34.42, 172.68, "Cape Reinga"),
    ("United States of America", 48.38, -124.72, "Cape Flattery"),
    ("Senegal", 14.74, -17.52, "Cap-Vert"),
]


def distance(a, b):
    """The angle between two points (latitude, longitude), all in degrees."""
    (lat1, lon1), (lat2, lon2) = (tuple(map(math.radians, p)) for p in (a, b))
    h = math.sin((lat2 - lat1) / 2) ** 2 + math.cos(lat1) * math.cos(lat2) * math.sin((lon2 - lon1) / 2) ** 2
    return math.degrees(2 * math.asin(math.sqrt(h)))


def country_of(key):
    """The country that a run belongs to: the run's key without its digits."""
    return "".join(c for c in key if c not in "0123456789")


def read(lines, faults):
    """The rows (run's key, (latitude, longitude)) of the lines that are no comments."""
    for number, line in enumerate(lines, 1):
        if line.startswith("#"):
            continue
        fields = line.split(";")
        try:
            key, point = fields[0], (float(fields[1]), float(fields[2]))
        except (IndexError, ValueError):
            faults.append(f"line {number} is no point: {line!r}")
            continue
        if len(fields) != 3 or not key[-1:].isdigit() or not country_of(key).strip():
            faults.append(f"line {number} has not the form name and number, latitude, longitude: {line!r}")
        elif abs(point[0]) > 90 or abs(point[1]) > 180:
            faults.append(f"line {number} lies outside the world: {line!r}")
        else:
            yield key, point


def check(text):
    """The list of faults of a map's text."""
    faults = []
    lines = text.split("\n")
    if not (lines[0].startswith("#") and "Natural Earth" in lines[0] and ";" not in lines[0]):
        faults.append(f"the first line does not name the source: {lines[0]!r}")
    if lines.pop() != "" or "\r" in text:
        faults.append("the lines do not end in a line feed each")

    runs = [(key, [point for _, point in rows])
            for key, rows in itertools.groupby(read(lines, faults), lambda row: row[0])]
    keys = [key for key, _ in runs]
    if len(set(keys)) != len(keys):
        faults.append("a run comes back after another one has begun")
    countries = [country for country, _ in itertools.groupby(keys, country_of)]
    if len(set(countries)) != len(countries):
        faults.append("a country comes back after another one has begun")
    if len(countries) < 150:
        faults.append(f"only {len(countries)} countries")
    if sum(len(points) for _, points in runs) > 100_000:
        faults.append("more points than the table of the map has room for")

    for key, points in runs:
        if len(points) < 2:
            faults.append(f"{key} has one point alone")
        for a, b in itertools.pairwise(points):
            if distance(a, b) > 1.5 or abs(a[1] - b[1]) > (20 if abs(a[0]) < 80 else 180):
                faults.append(f"{key} leaps from {a} to {b}")
            if abs(a[1]) == abs(b[1]) == 180:
                faults.append(f"{key} runs along the antimeridian at {a}")

    for country, latitude, longitude, place in KNOWN:
        points = (p for key, points in runs if country_of(key) == country for p in points)
        if min((distance(p, (latitude, longitude)) for p in points), default=180) > 0.3:
            faults.append(f"{country} does not reach {place}")
    return faults


def main():
    path = pathlib.Path(sys.argv[1]) / "data" / "mondo.csv"
    faults = check(path.read_bytes().decode("utf-8"))
    for fault in faults[:20]:
        print(fault)
    print(f"{path.name}: {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
