# SPDX-License-Identifier: Apache-2.0
"""What the program tells about itself: its commands, their options and arguments, read from --help."""

import json
import re
import subprocess
from dataclasses import dataclass, field, replace

OPTION = re.compile(r"  (?:-\w,)?(--[\w-]+)(?: (.*?))?(?:\s{2,}(.*))?$")
POSITIONAL = re.compile(r"  ([A-Z]+)(?: \.\.\.)?(?: REQUIRED)?\s{2,}(.*)$")
COMMAND = re.compile(r"  ([a-z]+)\s{2,}(.*)$")


@dataclass
class Option:
    name: str
    value: str  # what stands for its value, "" for a flag
    choices: list
    text: str
    group: str = ""  # the heading that it stands under, "" among the usual options


@dataclass
class Command:
    name: str
    text: str
    usage: str = ""
    options: list = field(default_factory=list)
    positionals: dict = field(default_factory=dict)  # name: text
    notes: str = ""  # what follows the options and is none, as it is
    choices: list = field(default_factory=list)  # of its first argument


def answer(program, *arguments):
    return subprocess.run([*program, *arguments], check=True, capture_output=True, encoding="utf-8").stdout


def sections(text):
    """The paragraphs that have a heading, by heading; the first ones by "" and "Usage"."""
    found, heading = {"": []}, ""
    for line in text.splitlines():
        if line.startswith("Usage: "):
            found["Usage"] = [line[len("Usage: "):]]
        elif line.endswith(":") and not line.startswith(" "):
            heading = line[:-1]
            found[heading] = []
        elif line.strip():
            found[heading].append(line)
    return found


def option_of(name, value, text):
    choices = []
    if found := re.search(r"\{(.*)\}", value):
        choices = found[1].split(",")
    elif found := re.search(r"in \[(\d+) - (\d+)\]", value):
        choices = [str(number) for number in range(int(found[1]), int(found[2]) + 1)]
    if found := re.search(r"=(\w+)$", value):
        text += f"; default {found[1]}"
    return Option(name, re.split(r"[:= ]", value)[0], choices, text)


def options_of(lines):
    options = []
    for line in lines:
        if found := OPTION.match(line):
            options.append(option_of(found[1], found[2] or "", found[3] or ""))
        elif options:
            options[-1].text = f"{options[-1].text} {line.strip()}".strip()
        else:
            raise ValueError(f"no option: {line}")
    return options


def command_of(program, name, text):
    parts = sections(answer(program, name, "--help"))
    command = Command(name, text, parts["Usage"][0], options_of(parts["Options"]))
    for line in parts.get("Positionals", []):
        found = POSITIONAL.match(line)
        command.positionals[found[1]] = found[2]
    if "KIND" in command.positionals:
        command.choices = command.positionals["KIND"].partition(": ")[2].split(", ")
    others = [heading for heading in parts if heading not in ("", "Usage", "Options", "Positionals")]
    for heading in [heading for heading in others if all(OPTION.match(line) for line in parts[heading])]:
        command.options += [replace(option, group=heading) for option in options_of(parts[heading])]
        others.remove(heading)
    command.notes = "\n\n".join("\n".join([heading + ":", *parts[heading]]) for heading in others)
    return command


def read(program):
    """The options of the program itself, and its commands."""
    parts = sections(answer(program, "--help"))
    commands = [command_of(program, *COMMAND.match(line).groups()) for line in parts["Commands"]]
    for command in commands:
        if "TABLE" in command.positionals:
            tables = json.loads(answer(program, command.name, "--json"))["tables"]
            command.choices = [table["name"] for table in tables]
    return options_of(parts["Options"]), commands
