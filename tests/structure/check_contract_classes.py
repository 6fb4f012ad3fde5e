#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that the facts about ODX, with what tests/memory/ContractClasses.def adds, have a row for every class that the
contract declares, and for no other."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
DECLARED = re.compile(r"^class DIAGKIT_EXPORT (\w+)", re.MULTILINE)
ROW = re.compile(
    r"^ODX_(?:BASE|ELEMENT|CLASS|LINK|LINK_WITH|LINK_IN_LAYER|LINK_IN_DIAG_COMM|PARENT_REF|UNTYPED_PARENT_REF|EXCLUSION)"
    r"\((\w+)",
    re.MULTILINE,
)
ADDED = re.compile(r"^(?:CONCRETE|BASE)\((\w+)", re.MULTILINE)
NOT_LISTED = re.compile(r"Visitor$|Resolver$")


def main():
    declared = set()
    for header in (ROOT / "diagkit/model").glob("*.h"):
        declared.update(DECLARED.findall(header.read_text(encoding="utf-8")))
    declared = {name for name in declared if not NOT_LISTED.search(name)}
    listed = set(ADDED.findall((ROOT / "tests/memory/ContractClasses.def").read_text(encoding="utf-8")))
    for facts in (ROOT / "diagkit/model/facts").glob("*.def"):
        listed.update("V" + name for name in ROW.findall(facts.read_text(encoding="utf-8")))
    for name in sorted(declared - listed):
        print(f"no row for {name}")
    for name in sorted(listed - declared):
        print(f"a row for {name}, which the contract does not declare")
    print(f"{len(declared)} classes, {len(listed)} rows")
    return 0 if declared and declared == listed else 1


if __name__ == "__main__":
    sys.exit(main())
