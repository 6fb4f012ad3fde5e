#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check the include lines of every room: each uses only the rooms and libraries that its row allows, and of another
room no header that the README there calls internal.

    check_includes.py [ROOT]
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]

# room: rooms whose headers it may include besides its own, other headers besides the standard library's. A room inside
# another has a row of its own.
ROOMS = {
    "diagkit/model": ([], []),
    "diagkit/logging": ([], []),
    "diagkit/util": ([], []),
    "diagkit/tools": (["diagkit/model", "diagkit/logging", "diagkit/util"], []),
    "diagkit/tools/oem": (["diagkit/model", "diagkit/util"], []),
    "diagkit/memory": (["diagkit/model"], []),
    "diagkit/reader": (["diagkit/memory", "diagkit/tools", "diagkit/model"], [r"expat\.h", r"zip\.h"]),
    "diagkit/check": (["diagkit/reader", "diagkit/memory", "diagkit/tools", "diagkit/model"], []),
    "diagkit/query": (
        ["diagkit/check", "diagkit/reader", "diagkit/memory", "diagkit/tools", "diagkit/model"],
        [],
    ),
    "diagkit/conformance": (["diagkit/tools", "diagkit/model"], []),
    "cli": (
        [
            "diagkit/query",
            "diagkit/check",
            "diagkit/reader",
            "diagkit/memory",
            "diagkit/tools/oem",
            "diagkit/tools",
            "diagkit/util",
            "diagkit/logging",
            "diagkit/model",
        ],
        [r"CLI/\S+", r"fmt/\S+", r"nlohmann/\S+"],
    ),
    "fuzz": (
        [
            "diagkit/query",
            "diagkit/check",
            "diagkit/reader",
            "diagkit/memory",
            "diagkit/tools/oem",
            "diagkit/tools",
            "diagkit/model",
        ],
        [],
    ),
}

# The headers for whole libraries, which stand beside their rooms. No room includes one.
ROOMS["diagkit"] = ([room for room in ROOMS if room.startswith("diagkit/")], [])

# Rooms that may use the platform, in sources that say for which one they are.
PLATFORM_ROOMS = {"diagkit/util", "diagkit/reader", "cli"}
PLATFORM_SOURCE = re.compile(r"_(win32|posix)$")

# Made by the build; for all rooms.
GENERATED = ("<diagkit/Export.h>", "<diagkit/Version.h>")

INCLUDE = re.compile(r"^\s*#\s*include\s*(\S+)")
OURS = re.compile(r"<((?:diagkit|cli|fuzz)/.*)>$")
STANDARD = re.compile(r"<[a-z_0-9]+>$")
PLATFORM = re.compile(r"<(\w+/)?\w+\.h>$")


def room_of(folder):
    """The innermost room that a folder belongs to."""
    while folder not in ROOMS and "/" in folder:
        folder = folder.rpartition("/")[0]
    return folder


def internals_told(folder):
    """The headers that the README of a folder calls internal."""
    readme = folder / "README.md"
    if not readme.exists():
        return set()
    text = readme.read_text(encoding="utf-8").replace("\n", " ")
    told = [part for part in re.split(r";|\.\s", text) if part.rstrip().endswith("internal")]
    return {name for part in told for name in re.findall(r"`(\w+\.(?:h|def))`", part)}


def internals(root):
    """All of them, as they are included."""
    return {f"{room}/{name}" for room in ROOMS for name in internals_told(root / room)}


def is_allowed(room, included, is_platform_source, internal):
    rooms, others = ROOMS[room]
    if included in GENERATED or STANDARD.match(included):
        return True
    if ours := OURS.match(included):
        target = room_of(ours[1].rpartition("/")[0])
        return target == room or (target in rooms and ours[1] not in internal)
    if is_platform_source and PLATFORM.match(included):
        return True
    return any(re.fullmatch(f"<{other}>", included) for other in others)


def faults_of(path, name, room, internal):
    is_platform_source = room in PLATFORM_ROOMS and PLATFORM_SOURCE.search(path.stem) is not None
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if (found := INCLUDE.match(line)) and not is_allowed(room, found[1], is_platform_source, internal):
            yield f"{name}:{number}: {room} does not include {found[1]}"


def sources(root):
    folders = {room.split("/")[0] for room in ROOMS}
    for folder in sorted(folders):
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".h", ".cpp", ".def", ".inc"):
                yield path


def main():
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT
    internal = internals(root)
    found, count = [], 0
    for path in sources(root):
        count += 1
        name = path.relative_to(root)
        found += faults_of(path, name, room_of(name.parent.as_posix()), internal)
    for fault in found:
        print(fault)
    print(f"{count} files, {len(found)} faults")
    return 1 if found or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
