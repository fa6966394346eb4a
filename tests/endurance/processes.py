"""The processes that this one has started, by whatever way, and what they hold."""

import ctypes
import os
import time
from pathlib import Path

PR_SET_CHILD_SUBREAPER = 36


def adopt_orphans():
    """Lets processes whose parent has ended become children of this one, so that none is lost sight of."""
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1)


def descendants():
    """The processes below this one that have not ended."""
    children = {}
    for folder in Path("/proc").glob("[0-9]*"):
        try:
            # Behind the name in parentheses, which may hold anything.
            state, parent = (folder / "stat").read_text(errors="replace").rpartition(")")[2].split()[:2]
        except OSError:
            continue
        if state != "Z":
            children.setdefault(int(parent), []).append(int(folder.name))
    found, left = [], [os.getpid()]
    while left:
        below = children.get(left.pop(), [])
        found += below
        left += below
    return found


def wait_for_end(seconds):
    """The processes that still run after so many seconds, at most."""
    limit = time.monotonic() + seconds
    while (left := descendants()) and time.monotonic() < limit:
        time.sleep(0.05)
    return left


def memory(process):
    """The memory of a process in KB; what it shares with others counts in parts."""
    for line in Path(f"/proc/{process}/smaps_rollup").read_text(encoding="ascii").splitlines():
        if line.startswith("Pss:"):
            return int(line.split()[1])
    return 0


def count(processes, what):
    """How many entries the folders of the processes have: "fd" for open files, "task" for threads."""
    return sum(len(os.listdir(f"/proc/{process}/{what}")) for process in processes)
