# SPDX-License-Identifier: Apache-2.0
"""Common to the tests of the program: the program given on their command line, its calls, the databases."""

import os
import pathlib
import subprocess
import sys
import unittest

DATA = pathlib.Path(__file__).resolve().parent / "data"
SAMPLE = pathlib.Path(__file__).resolve().parents[2] / "samples" / "WiperDatabase.pdx"
IS_POSIX = os.name == "posix"
PROGRAM = []  # the words of its call, set by `main`


def is_for_windows():
    return PROGRAM[-1].endswith(".exe")


def run(*arguments, **options):
    """The call with all its output, as text."""
    options.setdefault("stdout", subprocess.PIPE)
    return subprocess.run(
        [*PROGRAM, *map(str, arguments)],
        cwd=DATA,
        stdin=subprocess.DEVNULL,
        stderr=subprocess.PIPE,
        encoding="utf-8",
        **options,
    )


def main(usage):
    """Runs the tests of the script with the program of its command line."""
    if len(sys.argv) < 2:
        raise SystemExit(usage)
    PROGRAM[:] = [str(pathlib.Path(word).resolve()) if pathlib.Path(word).exists() else word for word in sys.argv[1:]]
    unittest.main(module="__main__", argv=sys.argv[:1], verbosity=2)
