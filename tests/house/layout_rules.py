# SPDX-License-Identifier: Apache-2.0
"""Checks that every file is where its name says, and has what goes with it.

    layout_rules.py ROOT

Rules:
  - a name of a source file, and a name of a header, is there once in the whole project;
  - a source file and a header of one name belong to one room;
  - a header begins with `#pragma once`, what it holds with its room, and the licence; a source
    file begins with the licence;
  - each room has a README.md, and each source file of the library a test file of its name;
  - ostrel.h includes every public header, those of a room together under a sentence on the room.
"""

import re
import sys
from collections import defaultdict
from pathlib import Path, PurePosixPath

from include_rules import STANDS_ON
from source_tree import cpp_files, head_of, includes_of, place_of

LICENCE = "// SPDX-License-Identifier: Apache-2.0"

# Headers of which each library has one of its own.
ONE_PER_LIBRARY = {"export.h"}

# Source files without a test file of their name, and where they are tested instead.
TESTED_ELSEWHERE: dict[str, str] = {}


def library_files(root: Path) -> list[str]:
    """The files of the library, its platform libraries and the host."""
    return [f for f in cpp_files(root) if place_of(f)[0] in ("include", "src", "platform", "host")]


def repeated_names(root: Path) -> list[str]:
    """Names that more than one source file, or more than one header, has."""
    places = defaultdict(list)
    for file in library_files(root):
        name = PurePosixPath(file).name
        if name not in ONE_PER_LIBRARY:
            places[name].append(file)
    return [
        f"{files[0]}: its name is also that of {', '.join(files[1:])}"
        for files in places.values()
        if len(files) > 1
    ]


def room_told(root: Path, header: str) -> str | None:
    """The room that a header says it belongs to."""
    head = head_of((root / header).read_text(encoding="utf-8"))
    return head.room if head else None


def parted_pairs(root: Path) -> list[str]:
    """Source files whose header belongs to another room."""
    headers = {PurePosixPath(f).stem: f for f in library_files(root) if f.endswith(".h")}
    found = []
    for file in library_files(root):
        header = headers.get(PurePosixPath(file).stem, "")
        place, room = place_of(file)
        if file.endswith(".h") or not header or place == "host":
            continue
        told = room_told(root, header)
        if told not in (room, "-"):
            found.append(f"{file}: its header {header} belongs to {told}")
    return found


def rooms_allowed(file: str) -> set[str]:
    """The rooms that a header may name in its first lines."""
    place, room = place_of(file)
    if place == "include":
        return {*STANDS_ON, "-"}
    return {room} if place in ("src", "platform") else {place}


def bad_heads(root: Path) -> list[str]:
    """Files that do not begin as they should."""
    found = []
    for file in library_files(root):
        text = (root / file).read_text(encoding="utf-8")
        lines = text.split("\n")
        if file.endswith(".cpp"):
            if lines[0] != LICENCE:
                found.append(f"{file}:1: the first line is not: {LICENCE}")
            continue
        head = head_of(text)
        if lines[0] != "#pragma once":
            found.append(f"{file}:1: the first line is not: #pragma once")
        elif head is None:
            found.append(f"{file}:2: the second line is not: /// @file  what it holds. Room: name")
        elif head.room not in rooms_allowed(file):
            found.append(f"{file}:2: says that it belongs to {head.room}")
        elif lines[2] != LICENCE:
            found.append(f"{file}:3: the third line is not: {LICENCE}")
    return found


def rooms_without_readme(root: Path) -> list[str]:
    """Rooms, platform libraries and places that do not say what they hold."""
    folders = [f for place in ("src", "platform") for f in sorted((root / place).glob("*/"))]
    folders += [root / "host", root / "include/ostrel"]
    return [
        f"{folder.relative_to(root).as_posix()}: has no README.md"
        for folder in folders
        if folder.is_dir() and any(folder.rglob("*.[hc]*")) and not (folder / "README.md").is_file()
    ]


def sources_without_test(root: Path) -> list[str]:
    """Source files without a test file, and exceptions that are none."""
    found = []
    for file in library_files(root):
        place, room = place_of(file)
        if not file.endswith(".cpp") or place == "host":
            continue
        test = f"tests/{room}/{PurePosixPath(file).stem}_test.cpp"
        tested = (root / test).is_file()
        if tested and file in TESTED_ELSEWHERE:
            found.append(f"{file}: is listed as tested elsewhere, and {test} is there")
        if not tested and file not in TESTED_ELSEWHERE:
            found.append(f"{file}: has no {test}")
    return found


def umbrella_faults(root: Path) -> list[str]:
    """What ostrel.h leaves out, repeats or does not explain."""
    umbrella = "include/ostrel/ostrel.h"
    if not (root / umbrella).is_file():
        return [f"{umbrella}: is missing"]
    text = (root / umbrella).read_text(encoding="utf-8")
    listed = [include.name for include in includes_of(text)]
    headers = {f"ostrel/{f.name}" for f in (root / "include/ostrel").glob("*.h")}
    missing = headers - {"ostrel/ostrel.h"} - set(listed)
    repeated = {name for name in listed if listed.count(name) > 1}
    found = [f"{umbrella}: does not include {name}" for name in sorted(missing)]
    found += [f"{umbrella}: includes {name} twice" for name in sorted(repeated)]
    return found + [f"{umbrella}: {fault}" for fault in unexplained_rooms(root, text)]


def unexplained_rooms(root: Path, text: str) -> list[str]:
    """Lists of headers that do not stand under a line "// Room: a sentence." of their room."""
    found, done = [], set()
    for block in re.finditer(r"((?:^//.*\n)*)((?:^#include.*\n)+)", text, re.MULTILINE):
        comment = " ".join(line.lstrip("/ ") for line in block[1].splitlines())
        names = [include.name for include in includes_of(block[2])]
        rooms = {name: room_told(root, f"include/{name}") for name in names if there(root, name)}
        if not comment.endswith("."):
            found.append(f"{names[0]} stands under no sentence")
            continue
        if set(rooms.values()) == {"-"}:
            continue
        told = comment.split(":")[0].lower()
        if told in done:
            found.append(f"{names[0]} begins a second list of {told}")
        done.add(told)
        strange = [(name, room) for name, room in rooms.items() if room != told]
        found += [f"{name} belongs to {room}, not to {told}" for name, room in strange]
    return found


def there(root: Path, name: str) -> bool:
    """True for a name in an #include that is a public header."""
    return (root / "include" / name).is_file()


def main(arguments: list[str]) -> int:
    root = Path(arguments[0])
    rules = (
        repeated_names,
        parted_pairs,
        bad_heads,
        rooms_without_readme,
        sources_without_test,
        umbrella_faults,
    )
    found = [line for rule in rules for line in rule(root)]
    print("\n".join(found) or "Everything is where its name says.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
