# SPDX-License-Identifier: Apache-2.0
"""The contents of the pages of the guide, and their checks."""

import difflib
import re
import textwrap

FENCE = re.compile(r"^```(\S*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\(([^)#]+)(?:#[^)]*)?\)")
ELISION = re.compile(r"\s*(?://|<!--)? ?\.\.\.(?: ?-->)?")


def blocks(text, language):
    return [body for found, body in FENCE.findall(text) if found == language]


def languages(text):
    return {found for found, _ in FENCE.findall(text)}


def calls(block):
    """The commands of a console block, each with the answer that is shown."""
    found = []
    for line in block.splitlines():
        if line.startswith("$ "):
            found.append((line[2:], []))
        else:
            found[-1][1].append(line)
    return found


def pieces(lines):
    """Runs of lines between those that say `...`."""
    runs = [[]]
    for line in lines:
        if ELISION.fullmatch(line):
            runs.append([])
        else:
            runs[-1].append(line)
    return runs


def position(run, lines, start, form=list):
    """The position of the run in the lines, from `start` on, both in a form; -1 when it is not there."""
    for number in range(start, len(lines) - len(run) + 1):
        if form(lines[number:number + len(run)]) == form(run):
            return number
    return -1


def unindented(lines):
    return textwrap.dedent("\n".join(lines)).splitlines()


def is_shown(shown, actual):
    """Whether the output is what is shown, where each `...` stands for at least one line."""
    runs = pieces(shown)
    if len(runs) == 1:
        return shown == actual
    if actual[:len(runs[0])] != runs[0] or (runs[-1] and actual[-len(runs[-1]):] != runs[-1]):
        return False
    start = len(runs[0])
    for run in runs[1:]:
        end = len(actual) - len(run) if run is runs[-1] else position(run, actual, start + 1)
        if end < start + 1:
            return False
        start = end + len(run)
    return True


def difference(shown, actual):
    return "\n".join(difflib.unified_diff(shown, actual, "shown", "actual", lineterm="", n=1))


def is_extract(block, sources):
    """Whether the pieces of a block are in one of the sources, in their order, with any indentation."""
    runs = pieces(block.splitlines())

    def stands_in(source):
        lines, start = source.splitlines(), 0
        for run in runs:
            found = position(run, lines, start, unindented)
            if found < 0:
                return False
            start = found + len(run)
        return True

    return any(map(stands_in, sources))
