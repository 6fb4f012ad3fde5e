#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Print the line coverage of each folder from the JSON of gcovr, and the uncovered lines of the toolkit.

    coverage_by_folder.py JSON

Exit status 1 when a folder does not reach its goal.
"""

import json
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
GOALS = {"diagkit/tools": 100, "diagkit/util": 100, "diagkit/memory": 90, "diagkit/reader": 90, "cli": 90}

# Functions that run in death tests, which end before the counters are written.
DEADLY = {"diagkit/util/Assertion.cpp": ["WriteAndAbort"]}


def deadly_lines():
    for file, functions in DEADLY.items():
        name = None
        for number, line in enumerate((ROOT / file).read_text(encoding="utf-8").splitlines(), 1):
            name = next((function for function in functions if line.endswith("{") and f"{function}(" in line), name)
            if name is not None:
                yield file, number
            if line == "}":
                name = None


def main():
    lines, left_out = {}, set(deadly_lines())
    for file in json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))["files"]:
        name = file["file"]
        folder = "/".join(name.split("/")[: 2 if name.startswith("diagkit/") else 1])
        for line in file["lines"]:
            place = (name, line["line_number"])
            if not line.get("gcovr/noncode", False) and place not in left_out:
                runs = lines.setdefault(folder, {})
                runs[place] = runs.get(place, False) or line["count"] > 0

    is_reached = set(GOALS) <= set(lines)
    for folder, runs in sorted(lines.items()):
        percent = 100 * sum(runs.values()) / len(runs)
        goal = GOALS.get(folder)
        is_reached = is_reached and (goal is None or percent >= goal)
        told = "" if goal is None else f", goal {goal} %"
        print(f"{folder:19} {sum(runs.values()):6} of {len(runs):6} lines, {percent:6.2f} %{told}")
    for folder in ("diagkit/tools", "diagkit/util"):
        for (name, number), is_run in sorted(lines.get(folder, {}).items()):
            if not is_run:
                print(f"{name}:{number}: never runs")
    return 0 if is_reached else 1


if __name__ == "__main__":
    sys.exit(main())
