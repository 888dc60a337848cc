#!/usr/bin/env python3
"""Fails when a file includes a header of a room that its own room may not include.

    tools/check_rooms.py ROOT

What a room may include stands in its dialwright_room line in src/CMakeLists.txt. Only ui/ may
include Qt, and only paper/ may include Cairo.
"""
import re
import sys
from pathlib import Path

ROOM = re.compile(r"^\s*dialwright_room\(([^)]*)\)", re.MULTILINE)
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
TOOLKITS = [  # what its headers look like, its name, the room that may include them
    (re.compile(r"^(Qt\w*/.*|Q[A-Z]\w*|q[a-z]+\.h)$"), "Qt", "ui"),
    (re.compile(r"^(cairo/)?cairo[\w-]*\.h$"), "Cairo", "paper"),
]


def allowed_rooms(cmake: str) -> dict[str, set[str]]:
    """Each room with the rooms whose headers it may include."""
    rooms = (line.split() for line in ROOM.findall(cmake))
    return {name: {name, *others} for name, *others in rooms}


def offence(room: str, bracket: str, header: str, allowed: dict[str, set[str]], source: Path) -> str:
    """What is wrong with one include of a room's file, or an empty text."""
    for looks, name, home in TOOLKITS:
        if looks.match(header) and room != home:
            return f"includes {name} (<{header}>), which only {home}/ may"
    other = header.split("/")[0]
    if bracket == '"' and other not in allowed:
        return f'includes "{header}", which is not named from src/ on'
    if other in allowed and other not in allowed[room]:
        return f'includes "{header}", and {room}/ may not include {other}/'
    if other in allowed and not (source / header).is_file():
        return f'includes "{header}", which does not exist'
    return ""


def offences(root: Path) -> list[str]:
    source = root / "src"
    allowed = allowed_rooms((source / "CMakeLists.txt").read_text(encoding="utf-8"))
    found = []
    for path in sorted(p for p in source.rglob("*") if p.suffix in (".cpp", ".hpp", ".h")):
        room = path.relative_to(source).parts[0]
        place = path.relative_to(root)
        if room not in allowed:
            found.append(f"{place}: there is no room {room} in src/CMakeLists.txt")
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            include = INCLUDE.match(line)
            wrong = include and offence(room, include[1], include[2], allowed, source)
            if wrong:
                found.append(f"{place}:{number}: {wrong}")
    return found


def main() -> int:
    found = offences(Path(sys.argv[1] if len(sys.argv) > 1 else "."))
    print("\n".join(found) if found else "every include goes up")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
