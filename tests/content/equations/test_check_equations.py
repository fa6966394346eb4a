"""The check of equations notices what it is there for."""

import tempfile
import unittest
from pathlib import Path

from check_equations import check


class CheckEquations(unittest.TestCase):
    def check(self, line, name="1.page"):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / name).write_text(line + "\n", encoding="utf-8")
            mistakes, found = check(Path(folder))
            return [mistake.split(":", 2)[2].strip() for mistake in mistakes], found

    def test_balanced(self):
        cases = [
            "Ύστερα: 2 H<SUB>2</SUB>(g) + O<SUB>2</SUB>(g) &rarr; 2 H<SUB>2</SUB>O(l). Τέλος",
            "<TD>Zn &rarr; Zn<SUP>2+</SUP> + 2 e<SUP>&minus;</SUP></TD>",
            "<P>4 Fe + 3 O<SUB>2</SUB> + 2x H<SUB>2</SUB>O &rarr; 2 (Fe<SUB>2</SUB>O<SUB>3</SUB> &middot; x H<SUB>2</SUB>O)",
            "n CH<SUB>2</SUB>=CH<SUB>2</SUB> &rarr; (&ndash;CH<SUB>2</SUB>&ndash;CH<SUB>2</SUB>&ndash;)<SUB>n</SUB>",
            "NH<SUB>3</SUB> + H<SUB>2</SUB>O &#8652; NH<SUB>4</SUB><SUP>+</SUP> + OH<SUP>&minus;</SUP>",
            "CuSO<SUB>4</SUB> &middot; 5 H<SUB>2</SUB>O &rarr; CuSO<SUB>4</SUB> + 5 H<SUB>2</SUB>O",
        ]
        for line in cases:
            with self.subTest(line):
                self.assertEqual(self.check(line), ([], 1))

    def test_unbalanced(self):
        cases = [
            "H<SUB>2</SUB> + O<SUB>2</SUB> &rarr; H<SUB>2</SUB>O",
            "Cu<SUP>2+</SUP> + e<SUP>&minus;</SUP> &rarr; Cu",
            "Ca(OH)<SUB>2</SUB> + CO<SUB>2</SUB> &rarr; CaCO<SUB>3</SUB> + 2 H<SUB>2</SUB>O",
            "CH<SUB>4</SUB> &rarr; C + 2 H<SUB>2</SUB> &rarr; C + H<SUB>2</SUB>",
        ]
        for line in cases:
            with self.subTest(line):
                mistakes, found = self.check(line)
                self.assertEqual(found, 1)
                self.assertTrue(mistakes[0].startswith("unbalanced: "), mistakes)

    def test_step_before_balancing(self):
        step = "Τύποι: N<SUB>2</SUB> + H<SUB>2</SUB> &rarr; NH<SUB>3</SUB>."
        self.assertEqual(self.check(step, "170090.page"), ([], 1))
        self.assertEqual(len(self.check(step, "170080.page")[0]), 1)

    def test_wrong_answer_of_a_quiz(self):
        answer = "Mg + O<SUB>2</SUB> &rarr; MgO"
        self.assertEqual(self.check("- " + answer), ([], 0))
        self.assertEqual(len(self.check("+ " + answer)[0]), 1)

    def test_words_and_what_is_neither(self):
        self.assertEqual(self.check("<SMALL>σίδηρος + θείο &rarr; θειούχος σίδηρος</SMALL>"), ([], 0))
        mistakes, _ = self.check("2 H<SUB>2</SUB> + xx &rarr; H<SUB>2</SUB>")
        self.assertTrue(mistakes[0].startswith("an equation that cannot be read: "), mistakes)


if __name__ == "__main__":
    unittest.main()
