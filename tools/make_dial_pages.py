#!/usr/bin/env python3
"""Writes docs/dials/: a page for each dial with its picture, its fields and its families of lines.

usage: tools/make_dial_pages.py PROGRAM

All of it comes from the program's own tables; run tools/make_pictures.sh for the pictures.
"""
import csv
import io
import json
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = tempfile.mkdtemp()


def ask(*arguments):
    done = subprocess.run([sys.argv[1], *arguments, "--folder", FOLDER, "--quiet"], capture_output=True, text=True)
    return done.stdout


def cell(text):
    return str(text).replace("|", "\\|").strip()


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(map(cell, row)) + " |" for row in rows])


def fields_of(item):
    rows = []
    for field in json.loads(ask("fields", item, "--json")):
        label = " ".join(field["label"].split())
        rows.append((f"`{field['name']}`", field["kind"], field["default"], label, field["tip"]))
    return table(("field", "kind", "default", "label", "tip"), rows)


def families_of(item):
    """The layers of a run with every box of the dial checked."""
    boxes = [f"{field['name']}=1" for field in json.loads(ask("fields", item, "--json"))
             if field["kind"] == "check" and field["name"] not in ("ckTrue", "ckFunction", "ckFrame")]
    strokes = {}
    for row in csv.DictReader(io.StringIO(ask("run", item, *boxes, "-o", "-", "--format", "csv"))):
        if row["kind"] != "T":
            key = row["layer"]
            strokes[key] = strokes.get(key, 0) + 1
    proved = ask("prove", item, *boxes, "--json")
    shadows = {row["layer"]: row for row in json.loads(proved)} if proved else {}
    rows = []
    for layer, count in strokes.items():
        found = shadows.get(layer)
        rows.append((f"`{layer}`", count) + (
            (found["strokes"], found["ghosts"], found["strays"]) if found else ("", "", "")))
    return table(("layer", "strokes", "stand for a sun", "ghosts", "strays"), rows)


def page(dial):
    item, program = dial["item"], dial["program"]
    name = str(program) if program else item
    return f"""# {dial['caption']}

`./dialwright run {name} -o dial.svg`

<img src="../images/{item}.png" width="520" alt="{cell(dial['caption'])}">

## Fields

What stands in them after a click on the dial. Lengths are metres, angles degrees.

{fields_of(item)}

## Lines

The layers of a run with every box checked. A stroke that stands for a sun is a ghost when that sun is down or behind the
dial, and astray when the shadow is elsewhere; `--true` leaves both out ([accuracy](../accuracy.md)).

{families_of(item)}
"""


def main():
    folder = ROOT / "docs" / "dials"
    folder.mkdir(parents=True, exist_ok=True)
    dials = [dial for dial in json.loads(ask("list", "--json")) if dial["draws"]]
    for dial in dials:
        (folder / f"{dial['item']}.md").write_text(page(dial))
    rows = [(dial["program"] or "", f"[{cell(dial['caption'])}]({dial['item']}.md)") for dial in dials]
    (folder / "README.md").write_text(
        "# The dials\n\nMade by `tools/make_dial_pages.py` from the program's own tables.\n\n" +
        table(("program", "dial"), rows) + "\n")


main()
