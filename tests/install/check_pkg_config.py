#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Build and run programs with the compiler alone, with what pkg-config says about the installed diagkit.

    check_pkg_config.py PREFIX FOLDER COMPILER
"""

import os
import pathlib
import sys

from project import (
    HERE,
    WARNINGS,
    empty,
    examples,
    expect,
    own_model,
    run,
    run_examples,
    run_readme_program,
    run_stranger_programs,
    version,
    write_readme_program,
)


def main():
    prefix, folder, compiler = pathlib.Path(sys.argv[1]), empty(pathlib.Path(sys.argv[2])), sys.argv[3]
    libraries = next(prefix.rglob("libdiagkit.so")).parent
    os.environ["PKG_CONFIG_PATH"] = str(libraries / "pkgconfig")
    os.environ["LD_LIBRARY_PATH"] = str(libraries)

    def build(program, package, *sources):
        flags = run("pkg-config", "--cflags", "--libs", package).split()
        run(compiler, "-std=c++17", *WARNINGS, *sources, "-o", folder / program, *flags)

    packages = ["diagkit", "diagkit-memory", "diagkit-conformance", "diagkit-reader", "diagkit-check"]
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
    # The flags are the same for all examples, and check_find_package.py builds them all.
    build("collect_elements", "diagkit-reader", examples()["collect_elements"])
    run_stranger_programs(folder)
    run_readme_program(folder / "app")
    run_examples(folder, ["collect_elements", "own_model"])


if __name__ == "__main__":
    main()
