#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check the include lines of every room: each uses only the rooms and libraries that its row allows.

    check_includes.py [ROOT]
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]

# room: rooms whose headers it may include besides its own, other headers besides the standard library's. A room inside
# another has a row of its own.
ROOMS = {
    "model": ([], []),
    "logging": ([], []),
    "util": ([], []),
    "tools": (["model", "logging", "util"], []),
    "tools/oem": (["model", "util"], []),
    "memory": (["model"], []),
    "reader": (["memory", "tools", "model"], [r"expat\.h", r"zip\.h"]),
    "check": (["reader", "memory", "tools", "model"], []),
    "conformance": (["tools", "model"], []),
    "cli": (
        ["check", "reader", "memory", "tools/oem", "tools", "util", "logging", "model"],
        [r"CLI/\S+", r"fmt/\S+"],
    ),
    "fuzz": (["check", "reader", "memory", "tools/oem", "tools", "model"], []),
}

# Rooms that may use the platform, in sources that say for which one they are.
PLATFORM_ROOMS = {"util", "reader", "cli"}
PLATFORM_SOURCE = re.compile(r"_(win32|posix)$")

# Made by the build; for all rooms.
GENERATED = ("<diagkit/Export.h>", "<diagkit/Version.h>")

INCLUDE = re.compile(r"^\s*#\s*include\s*(\S+)")
OURS = re.compile(r"<diagkit/(.+)/[^/]+>$")
STANDARD = re.compile(r"<[a-z_0-9]+>$")
PLATFORM = re.compile(r"<(\w+/)?\w+\.h>$")


def room_of(folder):
    """The innermost room that a folder belongs to."""
    while folder not in ROOMS and "/" in folder:
        folder = folder.rpartition("/")[0]
    return folder


def is_allowed(room, included, is_platform_source):
    rooms, others = ROOMS[room]
    if included in GENERATED or STANDARD.match(included):
        return True
    if ours := OURS.match(included):
        target = room_of(ours[1])
        return target == room or target in rooms
    if is_platform_source and PLATFORM.match(included):
        return True
    return any(re.fullmatch(f"<{other}>", included) for other in others)


def faults_of(path, name, room):
    is_platform_source = room in PLATFORM_ROOMS and PLATFORM_SOURCE.search(path.stem) is not None
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if (found := INCLUDE.match(line)) and not is_allowed(room, found[1], is_platform_source):
            yield f"{name}:{number}: {room} does not include {found[1]}"


def sources(root):
    folders = {room.split("/")[0] for room in ROOMS}
    for folder in sorted(folders):
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".h", ".cpp", ".def", ".inc"):
                yield path


def main():
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT
    found, count = [], 0
    for path in sources(root):
        count += 1
        name = path.relative_to(root)
        found += faults_of(path, name, room_of(name.parent.as_posix()))
    for fault in found:
        print(fault)
    print(f"{count} files, {len(found)} faults")
    return 1 if found or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
