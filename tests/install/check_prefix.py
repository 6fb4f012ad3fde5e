#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Install the build into an empty prefix, move that somewhere else, and check its contents.

    check_prefix.py BUILD_FOLDER PREFIX
"""

import os
import pathlib
import re
import shutil
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "structure"))
from check_includes import internals_told  # noqa: E402
from project import EMULATOR, ROOT, SAMPLE, empty, expect, run, run_program, version

INCLUDE = re.compile(r"^\s*#\s*include\s*<(diagkit/[^>]+)>", re.MULTILINE)

# In folders that are not listed below all headers are public except those that the README there calls internal.
FOLDERS = {"", "model", "model/facts", "logging", "util", "tools", "tools/oem", "memory", "conformance", "reader", "check", "query"}
PUBLIC = {
    "": {
        "Check.h",
        "Conformance.h",
        "Export.h",
        "Memory.h",
        "Model.h",
        "Query.h",
        "Reader.h",
        "Toolkit.h",
        "Version.h",
    },
    "logging": {"SharedLogger.h"},
    "util": {"Assertion.h", "CheckedCast.h", "Utf16.h"},
    "tools/oem": {"Manufacturer.h", "OemChecker.h", "OemReport.h"},
    "conformance": {"Conformance.h", "Reference.h"},
    "reader": {"Diagnostic.h", "Folder.h", "Limits.h", "OdxReader.h", "Utf8.h"},
    "check": {"Check.h", "Codes.h", "Cycles.h"},
    "query": {
        "ConstantBytes.h",
        "Content.h",
        "Diff.h",
        "DopValues.h",
        "Explain.h",
        "FilePlace.h",
        "Find.h",
        "InheritanceGraph.h",
        "InheritedKind.h",
        "LayerView.h",
        "MessageLayout.h",
        "Uses.h",
    },
}
FILES = """
    LIB/libdiagkit_check.a LIB/libdiagkit_conformance.a LIB/libdiagkit_memory.a LIB/libdiagkit_query.a
    LIB/libdiagkit_reader.a
    LIB/cmake/diagkit/diagkitConfig.cmake LIB/cmake/diagkit/diagkitConfigVersion.cmake
    LIB/cmake/diagkit/diagkitReaderTargets-release.cmake LIB/cmake/diagkit/diagkitReaderTargets.cmake
    LIB/cmake/diagkit/diagkitTargets-release.cmake LIB/cmake/diagkit/diagkitTargets.cmake
    LIB/pkgconfig/diagkit-check.pc LIB/pkgconfig/diagkit-memory.pc LIB/pkgconfig/diagkit-reader.pc
    LIB/pkgconfig/diagkit-conformance.pc LIB/pkgconfig/diagkit-query.pc LIB/pkgconfig/diagkit.pc
    share/diagkit/conformance/reference.odx-d share/diagkit/conformance/reference.txt
    share/bash-completion/completions/diagkit share/fish/vendor_completions.d/diagkit.fish
    share/man/man1/diagkit.1 share/zsh/site-functions/_diagkit
"""
LINUX_FILES = "bin/diagkit LIB/libdiagkit.so LIB/libdiagkit.so.SO LIB/libdiagkit.so.VERSION"
WINDOWS_FILES = "bin/diagkit.exe bin/diagkit.dll LIB/libdiagkit.dll.a"


def check_files(prefix, build_type):
    """Everything but headers, by name."""
    library = "libdiagkit.dll.a" if EMULATOR else "libdiagkit.so"
    libraries = {str(path.parent.relative_to(prefix)) for path in prefix.rglob(library)}
    expect(len(libraries) == 1, f"{library} is in {libraries}")
    soversion = version().rpartition(".")[0] if version().startswith("0.") else version().partition(".")[0]
    expected = FILES + (WINDOWS_FILES if EMULATOR else LINUX_FILES)
    expected = expected.replace("LIB", libraries.pop()).replace("VERSION", version()).replace("SO", soversion)
    expected = expected.replace("-release", f"-{build_type.lower()}")
    there = {str(path.relative_to(prefix)) for path in prefix.rglob("*") if not path.is_dir()}
    there = {name for name in there if not name.startswith("include/")}
    unlike = there ^ set(expected.split())
    expect(not unlike, f"files that are there and not meant, or the other way: {unlike}")
    if not EMULATOR:
        soname = re.search(r"SONAME\s+(\S+)", run("objdump", "-p", next(prefix.rglob(library))))[1]
        expect(soname == f"libdiagkit.so.{soversion}", f"the soname is {soname}")


def check_headers(include):
    headers = {str(path.relative_to(include)): path for path in include.rglob("*") if path.is_file()}
    by_folder = {}
    for name in headers:
        expect(name.startswith("diagkit/"), f"{name} is not below diagkit/")
        folder, _, header = name[len("diagkit/"):].rpartition("/")
        by_folder.setdefault(folder, set()).add(header)
    expect(set(by_folder) == FOLDERS, f"folders of headers: {set(by_folder)}")
    for folder in FOLDERS:
        expected = PUBLIC.get(folder)
        if expected is None:
            expected = {path.name for path in (ROOT / "diagkit" / folder).iterdir() if path.suffix in (".h", ".def")}
            expected -= internals_told(ROOT / "diagkit" / folder)
        expect(by_folder[folder] == expected, f"headers of {folder}: {by_folder[folder] ^ expected}")
    for name, path in headers.items():
        for included in INCLUDE.findall(path.read_text(encoding="utf-8")):
            expect(included in headers, f"{name} includes {included}, which is not installed")


def check_relocatable(prefix, *folders):
    """No installed text contains the path of a folder of this machine."""
    for path in prefix.rglob("*"):
        if path.suffix in (".cmake", ".pc", ".h", ".def"):
            text = path.read_text(encoding="utf-8")
            for folder in folders:
                expect(str(folder) not in text, f"{path.name} names {folder}")


def main():
    build, prefix = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    made = empty(prefix.with_name("prefix.made"))
    run("cmake", "--install", build, "--prefix", made)
    shutil.rmtree(prefix, ignore_errors=True)
    made.rename(prefix)

    build_type = re.search(r"^CMAKE_BUILD_TYPE:\w+=(.*)$", (build / "CMakeCache.txt").read_text(), re.M)[1]
    check_files(prefix, build_type)
    check_headers(prefix / "include")
    check_relocatable(prefix, made, prefix, build, ROOT)

    # Without help from the environment the program finds its library.
    environment = {name: value for name, value in os.environ.items() if name != "LD_LIBRARY_PATH"}
    answer = run_program(prefix / "bin" / "diagkit", "--version", env=environment)
    expect(answer == f"diagkit {version()}\n", f"the program is {answer!r}")
    answer = run_program(prefix / "bin" / "diagkit", "layers", SAMPLE, env=environment)
    expect("FrontWiperRainLight" in answer, f"the sample has the layers\n{answer}")


if __name__ == "__main__":
    main()
