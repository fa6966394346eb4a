"""Lets each file operation of the programs fail in turn: faults.py PROGRAMS LIBRARY CONTENT STARTER [--every N]
[--match REGEX] [--jobs N]. PROGRAMS is the folder with kalyxo-drive and contentc, LIBRARY the one that makes operations fail
(FileFaults.cpp), CONTENT a compiled data folder, STARTER a small folder of content. With --every 1 all operations
are tried, with N one in N, and otherwise a small sample.

A scripted use and a compilation run once to list their operations. Then they run once for each operation and for each way
in which it fails: alone; or the disk is full from there on; or the disk is gone from there on. Each run must end, without a
crash and with known messages only, and afterwards the last good bookmarks, settings and compiled content must still be
there. Exit status: 0 when that is so, 1 when it is not, 2 for wrong arguments."""

import argparse
import os
import re
import resource
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from compilation import Compilation
from fault import faults_of
from opening import Opening
from use import READING, SAVING, Use

# One in so many operations is tried.
SAMPLE = {"first start": 10, "later start": 10, "compilation": 50, "saving": 40, "reading": 500}


def main(arguments):
    parser = argparse.ArgumentParser(usage=__doc__)
    for name in ("programs", "library", "content", "starter"):
        parser.add_argument(name, type=lambda given: Path(given).resolve())
    parser.add_argument("--every", type=int)
    parser.add_argument("--match", default="")
    parser.add_argument("--jobs", type=int, default=2)
    given = parser.parse_args(arguments)
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    found = missed = 0
    with tempfile.TemporaryDirectory(prefix="kalyxo-faults-") as root, ThreadPoolExecutor(given.jobs) as pool:
        place = given.programs, given.library, Path(root)
        for program in (Opening("first start", *place), Opening("later start", *place),
                        Compilation(*place, given.starter), Use("saving", SAVING, *place, given.content),
                        Use("reading", READING, *place, given.content)):
            step = given.every or SAMPLE[program.name]
            faults = [fault for operation in program.operations[::step] for fault in faults_of(*operation)
                      if re.search(given.match, f"{program.name}: {fault}")]
            print(f"{program.name}: {len(program.operations)} operations, {len(faults)} faults", flush=True)
            results = pool.map(lambda fault, of=program: of.complaints(fault), faults)
            for fault, complaints in zip(faults, results):
                missed += complaints is None
                for complaint in complaints or ():
                    found += 1
                    print(f"{program.name}: {fault}: {complaint}", flush=True)
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    print(f"{found} findings, {missed} faults that were not reached, {used.ru_utime + used.ru_stime:.0f} seconds of processor time")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
