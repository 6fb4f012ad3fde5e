#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that two builds of diagkit, for different platforms, give the same output, byte for byte.

    compare_programs.py REFERENCE -- PROGRAM...

Both are called for the sample, the databases of the other tests and, where they are present, those next to the project:
each command for all of a database, then those that take a layer for every layer; for the sample also the commands that
take something else.
"""

import concurrent.futures
import difflib
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
OF_DATABASE = (
    ["info"],
    ["info", "--json"],
    ["layers"],
    ["layers", "--json"],
    ["oem", "--json"],
    ["check", "--json"],
    ["check", "--format", "sarif"],
)
OF_LAYER = (
    ["view", "diag-comms", "--json"],
    ["view", "diag-variables", "--json"],
    ["view", "global-neg-responses", "--json"],
    ["view", "dops", "--json"],
    ["traverse", "--json", "--quiet", "--max-visits", "100000"],
)

SAMPLE = "samples/WiperDatabase.pdx"
OF_SAMPLE = (
    ["diff", "--json", "--layer", "FrontWiper", "--to-layer", "FrontWiperRainLight"],
    ["view", "protocols", "--layer", "FrontWiper"],
    ["view", "protocols", "--container", "BodyProtocols"],
    ["view", "sessions", "--flash", "WiperFlash"],
    ["view", "idents", "--flash", "WiperFlash"],
    ["resolve", "dop", "WiperMode", "--layer", "FrontWiperBasic"],
    ["resolve", "dop", "NoSuchName", "--layer", "FrontWiper"],
    ["resolve", "out-param", "MotorCurrent", "--layer", "FrontWiper", "--diag-comm", "ReadWiperStatus"],
    ["resolve", "session", "CalibrationUpdate", "--flash", "WiperFlash"],
)


def databases():
    """Lists of files, each of which makes one database."""
    names = [SAMPLE]
    for folder, suffix in (("tests/tools/oem/databases", "*.odx-*"), ("tests/cli/data", "*")):
        names += [path.relative_to(ROOT).as_posix() for path in sorted((ROOT / folder).glob(suffix))]
    shared = ROOT.parent / "shared" / "samples"
    for pattern in ("*.pdx", "*.odx*"):
        names += ["../shared/samples/" + path.name for path in sorted(shared.glob(pattern))]
    sets = [[name] for name in names]
    for folder in (ROOT / "samples", shared / "synthetic"):
        documents = sorted(path for path in folder.glob("*.odx-*"))
        if documents:
            sets.append([os.path.relpath(path, ROOT).replace(os.sep, "/") for path in documents])
    return sets


def answer(program, call):
    done = subprocess.run([*program, *call], cwd=ROOT, stdin=subprocess.DEVNULL, capture_output=True, check=False)
    return done.returncode, done.stdout, done.stderr


def second_chance(program, call, expected, actual):
    """Once in thousands of calls Wine itself fails, at the start or at the end of the program."""
    return actual if actual == expected else answer(program, call)


def calls_about(files, reference):
    calls = [[*command, *files] for command in OF_DATABASE]
    status, layers, _ = answer(reference, ["layers", "--json", "--quiet", *files])
    if status == 0:
        names = [f'{layer["container"]}/{layer["short_name"]}' for layer in json.loads(layers)["layers"]]
        calls += [[*command, *files, "--layer", name] for name in names for command in OF_LAYER]
    return calls


def calls_about_sample(reference):
    """In addition: FLASHs, containers, names, the parameters of every service and job, and commands without files."""
    view = json.loads(answer(reference, ["view", "diag-comms", "--json", SAMPLE, "--layer", "FrontWiper"])[1])
    names = [entry["short_name"] for entry in view["entries"]]
    params = [["view", kind, "--layer", "FrontWiper", "--diag-comm", name]
              for name in names for kind in ("in-params", "out-params")]
    return [["enums", "--json"]] + [[*call, "--json", SAMPLE] for call in [*OF_SAMPLE, *params]]


def difference(call, expected, actual):
    text = [f"$ diagkit {' '.join(call)}"]
    if expected[0] != actual[0]:
        text.append(f"exit status {actual[0]} instead of {expected[0]}")
    for one, other in zip(expected[1:], actual[1:]):
        lines = [bytes.decode("utf-8", "backslashreplace").splitlines(keepends=True) for bytes in (one, other)]
        text += [repr(line) for line in list(difflib.unified_diff(*lines, "reference", "program", n=0))[:20]]
    return "\n".join(text)


def main(words):
    if "--" not in words[1:-1]:
        print(__doc__)
        return 2
    end = words.index("--")
    reference, program = words[:end], words[end + 1:]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        calls = [call for files in databases() for call in calls_about(files, reference)]
        calls += calls_about_sample(reference)
        answers = zip(calls, pool.map(lambda call: answer(reference, call), calls),
                      pool.map(lambda call: answer(program, call), calls))
        answers = [(*row[:2], second_chance(program, *row)) for row in answers]
    found = [difference(*row) for row in answers if row[1] != row[2]]
    print("\n".join(found))
    print(f"{len(calls)} calls, {len(found)} answered differently")
    return 1 if found or not calls else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
