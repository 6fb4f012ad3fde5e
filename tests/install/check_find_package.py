#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Build and run programs in a project that finds the installed diagkit with CMake.

    check_find_package.py PREFIX FOLDER CMAKE_ARGUMENT...
"""

import pathlib
import sys

from project import (
    EMULATOR,
    HERE,
    ROOT,
    empty,
    examples,
    own_model,
    readme_block,
    run,
    run_examples,
    run_readme_program,
    run_stranger_programs,
    use_libraries_of,
    version,
    write_readme_program,
)


def finding(prefix, folder):
    """The arguments that give CMake the prefix. A toolchain file lists all places with files for another system."""
    if not EMULATOR:
        return f"-DCMAKE_PREFIX_PATH={prefix}"
    toolchain = folder / "toolchain.cmake"
    own = ROOT / "cmake" / "MinGW.cmake"
    toolchain.write_text(f"include({own})\nlist(APPEND CMAKE_FIND_ROOT_PATH {prefix})\n", encoding="utf-8")
    use_libraries_of(f"{prefix}/bin")
    return f"-DCMAKE_TOOLCHAIN_FILE={toolchain}"


def main():
    prefix, folder = sys.argv[1], empty(pathlib.Path(sys.argv[2]))
    readme_cmake = folder / "readme.cmake"
    readme_cmake.write_text(readme_block("cmake"), encoding="utf-8")
    run(
        "cmake",
        *sys.argv[3:],
        finding(prefix, folder),
        f"-DWANTED_VERSION={version()}",
        f"-DEXAMPLES={';'.join(map(str, examples().values()))}",
        f"-DOWN_MODEL={';'.join(map(str, own_model()))}",
        f"-DREADME_PROGRAM={write_readme_program(folder)}",
        f"-DREADME_CMAKE={readme_cmake}",
        *("-S", HERE / "stranger", "-B", folder),
    )
    run("cmake", "--build", folder)
    run_stranger_programs(folder)
    run_readme_program(folder / "app")
    run_examples(folder, [*examples(), "own_model"])


if __name__ == "__main__":
    main()
