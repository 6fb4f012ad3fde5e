#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Build and run programs of projects that include the sources of diagkit: of one that needs only the toolkit, and the
examples, which also need the reader.

    check_subproject.py FOLDER CMAKE_ARGUMENT...
"""

import pathlib
import shutil
import sys

from project import (
    EMULATOR,
    HERE,
    ROOT,
    empty,
    examples,
    expect,
    own_model,
    run,
    run_examples,
    run_program,
    use_libraries_of,
    version,
)


def use_library_built_in(folder):
    use_libraries_of(*{path.parent for path in folder.rglob("*diagkit.*") if path.suffix in (".so", ".dll")})


def check_examples(configure, folder):
    sources = [
        f"-DEXAMPLES={';'.join(map(str, examples().values()))}",
        f"-DOWN_MODEL={';'.join(map(str, own_model()))}",
    ]
    run(*configure, "-B", folder, "-DWITH_READER=ON", *sources)
    if EMULATOR:
        return  # building the reader once more takes ten minutes there, and CMake does the same for all systems
    names = [*examples(), "own_model"]
    run("cmake", "--build", folder, "--target", *names)
    use_library_built_in(folder)
    run_examples(folder, names)


def main():
    folder = empty(pathlib.Path(sys.argv[1]))
    with_reader = empty(folder.with_name("subproject_with_reader"))
    # ccache does not cache objects that use a precompiled header.
    launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON"]
    # This only tests whether it can be built, so optimisation and reading headers repeatedly are avoided.
    configure = [
        "cmake",
        *sys.argv[2:],
        *(launcher if shutil.which("ccache") else []),
        "-DCMAKE_CXX_FLAGS=-O0",
        "-DDIAGKIT_COMPILE_TOGETHER=ON",
        f"-DDIAGKIT_SOURCE={ROOT}",
        f"-DFETCHCONTENT_SOURCE_DIR_DIAGKIT={ROOT}",
        "-DFETCHCONTENT_FULLY_DISCONNECTED=ON",
        f"-DSTRANGER={HERE / 'stranger' / 'toolkit.cpp'}",
        *("-S", HERE / "subproject"),
    ]
    check_examples(configure, with_reader)
    run(*configure, "-B", folder)
    run("cmake", "--build", folder, "--target", "stranger")
    use_library_built_in(folder)
    answer = run_program(folder / "stranger")
    expect(answer == f"{version()} PHYSICAL\n", f"the program prints {answer!r}")

    tests = run("ctest", "--test-dir", folder, "-N")
    expect("Total Tests: 0" in tests, f"diagkit brings tests with it:\n{tests}")
    prefix = folder / "prefix"
    run("cmake", "--install", folder, "--prefix", prefix)
    expect(not prefix.exists(), "diagkit installs itself along with others")


if __name__ == "__main__":
    main()
