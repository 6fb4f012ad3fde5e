#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Break a valid database in every way known from the grammar, one fault at a time, and check that each is reported.

    fault_injection.py PROGRAM... -- DOCUMENT...

For every element that the grammar defines and the documents contain: each required attribute and child left out, each
single child twice, each pair of children in the wrong order, two alternatives together, a child that is not allowed
anywhere, an invalid value or literal, an xsi:type that is unknown or lacks its prefix, a reference without a target and
one to an element of the wrong kind.

The program must report the fault once, with code, severity and position, and load the rest: the counts of all element
kinds that the fault does not touch stay as they were. Exit status: 0 all reported, 1 not, 2 wrong usage.
"""

import collections
import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.parsers.expat

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "samples"))
from odx_grammar import Grammar, Match  # noqa: E402

GRAMMAR = pathlib.Path(__file__).resolve().parent.parent / "samples" / "grammar.txt"
FREE_TYPES = ("text", "reference", "id", "day", None)  # of these, every text is a value
# The second of these is merged into the first; the second of everything else but wrappers is left out.
ADDING = ("DIAG-DATA-DICTIONARY-SPEC", "DIAG-COMM-SNREF", "DIAG-VARIABLE-SNREF", "MEM")
NOT_IN_THE_MODEL = {"CATALOG"}


class Element:
    """An element with its place in the document's bytes."""

    def __init__(self, name, attributes, start, parent):
        self.name = name
        self.attributes = attributes
        self.start = start
        self.parent = parent
        self.children = []
        self.head_end = 0  # after the start tag
        self.tail = 0      # the end tag
        self.end = 0
        self.definition = None

    @property
    def key(self):
        kind = self.attributes.get("xsi:type")
        return self.name if kind is None else f"{self.name}[{kind}]"

    def descendants(self):
        yield self
        for child in self.children:
            yield from child.descendants()

    def names(self):
        return [child.name for child in self.children]


def parse(data):
    parser = xml.parsers.expat.ParserCreate()
    stack, roots = [], []

    def start(name, attributes):
        element = Element(name, attributes, parser.CurrentByteIndex, stack[-1] if stack else None)
        tag = re.compile(rb"<[^\"'>]*(?:(?:\"[^\"]*\"|'[^']*')[^\"'>]*)*>").match(data, element.start)
        element.head_end = tag.end()
        (stack[-1].children if stack else roots).append(element)
        stack.append(element)

    def end(_):
        element = stack.pop()
        if data[element.head_end - 2:element.head_end] == b"/>":
            element.tail = element.end = element.head_end
        else:
            element.tail = parser.CurrentByteIndex
            element.end = data.index(b">", element.tail) + 1

    parser.StartElementHandler = start
    parser.EndElementHandler = end
    parser.Parse(data, True)
    return roots[0]


# xsi:types that also follow from the contents.
TYPES_THAT_SHOW = {
    "FILTER": ("ADDRDEF-FILTER", "SIZEDEF-FILTER"),
    "TARGET-ADDR-OFFSET": ("POS-OFFSET", "NEG-OFFSET"),
    "PHYS-SEGMENT": ("ADDRDEF-PHYS-SEGMENT", "SIZEDEF-PHYS-SEGMENT"),
    "FLASHDATA": ("INTERN-FLASHDATA", "EXTERN-FLASHDATA"),
}

Fault = collections.namedtuple("Fault", "what document data offset severity code touched")


class Faults:
    """The faults of some documents, each kind once for each definition and name."""

    def __init__(self, grammar, documents):
        self._grammar = grammar
        self._documents = documents  # path -> bytes
        self._roots = {path: parse(data) for path, data in documents.items()}
        self._done = set()
        self._faults = []
        for root in self._roots.values():
            self._define(root)
        self._by_name = {}
        self._by_id = {}
        for path, root in self._roots.items():
            for element in root.descendants():
                self._by_name.setdefault(element.name, (path, element))
                if "ID" in element.attributes:
                    self._by_id.setdefault(element.attributes["ID"], element)

    def all(self):
        for self._path, root in self._roots.items():
            self._data = self._documents[self._path]
            for element in root.descendants():
                if element.definition is not None and not element.definition.mixed:
                    self._break(element)
        return self._faults

    def _define(self, element):
        parent_key = element.parent.key if element.parent else ""
        element.definition = self._grammar.find(element.name, element.attributes.get("xsi:type"), parent_key)
        for child in element.children:
            self._define(child)

    def _break(self, element):
        if element.name in ("ODX", "p", "ul", "ol", "li") or element.name in NOT_IN_THE_MODEL:
            return
        self._attributes(element)
        self._value(element)
        self._type(element)
        self._reference(element)
        if element.name != "DESC" and element.definition.content is not None:
            self._children(element)

    def _add(self, element, kind, name, data, offset, severity, code, touched=()):
        key = (id(element.definition), kind, name)
        if key not in self._done:
            self._done.add(key)
            what = f"{kind} {name} in {element.key}"
            self._faults.append(Fault(what, self._path, data, offset, severity, code, set(touched)))

    def _without(self, start, end):
        return self._data[:start] + self._data[end:]

    def _with_attribute(self, element, name, value):
        """The document with another value of an attribute, or without the attribute when the value is None."""
        head = self._data[element.start:element.head_end]
        new = b"" if value is None else b' %s="%s"' % (name.encode(), value.encode())
        head, count = re.subn(rb"\s" + name.encode() + rb"\s*=\s*(\"[^\"]*\"|'[^']*')", lambda _: new, head)
        assert count == 1, (element.key, name)
        return self._data[:element.start] + head + self._data[element.head_end:]

    def _attributes(self, element):
        for name, (required, value_type) in element.definition.attributes.items():
            if name not in element.attributes:
                continue
            if required:
                self._add(element, "no attribute", name, self._with_attribute(element, name, None), element.start,
                          "error", "missing-attribute")
            self._wrong_value(element, name, value_type, lambda value: self._with_attribute(element, name, value))

    def _value(self, element):
        value_type = element.definition.text_type
        self._wrong_value(element, "text", value_type,
                          lambda value: self._data[:element.head_end] + value.encode() + self._data[element.tail:])

    def _wrong_value(self, element, name, value_type, replaced):
        if value_type in self._grammar.values:
            severity = "warning" if value_type == "Doctype" else "error"  # without DOCTYPE a target is found as well
            self._add(element, "unknown literal", name, replaced("NO-SUCH-LITERAL"), element.start, severity,
                      "unknown-literal")
            self._add(element, "literal in lower case", name, replaced(self._grammar.values[value_type][0].lower()),
                      element.start, severity, "unknown-literal")
        elif value_type not in FREE_TYPES:
            self._add(element, "no value", name, replaced("x1"), element.start, "error", "not-a-value")
        if value_type in ("uint", "int", "double"):
            self._add(element, "empty value", name, replaced(" "), element.start, "error", "not-a-value")

    def _type(self, element):
        if "xsi:type" not in element.attributes:
            return
        if element.name in TYPES_THAT_SHOW:
            other = next(kind for kind in TYPES_THAT_SHOW[element.name] if kind != element.attributes["xsi:type"])
            self._add(element, "contradicting type", element.key, self._with_attribute(element, "xsi:type", other),
                      element.start, "error", "contradicting-type", [element.name])
        self._add(element, "unknown type", element.key, self._with_attribute(element, "xsi:type", "NO-SUCH-TYPE"),
                  element.start, "error", "unknown-type", [element.name])
        data = bytearray(self._data)
        at = data.index(b"xsi:type", element.start)
        self._add(element, "unprefixed type", element.key, bytes(data[:at] + data[at + 4:]), element.start, "warning",
                  "unprefixed-type")

    def _reference(self, element):
        targets = element.definition.targets
        if targets is None:
            return
        self._add(element, "reference to nothing", element.key, self._with_attribute(element, "ID-REF", "no.such.id"),
                  element.start, "error", "unresolved-reference", [element.name])
        wrong = next(identifier for identifier, other in self._by_id.items()
                     if other.name in ("UNIT", "COMPANY-DATA") and other.name not in targets)
        self._add(element, "reference to another kind", element.key, self._with_attribute(element, "ID-REF", wrong),
                  element.start, "error", "reference-kind", [element.name])

    def _children(self, element):
        model = element.definition.content
        names = element.names()
        for index, child in enumerate(element.children):
            if not self._fits(model, [name for name in names if name != child.name]) and names.count(child.name) == 1:
                self._missing(element, child)
            if not self._fits(model, names[:index] + [child.name] + names[index:]):
                doubled = self._data[:child.end] + self._data[child.start:child.end] + self._data[child.end:]
                adds = self._grammar.is_wrapper(child.name) or child.name in ADDING
                self._add(element, "twice", child.name, doubled, child.end, "error", "repeated-child",
                          self._touched(child) | {element.name} if adds else ())
            if index > 0:
                self._swapped(element, element.children[index - 1], child)
            self._alternatives(element, index, child)
        if element.tail != element.head_end or not names:
            self._unknown(element)

    def _fits(self, model, names):
        return Match(model, names).complete

    def _missing(self, element, child):
        # A list may be empty where the grammar requires one item, as editors write it at first.
        if not self._fits(element.definition.content, element.names() + [child.name]):
            self._add(element, "no", child.name, self._without(child.start, child.end), element.start, "error",
                      "missing-child", self._touched(child) | {element.name})

    def _swapped(self, element, first, second):
        names = element.names()
        at = element.children.index(second)
        if first.name == second.name or \
                self._fits(element.definition.content, names[:at - 1] + [second.name, first.name] + names[at + 1:]):
            return
        between = self._data[first.end:second.start]
        data = self._data[:first.start] + self._data[second.start:second.end] + between + \
            self._data[first.start:first.end] + self._data[second.end:]
        offset = first.start + (second.end - second.start) + len(between)
        self._add(element, f"{second.name} before", first.name, data, offset, "warning", "misplaced-child")

    def _alternatives(self, element, index, child):
        names = element.names()
        others = names[:index] + names[index + 1:]
        for name, (path, sample) in self._by_name.items():
            replaced = names[:index] + [name] + names[index + 1:]
            if name == child.name or name in names or not self._fits(element.definition.content, replaced):
                continue
            both = names[:index + 1] + [name] + names[index + 1:]
            if self._fits(element.definition.content, both) or self._fits(element.definition.content, others):
                continue
            text = self._documents[path][sample.start:sample.end]
            data = self._data[:child.end] + text + self._data[child.end:]
            self._add(element, f"{name} beside", child.name, data, child.end, "error", "second-alternative",
                      self._touched(sample))

    def _unknown(self, element):
        head = self._data[element.start:element.head_end]
        inside = b"<NO-SUCH-ELEMENT ID='no.such.id'><SHORT-NAME>x</SHORT-NAME></NO-SUCH-ELEMENT>"
        if head.endswith(b"/>"):
            data = self._data[:element.head_end - 2] + b">" + inside + b"</%s>" % element.name.encode() + \
                self._data[element.head_end:]
            offset = element.head_end - 1
        else:
            data = self._data[:element.head_end] + inside + self._data[element.head_end:]
            offset = element.head_end
        self._add(element, "unknown child", "", data, offset, "warning", "unknown-child")

    @staticmethod
    def _touched(element):
        return {descendant.name for descendant in element.descendants()}


def position(data, offset):
    before = data[:offset].decode("utf-8")
    return before.count("\n") + 1, len(before) - (before.rfind("\n") + 1) + 1


def run(program, paths):
    call = [*program, "info", "--json", *paths]
    done = subprocess.run(call, capture_output=True, encoding="utf-8", check=False)
    if len(program) > 1 and done.returncode != 0:
        # No fault is refused; but once in thousands of calls Wine itself fails, as a program starts or ends.
        done = subprocess.run(call, capture_output=True, encoding="utf-8", check=False)
    counts = json.loads(done.stdout)["counts"] if done.returncode == 0 else None
    return done.returncode, counts, done.stderr.splitlines()


def failure_of(fault, program, documents, counts, folder, number):
    """The error in the answer to a fault, or None."""
    broken = os.path.join(folder, f"{number}-{os.path.basename(fault.document)}")
    pathlib.Path(broken).write_bytes(fault.data)
    status, found, diagnostics = run(program, [broken if path == fault.document else path for path in documents])
    os.remove(broken)
    line, column = position(fault.data, fault.offset)
    wanted = re.compile(rf"{re.escape(broken)}:{line}:{column}: {fault.severity}: .* \[{fault.code}\]")
    hits = sum(1 for diagnostic in diagnostics if wanted.fullmatch(diagnostic))
    if status != 0:
        return f"exit status {status}: {diagnostics}"
    if hits != 1:
        return f"{hits} times '{line}:{column}: {fault.severity} [{fault.code}]' in {diagnostics}"
    for kind in counts.keys() | found.keys():
        if kind not in fault.touched and counts.get(kind) != found.get(kind):
            return f"{found.get(kind)} {kind} instead of {counts.get(kind)}"
    return None


def main(arguments):
    if "--" not in arguments[1:-1]:
        print("usage: fault_injection.py PROGRAM... -- DOCUMENT...", file=sys.stderr)
        return 2
    end = arguments.index("--")
    program, paths = arguments[:end], arguments[end + 1:]
    documents = {path: pathlib.Path(path).read_bytes() for path in paths}
    status, counts, diagnostics = run(program, paths)
    if status != 0 or diagnostics:
        print(f"the documents are not valid as they are: {diagnostics}")
        return 1
    faults = Faults(Grammar(GRAMMAR), documents).all()
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        answers = list(pool.map(lambda item: failure_of(item[1], program, paths, counts, folder, item[0]),
                                enumerate(faults)))
    for fault, answer in zip(faults, answers):
        if answer is not None:
            print(f"{fault.what}: {answer}")
    by_code = collections.Counter(fault.code for fault in faults)
    print(f"{len(faults)} faults: " + ", ".join(f"{count} {code}" for code, count in sorted(by_code.items())))
    missing = {"missing-attribute", "missing-child", "repeated-child", "misplaced-child", "second-alternative",
               "unknown-child", "not-a-value", "unknown-literal", "unknown-type", "unprefixed-type",
               "contradicting-type", "unresolved-reference",
               "reference-kind"} - by_code.keys()
    if missing:
        print(f"no fault was made for {', '.join(sorted(missing))}")
    return 1 if missing or any(answers) else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
