# SPDX-License-Identifier: Apache-2.0
"""Keeps the two lists of what the library shows to its hosts.

    public_index.py                              writes include/ostrel/README.md
    public_index.py --symbols build/dev/lib/libOstrel.so
                                                 writes tests/house/exported_symbols.txt
    with --check                                 fails where a list is stale, and writes nothing

The list of symbols holds the functions, tables of virtual functions and data that the library
defines and exports for good: what an inline function or a template leaves behind depends on the
compiler's mood and is left out.
"""

import argparse
import difflib
import re
import subprocess
import sys
from pathlib import Path, PurePosixPath
from typing import NamedTuple

from source_tree import PUBLIC_LIBRARIES, cpp_files, head_of, is_public_header

ROOT = Path(__file__).resolve().parents[2]
INDEX = "include/ostrel/README.md"
SYMBOLS = "tests/house/exported_symbols.txt"

_NOISE = re.compile(
    r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'|^[ \t]*#(?:\\\n|[^\n])*',
    re.DOTALL | re.MULTILINE,
)
_OPENING = re.compile(
    r"\bnamespace\s+(?P<namespace>[\w:]+)\s*\{"
    r"|\b(?:class|struct|enum(?:\s+(?:class|struct))?)\s+(?:\[\[[^\]]*\]\]\s*|[A-Z]+_API\s+)*"
    r"(?P<type>[A-Za-z_]\w*)\s*(?:final\s*)?(?::[^;{}]*)?\{"
    r"|[{}]"
)
# Template arguments that headers leave to the default, from the comma on.
_DEFAULT = re.compile(r", std::(?:allocator|char_traits|default_delete|less)<")

# What the compiler and the linker add to the functions and data of the sources.
_MACHINERY = re.compile(r"_init$|_fini$|_edata$|_end$|__bss_start$|typeinfo |.*\bthunk to ")


class PublicClass(NamedTuple):
    """A class, structure or enumeration of the interface."""

    name: str
    header: str
    room: str


def types_in(text: str) -> list[str]:
    """The types that a header defines outside any other, with their namespaces."""
    found, scopes = [], []
    for opening in _OPENING.finditer(_NOISE.sub(" ", text)):
        if opening[0] == "}":
            scopes[-1:] = []
            continue
        if opening["type"] and all(scope is not None for scope in scopes):
            found.append("::".join([*scopes, opening["type"]]))
        scopes.append(opening["namespace"])
    return found


def public_headers(root: Path) -> dict[str, tuple[str, str, str]]:
    """What hosts write in an #include -> what the header holds, its room, its text."""
    headers = {}
    for file in filter(is_public_header, cpp_files(root)):
        text = (root / file).read_text(encoding="utf-8")
        head = head_of(text)
        name = "/".join(PurePosixPath(file).parts[-2:])
        if name != "ostrel/ostrel.h":
            headers[name] = (head.subject if head else "", head.room if head else "-", text)
    return headers


def table(heads: tuple[str, ...], rows: list[tuple[str, ...]]) -> list[str]:
    """The lines of a Markdown table."""
    lines = [heads, tuple("---" for _ in heads), *rows]
    return ["| " + " | ".join(line) + " |" for line in lines]


def index_text(root: Path) -> str:
    """The text that include/ostrel/README.md should have."""
    headers = public_headers(root)
    classes = sorted(
        (
            PublicClass(name, header, room)
            for header, (_, room, text) in headers.items()
            for name in types_in(text)
        ),
        key=lambda entry: (entry.name.lower(), entry),
    )
    libraries = " and ".join(f"`{library}/`" for library in PUBLIC_LIBRARIES)
    lines = [
        "# The public headers",
        "",
        "`ostrel/ostrel.h` includes them all. The headers of " + libraries + " belong to platform",
        "libraries and are installed with the rest. `script/index` keeps this page.",
        "",
        "## Which header holds which class",
        "",
        *table(
            ("class", "header", "room"),
            [(f"`{c.name}`", f"`{c.header}`", c.room) for c in classes],
        ),
        "",
        "## What each header holds",
        "",
        *table(
            ("header", "room", "holds"),
            [(f"`{name}`", room, subject) for name, (subject, room, _) in headers.items()],
        ),
    ]
    return "\n".join(lines) + "\n"


def without_defaults(symbol: str) -> str:
    """A demangled name without the template arguments that headers leave to the default."""
    while start := _DEFAULT.search(symbol):
        end, depth = start.end(), 1
        while depth:
            depth += {"<": 1, ">": -1}.get(symbol[end], 0)
            end += 1
        symbol = symbol[: start.start()] + symbol[end:]
    return symbol


def readable(symbol: str) -> str:
    """A demangled name in the words of the headers."""
    symbol = re.sub(r"\b__cxx11::|\b__1::|\[abi:\w+\]", "", symbol)
    symbol = re.sub(r" (?=>)", "", without_defaults(symbol))
    return symbol.replace("std::basic_string<char>", "std::string")


def exported(listing: str) -> list[str]:
    """The lasting symbols in what nm prints: one line each, sorted."""
    entries = (re.fullmatch(r"\S*\s+(\S) (.*)", line) for line in listing.splitlines())
    names = {entry[2] for entry in entries if entry and entry[1] in "TDBRG"}
    return sorted({readable(name) for name in names if not _MACHINERY.match(name)})


def symbols_text(library: Path, nm: str) -> str:
    """The text that the list of symbols should have."""
    command = [nm, "--dynamic", "--defined-only", "--demangle", str(library)]
    listing = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    return "".join(f"{symbol}\n" for symbol in exported(listing))


def keep(file: Path, text: str, check: bool, command: str) -> int:
    """Writes `text` to `file`, or tells in what the file differs from it."""
    if not check:
        file.write_text(text, encoding="utf-8")
        return 0
    old = file.read_text(encoding="utf-8") if file.is_file() else ""
    changes = difflib.unified_diff(
        old.splitlines(), text.splitlines(), f"{file.name} as it is", "as it should be", lineterm=""
    )
    if old == text:
        return 0
    print("\n".join(changes), f"\n{file} is stale: run {command}")
    return 1


def main(arguments: list[str]) -> int:
    parser = argparse.ArgumentParser(
        prog="script/index", description=__doc__, formatter_class=argparse.RawTextHelpFormatter
    )
    parser.add_argument("--check", action="store_true", help="write nothing, fail if stale")
    parser.add_argument("--symbols", type=Path, metavar="LIBRARY", help="the built library")
    parser.add_argument("--nm", default="nm", help="the program that lists symbols")
    options = parser.parse_args(arguments)
    if options.symbols:
        text = symbols_text(options.symbols, options.nm)
        command = "script/index --symbols build/dev/lib/libOstrel.so"
        return keep(ROOT / SYMBOLS, text, options.check, command)
    return keep(ROOT / INDEX, index_text(ROOT), options.check, "script/index")


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
