#!/usr/bin/env python3
"""Checks that the language files in data/ are whole: same keys, same order, nothing blank.

Usage: check_dictionaries.py [ROOT]; ROOT, the project's folder, defaults to the one that this file is in.
"""

import pathlib
import sys

LANGUAGES = ("Italiano", "Francese", "Spagnolo")
ROOT = pathlib.Path(__file__).resolve().parents[2]


class Fault(Exception):
    """A sentence that names the file, the line and what is wrong there."""


def fault(path, number, what):
    return Fault(f"{path.name}, line {number}: {what}.")


def lines_of(path):
    """The lines of a file, each of which must be UTF-8 and end with CR LF."""
    try:
        content = path.read_bytes()
    except OSError as error:
        raise Fault(f"{path.name} cannot be read: {error.strerror}.") from error
    if content.startswith(b"\xef\xbb\xbf"):
        raise fault(path, 1, "the byte order mark would belong to the first source text")
    raw_lines = content.split(b"\n")
    if raw_lines.pop():
        raise fault(path, len(raw_lines) + 1, "the last line has no CR LF")
    for number, raw in enumerate(raw_lines, 1):
        if not raw.endswith(b"\r") or b"\r" in raw[:-1]:
            raise fault(path, number, "the line does not end with one CR LF")
        try:
            yield number, raw[:-1].decode("utf-8")
        except UnicodeDecodeError as error:
            raise fault(path, number, f"byte {error.start + 1} is not valid UTF-8") from error


def outer_blanks(text):
    return len(text) - len(text.lstrip(" ")), len(text) - len(text.rstrip(" "))


def keys_of(path):
    """The source texts of a file in order; every entry is sound by itself."""
    first_line = {}
    keys = []
    for number, line in lines_of(path):
        source, bar, translation = line.partition("|")
        if not bar:
            raise fault(path, number, "the entry has no '|'")
        if not source.strip():
            raise fault(path, number, "the source text is blank")
        if not translation.strip():
            raise fault(path, number, f"'{source}' has a blank translation")
        if outer_blanks(source) != outer_blanks(translation):
            raise fault(path, number, f"'{translation}' has not the outer blanks of '{source}'")
        earlier = first_line.setdefault(source.upper(), number)
        if earlier != number:
            raise fault(path, number, f"'{source}' stands already in line {earlier}")
        keys.append(source)
    if not keys:
        raise fault(path, 1, "the file has no entry")
    return keys


def compare(path, keys, model_path, model):
    """Every file must list the keys of the first one, in its order."""
    for number, (key, wanted) in enumerate(zip(keys, model), 1):
        if key != wanted:
            raise fault(path, number, f"'{key}' stands where {model_path.name} has '{wanted}'")
    if len(keys) != len(model):
        number = min(len(keys), len(model)) + 1
        raise fault(path, number, f"{len(keys)} entries, but {model_path.name} has {len(model)}")


def main():
    folder = (pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT) / "data"
    paths = [folder / f"DB{language}Q2006.txt" for language in LANGUAGES]
    try:
        lists = [keys_of(path) for path in paths]
        for path, keys in zip(paths[1:], lists[1:]):
            compare(path, keys, paths[0], lists[0])
    except Fault as sentence:
        print(sentence, file=sys.stderr)
        return 1
    print(f"{len(lists[0])} entries in each of {len(paths)} dictionaries.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
