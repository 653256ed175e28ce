# SPDX-License-Identifier: Apache-2.0
"""Tests of the collection of oddities."""

import tempfile
import unittest
from pathlib import Path

import oddities


class OdditiesOfAFile(unittest.TestCase):
    def collect(self, text):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "file.h"
            path.write_text(text, encoding="utf-8")
            return oddities.oddities_of(path)

    def test_takes_the_paragraph_and_what_it_stands_at(self):
        found = self.collect(
            "/// Adds.\n///\n/// @oddity One line\n/// and another.\n///\n/// @return it\n"
            "double add(int a);\n")
        self.assertEqual(found, [("add", "One line and another.")])

    def test_ends_at_the_next_tag(self):
        found = self.collect("/// @oddity First.\n/// @oddity Second.\nclass OSTREL_API xThing {\n")
        self.assertEqual(found, [("xThing", "First."), ("xThing", "Second.")])

    def test_names_a_member(self):
        self.assertEqual(self.collect("  /// @oddity Kept.\n  double depth = 0.0;\n"),
                         [("depth", "Kept.")])

    def test_finds_nothing_without_the_tag(self):
        self.assertEqual(self.collect("/// An odd thing.\nint odd();\n"), [])


if __name__ == "__main__":
    unittest.main()
