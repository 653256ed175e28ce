# SPDX-License-Identifier: Apache-2.0
"""Each rule about includes fires, and lets pass what it should."""

import unittest

import include_rules
from temporary_tree import TemporaryTreeTest


class IncludeRules(TemporaryTreeTest):
    def broken(self) -> list[str]:
        return include_rules.broken_rules(self.root)

    def assert_broken(self, *words: str) -> None:
        """One line is found, and it holds these words."""
        found = self.broken()
        self.assertEqual(len(found), 1, found)
        for word in words:
            self.assertIn(word, found[0])

    def test_a_clean_tree_passes(self):
        self.header(
            "include/ostrel/wall.h",
            "model",
            '#include "ostrel/export.h"',
            "#include <tallow/streams.h>",
            "#include <sorrel/cross_section.h>",
            "#include <armadillo>",
            "#include <osg/Referenced>",
            "#include <osg/ref_ptr>",
            "#include <vector>",
        )
        self.header("include/ostrel/export.h", "-")
        self.header("platform/tallow/include/tallow/streams.h", "tallow")
        self.header("platform/sorrel/include/sorrel/cross_section.h", "sorrel")
        self.header("src/services/frame.h", "services", '#include "ostrel/wall.h"')
        self.put("src/model/wall.cpp", '#include "ostrel/wall.h"', '#include "services/frame.h"')
        self.put("tests/model/wall_test.cpp", '#include "model/wall.cpp"')
        self.assertEqual(self.broken(), [])

    def test_a_cycle_of_three_headers_is_told_once_with_its_way(self):
        self.header("src/soil/a.h", "soil", '#include "soil/b.h"')
        self.header("src/soil/b.h", "soil", '#include "soil/c.h"')
        self.header("src/soil/c.h", "soil", '#include "soil/a.h"')
        self.assert_broken("src/soil/a.h -> src/soil/b.h -> src/soil/c.h -> src/soil/a.h")

    def test_a_header_that_includes_itself_is_a_cycle(self):
        self.header("include/ostrel/a.h", "soil", "#include <ostrel/a.h>")
        self.assert_broken("include/ostrel/a.h -> include/ostrel/a.h")

    def test_two_ways_to_one_header_are_no_cycle(self):
        self.header("src/soil/a.h", "soil", '#include "b.h"', '#include "c.h"')
        self.header("src/soil/b.h", "soil", '#include "c.h"')
        self.header("src/soil/c.h", "soil")
        self.assertEqual(self.broken(), [])

    def test_a_name_in_quotes_must_be_a_file(self):
        self.put("src/soil/a.cpp", "", '#include "soil/gone.h"')
        self.assert_broken("src/soil/a.cpp:2:", "soil/gone.h", "no file of the project")

    def test_includes_in_comments_do_not_count(self):
        self.put("src/soil/a.cpp", '// #include "gone.h"', "/*", '#include "gone.h"', "*/")
        self.assertEqual(self.broken(), [])

    def test_a_public_header_keeps_off_private_ones(self):
        self.header("src/model/mesh.h", "model")
        self.header("include/ostrel/wall.h", "model", '#include "model/mesh.h"')
        self.assert_broken("include/ostrel/wall.h:4:", "src/model/mesh.h", "is private")

    def test_a_public_header_keeps_off_a_platform_library_that_is_not_installed(self):
        self.header("platform/ferrule/include/ferrule/domain.h", "ferrule")
        self.header("include/ostrel/wall.h", "structural", "#include <ferrule/domain.h>")
        self.assert_broken("ferrule/domain.h", "is private")

    def test_a_public_header_keeps_off_unlisted_third_party_headers(self):
        self.header("include/ostrel/wall.h", "model", "#include <osg/Vec3d>")
        self.assert_broken("osg/Vec3d", "third-party")

    def test_an_installed_platform_header_keeps_off_what_its_sources_may_use(self):
        self.header("platform/sorrel/include/sorrel/polygon.h", "sorrel", "#include <geos_c.h>")
        self.put("platform/sorrel/src/polygon.cpp", "#include <geos_c.h>")
        self.assert_broken("include/sorrel/polygon.h", "geos_c.h", "third-party")

    def test_a_room_keeps_off_unlisted_third_party_headers(self):
        self.put("src/slope/slices.cpp", "#include <geos_c.h>")
        self.assert_broken("geos_c.h", "third-party", "src")

    def test_headers_of_the_operating_system_are_third_party_too(self):
        self.put("src/services/stream.cpp", "#include <unistd.h>")
        self.assert_broken("unistd.h", "third-party")

    def test_private_headers_go_along_the_table_only(self):
        self.header("src/soil/earth_pressure.h", "soil")
        self.put("src/loads/load.cpp", '#include "soil/earth_pressure.h"')
        self.assert_broken("src/loads/load.cpp:1:", "private to soil", "loads does not stand on")

    def test_a_room_reaches_what_stands_below_the_next_room(self):
        self.header("src/services/frame.h", "services")
        self.put("src/slope/slices.cpp", '#include "services/frame.h"')
        self.assertEqual(self.broken(), [])

    def test_a_room_that_uses_a_part_of_another_sees_that_part_alone(self):
        self.header("src/geotech/bearing_capacity.h", "geotech")
        self.header("src/geotech/pile_group.h", "geotech")
        self.put("src/soil/spring.cpp", '#include "geotech/bearing_capacity.h"')
        self.assertEqual(self.broken(), [])
        self.put("src/soil/pile.cpp", '#include "geotech/pile_group.h"')
        self.assert_broken("src/soil/pile.cpp", "private to geotech")

    def test_the_public_header_of_another_room_is_open(self):
        self.header("include/ostrel/anchor.h", "anchors")
        self.put("src/model/mesh.cpp", '#include "ostrel/anchor.h"')
        self.assertEqual(self.broken(), [])

    def test_a_platform_library_serves_the_rooms_that_stand_on_it(self):
        self.header("platform/ferrule/include/ferrule/domain.h", "ferrule")
        self.put("src/structural/section.cpp", "#include <ferrule/domain.h>")
        self.assertEqual(self.broken(), [])
        self.put("src/soil/section.cpp", "#include <ferrule/domain.h>")
        self.assert_broken("src/soil/section.cpp", "ferrule", "soil does not stand on")

    def test_the_inside_of_a_platform_library_is_closed_to_rooms(self):
        self.header("platform/tallow/src/fault.h", "tallow")
        self.put("src/services/stream.cpp", '#include "fault.h"')
        self.assert_broken("private to tallow")

    def test_platform_libraries_know_neither_rooms_nor_each_other(self):
        self.header("include/ostrel/wall.h", "model")
        self.header("platform/sorrel/include/sorrel/polygon.h", "sorrel")
        self.put("platform/tallow/src/a.cpp", "#include <ostrel/wall.h>")
        self.put("platform/ferrule/src/b.cpp", "#include <sorrel/polygon.h>")
        found = self.broken()
        self.assertEqual(len(found), 2, found)
        for line in found:
            self.assertIn("lies outside the platform library", line)

    def test_nothing_below_includes_the_driver(self):
        self.header("include/ostrel/solver.h", "driver")
        self.header("src/driver/sequence.h", "driver")
        self.put("src/geotech/a.cpp", "#include <ostrel/solver.h>")
        self.put("src/geotech/b.cpp", '#include "driver/sequence.h"')
        self.put("src/driver/solver.cpp", "#include <ostrel/solver.h>", '#include "sequence.h"')
        found = self.broken()
        self.assertEqual(len(found), 2, found)
        for line in found:
            self.assertIn("belongs to the driver", line)

    def test_the_records_of_the_driver_are_open_to_the_verifications(self):
        self.header("include/ostrel/results.h", "driver")
        self.put("src/geotech/a.cpp", '#include "ostrel/results.h"')
        self.assertEqual(self.broken(), [])

    def test_nothing_below_includes_the_header_of_everything(self):
        self.header("include/ostrel/ostrel.h", "-")
        self.put("src/driver/solver.cpp", '#include "ostrel/ostrel.h"')
        self.assert_broken("brings in everything")

    def test_the_header_of_everything_holds_the_driver_too(self):
        self.header("include/ostrel/solver.h", "driver")
        self.header("include/ostrel/ostrel.h", "-", '#include "ostrel/solver.h"')
        self.assertEqual(self.broken(), [])

    def test_nothing_below_includes_the_host(self):
        self.header("host/project_file.h", "host")
        self.put("src/driver/solver.cpp", '#include "project_file.h"')
        self.assert_broken("src/driver/solver.cpp", "belongs to the host")

    def test_the_host_and_the_examples_see_public_headers_only(self):
        self.header("include/ostrel/wall.h", "model")
        self.header("host/report.h", "host", "#include <ostrel/wall.h>")
        self.put("host/main.cpp", '#include "report.h"')
        self.header("src/model/mesh.h", "model")
        self.assertEqual(self.broken(), [])
        self.put("examples/one.cpp", '#include "model/mesh.h"')
        self.put("host/two.cpp", '#include "model/mesh.h"')
        found = self.broken()
        self.assertEqual(len(found), 2, found)
        for line in found:
            self.assertIn("is no public header", line)

    def test_a_folder_of_src_that_is_no_room_is_told(self):
        self.put("src/misc/a.cpp")
        self.assert_broken("src/misc/a.cpp", "no known room")

    def test_the_rooms_above_are_never_below(self):
        order = list(include_rules.STANDS_ON)
        for room in order:
            for below in include_rules.STANDS_ON[room]:
                self.assertLess(order.index(below), order.index(room), (room, below))


if __name__ == "__main__":
    unittest.main()
