"""The form of a scenario file: see README.md."""

import json
import re
from dataclasses import dataclass, field

# How many plain words stand before the JSON value of a line, and whether there is a value.
CHANGES = {"machine": (0, True), "options": (0, True), "setting": (1, True), "write": (1, True), "bytes": (1, True),
           "cut": (1, True), "copy": (2, False), "replace": (1, True), "delete": (1, False), "pipe": (1, False),
           "environment": (1, True), "follow": (0, False), "restart": (0, False)}
CHECKS = {"file": (1, False), "no-file": (1, False), "contains": (1, True), "lacks": (1, True), "bytes": (1, True),
          "count": (1, True), "loaded": (1, False), "not-loaded": (1, False), "printed": (1, True)}
EXPECTATION = re.compile(r"(?P<query>[^{]*?)\s*(?:\b(?P<kind>somewhere|nowhere)\b)?\s*(?P<fragment>\{.*)")
CAPTURE = re.compile(r"(?P<name>\w+)\s+(?P<field>\w+)\s+(?P<query>[^{]*?)\s*(?P<fragment>\{.*)")


@dataclass
class Step:
    """A line of a scenario: a command, or what one of the special comments says."""
    where: str  # the line's number, and the row of its block
    kind: str  # "command", "change", "check", "expectation" or "capture"
    what: str  # the command, query, change, check, or name of the capture
    words: list = field(default_factory=list)
    value: object = None


def parse_scenario(text):
    """The steps of a scenario's text, and its mistakes as "LINE: message"."""
    steps, mistakes = [], []
    lines = [(str(number), line.strip()) for number, line in enumerate(text.split("\n"), 1)]
    for where, line in expanded(lines, mistakes):
        try:
            steps += step_of(where, line)
        except ValueError:
            mistakes.append(f"{where}: cannot be read: {line}")
    return steps, mistakes


def expanded(lines, mistakes):
    """All lines in order; those of a block appear once for each of its rows."""
    left = iter(lines)
    for where, line in left:
        if line.startswith("#*"):
            yield from repeated(where, line[2:], block_of(where, left, mistakes), mistakes)
        else:
            yield where, line


def block_of(where, left, mistakes):
    """The lines up to the end of the block, including blocks within it."""
    block, depth = [], 1
    for each in left:
        depth += each[1].startswith("#*") - (each[1] == "#.")
        if depth == 0:
            return block
        block.append(each)
    mistakes.append(f"{where}: a block without its end")
    return []


def repeated(where, head, block, mistakes):
    while block and block[0][1].startswith("#|"):
        head += block.pop(0)[1][1:]
    names, *rows = (part.split() for part in head.split("|"))
    if len(names) == 2 and names[1] == "times" and names[0].isdigit():
        names, rows = [], [[]] * int(names[0])
    if not rows or any(len(row) != len(names) for row in rows):
        mistakes.append(f"{where}: a row of the block has not as many words as there are names")
        return
    for row in rows:
        values = dict(zip(names, row))
        yield from expanded([(" ".join([number, *row]), with_values(line, values)) for number, line in block], mistakes)


def with_values(line, values):
    """The line with each `$NAME` that there is a value for replaced by it."""
    return re.sub(r"\$(\w+)", lambda found: values.get(found[1], found[0]), line)


def step_of(where, line):
    rest = line[2:].strip()
    match line[:2]:
        case "#!":
            return [formed(where, "change", CHANGES, rest)]
        case "#?":
            return [formed(where, "check", CHECKS, rest)]
        case "#=":
            found = matched(EXPECTATION, rest)
            return [Step(where, "expectation", found["query"], [found["kind"]], json.loads(found["fragment"]))]
        case "#$":
            found = matched(CAPTURE, rest)
            query = [Step(where, "command", found["query"])] if found["query"] else []
            return [*query, Step(where, "capture", found["name"], [found["field"]], json.loads(found["fragment"]))]
        case "#.":
            raise ValueError(line)
    return [] if line == "" or line.startswith("#") else [Step(where, "command", line)]


def formed(where, kind, forms, rest):
    what, *rest = rest.split(maxsplit=1)
    if what not in forms:
        raise ValueError(what)
    count, has_value = forms[what]
    parts = "".join(rest).split(maxsplit=count if has_value else -1)
    if len(parts) != count + has_value:
        raise ValueError(what)
    return Step(where, kind, what, parts[:count], json.loads(parts[count]) if has_value else None)


def matched(form, text):
    if (found := form.fullmatch(text)) is None:
        raise ValueError(text)
    return found
