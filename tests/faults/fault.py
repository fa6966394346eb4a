"""Operations on files, how each of them may fail, and programs that run while one does."""

import collections
import errno
import os
import re
import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path

PATIENCE = 120  # seconds for a whole run
NEED_ROOM = ("create", "write", "reserve", "mkdir", "link", "rename")
CHANGES = (*NEED_ROOM, "open-to-write", "sync", "truncate", "delete")
ERRORS = {"create": errno.EACCES, "open": errno.EMFILE, "open-to-write": errno.EACCES, "duplicate": errno.EMFILE,
          "mkdir": errno.EACCES, "write": errno.ENOSPC, "reserve": errno.ENOSPC, "rename": errno.EACCES,
          "link": errno.EACCES, "delete": errno.EACCES, "access": errno.EACCES}  # for all others it is EIO
CRASH = re.compile(r"AddressSanitizer|runtime error:|LeakSanitizer|terminate called|Assertion|ASSERT")


@dataclass(frozen=True)
class Fault:
    """One operation that fails, and how."""
    operation: str  # as the library names it, with its path
    number: int  # which of those
    error: int
    takes: int  # bytes that a write still takes
    then: str

    def __str__(self):
        takes = f" behind {self.takes} bytes" if self.takes else ""
        return f"{self.operation} {self.number}{takes}, {errno.errorcode[self.error]}, then {self.then}"

    @property
    def kind(self):
        return self.operation.split(" ")[0]

    def environment(self):
        return {"FAULTS_AT": self.operation, "FAULTS_NTH": str(self.number), "FAULTS_ERROR": str(self.error),
                "FAULTS_TAKES": str(self.takes), "FAULTS_THEN": self.then}


def operations_of(log):
    """The operations in a log, each with which of its name it is and its bytes."""
    seen = collections.Counter()
    for line in log.read_text(encoding="utf-8").splitlines():
        operation, size = line.removeprefix("! ").rsplit(" ", 1)
        seen[operation] += 1
        yield operation, seen[operation], int(size)


def faults_of(operation, number, size):
    kind = operation.split(" ")[0]
    yield Fault(operation, number, ERRORS.get(kind, errno.EIO), 0, "works")
    if number == 1 or kind in CHANGES:
        yield Fault(operation, number, errno.EIO, 0, "gone")
    if kind in NEED_ROOM:
        for takes in sorted({0, size // 2, max(size - 1, 0)}):
            yield Fault(operation, number, errno.ENOSPC, takes, "full")


class Program:
    """A program in scripted use, what stands on the disk before, and what must stand there afterwards."""

    def __init__(self, library, root):
        self.library, self.root = library, root

    def run(self, command, below, log, fault=None, script=None):
        # A program under AddressSanitizer must accept that another library comes first.
        sanitizer = os.environ.get("ASAN_OPTIONS", "") + ":verify_asan_link_order=0"
        environment = {**os.environ, "LD_PRELOAD": str(self.library), "FAULTS_LOG": str(log), "LC_ALL": "C.UTF-8",
                       "ASAN_OPTIONS": sanitizer,
                       "FAULTS_BELOW": ":".join(map(str, below)), **(fault.environment() if fault else {})}
        try:
            return subprocess.run(command, env=environment, input=script, capture_output=True, encoding="utf-8",
                                  errors="replace", timeout=PATIENCE, check=False, cwd=log.parent)
        except subprocess.TimeoutExpired:
            return subprocess.CompletedProcess(command, "no end", "", "")

    def complaints(self, fault):
        """What is wrong after a run with the fault; nothing at all when the run did not come to it."""
        with tempfile.TemporaryDirectory(dir=self.root) as folder:
            log = Path(folder) / "log"
            try:
                found = list(self.attempt(Path(folder), log, fault))
            except (OSError, KeyError, ValueError) as problem:
                found = [f"cannot be judged: {problem!r} {getattr(problem, 'filename', '')}"]
            is_reached = log.exists() and "\n! " in "\n" + log.read_text(encoding="utf-8")
            return found if found or is_reached else None


def tree_of(folder):
    """The files of a folder by name, with their bytes."""
    return {str(file.relative_to(folder)): file.read_bytes() for file in sorted(folder.rglob("*")) if file.is_file()}


def differences(found, wanted):
    names = [name for name in {**found, **wanted} if found.get(name) != wanted.get(name)]
    return f"{len(names)} files differ, as {names[:3]}" if names else "nothing differs"
