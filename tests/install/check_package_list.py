#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""There is one list of the packages that a machine needs: scripts/packages.txt. All users of the list read that file,
and the manifest of vcpkg requires the same libraries."""

import json
import re

from project import ROOT, expect

LIST = "scripts/packages.txt"

# The development package of each library that CMake looks for, and its name for vcpkg.
LIBRARIES = {
    "EXPAT": ("libexpat1-dev", "expat"),
    "libzip": ("libzip-dev", "libzip"),
    "CLI11": ("libcli11-dev", "cli11"),
    "fmt": ("libfmt-dev", "fmt"),
    "nlohmann_json": ("nlohmann-json3-dev", "nlohmann-json"),
    "GTest": ("libgtest-dev", "gtest"),
    "benchmark": ("libbenchmark-dev", "benchmark"),
}
PROGRAMS = {"PkgConfig": "pkg-config", "Python3": "python3"}
PORTS_OF_PROGRAMS = {"pkgconf"}  # missing on Windows; Python has its own installer
OF_THE_COMPILER = {"Threads"}


def text(name):
    return (ROOT / name).read_text(encoding="utf-8")


def searched_for():
    """The libraries that the tree's CMake files look for."""
    found = set()
    for path in [ROOT / "CMakeLists.txt", *ROOT.glob("*/CMakeLists.txt"), *ROOT.glob("*/*/CMakeLists.txt")]:
        code = path.read_text(encoding="utf-8")
        found.update(re.findall(r"find_package\((\w+)", code))
        found.update(re.findall(r"pkg_check_modules\(\w+ .*?(\w+)\)", code))
    return found


def main():
    packages = text(LIST).split()
    expect(packages and text(LIST) == "\n".join(packages) + "\n", f"{LIST} is not one package a line")
    expect(len(set(packages)) == len(packages), f"{LIST} names a package twice")

    expect(LIST in text("scripts/prepare"), "scripts/prepare installs something else")
    dockerfile = text(".devcontainer/Dockerfile")
    expect(dockerfile.count(LIST) == 1 and "FROM debian:12\n" in dockerfile, "the container is made of something else")
    own = re.findall(r"apt-get install -y -qq --no-install-recommends ([^<&]*)&&", dockerfile)
    expect(len(own) == 1, "the container's own packages are not found")
    expect(not set(own[0].split(" ")) & set(packages), "the container names packages of the list again")
    expect(json.loads(text(".devcontainer/devcontainer.json"))["build"]["context"] == "..", "the list is not in reach")

    manifest = json.loads(text("vcpkg.json"))
    ports = [port if isinstance(port, str) else port["name"] for port in manifest["dependencies"]]
    for feature in ("tests", "benchmarks"):
        ports += manifest["features"][feature]["dependencies"]
    libraries = searched_for() - set(PROGRAMS) - OF_THE_COMPILER
    expect(libraries == set(LIBRARIES), f"CMake looks for {libraries}, this test knows {set(LIBRARIES)}")
    needed = {package for package, _ in LIBRARIES.values()} | set(PROGRAMS.values())
    expect(needed <= set(packages), f"{LIST} lacks {needed - set(packages)}")
    wanted = PORTS_OF_PROGRAMS | {port for _, port in LIBRARIES.values()}
    expect(sorted(ports) == sorted(wanted), f"vcpkg.json asks for {ports}")


if __name__ == "__main__":
    main()
