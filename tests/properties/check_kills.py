"""Files stay whole when the program is killed at any moment, and when any call to the system fails.

usage: check_kills.py SOURCE_DIR PROGRAM
"""
import errno
import os
import random
import resource
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROGRAM = Path(sys.argv[2]).resolve()
FAULTS = PROGRAM.with_name("test_faults.so")
KILLS = 1000


class Save:
    """A command that replaces a file, with the bytes before and after it."""

    def __init__(self, name, file, first, second):
        self.name, self.first, self.second = name, first, second
        self.folder = Path(tempfile.mkdtemp(prefix="dialwright-"))
        self.file = self.folder / file
        self.run(first)
        self.old = self.file.read_bytes()
        self.old_names = self.names()
        begin = time.monotonic()
        self.run(second)
        self.usual = time.monotonic() - begin
        self.new = self.file.read_bytes()
        assert self.old != self.new and self.old_names == self.names(), name

    def start(self, arguments, environment=None, limit=None):
        return subprocess.Popen([PROGRAM, *arguments, "--folder", self.folder], cwd=self.folder,
                                env=os.environ | (environment or {}), preexec_fn=limit,
                                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def run(self, arguments, environment=None, limit=None):
        process = self.start(arguments, environment, limit)
        said = process.communicate(timeout=60)[1].decode()
        return process.returncode, said

    def names(self):
        return sorted(os.listdir(self.folder))

    def restore(self):
        self.file.write_bytes(self.old)

    def leftovers(self):
        return [name for name in self.names() if name not in self.old_names]

    def whole(self):
        return self.file.read_bytes() in (self.old, self.new)

    def require_clean(self):
        """The next save works, and nothing else is left in the folder."""
        status, said = self.run(self.first)
        assert status == 0, said
        assert self.file.read_bytes() == self.old, self.name
        assert not self.leftovers(), f"{self.name}: left behind {self.leftovers()}"


SAVES = [
    Save("save", "it.sun", ["save", "M_Light", "txtLAT=41.9", "it.sun"],
         ["save", "mnuUni", "txtLAT=43.2", "it.sun"]),
    Save("run -o", "it.csv", ["run", "M_Light", "-o", "it.csv"],
         ["run", "M_Light", "txtLAT=41.9", "-o", "it.csv", "-q"]),
    Save("defaults", "dialwright.dat", ["defaults", "--save", "M_Light", "txtLAT=10"],
         ["defaults", "--save", "M_Light", "txtLAT=20"]),
    Save("language", "DBQ2006.txt", ["language", "it"], ["language", "fr"]),
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
        content = save.file.read_bytes()
        assert content in (save.old, save.new), f"{save.name}: torn after {seen}"
        seen["too late" if process.returncode == 0 else "new" if content == save.new else "old"] += 1
        hidden = save.leftovers()
        assert all(name.startswith(".dialwright-") for name in hidden), f"{save.name}: {hidden}"
        assert len(hidden) <= 1, f"{save.name}: leftovers pile up: {hidden}"
        save.restore()
    for save in SAVES:
        save.require_clean()
    return seen


def walk(save, call, cause):
    """Fails the first, the second ... such call until there are no more; gives how many."""
    environment = {"LD_PRELOAD": str(FAULTS)}
    for n in range(1, 500):
        save.restore()
        status, said = save.run(save.second, environment | {"FAULT": f"{call} {n} {cause}"})
        where = f"{save.name}, {call} {n}, {errno.errorcode.get(cause, cause)}: {said}"
        assert save.whole(), f"torn: {where}"
        if cause == 0:  # killed
            if status != -signal.SIGKILL:
                return n - 1
            assert len(save.leftovers()) <= 1, where
            save.require_clean()
            continue
        if "[fault]" not in said:
            assert status == 0 and save.file.read_bytes() == save.new, where
            return n - 1
        assert not save.leftovers() or call == "unlink", where
        if status == 0:  # it did not matter
            assert save.file.read_bytes() == save.new, where
            assert cause in (-1, errno.EINTR) or call == "open" or (call == "close" and n > 1), where
        else:
            assert status == 1 and save.file.read_bytes() == save.old, where
            if save.name == "language":  # which tells the folder and what would help
                assert str(save.folder) in said, where
            else:
                assert save.file.name in said and os.strerror(cause) in said, where
    raise AssertionError(f"{save.name}: {call} without end")


def every_fault():
    walked = 0
    for save in SAVES:
        walked += walk(save, "any", 0)
        counts = [walk(save, call, cause) for call, cause in (
            ("write", errno.ENOSPC), ("write", errno.EINTR), ("write", -1), ("open", errno.ENOSPC),
            ("fsync", errno.EIO), ("close", errno.EDQUOT), ("fchmod", errno.EPERM),
            ("linkat", errno.ENOSPC), ("rename", errno.EACCES))]
        assert all(counts), f"{save.name}: {counts}"
        walked += sum(counts)
    return walked


def full_disks():
    """A disk that takes so many bytes and no more."""
    for save in SAVES:
        for size in sorted({0, 1, len(save.new) // 3, len(save.new) // 2, len(save.new) - 1}):
            save.restore()

            def limit():
                signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
                resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
            status, said = save.run(save.second, limit=limit)
            assert status == 1 and save.file.read_bytes() == save.old, f"{save.name}, {size}: {said}"
            assert not save.leftovers(), f"{save.name}, {size}"


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
    full_disks()
    full_output()


if __name__ == "__main__":
    try:
        main()
    finally:
        for each in SAVES:
            subprocess.run(["rm", "-rf", each.folder], check=False)
