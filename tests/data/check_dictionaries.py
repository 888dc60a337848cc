#!/usr/bin/env python3
"""Checks that the language files in data/ are whole: same keys, same order, nothing blank.

Usage: check_dictionaries.py SOURCE_FOLDER [PROGRAM]
"""

import itertools
import pathlib
import sys


def outer_blanks(text):
    return len(text) - len(text.lstrip(" ")), len(text) - len(text.rstrip(" "))


def check(path, faults):
    """The source texts of a file in order; what is wrong with its lines goes to the faults."""
    raw_lines = path.read_bytes().split(b"\n")
    if raw_lines.pop():
        faults.append(f"{path.name}: the last line has no CR LF")
    keys, seen = [], set()
    for number, raw in enumerate(raw_lines, 1):
        line = raw[:-1].decode("utf-8", "replace")
        key, bar, translation = line.partition("|")
        for wrong, what in (
                (not raw.endswith(b"\r") or b"\r" in raw[:-1], "does not end with one CR LF"),
                ("\ufffd" in line, "is not valid UTF-8"),
                ("\ufeff" in line, "has a byte order mark"),
                (not bar, "has no '|'"),
                (not key.strip(), "has a blank source text"),
                (not translation.strip(), "has a blank translation"),
                (outer_blanks(key) != outer_blanks(translation), "has not the source's outer blanks"),
                (key.upper() in seen, "repeats a source text")):
            if wrong:
                faults.append(f"{path.name}, line {number} {what}: {line}")
        keys.append(key)
        seen.add(key.upper())
    return keys


def main():
    folder, faults = pathlib.Path(sys.argv[1]) / "data", []
    model, *others = [check(folder / f"DB{language}Q2006.txt", faults)
                      for language in ("Italiano", "Francese", "Spagnolo")]
    for keys in others:
        faults += [f"entry {number}: '{key}' stands where the first file has '{wanted}'"
                   for number, (key, wanted) in enumerate(itertools.zip_longest(keys, model), 1)
                   if key != wanted]
    print("\n".join(faults[:20]) or f"{len(model)} entries in each dictionary")
    return 1 if faults or not model else 0


if __name__ == "__main__":
    sys.exit(main())
