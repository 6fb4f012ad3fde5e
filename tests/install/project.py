# SPDX-License-Identifier: Apache-2.0
"""Common to the tests of this folder."""

import os
import pathlib
import re
import shutil
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
SAMPLE = ROOT / "samples" / "WiperDatabase.pdx"
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Werror"]

# The command that runs the built programs, where they are not for this machine but for Windows.
EMULATOR = [word for word in [os.environ.get("DIAGKIT_EMULATOR")] if word]
EXE = ".exe" if EMULATOR else ""


def fail(message):
    sys.exit(f"FAILED: {message}")


def expect(is_so, message):
    if not is_so:
        fail(message)


def run(*command, **options):
    """The output of a command, both streams together; ends the test when the command fails."""
    command = [str(word) for word in command]
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8", **options)
    if done.returncode != 0:
        fail(f"{' '.join(command)} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


def run_program(program, *arguments, **options):
    """The output of a built program, with line feeds only."""
    return run(*EMULATOR, f"{program}{EXE}", *arguments, **options).replace("\r\n", "\n")


def use_libraries_of(*folders):
    """Sets where the system looks for the libraries of programs."""
    if EMULATOR:
        os.environ["WINEPATH"] = ";".join(f"Z:{folder}" for folder in folders)
    else:
        os.environ["LD_LIBRARY_PATH"] = ":".join(map(str, folders))


def empty(folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    return folder


def write_preparation(scripts):
    """A scripts/prepare that builds nothing: it prints its arguments when they are not what is installed."""
    script = scripts / "prepare"
    script.write_text('#!/bin/sh\n[ "$2" = diagkit_products ] || { echo "prepare $*: what is installed?"; exit 1; }\n')
    script.chmod(0o755)


def examples():
    """The sources of examples/, by the name of the program."""
    found = (ROOT / "examples").glob("*.cpp")
    sources = {re.sub(r"(?<=[a-z])(?=[A-Z])", "_", path.stem).lower(): path for path in found}
    expect(sources, "examples/ is empty")
    return sources


def own_model():
    """The sources of the one example that has several."""
    sources = sorted((ROOT / "examples" / "own_model").glob("*.cpp"))
    expect(sources, "examples/own_model/ is empty")
    return sources


def run_examples(folder, names):
    """Compare the output of the examples built into a folder with their cases."""
    for name in names:
        cases = sorted((ROOT / "tests" / "examples").glob(f"{name}*.case"))
        expect(cases, f"no case for {name}")
        for case in cases:
            script = [sys.executable, "-B", ROOT / "tests" / "cli" / "run_cli_tests.py", "--any-line-ends"]
            run(*script, case, *EMULATOR, folder / f"{name}{EXE}")


def readme_block(language):
    """The one code block of README.md in a language."""
    blocks = re.findall(rf"^```{language}\n(.*?)^```", (ROOT / "README.md").read_text(encoding="utf-8"), re.M | re.S)
    expect(len(blocks) == 1, f"{len(blocks)} blocks of {language} in README.md")
    return blocks[0]


# Turns the function of the README into a program: the services and jobs of every layer of a database.
README_MAIN = """
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>

int main(int, char** words) {
    NReader::VReadResult const result = NReader::ReadOdx({words[1]});
    for (NODX201::VDiagLayerContainer& container : result.database->GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            std::wprintf(L"[%ls]\\n", layer.GetShortName());
            PrintServices(layer);
        }
    }
}
"""


def write_readme_program(folder):
    path = folder / "readme.cpp"
    path.write_text(readme_block("cpp") + README_MAIN, encoding="utf-8")
    return path


def run_readme_program(program):
    """Its output for one layer, as in samples/README.md."""
    answer = run_program(program, SAMPLE)
    layers = dict(re.findall(r"^\[(\w+)\]\n((?:\w+\n)*)", answer, re.M))
    expected = "ReadTroubleCodes ClearTroubleCodes HardReset TesterPresent StartSession RequestSeed SendKey"
    expect(layers.get("UdsOnCan", "").split() == expected.split(), f"the README's program prints\n{answer}")


def version():
    return re.search(r"^project\(diagkit VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"), re.M)[1]


def run_stranger_programs(folder):
    """Those of stranger/, one for each target of diagkit."""
    for program, arguments, expected in (
        ("toolkit", [], f"{version()} PHYSICAL\n"),
        ("by_hand", [], "Open\nReset\n"),
        ("checked", [SAMPLE], "0 findings\n"),
    ):
        answer = run_program(folder / program, *arguments)
        expect(answer == expected, f"{program} prints {answer!r}, not {expected!r}")
