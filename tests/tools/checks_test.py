"""The checks of the source on small wrong trees: each fault is found, the right tree next to it is not."""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

import check_includes  # noqa: E402
import check_words  # noqa: E402


def findings_in(check, files):
    """What `check` finds in a temporary tree of these names and contents."""
    with tempfile.TemporaryDirectory() as folder:
        for name, content in files.items():
            path = pathlib.Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(content, encoding="utf-8")
        return check(pathlib.Path(folder))


def include(*names):
    return "".join(f'#include "{name}"\n' for name in names)


# The ground the wrong trees stand on; in itself without fault.
SOUND = {
    "base/text.h": "#include <string>\n",
    "base/text.cpp": include("base/text.h"),
    "errors/reporting.h": include("base/text.h"),
    "calc/calc.h": include("errors/reporting.h"),
    "editor/document.h": include("calc/calc.h"),
    "calc/note.h": include("editor/document.h"),
    "commands/wiring.h": include("calc/calc.h", "editor/document.h"),
    "ui/window.cpp": "#include <QWidget>\n" + include("ui_window.h", "commands/wiring.h"),
    "terminal/output.h": include("calc/calc.h"),
    "main.cpp": "#include <QApplication>\n" + include("terminal/output.h"),
}

WRONG_INCLUDES = [
    ("an include that goes up", {"base/money.h": include("calc/calc.h")}, "stands above"),
    ("one that goes up in the logic", {"errors/log.h": include("commands/wiring.h")}, "stands above"),
    ("the screen in the terminal", {"terminal/run.cpp": include("ui/window.h"), "ui/window.h": ""}, "know each other"),
    ("the widgets in the logic", {"calc/show.cpp": "#  include <QLabel>\n"}, "belongs to Qt"),
    ("a Qt module in the logic", {"calc/show.cpp": "#include <QtCore/QString>\n"}, "belongs to Qt"),
    ("a form in the logic", {"editor/show.cpp": include("ui_window.h")}, "belongs to Qt"),
    ("a folder nobody planned", {"helper/misc.h": ""}, "no level"),
    ("a file of no folder", {"misc.h": ""}, "no level"),
    ("a header that is not there", {"calc/show.cpp": include("calc/gone.h")}, "there is no calc/gone.h"),
    (
        "a cycle of two headers, one of them named from beside it",
        {"calc/a.h": include("b.h"), "calc/b.h": include("calc/a.h")},
        "calc/a -> calc/b -> calc/a",
    ),
    (
        "a cycle through sources and folders",
        {"calc/a.h": "", "calc/a.cpp": include("editor/b.h"), "editor/b.h": include("calc/a.h")},
        "calc/a -> editor/b -> calc/a",
    ),
]

OPENING = "// What the file is.\n#pragma once\n"

WRONG_TEXTS = [
    ("a paper that is not ours", "docs/a.md", "see Par" + "t 2.1\n", "must not be here"),
    ("the same in a comment", "src/a.h", OPENING + "// as the spe" + "c says\n", "must not be here"),
    ("a path of a machine", "run", "cd /wor" + "k/main\n", "must not be here"),
    ("a tab", "src/a.h", OPENING + "\tint a;\n", "a tab"),
    ("trailing blanks", "src/a.h", OPENING + "int a; \n", "blanks at the end"),
    ("a carriage return", "src/a.h", OPENING + "int a;\r\n", "blanks at the end"),
    ("no opening comment", "src/a.h", "#pragma once\n", "does not open"),
    ("an opening that is no sentence", "src/a.h", "// Things\n#pragma once\n", "does not open"),
    ("a translated text", "src/a.cpp", OPENING + 'auto a = tr("Datei");\n', "tr()"),
    ("a file too long", "src/a.cpp", OPENING + "\n" * 500, "split it"),
]


class Includes(unittest.TestCase):
    def test_a_sound_tree_has_no_findings(self):
        self.assertEqual(findings_in(check_includes.check, SOUND), [])

    def test_each_wrong_tree_has_the_one_finding_meant(self):
        for title, wrong, expected in WRONG_INCLUDES:
            with self.subTest(title):
                findings = findings_in(check_includes.check, {**SOUND, **wrong})
                self.assertEqual(len(findings), 1, findings)
                self.assertIn(expected, findings[0])


class Words(unittest.TestCase):
    def test_sound_texts_have_no_findings(self):
        sound = {
            "src/a.h": OPENING + "int str(int);  // the specific part 2\n",
            "src/b.cpp": "// What it is,\n// in two lines.\n//\n// And more\n" + "\n" * 496,
            "tests/data/tabs.txt": "a\tb \r\n",
        }
        self.assertEqual(findings_in(check_words.check, sound), [])

    def test_each_wrong_text_has_the_one_finding_meant(self):
        for title, name, content, expected in WRONG_TEXTS:
            with self.subTest(title):
                findings = findings_in(check_words.check, {name: content})
                self.assertEqual(len(findings), 1, findings)
                self.assertIn(expected, findings[0])


if __name__ == "__main__":
    unittest.main()
