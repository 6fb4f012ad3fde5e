#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Hold the tables of conformance/ against the contract: Parts.def has a row for every operation that hands something
out, Links.def for every link, Kinds.cpp for every class that elements are of; every check has a test of its name, and
its place in docs/guide/own-model.md."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
CLASS = re.compile(r"^class (?:DIAGKIT_EXPORT )?(\w+)[^;{]*\{(.*?)^\};", re.MULTILINE | re.DOTALL)
OPERATION = re.compile(r"virtual \w+(?: const\*|&) (?:Get)?(\w+)\(\)")
NO_ELEMENTS = re.compile(r"Visitor$|^VDiagLayerCollection$|Resolver$|^ILink$|^VSnref$|^VOdxLink$|^VProcessingInstruction$")


def text(name):
    return (ROOT / name).read_text(encoding="utf-8")


def promised():
    """The operations of each class of the contract that has some."""
    found = {}
    for header in sorted((ROOT / "diagkit/model").glob("*.h")):
        for name, body in CLASS.findall(header.read_text(encoding="utf-8")):
            if not NO_ELEMENTS.search(name) and (operations := set(OPERATION.findall(body))):
                found[name] = operations
    return found


def tabled():
    """What Parts.def and Links.def do for each class."""
    found = {"VLink": {"Link"}}
    for name, rows in re.findall(r"^PARTS\((\w+)\)\n(.*?)^END", text("diagkit/conformance/Parts.def"), re.M | re.S):
        found.setdefault(name, set()).update(filter(None, re.findall(r"^ +\w+\((\w*)\)", rows, re.M)))
        if "SCALES_OR_CHILD" in rows:
            found[name].add("CompuScalesProgCodeChoice")
    for name, target in re.findall(r"^LINK(?:_IN_LAYER)?\((V\w+), +(\w+)\)", text("diagkit/conformance/Links.def"), re.M):
        found.setdefault(name, set()).add(target)
    found.setdefault("VOutParamIfLink", set()).add("OutParamIf")
    return found


def faults():
    expected, actual = promised(), tabled()
    for name in sorted(set(expected) | set(actual)):
        unlike = expected.get(name, set()) ^ actual.get(name, set())
        if unlike:
            yield f"{name}: {sorted(unlike)} is in the contract or in the tables, not in both"

    concrete = set(re.findall(r"^CONCRETE\((\w+)", text("tests/memory/ContractClasses.def"), re.M))
    concrete = {name for name in concrete if not NO_ELEMENTS.search(name)}
    kinds = set(re.findall(r"KIND\((V\w+),", text("diagkit/conformance/Kinds.cpp"))) - {"VDiagCodedType"}
    for name in sorted(concrete ^ kinds):
        yield f"{name}: Kinds.cpp and the classes that elements are of disagree"

    tests = "".join(path.read_text(encoding="utf-8") for path in (ROOT / "tests/conformance").glob("*Test.cpp"))
    guide = text("docs/guide/own-model.md")
    checks = re.findall(r'^CHECK\((\w+), +"([\w-]+)"', text("diagkit/conformance/Checks.def"), re.M)
    for identifier, name in checks:
        if not re.search(rf"TEST(?:_F)?\(\w+, {identifier}\)", tests):
            yield f"{name}: no test is called {identifier}"
        if name not in guide:
            yield f"{name}: the guide says nothing of it"
    if not expected or not checks or not concrete:
        yield "nothing was compared"


def main():
    found = list(faults())
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
