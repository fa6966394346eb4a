"""The check of equations notices what it is there for."""

import tempfile
import unittest
from pathlib import Path

from check_equations import check


class CheckEquations(unittest.TestCase):
    def check(self, text, name="1-page.md"):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / name).write_text(text + "\n", encoding="utf-8")
            mistakes, found = check(Path(folder))
            return [mistake.split(":", 2)[2].strip() for mistake in mistakes], found

    def test_balanced(self):
        cases = [
            "Ύστερα: $2 H2(g) + O2(g) -> 2 H2O(l)$. Τέλος",
            "| οξείδωση | $Zn -> Zn^2+ + 2 e^-$ |",
            "$$\n4 Fe + 3 O2 + 2x H2O -> 2 (Fe2O3*x H2O)\n// σίδηρος + οξυγόνο → σκουριά\n$$",
            "$n CH2=CH2 -> (–CH2–CH2–)_n$",
            "$NH3 + H2O <=> NH4^+ + OH^-$",
            "$CuSO4*5H2O -> CuSO4 + 5 H2O$",
            "$$\n^14_6C -> ^14_7N + ^0_-1e\n$$",
            "$^1_0n + ^235_92U -> ^141_56Ba + ^92_36Kr + 3 ^1_0n$",
            "$2 MnO4^- + 16 H^+ + 10 Cl^- → 2 Mn^{2+} + 5 Cl2 + 8 H2O$",
        ]
        for text in cases:
            with self.subTest(text):
                self.assertEqual(self.check(text), ([], 1))

    def test_unbalanced(self):
        cases = [
            "$H2 + O2 -> H2O$",
            "$$\nCu^2+ + e^- -> Cu\n$$",
            "$Ca(OH)2 + CO2 -> CaCO3 + 2 H2O$",
            "$CH4 -> C + 2 H2 -> C + H2$",
            "$^210_84Po -> ^205_82Pb + ^4_2He$",
            "$^14_6C -> ^14_7N + ^0_1e$",
        ]
        for text in cases:
            with self.subTest(text):
                mistakes, found = self.check(text)
                self.assertEqual(found, 1)
                self.assertTrue(mistakes[0].startswith("unbalanced: "), mistakes)

    def test_step_before_balancing(self):
        step = "Τύποι: $N2 + H2 -> NH3$."
        self.assertEqual(self.check(step, "170090-words.md"), ([], 1))
        self.assertEqual(len(self.check(step, "170080.md")[0]), 1)

    def test_wrong_answer_of_a_quiz(self):
        quiz = "::: ερωτήσεις\n? Ποια;\n{} $Mg + O2 -> MgO$\n:::"
        self.assertEqual(self.check(quiz.format("-")), ([], 0))
        self.assertEqual(len(self.check(quiz.format("+"))[0]), 1)
        self.assertEqual(len(self.check("- $Mg + O2 -> MgO$")[0]), 1)

    def test_words_and_what_is_neither(self):
        self.assertEqual(self.check("$$\nσίδηρος + θείο -> θειούχος σίδηρος\n$$"), ([], 0))
        mistakes, _ = self.check("$2 H2 + xx -> H2$")
        self.assertTrue(mistakes[0].startswith("an equation that cannot be read: "), mistakes)


if __name__ == "__main__":
    unittest.main()
