"""The machine that a scenario runs on: changes before the program starts, and checks of its files."""

import json
import os
import re
import shutil
import subprocess
import tempfile
from pathlib import Path

from fragment import difference

SETTINGS_KEY = r"HKEY_LOCAL_MACHINE\Software\Orvane\Kalyxo Greek\Library Edition"


class Problem(Exception):
    """Something that could not be done, or a check that failed."""


class Machine:
    """A machine folder, and a content folder whose files can be changed without harm to the original."""

    def __init__(self, driver, content):
        self.driver, self.made, self.options, self.environment = driver, False, [], dict(os.environ)
        self.arguments = []
        self.root = Path(tempfile.mkdtemp(prefix="kalyxo-scenario-"))
        self.folder, self.data = self.root / "machine", self.root / "data"
        link_folder(Path(content).resolve(), self.data)

    def remove(self):
        shutil.rmtree(self.root, ignore_errors=True)

    def make(self):
        """Makes the machine when it is first needed."""
        if self.made:
            return
        self.made = True
        arguments = [self.driver, "--new-machine", self.folder, "--data", self.data, *self.options]
        status = subprocess.run(arguments, cwd=self.root, stdout=subprocess.DEVNULL, check=False).returncode
        if status != 0:
            raise Problem(f"making the machine ended with {status}")

    def path(self, name):
        return self.data / name[2:] if name.startswith("d/") else self.folder / name

    def change(self, what, words, value):
        if what == "options":
            if self.made:
                raise Problem("options come before all else")
            self.options = value
            return
        if what == "follow":
            self.arguments = ["--follow"]
            return
        if what == "environment":
            self.environment[words[0]] = value
            return
        self.make()
        if what == "machine":
            merge_into_json(self.folder / "machine.json", value)
        elif what == "setting":
            add_setting(self.folder / "registry.reg", words[0], value)
        elif what == "pipe":
            make_pipe(self.path(words[0]))
        elif what in ("write", "bytes"):
            replace(self.path(words[0]), cp1253(value) if what == "write" else hex_bytes(value))
        else:
            self.change_file(what, words, value)

    def change_file(self, what, words, value):
        file = self.path(words[0])
        if not file.exists():
            raise Problem(f"{words[0]} does not exist")
        if what == "copy":
            replace(self.path(words[1]), file.read_bytes())
        elif what == "replace":
            former, later = map(cp1253, value)
            if former not in file.read_bytes():
                raise Problem(f"{words[0]} does not hold {value[0]}")
            replace(file, file.read_bytes().replace(former, later))
        elif what == "cut":
            replace(file, file.read_bytes()[:value])
        elif file.is_dir() and not file.is_symlink():
            shutil.rmtree(file)
        else:
            file.unlink()

    def check(self, what, name, value):
        file = self.path(name)
        if what == "count":
            count = len(list(file.iterdir())) if file.is_dir() else -1
            demand(count == value, f"{name} has {count} entries, not {value}")
        elif what == "no-file":
            demand(not file.exists(), f"{name} exists")
        elif not file.exists():
            raise Problem(f"{name} does not exist")
        elif what == "bytes":
            demand(file.read_bytes() == hex_bytes(value), f"{name} has other bytes")
        elif what == "printed":
            found = difference(printed_pages(file), value)
            demand(found is None, found)
        elif what != "file":
            there = any(text in file.read_bytes() for text in (value.encode(), cp1253(value)))
            demand(there == (what == "contains"), f"{name} {'holds' if there else 'does not hold'} {value!r}")


def demand(holds, otherwise):
    if not holds:
        raise Problem(otherwise)


def cp1253(text):
    return text.encode("cp1253", errors="replace")


def hex_bytes(text):
    """Bytes from hexadecimal pairs and from letters in single quotes."""
    return b"".join(word[1:-1].encode() if word[0] == "'" else bytes.fromhex(word) for word in text.split())


def link_folder(origin, target):
    """Copies the folder with hard links for its files where the host can; symbolic links would lead out of the content."""
    shutil.copytree(origin, target, copy_function=link_file)


def link_file(origin, target):
    try:
        os.link(origin, target)
    except OSError:
        shutil.copy2(origin, target)


def replace(file, content):
    """Writes a new file in place of what stood there, so that a link is replaced and not followed."""
    file.unlink(missing_ok=True)
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_bytes(content)


def make_pipe(file):
    file.unlink(missing_ok=True)
    os.mkfifo(file)


def merge_into_json(file, change):
    replace(file, json.dumps(merged(json.loads(file.read_bytes()), change)).encode())


def merged(config, change):
    if not isinstance(change, dict):
        return change
    result = dict(config) if isinstance(config, dict) else {}
    for key, value in change.items():
        result[key] = merged(result.get(key), value)
        if value is None:
            del result[key]
    return result


def add_setting(registry, name, value):
    """Adds the key once more. When a key stands in the file twice, its later values count."""
    quoted = json.dumps(value, ensure_ascii=False) if isinstance(value, str) else f"dword:{value & 0xFFFFFFFF:08x}"
    entry = f'\r\n[{SETTINGS_KEY}]\r\n"{name}"={quoted}\r\n'
    replace(registry, registry.read_bytes() + entry.encode())


def printed_pages(pdf):
    """The pictures and texts on each page of a PDF file; with this zoom pdftohtml measures in 1/216 inch."""
    command = ["pdftohtml", "-xml", "-zoom", "3", "-stdout", pdf]
    lines = subprocess.run(command, capture_output=True, encoding="utf-8", check=False).stdout.splitlines()
    pages = []
    for line in lines:
        kind = line[1:].split(" ")[0]
        sides = dict(re.findall(r'(left|top|width|height)="(-?\d+)"', line))
        item = {"rect": [int(sides.get(side, 0)) for side in ("left", "top", "width", "height")]}
        if kind == "page":
            pages.append({**item, "images": [], "texts": []})
        elif kind == "image":
            pages[-1]["images"].append(item)
        elif kind == "text":
            pages[-1]["texts"].append({**item, "text": re.sub("<[^>]*>", "", line)})
    return pages
