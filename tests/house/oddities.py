# SPDX-License-Identifier: Apache-2.0
"""Keeps docs/oddities.md: what the system does on purpose although it looks like a slip.

Every such place carries the tag @oddity in its documentation. This script collects the texts from
the headers and sources, file by file, with what they stand at.

    oddities.py            writes the page
    oddities.py --check    fails when the page is stale
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs" / "oddities.md"
FOLDERS = ["include/ostrel", "src", "platform", "host"]
HEADING = """# What looks odd and has to stay

Several computations look like slips. They stay as they are, because stored results and compared designs depend on
them. Whoever signs a result should know them. This page is collected from the documentation of the code by
`script/oddities`; each entry has a test.
"""


def comment_text(line):
    """The text of a documentation line, or None for any other line."""
    match = re.match(r"\s*///<?\s?(.*)$", line)
    return match.group(1).rstrip() if match else None


def subject(lines, index):
    """The name of what the documentation before line `index` belongs to."""
    for line in lines[index:]:
        code = line.strip()
        if not code or code.startswith(("//", "template", "[[", "///")):
            continue
        named = re.search(r"(?:class|struct|enum)\s+(?:\w+_API\s+)?(\w+)", code)
        called = re.search(r"(operator[^\s(]+|[\w~]+)\s*\(", code)
        member = re.search(r"(\w+)\s*(?:=[^=].*|\{.*\})?;", code)
        found = named or called or member
        return found.group(1) if found else None
    return None


def oddities_of(path):
    """Pairs of what an oddity belongs to and its text, in the order of the file."""
    lines = path.read_text(encoding="utf-8").splitlines()
    found = []
    i = 0
    while i < len(lines):
        text = comment_text(lines[i])
        if text is None or not text.startswith("@oddity"):
            i += 1
            continue
        words = [text.removeprefix("@oddity").strip()]
        i += 1
        while i < len(lines):
            text = comment_text(lines[i])
            if not text or text.startswith("@"):
                break
            words.append(text.strip())
            i += 1
        found.append((subject(lines, i), " ".join(words)))
    return found


def page():
    parts = [HEADING]
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).rglob("*.[hc]*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            entries = oddities_of(path)
            if not entries:
                continue
            parts.append(f"\n## `{path.relative_to(ROOT)}`\n")
            for name, text in entries:
                parts.append(f"- {f'`{name}`: ' if name else ''}{text}")
    return "\n".join(parts) + "\n"


def main(arguments):
    fresh = page()
    if "--check" not in arguments:
        PAGE.write_text(fresh, encoding="utf-8")
        return 0
    if PAGE.exists() and PAGE.read_text(encoding="utf-8") == fresh:
        print("The page of oddities is up to date.")
        return 0
    print(f"{PAGE.relative_to(ROOT)} is stale: run script/oddities")
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
