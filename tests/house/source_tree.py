# SPDX-License-Identifier: Apache-2.0
"""The C++ files of the project: where they lie, what they include, what their first lines say."""

import re
from pathlib import Path, PurePosixPath
from typing import NamedTuple

PLACES = ("include", "src", "platform", "host", "tests", "benchmarks", "examples")
PUBLIC_LIBRARIES = ("tallow", "sorrel")  # platform libraries whose headers are installed

_BLOCK_COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)
_INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"\n]+)"|<([^>\n]+)>)', re.MULTILINE)
_ROOM = re.compile(r"^/// @file\s+(.*?)\. (?:(?:Room|Library): (\w+)|(Technical header))\.?$")


class Include(NamedTuple):
    """One #include line."""

    line: int
    name: str
    quoted: bool


class Head(NamedTuple):
    """What a header says of itself; the room is "-" for a technical header."""

    subject: str
    room: str


def cpp_files(root: Path) -> list[str]:
    """All C++ files below the places of the project, as paths from `root`, sorted."""
    files = (f for place in PLACES for f in (root / place).rglob("*") if f.suffix in (".h", ".cpp"))
    return sorted(f.relative_to(root).as_posix() for f in files)


def includes_of(text: str) -> list[Include]:
    """The #include lines of a file's text, those in comments left out."""
    text = _BLOCK_COMMENT.sub(lambda found: "\n" * found.group().count("\n"), text)
    return [
        Include(text.count("\n", 0, found.start()) + 1, found[1] or found[2], bool(found[1]))
        for found in _INCLUDE.finditer(text)
    ]


def head_of(text: str) -> Head | None:
    """What the @file line says, if the second line of the text is one that names a room."""
    found = _ROOM.match("\n".join(text.split("\n")[1:2]))
    return Head(found[1], found[2] or "-") if found else None


def is_public_header(path: str) -> bool:
    """True for the headers that are installed."""
    folders = ["include/ostrel/"] + [f"platform/{lib}/include/{lib}/" for lib in PUBLIC_LIBRARIES]
    return path.endswith(".h") and any(path.startswith(folder) for folder in folders)


def place_of(path: str) -> tuple[str, str]:
    """The place of a file and the room in it: ("src", "soil"), ("platform", "tallow"), ...

    The room is empty for a file that lies directly in a place.
    """
    parts = PurePosixPath(path).parts
    return parts[0], parts[1] if len(parts) > 2 else ""
