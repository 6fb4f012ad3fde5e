# SPDX-License-Identifier: Apache-2.0
"""The program's own description: its commands, their options and arguments, from --help-table."""

import json
import subprocess
from dataclasses import dataclass


@dataclass
class Option:
    name: str
    text: str
    value: str  # the placeholder of its value, "" for a flag and for an argument
    default: str
    group: str  # its heading, "" among the usual options
    isRequired: bool
    isRepeated: bool
    choices: list


@dataclass
class Command:
    name: str
    text: str
    positionals: list
    options: list
    notes: str  # the text after the options in its help

    def usage(self):
        words = [option.name + ("..." if option.isRepeated else "") for option in self.positionals]
        shown = [word if option.isRequired else f"[{word}]" for word, option in zip(words, self.positionals)]
        return " ".join(["diagkit", self.name, "[OPTIONS]", *shown])

    def choices(self):
        """Of its first argument."""
        return self.positionals[0].choices


def options_of(rows):
    """As the help shows them, the usual ones first."""
    return sorted((Option(**row) for row in rows), key=lambda option: option.group)


def read(program):
    """The options of the program itself, and its commands."""
    answer = subprocess.run([*program, "--help-table"], check=True, capture_output=True, encoding="utf-8").stdout
    table = json.loads(answer)
    commands = [
        Command(**{**row, "positionals": options_of(row["positionals"]), "options": options_of(row["options"])})
        for row in table["commands"]
    ]
    return options_of(table["options"]), commands
