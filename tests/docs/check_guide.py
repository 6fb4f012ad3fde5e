#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check the guide: every call it shows and its output, every piece of C++ and of ODX against the example or sample
from which it is taken, every link; and that it leaves out no command, view or public operation.

    check_guide.py FOLDER [--emulator EMULATOR] FOLDER_OF_PROGRAMS...
"""

import os
import pathlib
import re
import subprocess
import sys

from guide import FENCE, LINK, blocks, calls, difference, is_extract, is_shown, languages

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "install"))
from project import empty, expect, run  # noqa: E402

GUIDE = ROOT / "docs" / "guide"
# They are built and run, or checked, elsewhere.
SOURCES = {
    "cpp": ["examples/*.cpp", "examples/own_model/*.h", "examples/own_model/*.cpp"],
    "text": ["examples/own_model/*.table"],
    "xml": ["samples/*.odx-*"],
}
LINES = 140  # of text: a page is two screens, those of models and of all commands three


def texts(*patterns):
    found = [path.read_text(encoding="utf-8") for pattern in patterns for path in sorted(ROOT.glob(pattern))]
    expect(found, f"nothing is {patterns}")
    return found


def make_tree(folder):
    for name in ("samples", "tests"):
        (folder / name).symlink_to(ROOT / name)


def make_commands(folder, emulator, folders):
    """Programs for another platform get a command each, by their name without the suffix."""
    commands = folder / "commands"
    commands.mkdir()
    for program in [path for name in folders for path in pathlib.Path(name).glob("*.exe")]:
        command = commands / program.stem
        command.write_text(f'#!/bin/sh\nexec {emulator} {program} "$@"\n', encoding="utf-8")
        command.chmod(0o755)
    return commands


def check_calls(page, text, folder, environment):
    count = 0
    for block in blocks(text, "console"):
        for command, shown in calls(block):
            done = subprocess.run(["bash", "-c", command], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8")
            actual = [line.rstrip() for line in done.stdout.splitlines()]
            expect(is_shown(shown, actual), f"{page}: '{command}' answers\n{difference(shown, actual)}")
            count += 1
    return count


def check_extracts(page, text):
    unknown = languages(text) - {"console", *SOURCES}
    expect(not unknown, f"{page}: nobody proves the blocks of {unknown}")
    for language, patterns in SOURCES.items():
        sources = texts(*patterns)
        for block in blocks(text, language):
            expect(is_extract(block, sources), f"{page}: this stands in no example or sample:\n{block}")


def check_links(page, text, path):
    for target in LINK.findall(text):
        expect("://" in target or (path.parent / target).exists(), f"{page}: {target} is not there")
    rooms = "|".join(sorted(room.name for room in ROOT.iterdir() if room.is_dir() and room.name != "build"))
    for target in re.findall(rf"`((?:{rooms})/[\w./-]+)`", text):
        expect((ROOT / target).exists(), f"{page}: {target} is not there")


def check_is_complete(environment):
    index = (GUIDE / "README.md").read_text(encoding="utf-8")
    for path in GUIDE.glob("*.md"):
        expect(path.name == "README.md" or f"({path.name})" in index, f"the guide's index says nothing of {path.name}")

    recipes = (GUIDE / "command-line.md").read_text(encoding="utf-8")
    help_text = run("diagkit", "--help", env=environment)
    commands = re.findall(r"^  (\w+) {2,}", help_text.split("Commands:")[1], re.MULTILINE)
    expect(len(commands) >= 8, f"the program's commands are {commands}")
    for command in commands:
        expect(f"\n## {command}\n" in recipes and f"$ diagkit {command} " in recipes, f"no recipe for {command}")

    views = (GUIDE / "views.md").read_text(encoding="utf-8")
    headers = sorted({*ROOT.glob("diagkit/tools/*View.h"), *ROOT.glob("diagkit/tools/OpBuild*.h")})
    expect(len(headers) >= 16, f"the headers of views are {headers}")
    for path in headers:
        name = f"V{path.stem}"
        is_base = name in ("VListView", "VInheritedView")
        expect(f"`{name}`" in views or is_base, f"views.md says nothing of {name}")


def main():
    folder = empty(pathlib.Path(sys.argv[1]))
    make_tree(folder)
    programs = sys.argv[2:]
    if programs[0] == "--emulator":
        programs = [str(make_commands(folder, programs[1], programs[2:]))]
    path = os.pathsep.join([*programs, os.environ["PATH"]])
    environment = os.environ | {"PATH": path, "LC_ALL": "C.UTF-8", "HOME": str(folder)}
    count = 0
    for page in sorted(GUIDE.glob("*.md")):
        text = page.read_text(encoding="utf-8")
        expect(len(FENCE.sub("", text).splitlines()) <= LINES, f"{page.name} has more than {LINES} lines of text")
        check_extracts(page.name, text)
        check_links(page.name, text, page)
        count += check_calls(page.name, text, folder, environment)
    expect(count >= 20, f"the guide shows {count} calls")
    check_is_complete(environment)
    print(f"{count} calls answer as shown")


if __name__ == "__main__":
    main()
