#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Every check of the conformance suite has a test of its name, and its place in docs/guide/own-model.md."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]


def text(name):
    return (ROOT / name).read_text(encoding="utf-8")


def faults():
    tests = "".join(path.read_text(encoding="utf-8") for path in (ROOT / "tests/conformance").glob("*Test.cpp"))
    guide = text("docs/guide/own-model.md")
    checks = re.findall(r'^CHECK\((\w+), +"([\w-]+)"', text("diagkit/conformance/Checks.def"), re.M)
    for identifier, name in checks:
        if not re.search(rf"TEST(?:_F)?\(\w+, {identifier}\)", tests):
            yield f"{name}: no test is called {identifier}"
        if name not in guide:
            yield f"{name}: the guide says nothing of it"
    if not checks:
        yield "nothing was compared"


def main():
    found = list(faults())
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
