"""Holds every include of a source tree against its list of rooms: check_includes.py TREE. Exit status 0 when each
file includes only what its room may, 1 with a line for each that does not."""

import re
import sys
from pathlib import Path

INCLUDE = re.compile(r'^ *#include *([<"])([^>"]+)', re.MULTILINE)
RAW_STRING = re.compile(r'R"\(.*?\)"', re.DOTALL)
# Rooms whose files show no Qt.
WITHOUT_QT = ("platform/text", "platform/base", "platform/files", "platform/registry", "platform/machine", "formats", "src")


def read_rooms(tree):
    """The rooms in order, each with all that it builds on, and the mistakes in the list."""
    rooms, mistakes = {}, []
    for line in (tree / "cmake/rooms.txt").read_text(encoding="utf-8").splitlines():
        if not line or line.startswith("#"):
            continue
        room, _, used = line.partition(":")
        below = set()
        for name in used.split():
            if name not in rooms:
                mistakes.append(f"cmake/rooms.txt: {room} builds on {name}, which does not stand above it")
            below |= {name} | rooms.get(name, set())
        rooms[room] = below
    return rooms, mistakes


def sources(tree):
    for path in sorted(tree.rglob("*")):
        name = path.relative_to(tree).as_posix()
        if path.suffix in (".cpp", ".h") and not name.startswith(("build/", ".")):
            yield name, RAW_STRING.sub("", path.read_text(encoding="utf-8"))


def shows_no_qt(room):
    return any(room == name or room.startswith(name + "/") for name in WITHOUT_QT)


def mistakes_of(name, text, rooms):
    room = name.rpartition("/")[0]
    if room not in rooms:
        yield f"{name}: its folder does not stand in cmake/rooms.txt"
        return
    for kind, header in INCLUDE.findall(text):
        if shows_no_qt(room) and re.match(r"Qt?[A-Z]", header):
            yield f"{name}: includes {header}, but {room} shows no Qt"
        target = header.rpartition("/")[0]
        if kind == '"' and target != room and target not in rooms[room]:
            yield f"{name}: includes {header}, but {room} does not build on {target or 'that'}"


def check(tree):
    rooms, mistakes = read_rooms(tree)
    seen = False
    for name, text in sources(tree):
        seen = True
        mistakes.extend(mistakes_of(name, text, rooms))
    return mistakes if seen else ["no source files"]


if __name__ == "__main__":
    found = check(Path(sys.argv[1]))
    print("\n".join(found))
    sys.exit(1 if found else 0)
