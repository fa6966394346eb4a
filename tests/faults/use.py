"""The whole program in scripted use."""

import hashlib
import json
import os
import re
import shutil
import sys
import tempfile
from pathlib import Path

from fault import CRASH, Program, operations_of, tree_of
from settings import settings_lost, settings_of

sys.path.append(str(Path(__file__).parents[1] / "scenarios"))
from machine import Machine, merge_into_json  # noqa: E402

PREPARATION = """start
command 32782
command 32784
press 1
command 32775
command 32784
press 1
size 900 700
close"""
# The data folder is asked for, since cset.ini names one that does not exist.
START = """start
pick 1023 "Compact Disk (D:)"
pick 1009 "D:\\\\"
press 1"""
SAVING = START + """
command 32782
command 32784
set 1001 νέος
press 1
command 32785
press 1004
set 1001 Νέα
key Enter
press 1
size 950 720
app
state
close
trace"""
READING = START + """
command 32775
key Ctrl+Plus
command 32780
control 1035 ShowItem 450010 0 false
link Μεγέθυνση
key Escape
command 32801
command 32781
control 1035 ShowItem 20001 0 false
link Μεγέθυνση
key Escape
command 32800
command 57607
command 32771
type νερό
press 1014
pick 1019 0
press 1
command 32783
control 1045 ViewMode 1
command 32782
click 641 64 "#1010"
command 32773
size 950 720
app
state
close
trace"""
LOOK = START + """
state
app
close
trace"""
MESSAGES = re.compile("|".join([
    r"ERROR: Can't open D:\\\\?\d+", "Unable to create temporary file", r"Can't open ptable\.ndx", "BMP file error",
    r"\w+( \w+)? component not installed correctly", "Δεν είναι δυνατό να φορτωθεί",
    "Το αρχείο σελιδοδεικτών είναι κατεστραμμένο", "Δεν είναι δυνατή η εγγραφή του αρχείου σελιδοδείκτη: C:",
    "Παρουσιάστηκε πρόβλημα κατά την εγγραφή του αρχείου σελιδοδεικτών"]))
# Failures of which the user must be told, with what.
TOLD = {"open-to-write machine/c/Kalyxo/bookmark.dat": "Δεν είναι δυνατή η εγγραφή του αρχείου σελιδοδείκτη: C:",
        "write machine/c/Kalyxo/bookmark.dat": "Παρουσιάστηκε πρόβλημα κατά την εγγραφή"}


class Use(Program):
    """The program in the hands of a user, who does what a script says."""

    def __init__(self, name, script, programs, library, root, content):
        root = root / name
        root.mkdir()
        super().__init__(library, root)
        self.name, self.script = name, script
        self.driver, self.seen = programs / "kalyxo-drive", {}
        made = Machine(self.driver, content)
        made.make()
        self.data, self.template = root / "data", root / "machine"
        shutil.move(made.data, self.data)
        shutil.move(made.folder, self.template)
        made.remove()
        config = {"drives": {"D": {"folder": str(self.data)}},
                  "printer": {"horzres": 1728, "vertres": 2448, "logpixelsy": 216}}
        merge_into_json(self.template / "machine.json", config)
        self.drive(self.template, root / "log", script=PREPARATION)
        ini = self.template / "c/Kalyxo/cset.ini"
        ini.write_bytes(ini.read_bytes().replace(b"DataPath=D:", b"DataPath=X:"))
        with tempfile.TemporaryDirectory(dir=root) as folder:
            log = Path(folder) / "log"
            machine = self.copy(Path(folder))
            _, answers = self.drive(machine, log, script=script)
            failed = [answer for answer in answers if not answer["ok"]]
            if failed:
                raise SystemExit(f"without a fault this fails: {failed}")
            self.operations = list(operations_of(log))
            self.bookmark_file = next(answer for answer in answers if answer["cmd"] == "app")["bookmarkFile"]
            self.settings = settings_of(self.template), settings_of(machine)
            self.before = self.look(self.template, Path(folder))["state"]["bookmarks"]

    def copy(self, folder):
        shutil.copytree(self.template, folder / "machine", copy_function=copy_or_link)
        return folder / "machine"

    def drive(self, machine, log, fault=None, script=""):
        done = self.run([self.driver, "--machine", machine], [machine, self.data], log, fault, script)
        return done, [json.loads(line) for line in done.stdout.splitlines()]

    def look(self, machine, folder):
        """What another start without a fault shows of the machine folder; it is done on a copy."""
        key = digest(machine)
        if key not in self.seen:
            with tempfile.TemporaryDirectory(dir=folder) as other:
                copy = shutil.copytree(machine, Path(other) / "machine", copy_function=copy_or_link)
                done, answers = self.drive(copy, Path(other) / "log", script=LOOK)
                self.seen[key] = {answer["cmd"]: answer for answer in answers} | {
                    "ended": done.returncode, "boxes": boxes_of(answers), "left": leftovers(copy)}
        return self.seen[key]

    def attempt(self, folder, log, fault):
        machine = self.copy(folder)
        done, answers = self.drive(machine, log, fault, self.script)
        answered = {answer["cmd"]: answer for answer in answers}
        boxes = boxes_of(answers)
        refused = done.returncode == 2 and f"kalyxo-drive: {machine}" in done.stderr
        if done.returncode != 0 and not refused or CRASH.search(done.stderr):
            yield f"ended with {done.returncode}: {done.stderr}"
        yield from (f"unknown message: {box}" for box in boxes if not MESSAGES.match(box))
        told = TOLD.get(fault.operation)
        if told is not None and not any(box.startswith(told) for box in boxes):
            yield f"the user is not told; {boxes}"
        yield from settings_lost(*self.settings, machine)
        usual = answered.get("app", {}).get("bookmarkFile") == self.bookmark_file
        at_end = answered.get("state", {}).get("bookmarks", []) if usual else []
        yield from self.bookmarks_lost(machine, folder, boxes, at_end)
        yield from (f"{pdf.name} is no whole document" for pdf in machine.glob("*.pdf") if not is_whole(pdf))
        look = self.look(machine, folder)
        if look["ended"] != 0 or any(not box.startswith("Το αρχείο σελ") for box in look["boxes"]):
            yield f"the next start ended with {look['ended']} and says {look['boxes']}"
        if fault.kind != "delete" and fault.then != "gone" and look["left"]:
            yield f"left {look['left']}"

    def bookmarks_lost(self, machine, folder, boxes, at_end):
        found = self.look(machine, folder).get("state", {}).get("bookmarks", [])
        was_told = any("σελιδοδ" in box for box in boxes)
        if not all(each in found for each in at_end + self.before):
            if not was_told:
                yield f"bookmarks are lost without a message: {found}"
            # The copy beside the file has those of the last good end, also after two more starts.
            for _ in range(2):
                self.drive(machine, folder / "log-of-more", script=LOOK)
            if not any(all(each in self.restored(copy, folder) for each in self.before)
                       for copy in (machine / "c/Kalyxo").glob("bookmark.dat*")):
                yield "bookmarks are lost"

    def restored(self, copy, folder):
        """The bookmarks of a machine on which the copy stands in the place of the file."""
        with tempfile.TemporaryDirectory(dir=folder) as other:
            machine = self.copy(Path(other))
            shutil.copy(copy, machine / "c/Kalyxo/bookmark.dat")
            return self.look(machine, folder)["state"]["bookmarks"]


def copy_or_link(origin, target):
    (os.link if origin.endswith((".ocx", ".so")) else shutil.copy2)(origin, target)


def digest(machine):
    """The same for machine folders in which all that counts is the same."""
    files = {re.sub(r"\d+-\d+\.tmp", "tmp", name): content for name, content in tree_of(machine).items()
             if not name.endswith((".ocx", ".so", ".pdf"))}
    return hashlib.sha256(repr(sorted(files.items())).encode()).hexdigest()


def boxes_of(answers):
    return [event["box"]["text"] for answer in answers for event in answer.get("trace", []) if "box" in event]


def leftovers(machine):
    """Files that nobody needs after an end of the program."""
    return [name for name in tree_of(machine) if re.search(r"\.tmp$|/cache/|\.pdf\..{6}$", name)]


def is_whole(pdf):
    content = pdf.read_bytes()
    return content.startswith(b"%PDF") and content.rstrip().endswith(b"%%EOF")
