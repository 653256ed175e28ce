# SPDX-License-Identifier: Apache-2.0
"""Each rule about names and places fires, and lets pass what it should."""

import unittest
from unittest import mock

import layout_rules
from layout_rules import LICENCE
from temporary_tree import TemporaryTreeTest


class LayoutRules(TemporaryTreeTest):
    def assert_broken(self, found: list[str], *words: str) -> None:
        """One line is found, and it holds these words."""
        self.assertEqual(len(found), 1, found)
        for word in words:
            self.assertIn(word, found[0])

    def test_names_are_told_that_two_rooms_use(self):
        self.put("src/soil/wall.cpp")
        self.put("src/model/wall.cpp")
        self.put("src/model/wall.h")
        self.put("tests/model/wall.cpp")
        self.assert_broken(
            layout_rules.repeated_names(self.root), "src/model/wall.cpp", "src/soil/wall.cpp"
        )

    def test_a_private_header_may_not_have_the_name_of_a_public_one(self):
        self.put("src/soil/wall.h")
        self.put("include/ostrel/wall.h")
        self.assert_broken(layout_rules.repeated_names(self.root), "wall.h")

    def test_each_library_has_an_export_header(self):
        self.put("include/ostrel/export.h")
        self.put("platform/tallow/include/tallow/export.h")
        self.assertEqual(layout_rules.repeated_names(self.root), [])

    def test_a_source_lies_in_the_room_of_its_header(self):
        self.header("include/ostrel/wall.h", "model")
        self.put("src/model/wall.cpp")
        self.assertEqual(layout_rules.parted_pairs(self.root), [])
        self.header("include/ostrel/anchor.h", "anchors")
        self.put("src/model/anchor.cpp")
        self.assert_broken(layout_rules.parted_pairs(self.root), "src/model/anchor.cpp", "anchors")

    def test_files_that_begin_as_they_should_pass(self):
        self.header("include/ostrel/wall.h", "model")
        self.header("src/soil/spring.h", "soil")
        self.put("src/soil/spring.cpp", LICENCE)
        self.put(
            "include/ostrel/version.h",
            "#pragma once",
            "/// @file  The version. Technical header",
            LICENCE,
        )
        self.put(
            "platform/tallow/include/tallow/streams.h",
            "#pragma once",
            "/// @file  Streams. Library: tallow",
            LICENCE,
        )
        self.assertEqual(layout_rules.bad_heads(self.root), [])

    def test_a_source_begins_with_the_licence(self):
        self.put("src/soil/spring.cpp", "", LICENCE)
        self.assert_broken(layout_rules.bad_heads(self.root), "src/soil/spring.cpp:1:")

    def test_a_header_begins_with_pragma_once(self):
        self.put("src/soil/spring.h", LICENCE, "#pragma once")
        self.assert_broken(layout_rules.bad_heads(self.root), "#pragma once")

    def test_a_header_tells_its_room(self):
        self.put("src/soil/spring.h", "#pragma once", "/// @file  Springs", LICENCE)
        self.assert_broken(layout_rules.bad_heads(self.root), "src/soil/spring.h:2:")

    def test_a_private_header_tells_the_room_it_lies_in(self):
        self.header("src/soil/spring.h", "fem")
        self.assert_broken(layout_rules.bad_heads(self.root), "belongs to fem")

    def test_a_public_header_tells_a_room_that_exists(self):
        self.header("include/ostrel/spring.h", "garden")
        self.assert_broken(layout_rules.bad_heads(self.root), "belongs to garden")

    def test_a_header_carries_the_licence(self):
        self.put("src/soil/a.h", "#pragma once", "/// @file  Springs. Room: soil", "")
        self.assert_broken(layout_rules.bad_heads(self.root), "src/soil/a.h:3:")

    def test_rooms_and_libraries_have_a_readme(self):
        self.put("src/soil/a.cpp")
        self.put("platform/tallow/src/a.cpp")
        self.put("include/ostrel/a.h")
        self.put("include/ostrel/README.md")
        found = layout_rules.rooms_without_readme(self.root)
        self.assertEqual(
            found, ["src/soil: has no README.md", "platform/tallow: has no README.md"]
        )

    def test_a_room_without_files_needs_no_readme(self):
        (self.root / "src/slope").mkdir(parents=True)
        self.put("src/CMakeLists.txt")
        self.assertEqual(layout_rules.rooms_without_readme(self.root), [])

    def test_sources_of_the_library_have_a_test_file(self):
        self.put("src/soil/spring.cpp")
        self.put("platform/tallow/src/streams.cpp")
        self.put("tests/tallow/streams_test.cpp")
        self.put("tests/model/spring_test.cpp")
        found = layout_rules.sources_without_test(self.root)
        self.assert_broken(found, "src/soil/spring.cpp", "tests/soil/spring_test.cpp")

    def test_an_exception_passes_as_long_as_it_is_one(self):
        self.put("src/soil/spring.cpp")
        with mock.patch.dict(layout_rules.TESTED_ELSEWHERE, {"src/soil/spring.cpp": "there"}):
            self.assertEqual(layout_rules.sources_without_test(self.root), [])
            self.put("tests/soil/spring_test.cpp")
            self.assert_broken(layout_rules.sources_without_test(self.root), "is there")

    def umbrella(self, *lines: str) -> list[str]:
        """The faults of an ostrel.h of these lines behind the version, for a room soil and one fem."""
        self.header("include/ostrel/spring.h", "soil")
        self.header("include/ostrel/beam.h", "fem")
        technical = "/// @file  The version. Technical header"
        self.put("include/ostrel/version.h", "#pragma once", technical, LICENCE)
        first = ("// What the library is called by.", '#include "ostrel/version.h"', "")
        self.put("include/ostrel/ostrel.h", *first, *lines)
        return layout_rules.umbrella_faults(self.root)

    def test_the_header_of_everything_must_be_there(self):
        self.assert_broken(layout_rules.umbrella_faults(self.root), "is missing")

    def test_the_header_of_everything_passes(self):
        found = self.umbrella(
            "// Soil: from ground",
            "// to numbers.",
            '#include "ostrel/spring.h"',
            "",
            "// Fem: the beam.",
            '#include "ostrel/beam.h"',
        )
        self.assertEqual(found, [])

    def test_the_header_of_everything_leaves_nothing_out(self):
        found = self.umbrella("// Soil: from ground to numbers.", '#include "ostrel/spring.h"')
        self.assert_broken(found, "does not include ostrel/beam.h")

    def test_the_header_of_everything_repeats_nothing(self):
        found = self.umbrella(
            "// Soil: from ground to numbers.",
            '#include "ostrel/spring.h"',
            '#include "ostrel/spring.h"',
            "// Fem: the beam.",
            '#include "ostrel/beam.h"',
        )
        self.assert_broken(found, "includes ostrel/spring.h twice")

    def test_the_header_of_everything_has_a_sentence_for_each_room(self):
        found = self.umbrella(
            '#include "ostrel/spring.h"', "// Fem: the beam.", '#include "ostrel/beam.h"'
        )
        self.assert_broken(found, "ostrel/spring.h stands under no sentence")

    def test_the_header_of_everything_keeps_a_room_together(self):
        found = self.umbrella(
            "// Soil: from ground to numbers.",
            '#include "ostrel/spring.h"',
            '#include "ostrel/beam.h"',
        )
        self.assert_broken(found, "ostrel/beam.h belongs to fem, not to soil")
        self.header("include/ostrel/pressure.h", "soil")
        found = self.umbrella(
            "// Soil: from ground to numbers.",
            '#include "ostrel/spring.h"',
            "// Fem: the beam.",
            '#include "ostrel/beam.h"',
            "// Soil: once more.",
            '#include "ostrel/pressure.h"',
        )
        self.assert_broken(found, "second list of soil")


if __name__ == "__main__":
    unittest.main()
