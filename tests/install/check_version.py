#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Compare every place with a version number with the version of the project.

    check_version.py VERSION PROGRAM...
"""

import json
import re
import sys

from project import ROOT, expect, readme_block, run


def main():
    version, program = sys.argv[1], sys.argv[2:]
    for arguments in (["--version"], ["check", "--version"]):
        answer = run(*program, *arguments)
        expect(answer == f"diagkit {version}\n", f"{arguments} gives {answer!r}, the project is {version}")

    sarif = json.loads(run(*program, "check", ROOT / "samples" / "WiperDatabase.pdx", "--format", "sarif"))
    driver = sarif["runs"][0]["tool"]["driver"]
    expect(driver["version"] == version, f"SARIF names version {driver['version']}")

    headings = re.findall(r"^## (.*)$", (ROOT / "CHANGELOG.md").read_text(encoding="utf-8"), re.MULTILINE)
    newest = re.fullmatch(r"(\d+\.\d+\.\d+) \((unreleased|\d{4}-\d\d-\d\d)\)", headings[0])
    expect(newest, f"CHANGELOG.md: '{headings[0]}' is no '1.2.3 (unreleased)' and no '1.2.3 (2000-12-31)'")
    expect(newest[1] == version, f"CHANGELOG.md is about {newest[1]}")

    manifest = json.loads((ROOT / "vcpkg.json").read_text(encoding="utf-8"))
    expect(manifest["version"] == version, f"vcpkg.json is for {manifest['version']}")

    wanted = re.search(r"find_package\(diagkit (\d+\.\d+) REQUIRED\)", readme_block("cmake"))
    expect(wanted and version.startswith(wanted[1] + "."), "README.md looks for another version")


if __name__ == "__main__":
    main()
