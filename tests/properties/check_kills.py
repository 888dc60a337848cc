"""Files stay whole when the program is killed at any moment, and when any call to the system fails.

usage: check_kills.py SOURCE_DIR PROGRAM
"""
import errno
import os
import random
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROGRAM = Path(sys.argv[2]).resolve()
FAULTS = PROGRAM.with_name("test_faults.so")
KILLS = 1000
KILLED, HALF = 0, -1  # causes of the faults


class Save:
    """A command that replaces a file, with the bytes before and after it."""

    def __init__(self, file, first, second):
        self.first, self.second = first, second
        self.folder = Path(tempfile.mkdtemp(prefix="dialwright-"))
        self.file = self.folder / file
        self.run(first)
        self.old, self.old_names = self.file.read_bytes(), os.listdir(self.folder)
        begin = time.monotonic()
        self.run(second)
        self.usual = time.monotonic() - begin
        self.new = self.file.read_bytes()
        assert self.old != self.new and not self.leftovers(), file

    def start(self, arguments, environment=None):
        return subprocess.Popen([PROGRAM, *arguments, "--folder", self.folder], cwd=self.folder,
                                env=os.environ | (environment or {}),
                                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def run(self, arguments, environment=None):
        process = self.start(arguments, environment)
        said = process.communicate(timeout=60)[1].decode()
        return process.returncode, said

    def restore(self):
        self.file.write_bytes(self.old)

    def leftovers(self):
        return [name for name in os.listdir(self.folder) if name not in self.old_names]

    def require_clean(self):
        """The next save works, and nothing else is left in the folder."""
        status, said = self.run(self.first)
        assert status == 0 and self.file.read_bytes() == self.old, f"{self.file}: {said}"
        assert not self.leftovers(), f"{self.file}: left behind {self.leftovers()}"


SAVES = [
    Save("it.sun", ["save", "M_Light", "txtLAT=41.9", "it.sun"], ["save", "mnuUni", "txtLAT=43.2", "it.sun"]),
    Save("it.csv", ["run", "M_Light", "-o", "it.csv"], ["run", "M_Light", "txtLAT=41.9", "-o", "it.csv", "-q"]),
    Save("dialwright.dat", ["defaults", "--save", "M_Light", "txtLAT=10"],
         ["defaults", "--save", "M_Light", "txtLAT=20"]),
    Save("DBQ2006.txt", ["language", "it"], ["language", "fr"]),
]


def random_kills():
    """Two kills of three fall into the end of the run, where the file is written."""
    chance = random.Random(1)
    seen = {"old": 0, "new": 0, "too late": 0}
    while seen["old"] + seen["new"] < KILLS:
        save = SAVES[sum(seen.values()) % len(SAVES)]
        process = save.start(save.second)
        time.sleep(save.usual * chance.choice((chance.random(), 0.4 + 0.5 * chance.random())))
        process.send_signal(signal.SIGKILL)
        process.communicate()
        save.usual *= 0.98 if process.returncode == 0 else 1.01  # as the machine gets faster or slower
        content = save.file.read_bytes()
        assert content in (save.old, save.new), f"{save.file}: torn after {seen}"
        seen["too late" if process.returncode == 0 else "new" if content == save.new else "old"] += 1
        hidden = save.leftovers()  # which do not pile up
        assert len(hidden) <= 1 and all(name.startswith(".dialwright-") for name in hidden), hidden
        save.restore()
    for save in SAVES:
        save.require_clean()
    return seen


def walk(save, call, cause):
    """Fails the first, the second ... such call until there are no more; gives how many."""
    for n in range(1, 500):
        save.restore()
        status, said = save.run(save.second, {"LD_PRELOAD": str(FAULTS), "FAULT": f"{call} {n} {cause}"})
        where = f"{save.file}, {call} {n}, {errno.errorcode.get(cause, cause)}: {said}"
        content = save.file.read_bytes()
        if cause == KILLED and status == -signal.SIGKILL:
            assert content in (save.old, save.new) and len(save.leftovers()) <= 1, where
            save.require_clean()
        elif "[fault]" not in said:
            assert status == 0 and content == save.new, where
            return n - 1
        elif status == 0:  # it did not matter
            assert content == save.new and not save.leftovers(), where
            assert cause in (HALF, errno.EINTR) or call == "open" or (call == "close" and n > 1), where
        else:
            assert cause not in (HALF, errno.EINTR), f"not tried again: {where}"
            assert status == 1 and content == save.old and not save.leftovers(), where
            # A language tells the folder and what would help.
            told = [str(save.folder)] if "language" in save.second else [save.file.name, os.strerror(cause)]
            assert all(words in said for words in told), where
    raise AssertionError(f"{save.file}: {call} without end")


def every_fault():
    walked = 0
    for save in SAVES:
        counts = [walk(save, call, cause) for call, cause in (
            ("any", KILLED), ("write", errno.ENOSPC), ("write", errno.EINTR), ("write", HALF), ("open", errno.ENOSPC),
            ("fsync", errno.EIO), ("close", errno.EDQUOT), ("fchmod", errno.EPERM), ("linkat", errno.ENOSPC),
            ("rename", errno.EACCES))]
        assert all(counts), f"{save.file}: {counts}"
        walked += sum(counts)
    return walked


def full_output():
    for words in (["list"], ["fields", "1"], ["board"], ["defaults", "--folder", "."], ["manual"], ["--help"], ["--version"],
                  ["language"], ["prove", "mnuUni", "-q"],
                  ["run", "1", "-q", "-o", "-", "--format", "svg"]):
        with open("/dev/full", "w") as full:
            done = subprocess.run([PROGRAM, *words], stdout=full, stderr=subprocess.PIPE, text=True,
                                  timeout=60, cwd=SAVES[2].folder)
        assert done.returncode == 1 and "standard output" in done.stderr, f"{words}: {done}"


def main():
    print("random kills: %s" % random_kills())
    print(f"faults walked: {every_fault()}")
    full_output()


if __name__ == "__main__":
    try:
        main()
    finally:
        for each in SAVES:
            subprocess.run(["rm", "-rf", each.folder], check=False)
