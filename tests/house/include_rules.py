# SPDX-License-Identifier: Apache-2.0
"""Walks the includes of the project and names those that the layering does not allow.

    include_rules.py ROOT

Rules:
  - no cycle between files;
  - a name in quotes is a file of the project;
  - a public header includes public headers, the standard library and THIRD_PARTY only;
  - a room includes private headers of another room only along STANDS_ON and PARTS_OF, and a
    platform library only along PLATFORM; platform libraries know neither rooms nor each other;
  - nothing below includes the driver or the host;
  - the host and the examples see public headers only.
"""

import fnmatch
import sys
from pathlib import Path, PurePosixPath

from source_tree import cpp_files, head_of, includes_of, is_public_header, place_of

# The rooms of src/, from below, each with the rooms whose private headers it may include: these
# and, through them, whatever they stand on.
STANDS_ON = {
    "services": (),
    "model": ("services",),
    "loads": ("services",),
    "soil": ("model", "loads"),
    "fem": ("model",),
    "structural": ("services",),
    "anchors": ("services",),
    "geotech": ("services",),
    "slope": ("model", "loads"),
    "driver": ("soil", "fem", "structural", "anchors", "geotech", "slope"),
}

# A room that stands on one part of another may include the headers named here, and what that
# other room stands on.
FRAME = ("check_frame*.h", "verification_frame*.h")
PARTS_OF = {
    "soil": {"geotech": ("bearing_capacity*.h", "foundation_bearing*.h")},
    "fem": {"soil": ("*spring*.h",)},
    "structural": {"fem": ("*results*.h",)},
    "anchors": {"structural": FRAME, "fem": ("*results*.h",)},
    "geotech": {"structural": FRAME, "fem": ("*results*.h",)},
    "slope": {"structural": FRAME},
}

# The platform libraries below a room; they pass upwards as the rooms do.
PLATFORM = {
    "services": ("tallow", "quillet"),
    "model": ("sorrel",),
    "structural": ("ferrule",),
    "slope": ("sorrel",),
}

# Headers of the driver that are plain records, which the verifications read.
DRIVER_RECORDS = ("include/ostrel/results.h",)

# Headers from outside the project and the standard library, by the place that may include them.
CORE_THIRD_PARTY = {"armadillo", "osg/Referenced", "osg/ref_ptr"}
THIRD_PARTY = {
    "include/ostrel": CORE_THIRD_PARTY,
    "src": CORE_THIRD_PARTY,
    "platform/tallow": {"fcntl.h", "unistd.h"},
    "platform/quillet": {"dlfcn.h", "libintl.h", "link.h", "unistd.h"},
    "platform/sorrel": CORE_THIRD_PARTY | {"geos_c.h"},
    "platform/ferrule": {"armadillo"},
}
PUBLIC_THIRD_PARTY = CORE_THIRD_PARTY

STANDARD = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv
    chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable
    coroutine csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar
    cwctype deque exception execution filesystem format forward_list fstream functional future
    initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map
    memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio
    regex scoped_allocator semaphore set shared_mutex source_location span sstream stack stdexcept
    stop_token streambuf string string_view strstream syncstream system_error thread tuple
    type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector
    version""".split()
)


def whole_below(room: str) -> set[str]:
    """The rooms that `room` stands on, whole ones only."""
    below = set(STANDS_ON[room])
    for other in STANDS_ON[room]:
        below |= whole_below(other)
    return below


def rooms_below(room: str) -> set[str]:
    """The rooms whose private headers `room` may include, all of them."""
    below = whole_below(room)
    for other in PARTS_OF.get(room, ()):
        below |= whole_below(other)
    return below


def libraries_below(room: str) -> set[str]:
    """The platform libraries that `room` may use."""
    return {lib for r in (room, *rooms_below(room)) for lib in PLATFORM.get(r, ())}


class Tree:
    """The files of a project, their first lines and the edges between them."""

    def __init__(self, root: Path):
        self.files = cpp_files(root)
        self.known = set(self.files)
        texts = {f: (root / f).read_text(encoding="utf-8") for f in self.files}
        self.includes = {f: includes_of(text) for f, text in texts.items()}
        self.heads = {f: head_of(text) for f, text in texts.items()}
        self.roots = ["include", "src", "tests", "host", "host/include", "host/src"]
        platform = root / "platform"
        for library in sorted(p.name for p in platform.iterdir()) if platform.is_dir() else ():
            self.roots += [f"platform/{library}/include", f"platform/{library}/src"]

    def resolve(self, file: str, name: str, quoted: bool) -> str | None:
        """The file of the project that an include means, None for one from outside."""
        places = [str(PurePosixPath(file).parent)] if quoted else []
        for place in places + self.roots:
            if (path := _plain(f"{place}/{name}")) in self.known:
                return path
        return None

    def edges(self, file: str):
        """(include, file it means or None) for each include of `file`."""
        for include in self.includes[file]:
            yield include, self.resolve(file, include.name, include.quoted)

    def room(self, file: str) -> str:
        """The room of a file: its folder, or what a header of include/ostrel says."""
        head = self.heads[file]
        if file.startswith("include/"):
            return head.room if head else "-"
        return place_of(file)[1]


def _plain(path: str) -> str:
    """`path` without "." and ".."."""
    parts: list[str] = []
    for part in PurePosixPath(path).parts:
        if part == ".." and parts:
            parts.pop()
        elif part != ".":
            parts.append(part)
    return "/".join(parts)


def cycles(tree: Tree) -> list[str]:
    """Each cycle of includes once, as the path around it."""
    found, state, path = [], {}, []

    def visit(file):
        state[file] = "open"
        path.append(file)
        for _, target in tree.edges(file):
            if target is None:
                continue
            if state.get(target) == "open":
                found.append("cycle: " + " -> ".join(path[path.index(target) :] + [target]))
            elif target not in state:
                visit(target)
        path.pop()
        state[file] = "done"

    for file in tree.files:
        if file not in state:
            visit(file)
    return found


def outside(tree: Tree, file: str, name: str, quoted: bool) -> str | None:
    """What is wrong with an include of something that is no file of the project."""
    if quoted:
        return "is no file of the project"
    if name in STANDARD:
        return None
    place, room = place_of(file)
    key = place if place == "src" else f"{place}/{room}"
    allowed = PUBLIC_THIRD_PARTY if is_public_header(file) else THIRD_PARTY.get(key)
    if allowed is None or name in allowed:
        return None
    return f"is a third-party header not listed for {key}"


def inside(tree: Tree, file: str, target: str) -> str | None:
    """What is wrong with an include of a file of the project."""
    if is_public_header(file) and not is_public_header(target):
        return "is private, and the includer is a public header"
    place, _ = place_of(file)
    target_place, _ = place_of(target)
    if target_place == "host" and place not in ("host", "tests"):
        return "belongs to the host"
    if place in ("host", "examples"):
        own = target_place == place or is_public_header(target)
        return None if own else f"is no public header, and {place} sees nothing else"
    if place == "platform":
        return platform_edge(tree, file, target)
    if place in ("include", "src"):
        return room_edge(tree, file, target)
    return None


def platform_edge(tree: Tree, file: str, target: str) -> str | None:
    """What is wrong with an include from a platform library."""
    own = place_of(target) == place_of(file)
    return None if own else "lies outside the platform library"


def room_edge(tree: Tree, file: str, target: str) -> str | None:
    """What is wrong with an include from a room or a public header of it."""
    room, target_room = tree.room(file), tree.room(target)
    place, _ = place_of(target)
    umbrella = file == "include/ostrel/ostrel.h"
    if place not in ("include", "src", "platform"):
        return f"lies in {place}, which stands above"
    if target == "include/ostrel/ostrel.h":
        return "is for hosts: it brings in everything"
    if place == "platform":
        return library_edge(room, file, target, target_room)
    if target_room == "driver" and room != "driver" and not umbrella:
        return None if target in DRIVER_RECORDS else "belongs to the driver, which stands above"
    if place == "include" or target_room == room or target_room in rooms_below(room):
        return None
    name = PurePosixPath(target).name
    parts = PARTS_OF.get(room, {}).get(target_room, ())
    if any(fnmatch.fnmatch(name, part) for part in parts):
        return None
    return f"is private to {target_room}, which {room} does not stand on"


def library_edge(room: str, file: str, target: str, library: str) -> str | None:
    """What is wrong with an include of a header of a platform library from a room."""
    if f"platform/{library}/include/" not in target:
        return f"is private to {library}"
    if is_public_header(file) or room in STANDS_ON and library in libraries_below(room):
        return None
    return f"belongs to {library}, which {room or 'this'} does not stand on"


def broken_rules(root: Path) -> list[str]:
    """All that the includes below `root` break, one line each."""
    tree = Tree(root)
    found = cycles(tree)
    for file in tree.files:
        place, room = place_of(file)
        if place == "src" and room not in STANDS_ON:
            found.append(f"{file}: lies in no known room")
            continue
        for include, target in tree.edges(file):
            if target is None:
                wrong = outside(tree, file, include.name, include.quoted)
            else:
                wrong = inside(tree, file, target)
            if wrong:
                found.append(f"{file}:{include.line}: {target or include.name} {wrong}")
    return found


def main(arguments: list[str]) -> int:
    found = broken_rules(Path(arguments[0]))
    print("\n".join(found) or "All includes keep to the layering.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
