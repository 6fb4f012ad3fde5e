#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Run every command of README.md, in a copy of this tree that uses the existing build.

    check_readme.py BUILD_FOLDER FOLDER

The blocks of C++ and CMake are tested by check_find_package.py.
"""

import os
import pathlib
import re
import shutil
import sys

from project import EMULATOR, ROOT, SAMPLE, empty, expect, run, write_preparation

# Placeholders in the commands for the user's data, and data of the sample for them.
PLACEHOLDERS = {"FILE...": str(SAMPLE), "NAME": "WiperMode", "LAYER": "FrontWiper", "SERVICE": "MoveWiper", "TEXT": "Wiper",
                "OLD": str(SAMPLE), "NEW": str(SAMPLE)}

# These run this test, or take long; check_packages.py runs the latter.
ELSEWHERE = {"./test", "scripts/package"}

# For a command, what its output must contain.
ANSWERS = {
    "./run": ["FrontWiperRainLight", "SwitchHeadlamps"],
    "./run info": ["WiperFlash.odx-f", "DIAG-SERVICE"],
    "./run layers": ["BodyElectronics"],
    "./run graph": ["digraph", "FrontWiperRainLight"],
    "./run view diag-comms": ["CalibrateParkPosition", "SessionLibrary"],
    "./run resolve dop": ["WiperMode"],
    "./run explain dop": ["WiperMode"],
    "./run show": ["0x2F300103"],
    "./run traverse": ["ReadWiperStatus"],
    "./run oem": ["VDaimlerHeuristic", "decides"],
    "./run enums Addressing": ["FUNCTIONAL-OR-PHYSICAL"],
    "./run check": ["0 errors"],
    "./run uses --unused": ["0 in all"],
    "./run diff": ["No differences"],
    "./run --help": ["traverse"],
    "cmake --install": ["bin/diagkit"],
}


def commands():
    """Lines of indented blocks that are commands, and `./run --help` from the text."""
    text = (ROOT / "README.md").read_text(encoding="utf-8")
    lines = re.findall(r"^    ((?:\./|scripts/|cmake ).*?)(?:\s+#.*)?$", text, re.MULTILINE)
    return lines + re.findall(r"`(\./run [^`]*)`", text)


def make_windows_build(release, build):
    """Provides the program for Windows, and its installation, where the build of this machine would be."""
    program = release / "cli" / "diagkit"
    program.parent.mkdir(parents=True)
    program.write_text(f'#!/bin/sh\nexec {EMULATOR[0]} {build}/bin/diagkit.exe "$@"\n')
    program.chmod(0o755)
    (release / "cmake_install.cmake").symlink_to(build / "cmake_install.cmake")


def make_tree(folder, build):
    (folder / "scripts").mkdir()
    shutil.copy(ROOT / "run", folder)
    write_preparation(folder / "scripts")
    release = folder / "build" / "release"
    if EMULATOR:
        make_windows_build(release, build)
    else:
        release.parent.mkdir()
        release.symlink_to(build)
    (folder / "samples").symlink_to(ROOT / "samples")


def check(command, folder):
    for placeholder, value in PLACEHOLDERS.items():
        command = re.sub(rf"\b{re.escape(placeholder)}(?!\w)", value, command)
    left = re.search(r"(?<!-)\b[A-Z]{3,}\b(?!\w)", re.sub(re.escape(str(SAMPLE)), "", command))
    expect(not left, f"'{command}': what stands for {left and left[0]}?")
    answer = run("bash", "-c", command, cwd=folder, env=os.environ | {"HOME": str(folder)})
    fitting = [start for start in ANSWERS if command == start or command.startswith(start + " ")]
    expect(fitting, f"'{command}': what must it answer?")
    for word in ANSWERS[max(fitting, key=len)]:
        expect(word in answer, f"'{command}' says nothing of {word}:\n{answer}")


def main():
    build, folder = pathlib.Path(sys.argv[1]), empty(pathlib.Path(sys.argv[2]))
    make_tree(folder, build)
    found = commands()
    expect({"./run", "./test"} <= set(found) and len(found) > 10, f"the commands of README.md are {found}")
    for command in found:
        if command in ELSEWHERE:
            expect(os.access(ROOT / command, os.X_OK), f"{command} is no program")
        else:
            check(command, folder)
    lines = len((ROOT / "README.md").read_text(encoding="utf-8").splitlines())
    expect(lines <= 100, f"README.md has {lines} lines: two screens are enough")


if __name__ == "__main__":
    main()
