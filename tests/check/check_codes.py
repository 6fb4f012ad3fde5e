#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that every code that reader/ and check/ report has a row in check/Codes.cpp, that every row is reported
somewhere, and that docs/diagnostics.md has an entry for each."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
ROW = re.compile(r'^\s*\{"([a-z0-9-]+)",\s*(?:Error|Warning),', re.MULTILINE)
# Codes have a hyphen, but for these.
CODE = re.compile(r'"([a-z]+(?:-[a-z]+)+|empty|encoding|unreadable)"')
ENTRY = re.compile(r"^### `([a-z0-9-]+)`$", re.MULTILINE)
NOT_CODES = {"windows-1252"}


def text_of(*names):
    return "".join(pathlib.Path(name).read_text(encoding="utf-8") for name in names)


def main():
    table = ROW.findall(text_of(ROOT / "diagkit/check/Codes.cpp"))
    sources = [
        path for room in ("reader", "check") for path in sorted((ROOT / "diagkit" / room).glob("*.cpp")) if path.name != "Codes.cpp"
    ]
    reported = set(CODE.findall(text_of(*sources))) - NOT_CODES
    described = ENTRY.findall(text_of(ROOT / "docs/diagnostics.md"))
    faults = [f"no row in check/Codes.cpp: {code}" for code in sorted(reported - set(table))]
    faults += [f"a row that nothing reports: {code}" for code in sorted(set(table) - reported)]
    faults += [f"no entry in docs/diagnostics.md: {code}" for code in sorted(set(table) - set(described))]
    faults += [f"an entry in docs/diagnostics.md of no code: {code}" for code in sorted(set(described) - set(table))]
    faults += [] if table == sorted(set(table)) else ["the rows of check/Codes.cpp are not in alphabetical order"]
    faults += [] if described == sorted(described) else ["the entries of docs/diagnostics.md are not in alphabetical order"]
    for fault in faults:
        print(fault)
    print(f"{len(table)} codes, {len(faults)} faults")
    return 1 if faults or not table else 0


if __name__ == "__main__":
    sys.exit(main())
