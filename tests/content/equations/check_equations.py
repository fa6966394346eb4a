"""Balances the chemical equations of content pages: check_equations.py PAGES-FOLDER. Exit status 0 when atoms and charges
of each, in nuclear equations mass and atomic numbers, are the same on both sides, 1 with a line for each that does not, and when hardly any equation is found."""

import re
import sys
from collections import Counter
from pathlib import Path

# So many at least are in the pages; fewer mean that the reading of pages is broken.
LEAST = 60
# Steps of worked examples that show an equation before it is balanced: start of the page's name, equation.
UNBALANCED = {("170090", "N2 + H2 -> NH3")}
# What a letter stands for that counts formula units; any number would do.
UNKNOWN = "7"

COUNT = r"(?:\d+|[nx]|\d+[nx])"
STATE = r"\((?:s|l|g|aq)\)"
PART = rf"(?!{STATE})(?:[A-Z][a-z]?|[()\[\]=–])(?:\d+|_\{{?{COUNT}\}}?)?"
CHARGE = r"\^\{?\d*[+-]\}?"
WATER = rf"(?:\*{COUNT}? ?(?:{PART})+)"
FORMULA = rf"(?:(?:{PART})+{WATER}?(?:{CHARGE})?|\((?:{PART})+{WATER}\)|e\^-)"
TERM = rf"(?:{COUNT} )?{FORMULA}(?: ?{STATE})?"
SIDE = rf"{TERM}(?: \+ {TERM})*"
EQUATION = re.compile(rf"{SIDE}(?: (?:->|<=>) {SIDE})+")
ARROW = re.compile(r" (?:->|<=>) ")
# A nucleus or particle with mass and atomic number: ^14_6C, ^0_{-1}e.
NUCLEUS = r"(?:(\d+) )?\^(\d+)_\{?(-?\d+)\}?[A-Za-z]+"


def number(text):
    """A count such as 2, x or 2x; nothing counts once."""
    if not text:
        return 1
    digits = re.match(r"\d*", text).group()
    return int(digits or 1) * (int(UNKNOWN) if len(digits) < len(text) else 1)


def atoms(formula):
    """How many atoms of each element a formula without charge has."""
    levels = [Counter()]
    count = rf"(?:(\d+)|_\{{?({COUNT})\}}?)?"
    for symbol, bracket, digits, letters in re.findall(rf"([A-Z][a-z]?|([()\[\]])){count}", formula):
        times = number(digits or letters)
        if not bracket:
            levels[-1][symbol] += times
        elif bracket in "([":
            levels.append(Counter())
        else:
            for name, inner in levels.pop().items():
                levels[-1][name] += inner * times
    return levels[0]


def contents(term):
    """Atoms of a term, with its charge as one more element."""
    times, formula = re.fullmatch(rf"(?:({COUNT}) )?(.*?)(?: ?{STATE})?", term).groups()
    formula, _, charge = formula.partition("^")
    found = Counter()
    if formula[0] == "(" and "*" in formula:
        formula = formula[1:-1]
    for part in formula.split("*"):
        share, rest = re.fullmatch(rf"({COUNT})? ?(.*)", part).groups()
        for name, count in atoms("" if rest == "e" else rest).items():
            found[name] += count * number(share)
    charge = charge.strip("{}")
    if charge:
        found["charge"] = number(charge[:-1]) * (1 if charge[-1] == "+" else -1)
    return Counter({name: count * number(times) for name, count in found.items()})


def side(text):
    total = Counter()
    for term in text.split(" + "):
        total.update(contents(term))
    return {name: count for name, count in total.items() if count}


def nuclei(text):
    """Mass and atomic numbers of a side of a nuclear equation; None when it is something else."""
    total = Counter()
    for term in text.split(" + "):
        found = re.fullmatch(NUCLEUS, term)
        if not found:
            return None
        times = int(found[1] or 1)
        total.update({"mass": times * int(found[2]), "charge": times * int(found[3])})
    return total


def formulas(page):
    """What stands between the marks of formulas, with the numbers of the lines; not in wrong answers of a quiz."""
    is_equation = is_quiz = False
    for at, line in enumerate(page.read_text(encoding="utf-8-sig").splitlines(), 1):
        text = line.strip()
        if text.startswith(":::"):
            is_quiz = re.match(r":::\s*(ερωτήσεις|quiz)", text) is not None
        if text == "$$":
            is_equation = not is_equation
        elif is_equation and not text.startswith("//"):
            yield at, text
        elif not (is_quiz and text.startswith("-")):
            yield from ((at, formula) for formula in re.findall(r"(?<!\\)\$((?:[^$\\]|\\.)+)\$", text))


def check(pages):
    """The mistakes, and how many equations there are."""
    mistakes, found = [], 0
    for page in sorted(pages.rglob("*.md")):
        for at, formula in formulas(page):
            formula = formula.replace("−", "-").replace("→", "->").replace("⇌", "<=>").replace(" · ", "*").replace("·", "*")
            if not ARROW.search(formula):
                continue
            nuclear = [nuclei(text) for text in ARROW.split(formula)]
            if all(nuclear):
                found += 1
                if any(each != nuclear[0] for each in nuclear):
                    mistakes.append(f"{page}:{at}: unbalanced: {formula}")
                continue
            if not EQUATION.fullmatch(formula):
                if not re.search("[α-ωά-ώ]", formula):
                    mistakes.append(f"{page}:{at}: an equation that cannot be read: {formula}")
                continue
            found += 1
            sides = [side(text) for text in ARROW.split(formula)]
            balanced = all(each == sides[0] for each in sides)
            allowed = any(page.name.startswith(start) and formula == step for start, step in UNBALANCED)
            if balanced == allowed:
                mistakes.append(f"{page}:{at}: {'un' * (not balanced)}balanced: {formula}")
    return mistakes, found


def main():
    mistakes, found = check(Path(sys.argv[1]))
    print("\n".join(mistakes + [f"{found} equations"]))
    return 1 if mistakes or found < LEAST else 0


if __name__ == "__main__":
    sys.exit(main())
