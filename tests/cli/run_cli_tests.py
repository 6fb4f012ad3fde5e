#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Runs one case: a call of diagkit and its expected output.

    run_cli_tests.py [--any-line-ends] CASE PROGRAM...

A case is a text file:

    # why this case is here
    $ layers --json doors.odx-d
    exit 0
    --- stdout
    (what standard output must be, byte for byte)
    --- stderr
    (the same for standard error; or, after "--- stderr matches", one regular expression per line)

The call runs in the folder data/. A section that is missing says that the stream must stay empty. With --any-line-ends
the program may end its lines as the platform does.
"""

import difflib
import pathlib
import re
import shlex
import subprocess
import sys

DATA = pathlib.Path(__file__).resolve().parent / "data"


class Case:
    """The contents of a case file."""

    def __init__(self, path):
        self.arguments = None
        self.status = None
        self.sections = {}
        section = None
        for line in path.read_text(encoding="utf-8").splitlines(keepends=True):
            if line.startswith("--- "):
                section = self.sections.setdefault(line[4:].strip(), [])
            elif section is not None:
                section.append(line)
            elif line.startswith("$ "):
                self.arguments = shlex.split(line[2:])
            elif line.startswith("exit "):
                self.status = int(line[5:])
            elif line.strip() and not line.startswith("#"):
                raise SystemExit(f"{path}: cannot read the line: {line}")
        unknown = set(self.sections) - {"stdout", "stderr", "stderr matches"}
        if self.arguments is None or self.status is None or unknown:
            raise SystemExit(f"{path}: needs a call, a status and known sections")


def differences(stream, expected, actual):
    """Complaints about a stream that must be the expected text exactly."""
    if expected == actual:
        return []
    return [f"{stream} differs:"] + list(
        difflib.unified_diff(expected.splitlines(), actual.splitlines(), "expected", "actual", lineterm="")
    )


def mismatches(patterns, actual):
    """Complaints about a stream that must match a regular expression line by line."""
    lines = actual.splitlines()
    patterns = [pattern.rstrip("\n") for pattern in patterns]
    fits = len(lines) == len(patterns) and all(map(re.fullmatch, patterns, lines))
    return [] if fits else ["standard error does not match:", *patterns, "it is:", *lines]


def complaints(case, program, is_any_line_end):
    done = subprocess.run([*program, *case.arguments], cwd=DATA, stdin=subprocess.DEVNULL, capture_output=True)
    stdout, stderr = done.stdout.decode("utf-8"), done.stderr.decode("utf-8")
    if is_any_line_end:
        stdout, stderr = stdout.replace("\r\n", "\n"), stderr.replace("\r\n", "\n")
    found = [] if done.returncode == case.status else [f"exit status {done.returncode} instead of {case.status}"]
    found += differences("standard output", "".join(case.sections.get("stdout", [])), stdout)
    if "stderr matches" in case.sections:
        return found + mismatches(case.sections["stderr matches"], stderr)
    return found + differences("standard error", "".join(case.sections.get("stderr", [])), stderr)


def main():
    words = [word for word in sys.argv[1:] if word != "--any-line-ends"]
    if len(words) < 2:
        raise SystemExit(__doc__)
    program = [str(pathlib.Path(word).resolve()) if pathlib.Path(word).exists() else word for word in words[1:]]
    found = complaints(Case(pathlib.Path(words[0])), program, len(words) < len(sys.argv) - 1)
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
