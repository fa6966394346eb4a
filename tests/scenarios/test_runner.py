"""Tests of the runner of scenarios: which checks hold, and that no mistake is overlooked."""

import contextlib
import io
import tempfile
import unittest
from pathlib import Path

from form import Step, parse_scenario
from fragment import difference, find_somewhere
from run import Run

ANSWER = {
    "cmd": "state", "ok": True, "mode": "Page", "pageId": 370001, "video": False,
    "history": {"current": 1, "entries": [{"section": 2}, {"section": 5}]},
    "trace": [{"sleep": 2000}, {"call": {"name": "ShowItem", "args": [1, 0, False]}}, {"sleep": 1}],
    "windows": [{"class": "Frame", "children": [{"class": "Edit", "handle": 7}, {"class": "Edit", "handle": 8}]}],
    "text": "Τα άτομα και τα ιόντα",
}
HELD = [
    {}, {"mode": "Page", "video": False}, {"history": {"entries": [{}, {"section": 5}]}}, {"trace": ["…"]},
    {"trace": ["…", {"call": {"name": "ShowItem"}}, {"sleep": 1}]}, {"text": "…άτομα και…"}, {"text": "Τα…"},
    {"text": "…ιόντα"},
]
NOT_HELD = [
    {"mode": "MainMenu"}, {"video": 0}, {"section": None}, {"mode": {"x": 1}}, {"mode": ["Page"]},
    {"history": {"entries": [{"section": 2}]}}, {"history": {"entries": [{"section": 5}, {"section": 2}]}},
    {"trace": [{"sleep": 2000}]}, {"trace": ["…", {"sleep": 1}, {"sleep": 2000}]},
    {"trace": ["…", {"sleep": 1}, {"sleep": 1}]}, {"text": "…άτομα"}, {"text": "άτομα…"}, {"text": "άτομα"},
]
MISTAKES = [
    '#= {"running"', "#=", "#= state", "#! erase d/a.htm", "#! delete", "#! delete a b", "#! write d/a.htm",
    '#$ edit {"class": "Edit"}', "#? exists a", "#? file", "#? count c", "#.", "#* A | 1\nstart", "#* A | 1 2\n#.",
    "#* 3\n#.", "#* A | 1\n#* B | 2\n#.",
]
# A driver that answers each line with itself.
DRIVER = """#!/bin/sh
[ "$1" = --new-machine ] && mkdir "$2" && echo '{"a": {"b": 1, "c": 2}}' >"$2/machine.json" && exit
while read -r line; do
    [ "$line" = die ] && exit 3
    [ "$line" = "end badly" ] && status=3
    [ "$line" = wrong ] && ok=false || ok=true
    echo "{\\"ok\\": $ok, \\"line\\": \\"$line\\", \\"n\\": [{\\"handle\\": 7}]}"
done
exit ${status:-0}
"""
# Scenarios, and the lines at which they fail.
OUTCOMES = [
    ('first\n#= {"line": "first"}\n#= second {"line": "second"}\n#= nowhere {"handle": 8}', []),
    ('#$ h handle {"handle": 7}', ["1"]),
    ('go\n#$ h handle {"handle": 7}\nclick $h\n#= {"line": "click 7"}', []),
    ('#* A B | 1 x | 2 y\ngo $A\n#= {"line": "go 1"}\n#.\n#* 2 times\nwrong\n#.', ["3 2 y", "6", "6"]),
    ('#* A\n#| 1\n#| 2\n#* B C | $A 5\ngo $B $C\n#= {"line": "go 1 5"}\n#.\n#.', ["6 2 2 5"]),
    ('wrong\n#= {"ok": false}\nwrong\nlast', ["3"]),
    ('go\n#= {"line": "no"}\n#= somewhere {"handle": 8}\n#= nowhere {"handle": 7}', ["2", "3", "4"]),
    ("go\ndie\nnever", ["2"]),
    ("end badly\ngo", ["end"]),
    ("end badly\n#! restart\ngo", ["2"]),
    ("#! write c/x \"\"\n#? count c 1\n#? count c 0\n#? count c 2", ["3", "4"]),
    ("go\n#! restart\n#! delete machine.json\ngo\n#! delete a", ["5"]),
    ('#! machine {"a": {"b": null, "d": 3}}\n#? contains machine.json "{\\"a\\": {\\"c\\": 2, \\"d\\": 3}}"', []),
    ('#! bytes x "41 \'bc\'"\n#? bytes x "41 62 63"\n#? lacks x "bc"\n#? count y 1\n#? loaded libx', ["3", "4", "5"]),
]


class Fragments(unittest.TestCase):
    def test_what_an_answer_holds(self):
        for fragment in HELD:
            self.assertIsNone(difference(ANSWER, fragment), fragment)
        for fragment in NOT_HELD:
            self.assertIsNotNone(difference(ANSWER, fragment), fragment)

    def test_are_found_at_any_depth(self):
        self.assertEqual(find_somewhere(ANSWER, {"class": "Edit"})["handle"], 7)
        self.assertIsNone(find_somewhere(ANSWER, {"class": "Edit", "handle": 9}))


class Runner(unittest.TestCase):
    def test_mistakes_are_not_passed_over(self):
        for text in MISTAKES:
            self.assertEqual(len(parse_scenario(text)[1]), 1, text)
        comment_and_change = '# Περιγραφή\n\n#! write c/a.ini "[S]\\r\\n"\r\n'
        self.assertEqual(parse_scenario(comment_and_change), ([Step("3", "change", "write", ["c/a.ini"], "[S]\r\n")], []))

    def test_tells_each_line_that_is_not_as_it_must_be(self):
        with tempfile.TemporaryDirectory() as folder:
            driver = Path(folder, "driver")
            driver.write_text(DRIVER, encoding="utf-8")
            driver.chmod(0o700)
            Path(folder, "data").mkdir()
            for text, places in OUTCOMES:
                with contextlib.redirect_stdout(io.StringIO()) as told:
                    held = Run(driver, Path(folder, "data"), "x.kys").run(*parse_scenario(text))
                self.assertEqual([line.split(":")[1] for line in told.getvalue().splitlines()], places, text)
                self.assertEqual(held, not places, text)


if __name__ == "__main__":
    unittest.main()
