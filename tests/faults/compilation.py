"""Content that is compiled anew."""

import os
import shutil
import tempfile
from pathlib import Path

from fault import CRASH, Program, differences, operations_of, tree_of


class Compilation(Program):
    """A content folder compiled anew over what was compiled of an earlier state of it."""

    name = "compilation"

    def __init__(self, programs, library, root, starter):
        super().__init__(library, root)
        self.compiler, self.template = programs / "contentc", root / "compilation"
        shutil.copytree(starter / "all", self.template / "source")
        shutil.copytree(starter / "own", self.template / "source", dirs_exist_ok=True)
        self.must_compile(self.template, root / "log")
        # Every second file is to be written, the others are taken over.
        for file in sorted(file for file in (self.template / "data").rglob("*") if file.is_file())[::2]:
            file.write_bytes(file.read_bytes() + b" ")
        self.old = tree_of(self.template / "data")
        page = next((self.template / "source/pages").rglob("*379000*"))
        page.write_text(page.read_text(encoding="utf-8") + "\nΜία γραμμή ακόμη.\n", encoding="utf-8")
        (self.template / "source/pictures/new.svg").write_text(
            '<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>', encoding="utf-8")
        with tempfile.TemporaryDirectory(dir=root) as folder:
            log = Path(folder) / "log"
            place = self.copy(Path(folder))
            self.must_compile(place, log)
            self.new = tree_of(place / "data")
            self.operations = list(operations_of(log))

    def copy(self, folder):
        return shutil.copytree(self.template, folder / "compilation")

    def compile(self, place, log, fault=None):
        command = [self.compiler, "build", place / "source", "--output", place / "data", "--cache", place / "cache"]
        return self.run(command, [place], log, fault)

    def must_compile(self, place, log):
        if (done := self.compile(place, log)).returncode != 0:
            raise SystemExit(f"without a fault the compilation fails: {done.stderr}")

    def attempt(self, folder, log, fault):
        place = self.copy(folder)
        done = self.compile(place, log, fault)
        found = tree_of(place / "data")
        if done.returncode not in (0, 1, 2) or CRASH.search(done.stderr):
            yield f"ended with {done.returncode}: {done.stderr}"
        if done.returncode == 0 and found != self.new:
            yield f"says that all is done, but {differences(found, self.new)}. {done.stderr}"
        if done.returncode != 0 and found != self.old:
            yield f"failed, and {differences(found, self.old)}. {done.stderr}"
        if done.returncode != 0 and not done.stderr.strip():
            yield "failed without a message"
        if fault.then != "gone" and fault.kind != "delete" and "/.data.new-" not in fault.operation:
            yield from (f"left {name}" for name in os.listdir(place) if name.startswith("."))
