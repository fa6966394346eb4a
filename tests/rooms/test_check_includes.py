"""The check of includes notices what it is there for."""

import tempfile
import unittest
from pathlib import Path

from check_includes import check

ROOMS = "# Rooms.\n\nplatform/text\nplatform/qt: platform/text\nsrc/pages: platform/qt\nsrc/view: src/pages\n"


class CheckIncludes(unittest.TestCase):
    def check(self, files, rooms=ROOMS):
        with tempfile.TemporaryDirectory() as folder:
            tree = Path(folder)
            for name, text in {"cmake/rooms.txt": rooms, **files}.items():
                (tree / name).parent.mkdir(parents=True, exist_ok=True)
                (tree / name).write_text(text, encoding="utf-8")
            return check(tree)

    def test_right_includes(self):
        files = {
            "src/view/View.cpp": '#include "src/view/View.h"\n#include "platform/text/Fold.h"\n#include <string>\n',
            "platform/qt/Convert.h": "#include <QString>\n",
            "src/pages/Writer.cpp": 'const char* head = R"(\n#include "src/view/View.h"\n)";\n',
        }
        self.assertEqual(self.check(files), [])

    def test_wrong_includes(self):
        cases = [
            ("src/pages/Page.cpp", '#include "src/view/View.h"', "does not build on src/view"),
            ("platform/text/Fold.cpp", '  #include "platform/qt/Convert.h"', "does not build on platform/qt"),
            ("src/view/View.h", "#include <QWidget>", "shows no Qt"),
            ("src/view/View.h", "#include <QtCore/QString>", "shows no Qt"),
            ("src/view/View.cpp", '#include "View.h"', "does not build on that"),
            ("src/other/Other.cpp", "", "does not stand in cmake/rooms.txt"),
        ]
        for name, line, message in cases:
            with self.subTest(line):
                found = self.check({name: line + "\n"})
                self.assertEqual(len(found), 1)
                self.assertIn(message, found[0])

    def test_list_out_of_order(self):
        found = self.check({"src/a/A.cpp": ""}, "src/a: src/b\nsrc/b\n")
        self.assertEqual(found, ["cmake/rooms.txt: src/a builds on src/b, which does not stand above it"])

    def test_nothing_to_check(self):
        self.assertEqual(self.check({}), ["no source files"])


if __name__ == "__main__":
    unittest.main()
