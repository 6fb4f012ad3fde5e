#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that each diagnostic of reader/Codes.def and check/Codes.def is reported somewhere in its folder, and that the
entries of docs/diagnostics.md are these, each once and in alphabetical order."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
ROW = re.compile(r'^DIAGNOSTIC\((\w+),\s*"([a-z-]+)"', re.MULTILINE)
ENTRY = re.compile(r"^### `([a-z-]+)`$", re.MULTILINE)


def main():
    codes = []
    faults = []
    for folder in (ROOT / "diagkit/reader", ROOT / "diagkit/check"):
        rows = ROW.findall((folder / "Codes.def").read_text(encoding="utf-8"))
        sources = "".join(path.read_text(encoding="utf-8") for path in folder.glob("*.cpp"))
        reported = set(re.findall(r"\bNCode::(\w+)", sources))
        faults += [f"{folder.name}/ does not report {name}" for name, _ in rows if name not in reported]
        codes += [code for _, code in rows]
    entries = ENTRY.findall((ROOT / "docs/diagnostics.md").read_text(encoding="utf-8"))
    faults += [f"docs/diagnostics.md has no entry for {code}" for code in sorted(set(codes) - set(entries))]
    if not faults and entries != sorted(codes):
        faults.append("docs/diagnostics.md has other entries than the codes in alphabetical order")
    for fault in faults:
        print(fault)
    print(f"{len(codes)} codes, {len(faults)} faults")
    return 1 if faults or not codes else 0


if __name__ == "__main__":
    sys.exit(main())
