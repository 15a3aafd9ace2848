# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The lists of faults: what is found in a source, and what is wrong with a list."""

import pathlib
import tempfile
import unittest

import faults


def fault(text, replacement, context=""):
    return faults.Fault("list.txt:1", "title", "src/x.cpp", ("tst_x",), context, text, replacement)


class Mutated(unittest.TestCase):
    def test_white_space_does_not_count(self):
        source = "call(one,\n     two);\nrest();\n"
        self.assertEqual(faults.mutated(fault("call( one, two );", "call(two);"), source), "call(two);\nrest();\n")

    def test_words_are_whole(self):
        self.assertEqual(faults.mutated(fault("row", "0"), "rows[row] = arrow;"), "rows[0] = arrow;")

    def test_statement_that_is_left_out_leaves_an_empty_one(self):
        self.assertEqual(faults.mutated(fault("x();", ""), "if (a) x(); y();"), "if (a) ; y();")
        self.assertEqual(faults.mutated(fault("!a &&", ""), "if (!a && b)"), "if ( b)")

    def test_text_that_is_gone(self):
        with self.assertRaisesRegex(faults.ListError, 'list.txt:1: title: "x" stands 0 times in src/x.cpp'):
            faults.mutated(fault("x", ""), "y")

    def test_text_that_is_found_twice(self):
        with self.assertRaisesRegex(faults.ListError, "stands 2 times"):
            faults.mutated(fault("x;", ""), "x; x;")

    def test_first_place_behind_the_context(self):
        self.assertEqual(faults.mutated(fault("x;", "y;", "f()"), "x; f() { x; x; }"), "x; f() { y; x; }")

    def test_context_must_be_found_once(self):
        for source in ("x;", "f() x; f() x;"):
            with self.assertRaisesRegex(faults.ListError, r'"f\(\)" stands [02] times'):
                faults.mutated(fault("x;", "", "f()"), source)

    def test_replacement_that_is_the_text(self):
        with self.assertRaisesRegex(faults.ListError, "changes nothing"):
            faults.mutated(fault("x", "x"), "x")


class Read(unittest.TestCase):
    def read(self, text):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, "room.txt")
            path.write_text(text, encoding="utf-8")
            return faults.read(path)

    def test_file_and_tests_hold_on(self):
        first, second, third = self.read(
            "# comment\n\nfile a.cpp\ntests one two\n\nfirst\n- x\n+\n\nsecond\n@ f()\n- x\n  y\n+ z\n\n"
            "file b.cpp\ntests three\n\nthird\n- x\n+ y")
        self.assertEqual(first, faults.Fault("room.txt:6", "first", "a.cpp", ("one", "two"), "", "x", ""))
        self.assertEqual(second, faults.Fault("room.txt:10", "second", "a.cpp", ("one", "two"), "f()", "x\ny", "z"))
        self.assertEqual((third.file, third.tests), ("b.cpp", ("three",)))

    def test_what_is_wrong(self):
        for text, complaint in (("file a\ntests t\n\ntitle\nx\n", "begins with none of"),
                                ("file a\ntests t\n\ntitle\n- x\n", "needs"), ("file a\n\ntitle\n- x\n+\n", "needs"),
                                ("tests t\n\ntitle\n- x\n+\n", "needs")):
            with self.assertRaisesRegex(faults.ListError, complaint):
                self.read(text)


if __name__ == "__main__":
    unittest.main()
