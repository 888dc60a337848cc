#!/usr/bin/env python3
"""Reads DXF drawings of the program with other people's readers.

    tests/sheet/check_dxf.py SOURCE_FOLDER PROGRAM

ezdxf must load and audit each without an error and find what the entity list holds; LibreCAD, where
it is installed, must turn each into a page.
"""
import csv
import math
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

try:
    import ezdxf
except ImportError:
    print("skipped: python3-ezdxf is not installed")
    sys.exit(0)

# A dial with the layers of its declinations and a frame; one of the sphere; one of circles.
RUNS = [["M_Light", "ckFrame=1"], ["mnuUni"], ["mnuFontana_H3"]]


def expected_entities(table: Path) -> list[tuple]:
    """The type, layer and numbers of each entity of the list, in drawing order."""
    entities = []
    for row in csv.DictReader(table.read_text(encoding="utf-8").splitlines()):
        def add(kind, *names):
            signs = [-1000 if name.startswith("y") else 1000 for name in names]
            entities.append((kind, row["layer"],
                             *(sign * float(row[name]) for sign, name in zip(signs, names))))

        if row["kind"] == "P":
            add("POINT", "x1", "y1")
        elif row["kind"] == "L":
            add("LINE", "x1", "y1", "x2", "y2")
        elif row["kind"] == "C":
            add("CIRCLE" if float(row["end"]) == 0 else "ARC", "x1", "y1", "radius")
        elif row["kind"] == "B":
            for corners in ("x1 y2 x2 y2", "x2 y2 x2 y1", "x2 y1 x1 y1", "x1 y1 x1 y2"):
                add("LINE", *corners.split())
    return entities


def read_entity(entity) -> tuple:
    kind, dxf = entity.dxftype(), entity.dxf
    if kind == "LINE":
        numbers = (dxf.start.x, dxf.start.y, dxf.end.x, dxf.end.y)
    elif kind == "POINT":
        numbers = (dxf.location.x, dxf.location.y)
    else:
        numbers = (dxf.center.x, dxf.center.y, dxf.radius)
    return (kind, dxf.layer, *numbers)


def same(a: tuple, b: tuple) -> bool:
    return a[:2] == b[:2] and all(
        math.isclose(x, y, rel_tol=1e-12, abs_tol=1e-9) for x, y in zip(a[2:], b[2:], strict=True))


def check_ezdxf(path: Path, expected: list[tuple]) -> None:
    document = ezdxf.readfile(path)
    errors = [error.message for error in document.audit().errors]
    assert not errors, errors[:3]
    found = [read_entity(entity) for entity in document.modelspace()]
    assert len(found) == len(expected) > 1000, f"{len(found)} entities, {len(expected)} expected"
    for number, (a, b) in enumerate(zip(found, expected)):
        assert same(a, b), f"entity {number}: {a} in place of {b}"


def check_librecad(path: Path) -> None:
    folder = path.parent
    subprocess.run(
        ["librecad", "dxf2pdf", "-a", path.name], cwd=folder, timeout=120, check=True,
        capture_output=True, env=os.environ | {
            "QT_QPA_PLATFORM": "offscreen", "HOME": folder, "XDG_RUNTIME_DIR": folder})
    assert path.with_suffix(".pdf").read_bytes().startswith(b"%PDF"), "LibreCAD made no page"


def main() -> int:
    for arguments in RUNS:
        with tempfile.TemporaryDirectory() as name:
            dxf, table = Path(name) / "it.dxf", Path(name) / "it.csv"
            subprocess.run([sys.argv[2], "run", *arguments, "--folder", name, "-o", table, "-o", dxf],
                           check=True, timeout=120)
            check_ezdxf(dxf, expected_entities(table))
            if shutil.which("librecad"):
                check_librecad(dxf)
        print(" ".join(arguments), "- as the entity list says")
    return 0


if __name__ == "__main__":
    sys.exit(main())
