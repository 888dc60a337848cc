#!/usr/bin/env python3
"""Runs clang-tidy on the sources that changed since they last passed.

    tools/tidy.py ROOT BUILD_FOLDER [--all]

A source has passed when it, the headers of ours that it reaches and .clang-tidy are as they were
then; the marks lie in BUILD_FOLDER/tidy.
"""
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from functools import lru_cache
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


class Tidy:
    def __init__(self, root: Path, build: Path):
        self.root = root
        self.source = root / "src"
        self.marks = build / "tidy"
        self.marks.mkdir(parents=True, exist_ok=True)
        self.rules = (root / ".clang-tidy").read_bytes()
        commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
        self.flags = {entry["file"]: self.compiler_flags(entry) for entry in commands}

    @staticmethod
    def compiler_flags(entry: dict) -> list[str]:
        """What matters to a parser among the arguments of a compilation."""
        words = shlex.split(entry["command"])
        flags = [w for w in words if re.match(r"-(I|D|std=)", w) and not w.startswith("-DCCACHE")]
        for name, value in zip(words, words[1:]):
            if name == "-isystem":
                flags += [name, value]
        return flags

    @lru_cache(maxsize=None)
    def read(self, path: Path) -> tuple[bytes, tuple[Path, ...]]:
        """A file's content and the files of ours that it includes."""
        content = path.read_bytes()
        names = INCLUDE.findall(content.decode("utf-8"))
        return content, tuple(p for p in (self.source / n for n in names) if p.is_file())

    def mark(self, path: Path) -> Path:
        """The mark of a source as it is now."""
        seen: set[Path] = set()
        todo = [path]
        while todo:
            file = todo.pop()
            if file not in seen:
                seen.add(file)
                todo += self.read(file)[1]
        digest = hashlib.sha256(self.rules + " ".join(self.flags[str(path)]).encode())
        for file in sorted(seen):
            digest.update(self.read(file)[0])
        return self.marks / digest.hexdigest()

    def run(self, path: Path) -> str:
        """Tidies one source; gives what was found in it."""
        mark = self.mark(path)
        done = subprocess.run(
            ["clang-tidy-19", "--quiet", str(path), "--", "-xc++", *self.flags[str(path)]],
            cwd=self.root, capture_output=True, text=True, check=False)
        if done.returncode == 0:
            mark.touch()
            return ""
        return done.stdout + done.stderr


def main() -> int:
    tidy = Tidy(Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve())
    sources = [Path(f) for f in sorted(tidy.flags) if Path(f).is_relative_to(tidy.source)]
    if "--all" not in sys.argv:
        sources = [s for s in sources if not tidy.mark(s).exists()]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        found = [text for text in pool.map(tidy.run, sources) if text]
    print("\n".join(found), end="")
    print(f"{len(sources)} sources tidied, {len(found)} of them with something to mend")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
