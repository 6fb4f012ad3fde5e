#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Build and run programs with only the compiler and the flags of pkg-config for the installed diagkit.

    check_pkg_config.py PREFIX FOLDER COMPILER
"""

import os
import pathlib
import sys

from project import (
    EMULATOR,
    EXE,
    HERE,
    ROOT,
    WARNINGS,
    empty,
    examples,
    expect,
    own_model,
    run,
    run_examples,
    run_readme_program,
    run_stranger_programs,
    use_libraries_of,
    version,
    write_readme_program,
)

# Libraries of MinGW required by its programs.
RUNTIME = ["libstdc++-6.dll", "libgcc_s_seh-1.dll", "libwinpthread-1.dll"]


def main():
    prefix, folder, compiler = pathlib.Path(sys.argv[1]), empty(pathlib.Path(sys.argv[2])), sys.argv[3]
    libraries = next(prefix.rglob("libdiagkit_memory.a")).parent
    os.environ["PKG_CONFIG_PATH"] = str(libraries / "pkgconfig")
    linking = []
    if EMULATOR:
        os.environ["PKG_CONFIG_LIBDIR"] = str(ROOT / "build/windows-libraries/prefix/lib/pkgconfig")
        linking = ["--static"]  # expat and libzip are archives there
        runtime = [run(compiler, f"-print-file-name={name}").strip() for name in RUNTIME]
        use_libraries_of(prefix / "bin", *(pathlib.Path(file).parent for file in runtime))
    else:
        use_libraries_of(libraries)

    def build(program, package, *sources):
        flags = run("pkg-config", "--cflags", "--libs", *linking, package).split()
        run(compiler, "-std=c++17", *WARNINGS, *sources, "-o", folder / f"{program}{EXE}", *flags)

    packages = ["diagkit", "diagkit-memory", "diagkit-conformance", "diagkit-reader", "diagkit-check", "diagkit-query"]
    for package in packages:
        expect(run("pkg-config", "--modversion", package) == f"{version()}\n", f"{package} has another version")
        run("pkg-config", "--validate", package)
    # The toolkit needs nothing but itself.
    expect(run("pkg-config", "--libs-only-l", "--static", "diagkit").split() == ["-ldiagkit"], "diagkit needs more")

    build("toolkit", "diagkit", HERE / "stranger" / "toolkit.cpp")
    build("by_hand", "diagkit-memory", HERE / "stranger" / "by_hand.cpp")
    build("checked", "diagkit-check", HERE / "stranger" / "checked.cpp")
    build("app", "diagkit-reader", write_readme_program(folder))
    build("own_model", "diagkit-conformance", *own_model())
    for program, source in examples().items():
        build(program, "diagkit-query", source)
    run_stranger_programs(folder)
    run_readme_program(folder / "app")
    run_examples(folder, [*examples(), "own_model"])


if __name__ == "__main__":
    main()
