#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Runs a program over the databases beside this script: run.py PROGRAM..."""

import json
import pathlib
import subprocess
import sys


def holds(expected, answer):
    """Whether an answer has everything expected; additional members of objects do not matter."""
    if isinstance(expected, dict):
        return isinstance(answer, dict) and all(
            name in answer and holds(value, answer[name]) for name, value in expected.items())
    if isinstance(expected, list):
        return isinstance(answer, list) and len(expected) == len(answer) and all(map(holds, expected, answer))
    return expected == answer


failures = 0
for path in sorted(pathlib.Path(__file__).resolve().parent.glob("*.odx-d")):
    for test in json.loads(path.with_suffix(".json").read_text(encoding="utf-8")):
        done = subprocess.run([*sys.argv[1:], *test["call"], str(path), "--json", "--quiet"],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, encoding="utf-8", check=False)
        if done.returncode != test["status"] or not holds(test["answer"], json.loads(done.stdout or "null")):
            failures += 1
            print(f"{path.stem}: {' '.join(test['call'])}: status {done.returncode}\n{done.stdout}")
sys.exit(f"{failures} wrong answers" if failures else 0)
