#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that the one header for a library includes all public headers of the library, and nothing else.

    check_umbrellas.py LIST

LIST holds the paths of all public headers, one a line.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
INCLUDE = re.compile(r"^#include <([^>]+)>$", re.MULTILINE)

# The header of each library, and the folders whose public headers are the library's.
FOLDERS = {
    "diagkit/Model.h": ["diagkit/model"],
    "diagkit/Toolkit.h": ["diagkit/model", "diagkit/logging", "diagkit/util", "diagkit/tools", "diagkit/tools/oem"],
    "diagkit/Memory.h": ["diagkit/memory"],
    "diagkit/Reader.h": ["diagkit/reader"],
    "diagkit/Check.h": ["diagkit/check"],
    "diagkit/Query.h": ["diagkit/query"],
    "diagkit/Conformance.h": ["diagkit/conformance"],
}


def included_by(header):
    """What it includes, with what another header for a library includes in its place."""
    for included in INCLUDE.findall((ROOT / header).read_text(encoding="utf-8")):
        if included in FOLDERS:
            yield from included_by(included)
        else:
            yield included


def main():
    public = {line for line in pathlib.Path(sys.argv[1]).read_text(encoding="utf-8").split() if line.endswith(".h")}
    faults, known = [], set(FOLDERS)
    for header, folders in FOLDERS.items():
        expected = {path for path in public if path.rpartition("/")[0] in folders}
        included = list(included_by(header))
        known |= expected
        faults += [f"{header} does not include {path}" for path in sorted(expected - set(included))]
        faults += [f"{header} includes {path}" for path in sorted(set(included) - expected)]
        faults += [f"{header} includes {path} twice" for path in sorted(set(included)) if included.count(path) > 1]
        if not expected:
            faults.append(f"{header} is of no public header")
    faults += [f"{path} is a public header of no library" for path in sorted(public - known)]
    faults += [f"{header} is not public" for header in sorted(set(FOLDERS) - public)]
    for fault in faults:
        print(fault)
    print(f"{len(FOLDERS)} headers of libraries, {len(public)} public headers, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
