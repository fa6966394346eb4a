"""The user's machine folder, opened as at the start of the program."""

import shutil
import tempfile
from pathlib import Path

from fault import CRASH, Program, differences, operations_of, tree_of
from settings import settings_lost, settings_of


class Opening(Program):
    """The start's look at the user's machine folder, which it makes, or keeps and brings up to date."""

    def __init__(self, name, programs, library, root):
        root = root / name
        root.mkdir()
        super().__init__(library, root)
        self.name, self.template, self.opener = name, root / "template", programs / "open-machine"
        (self.template / "bin").mkdir(parents=True)
        self.put("ActiveX/kyptgk.ocx", "version one")
        self.put("content/data/a.htm", "<HTML>")
        if name == "later start":
            self.open(self.template, root / "log")
            self.put("ActiveX/kyptgk.ocx", "version two")
            self.put("own/c/Kalyxo/bookmark.dat", "kept")
            self.put("own/c/Kalyxo/cset.ini", "[Settings]\nDataPath=D:\\other\nBookmark=C:\\kept.dat\n")
            registry = self.template / "own/registry.reg"
            registry.write_bytes(registry.read_bytes().replace(b'"Directory"', b'"Kept"'))
        with tempfile.TemporaryDirectory(dir=root) as folder:
            place, log = self.copy(Path(folder)), Path(folder) / "log"
            if (done := self.open(place, log)).returncode != 0:
                raise SystemExit(f"without a fault the machine is not opened: {done.stderr}")
            self.new, self.operations = self.made(place), list(operations_of(log))
            self.settings = settings_of(self.template / "own"), settings_of(place / "own")

    def put(self, name, text):
        (self.template / name).parent.mkdir(parents=True, exist_ok=True)
        (self.template / name).write_text(text, encoding="utf-8")

    def copy(self, folder):
        return shutil.copytree(self.template, folder / "place")

    def open(self, place, log, fault=None):
        return self.run([self.opener, place / "own", place / "bin"], [place], log, fault)

    def made(self, place):
        """What must be the same at last. A first start with a fault may leave out the place of the window and the disc in
        the other two files; the program finds its own."""
        return {name: content for name, content in tree_of(place / "own").items()
                if name not in ("registry.reg", "machine.json")}

    def attempt(self, folder, log, fault):
        place = self.copy(folder)
        done = self.open(place, log, fault)
        if done.returncode not in (0, 1) or CRASH.search(done.stderr) or done.returncode == 1 and not done.stderr:
            yield f"ended with {done.returncode}: {done.stderr}"
        yield from settings_lost(*self.settings, place / "own")
        again = self.open(place, folder / "second log")
        found = {name: content for name, content in self.made(place).items()
                 if fault.kind != "delete" and fault.then != "gone" or not name.endswith(".tmp")}
        if again.returncode != 0 or found != self.new:
            yield f"the next start ends with {again.returncode}, {differences(found, self.new)}. {again.stderr}"
