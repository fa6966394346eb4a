"""Balances the chemical equations of content pages: check_equations.py PAGES-FOLDER. Exit status 0 when atoms and charges
of each are the same on both sides, 1 with a line for each that does not, and when hardly any equation is found."""

import html
import re
import sys
from collections import Counter
from pathlib import Path

# So many at least are in the pages; fewer mean that the reading of pages is broken.
LEAST = 40
# How the line of a wrong answer of a quiz begins, which may show a wrong equation.
WRONG_ANSWER = "- "
# A step of a worked example that shows an equation before it is balanced.
UNBALANCED = {("170090.page", "N_2 + H_2 → NH_3")}
# What a letter stands for that counts formula units; any number would do.
UNKNOWN = "7"

COUNT = r"(?:\d+|[nx]|\d+[nx])"
STATE = r"\((?:s|l|g|aq)\)"
PART = rf"(?!{STATE})(?:[A-Z][a-z]?|[()=–])(?:_{COUNT})?"
CHARGE = r"\^\d*[+−]"
FORMULA = rf"(?:(?:{PART})+(?: · {COUNT} ?(?:{PART})+)?(?:{CHARGE})?|\((?:{PART})+ · {COUNT} ?(?:{PART})+\)|e\^−)"
TERM = rf"(?:{COUNT} )?{FORMULA}(?:{STATE})?"
SIDE = rf"{TERM}(?: \+ {TERM})*"
EQUATION = re.compile(rf"(?<![^ |:>«(]){SIDE}(?: → {SIDE})+")


def plain(line):
    """A line of a page with subscripts as _2, superscripts as ^2+, each other tag as a bar."""
    text = re.sub(r"<SUB>(.*?)</SUB>", r"_\1", line)
    text = re.sub(r"<SUP>(.*?)</SUP>", r"^\1", text)
    text = html.unescape(re.sub(r"<[^>]*>", "|", text))
    return text.replace("\xa0", " ").replace("⇌", "→")


def number(text):
    """A count such as 2, x or 2x; nothing counts once."""
    if not text:
        return 1
    digits = re.match(r"\d*", text).group()
    return int(digits or 1) * (int(UNKNOWN) if len(digits) < len(text) else 1)


def atoms(formula):
    """How many atoms of each element a formula without charge has."""
    levels = [Counter()]
    for symbol, bracket, count in re.findall(rf"([A-Z][a-z]?)?([()])?(?:_({COUNT}))?", formula):
        if symbol:
            levels[-1][symbol] += number("" if bracket else count)
        if bracket == "(":
            levels.append(Counter())
        elif bracket == ")":
            for name, times in levels.pop().items():
                levels[-1][name] += times * number(count)
    return levels[0]


def contents(term):
    """Atoms of a term, with its charge as one more element."""
    times, formula = re.fullmatch(rf"(?:({COUNT}) )?(.*?)(?:{STATE})?", term).groups()
    formula, _, charge = formula.partition("^")
    found = Counter()
    if formula[0] == "(" and " · " in formula:
        formula = formula[1:-1]
    for part in formula.split(" · "):
        share, rest = re.fullmatch(rf"({COUNT})? ?(.*)", part).groups()
        for name, count in atoms("" if rest == "e" else rest).items():
            found[name] += count * number(share)
    if charge:
        found["charge"] = number(charge[:-1]) * (1 if charge[-1] == "+" else -1)
    return Counter({name: count * number(times) for name, count in found.items()})


def side(text):
    total = Counter()
    for term in text.split(" + "):
        total.update(contents(term))
    return {name: count for name, count in total.items() if count}


def check(pages):
    """The mistakes, and how many equations there are."""
    mistakes, found = [], 0
    for page in sorted(pages.rglob("*.page")):
        for at, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
            if line.startswith(WRONG_ANSWER):
                continue
            text = plain(line)
            equations = EQUATION.findall(text)
            found += len(equations)
            arrows = sum(equation.count("→") for equation in equations)
            in_words = len(re.findall(r"[α-ωάέήίόύώϊϋ)] → [α-ωάέήίόύώ]", text))
            if arrows + in_words != text.count("→"):
                mistakes.append(f"{page}:{at}: an equation that cannot be read: {text}")
            for equation in equations:
                sides = [side(text) for text in equation.split(" → ")]
                balanced = all(each == sides[0] for each in sides)
                if balanced == ((page.name, equation) in UNBALANCED):
                    mistakes.append(f"{page}:{at}: {'un' * (not balanced)}balanced: {equation}")
    return mistakes, found


def main():
    mistakes, found = check(Path(sys.argv[1]))
    print("\n".join(mistakes + [f"{found} equations"]))
    return 1 if mistakes or found < LEAST else 0


if __name__ == "__main__":
    sys.exit(main())
