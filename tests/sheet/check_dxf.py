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
RUNS = [
    ["M_Light", "ckFrame=1"],
    ["mnuUni"],
    ["mnuFontana_H3"],
    ["1", "txtLAT=-35"],  # refused: there is nothing to write
]


def rows_of(path: Path) -> list[dict]:
    with path.open(encoding="utf-8", newline="") as file:
        return [row for row in csv.DictReader(file) if row["kind"] != "T"]


def expected_entities(rows: list[dict]) -> list[tuple]:
    """The type, layer and numbers of each entity, in drawing order."""

    def place(row, x, y):
        return 1000 * float(row[x]), -1000 * float(row[y])

    entities = []
    for row in rows:
        layer = row["layer"]
        if row["kind"] == "P":
            entities.append(("POINT", layer, *place(row, "x1", "y1")))
        elif row["kind"] == "L":
            entities.append(("LINE", layer, *place(row, "x1", "y1"), *place(row, "x2", "y2")))
        elif row["kind"] == "C":
            kind = "CIRCLE" if float(row["end"]) == 0 else "ARC"
            radius = 1000 * float(row["radius"])
            entities.append((kind, layer, *place(row, "x1", "y1"), radius))
        elif row["kind"] == "B":
            edges = (("x1", "y2", "x2", "y2"), ("x2", "y2", "x2", "y1"),
                     ("x2", "y1", "x1", "y1"), ("x1", "y1", "x1", "y2"))
            for x, y, x2, y2 in edges:
                entities.append(("LINE", layer, *place(row, x, y), *place(row, x2, y2)))
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
        math.isclose(x, y, rel_tol=1e-12, abs_tol=1e-9) for x, y in zip(a[2:], b[2:], strict=True)
    )


def check_form(path: Path) -> None:
    lines = path.read_bytes().split(b"\r\n")
    assert lines.pop() == b"", "the last line is not ended"
    assert not any(b"\r" in line or b"\n" in line for line in lines), "a line does not end in CR LF"
    assert len(lines) % 2 == 0, "a group without a value"
    for code in lines[::2]:
        assert code == b" %d " % int(code), f"the group code {code!r}"


def check_ezdxf(path: Path, rows: list[dict]) -> int:
    document = ezdxf.readfile(path)
    errors = [error.message for error in document.audit().errors]
    assert not errors, errors[:3]
    found = [read_entity(entity) for entity in document.modelspace()]
    expected = expected_entities(rows)
    assert len(found) == len(expected), f"{len(found)} entities in place of {len(expected)}"
    for number, (a, b) in enumerate(zip(found, expected)):
        assert same(a, b), f"entity {number}: {a} in place of {b}"
    return len(found)


def check_librecad(path: Path) -> None:
    home = path.parent / "home"
    home.mkdir(mode=0o700, exist_ok=True)
    environment = os.environ | {
        "QT_QPA_PLATFORM": "offscreen", "HOME": str(home), "XDG_RUNTIME_DIR": str(home)}
    page = path.with_suffix(".pdf")
    subprocess.run(
        ["librecad", "dxf2pdf", "-a", path.name], cwd=path.parent, timeout=120,
        env=environment, check=True, capture_output=True)
    assert page.read_bytes().startswith(b"%PDF"), "LibreCAD made no page"


def check_run(program: str, arguments: list[str], folder: Path, number: int) -> str:
    dxf, table = folder / f"{number}.dxf", folder / f"{number}.csv"
    run = subprocess.run(
        [program, "run", *arguments, "--folder", folder, "-o", table, "-o", dxf],
        capture_output=True, text=True, timeout=120)
    if run.returncode == 1:
        assert not dxf.exists(), "a file of a refused run"
        return "refused, no file"
    assert run.returncode == 0, run.stderr
    check_form(dxf)
    count = check_ezdxf(dxf, rows_of(table))
    assert count > 1000, f"only {count} entities"
    if shutil.which("librecad"):
        check_librecad(dxf)
        return f"{count} entities, LibreCAD reads it"
    return f"{count} entities"


def main() -> int:
    program = sys.argv[2]
    if not Path(program).exists():
        print(f"there is no program {program}")
        return 1
    failures = 0
    with tempfile.TemporaryDirectory() as folder:
        for number, arguments in enumerate(RUNS):
            try:
                result = check_run(program, arguments, Path(folder), number)
            except (AssertionError, OSError, ezdxf.DXFError, subprocess.SubprocessError) as fault:
                result = f"FAILED: {fault}"
                failures += 1
            print(" ".join(arguments), "-", result)
    return min(failures, 1)


if __name__ == "__main__":
    sys.exit(main())
