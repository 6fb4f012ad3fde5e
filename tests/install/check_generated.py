#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Compare the man page and the completions with the program, and have the available shells read them.

    check_generated.py PROGRAM...
"""

import pathlib
import shutil
import sys
import tempfile

from project import ROOT, expect, run

PACKAGING = ROOT / "packaging"
sys.path.insert(0, str(PACKAGING))
import program_help  # noqa: E402

COMPLETIONS = PACKAGING / "completions"
FILES = ["diagkit.1", "completions/diagkit.bash", "completions/_diagkit", "completions/diagkit.fish"]


def is_here(tool):
    """Reports a missing tool, because the file generated for it is then not tested."""
    if not shutil.which(tool):
        print(f"not tried, because {tool} is not installed")
    return shutil.which(tool) is not None


def check_up_to_date(program):
    with tempfile.TemporaryDirectory() as folder:
        run(sys.executable, "-B", PACKAGING / "generate", folder, *program)
        for name in FILES:
            now, kept = (pathlib.Path(root, name).read_text(encoding="utf-8") for root in (folder, PACKAGING))
            expect(now == kept, f"packaging/{name} is old: packaging/generate writes it anew")


def check_man_page(commands):
    page = (PACKAGING / "diagkit.1").read_text(encoding="utf-8").replace("\\-", "-")
    for command in commands:
        expect(f"\n.SS {command.name}\n" in page, f"no {command.name} in the man page")
        for option in command.options:
            expect(f"\n\\fB{option.name}\\fR" in page, f"no {option.name} in the man page")
    if is_here("groff"):
        warnings = run("groff", "-man", "-ww", "-z", PACKAGING / "diagkit.1")
        expect(warnings == "", warnings)


def offered_by_bash(*words):
    """The completions of bash for the last word."""
    script = 'source "$1"; COMP_WORDS=("${@:2}"); COMP_CWORD=$(($# - 2)); _diagkit; printf "%s\\n" "${COMPREPLY[@]}"'
    return run("bash", "-uc", script, "bash", COMPLETIONS / "diagkit.bash", "diagkit", *words).split()


def check_bash(own, commands):
    def check(expected, *words):
        offered = offered_by_bash(*words)
        expect(sorted(offered) == sorted(expected), f"bash offers {offered} for {words}, not {expected}")

    check([command.name for command in commands] + [option.name for option in own], "")
    for command in commands:
        check([option.name for option in command.options], command.name, "-")
        check(command.choices(), command.name, "")
        for option in command.options:
            if option.value:
                check(option.choices, command.name, "FILE", option.name, "")
    check(["diag-comms", "diag-variables"], "view", "diag-")
    check(["text", "json", "sarif"], "check", "file.pdx", "--format", "")
    check(["svg", "dot", "mermaid"], "graph", "file.pdx", "--format", "")


def check_fish(commands):
    def offered(line):
        script = f'source {COMPLETIONS / "diagkit.fish"}; complete -C "{line}"'
        return {row.split("\t")[0] for row in run("fish", "--no-config", "-c", script).splitlines()}

    names = {command.name for command in commands}
    expect(names <= offered("diagkit "), f"fish offers {offered('diagkit ')}")
    for command in commands:
        options = {option.name for option in command.options}
        expect(offered(f"diagkit {command.name} --") == options, f"fish offers other options of {command.name}")
        expect(set(command.choices()) <= offered(f"diagkit {command.name} "), f"fish lacks arguments of {command.name}")


def main():
    program = sys.argv[1:]
    own, commands = program_help.read(program)
    # Without these differences being detected, the rest would prove nothing.
    view = next(command for command in commands if command.name == "view")
    expected = {"--layer", "--range", "--json", "--max-file-size"}
    expect(expected <= {option.name for option in view.options}, "the options are not told")
    expect("diag-comms" in view.choices() and len(view.choices()) == 9, "the kinds are not told")
    expect("--help-table" not in run(*program, "--help"), "the table of options is for tools alone")

    check_up_to_date(program)
    check_man_page(commands)
    check_bash(own, commands)
    if is_here("zsh"):
        run("zsh", "-n", COMPLETIONS / "_diagkit")
    if is_here("fish"):
        check_fish(commands)


if __name__ == "__main__":
    main()
