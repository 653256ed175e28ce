# SPDX-License-Identifier: Apache-2.0
"""Small project trees for the tests of the rules."""

import tempfile
import unittest
from pathlib import Path


class TemporaryTreeTest(unittest.TestCase):
    """A test with an empty folder of its own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def put(self, path: str, *lines: str) -> None:
        """Writes a file of these lines."""
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text("\n".join(lines) + "\n", encoding="utf-8")

    def header(self, path: str, room: str, *lines: str) -> None:
        """Writes a header that belongs to `room`."""
        self.put(
            path,
            "#pragma once",
            f"/// @file  What it holds. Room: {room}",
            "// SPDX-License-Identifier: Apache-2.0",
            *lines,
        )
