#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""List the elements and attributes of valid documents, and which of them the grammar requires at their place.

    make_parts.py OUTPUT DOCUMENT...

A document is a line `document PATH`; then come its elements in document order, each followed by its attributes:

    element NAME START HEAD-END TAIL END PARENT REQUIRED
    attribute START END REQUIRED

in bytes: HEAD-END is after the start tag, TAIL is the end tag. PARENT counts the document's elements from 0; the root
has -1. An attribute starts with the blank before it. An element is required (1) when its parent does not fit the
grammar without it and a list would not be accepted either; a list may be empty where the grammar requires one item.
"""

import pathlib
import re
import sys

TESTS = pathlib.Path(__file__).resolve().parent.parent
sys.path[:0] = [str(TESTS / "samples"), str(TESTS / "reader")]
from fault_injection import parse  # noqa: E402
from odx_grammar import Grammar, Match  # noqa: E402

ATTRIBUTE = re.compile(rb"\s+([\w:.-]+)\s*=\s*(\"[^\"]*\"|'[^']*')")


def define(element, grammar):
    parent_key = element.parent.key if element.parent else ""
    element.definition = grammar.find(element.name, element.attributes.get("xsi:type"), parent_key)
    for child in element.children:
        define(child, grammar)


def is_required(element):
    if element.parent is None or element.parent.definition is None or element.parent.definition.mixed:
        return False
    model, names = element.parent.definition.content, element.parent.names()
    at = element.parent.children.index(element)
    return not Match(model, names[:at] + names[at + 1:]).complete and not Match(model, names + [element.name]).complete


def lines_of(element, data, numbers):
    numbers[id(element)] = len(numbers)
    parent = numbers[id(element.parent)] if element.parent else -1
    yield (f"element {element.name} {element.start} {element.head_end} {element.tail} {element.end} {parent} "
           f"{int(is_required(element))}")
    for match in ATTRIBUTE.finditer(data, element.start, element.head_end):
        required, _ = element.definition.attributes.get(match[1].decode(), (False, None))
        yield f"attribute {match.start()} {match.end()} {int(required)}"
    for child in element.children:
        yield from lines_of(child, data, numbers)


def main(arguments):
    if len(arguments) < 2:
        print(__doc__, file=sys.stderr)
        return 2
    grammar = Grammar(TESTS / "samples" / "grammar.txt")
    lines = []
    for path in arguments[1:]:
        data = pathlib.Path(path).read_bytes()
        root = parse(data)
        define(root, grammar)
        lines += [f"document {path}", *lines_of(root, data, {})]
    pathlib.Path(arguments[0]).write_text("\n".join(lines) + "\n", encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
