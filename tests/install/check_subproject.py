#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Build and run a program of a project that takes the sources of diagkit with it.

    check_subproject.py FOLDER CMAKE_ARGUMENT...
"""

import pathlib
import shutil
import sys

from project import HERE, ROOT, empty, expect, run, run_program, use_libraries_of, version


def main():
    folder = empty(pathlib.Path(sys.argv[1]))
    with_reader = empty(folder.with_name("subproject_with_reader"))
    launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
    # Only whether it can be built is the question, so nothing is spent on fast code.
    configure = [
        "cmake",
        *sys.argv[2:],
        *launcher,
        "-DCMAKE_CXX_FLAGS=-O0",
        f"-DDIAGKIT_SOURCE={ROOT}",
        f"-DFETCHCONTENT_SOURCE_DIR_DIAGKIT={ROOT}",
        "-DFETCHCONTENT_FULLY_DISCONNECTED=ON",
        f"-DSTRANGER={HERE / 'stranger' / 'toolkit.cpp'}",
        *("-S", HERE / "subproject"),
    ]
    run(*configure, "-B", with_reader, "-DDIAGKIT_BUILD_READER=ON")
    run(*configure, "-B", folder)
    run("cmake", "--build", folder, "--target", "stranger")
    use_libraries_of(*{path.parent for path in folder.rglob("*diagkit.*") if path.suffix in (".so", ".dll")})
    answer = run_program(folder / "stranger")
    expect(answer == f"{version()} PHYSICAL\n", f"the program prints {answer!r}")

    tests = run("ctest", "--test-dir", folder, "-N")
    expect("Total Tests: 0" in tests, f"diagkit brings tests with it:\n{tests}")
    prefix = folder / "prefix"
    run("cmake", "--install", folder, "--prefix", prefix)
    expect(not prefix.exists(), "diagkit installs itself along with others")


if __name__ == "__main__":
    main()
