#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Validate ODX 2.0.1 documents against grammar.txt.

    check_grammar.py DOCUMENT...

Checks the rules of the grammar (elements, order, cardinality, attributes, value types, enumerations,
xsi:type) and, across all documents of the call, that IDs are unique in their file and that every
reference by ID resolves to an element of the right kind. A reference is looked for where ODX puts
it: in the document or layer that DOCREF and DOCTYPE name; without DOCREF in the own layer, in the
own document, in the layers that the own layer imports.

Prints FILE:LINE: MESSAGE for every fault. Exit status: 0 no fault, 1 faults, 2 wrong usage.
"""

import pathlib
import sys
import xml.parsers.expat

from odx_grammar import Grammar, Match

GRAMMAR = pathlib.Path(__file__).resolve().parent / "grammar.txt"
XSI = "http://www.w3.org/2001/XMLSchema-instance"
XSI_TYPE = XSI + " type"
XSI_SCHEMA = XSI + " noNamespaceSchemaLocation"

CATEGORY_DOCTYPES = {
    "DIAG-LAYER-CONTAINER": "CONTAINER",
    "COMPARAM-SPEC": "COMPARAM-SPEC",
    "VEHICLE-INFO-SPEC": None,
    "FLASH": "FLASH",
    "MULTIPLE-ECU-JOB-SPEC": "MULTIPLE-ECU-JOB-SPEC",
}


class Element:
    def __init__(self, name, attributes, line, parent):
        self.name = name
        self.attributes = attributes
        self.line = line
        self.parent = parent
        self.children = []
        self.text = ""
        self.definition = None

    @property
    def xsi_type(self):
        return self.attributes.get(XSI_TYPE)

    @property
    def key(self):
        return self.name if self.xsi_type is None else f"{self.name}[{self.xsi_type}]"

    def child(self, name):
        return next((child for child in self.children if child.name == name), None)

    def descendants(self):
        yield self
        for child in self.children:
            yield from child.descendants()


class DocumentError(Exception):
    def __init__(self, line, message):
        super().__init__(message)
        self.line = line


def parse(data):
    """The root element of a document, each element with its line."""
    parser = xml.parsers.expat.ParserCreate(namespace_separator=" ")
    stack, roots = [], []

    def start(name, attributes):
        element = Element(name, attributes, parser.CurrentLineNumber, stack[-1] if stack else None)
        (stack[-1].children if stack else roots).append(element)
        stack.append(element)

    def characters(text):
        stack[-1].text += text

    def doctype(*_):
        raise DocumentError(parser.CurrentLineNumber, "a document type declaration is not allowed")

    parser.StartElementHandler = start
    parser.EndElementHandler = lambda name: stack.pop()
    parser.CharacterDataHandler = characters
    parser.StartDoctypeDeclHandler = doctype
    parser.buffer_text = True
    try:
        parser.Parse(data, True)
    except xml.parsers.expat.ExpatError as error:
        raise DocumentError(error.lineno, f"not well-formed: {xml.parsers.expat.errors.messages[error.code]}") from None
    return roots[0]


class Scope:
    """A document for references: a category or a layer, with the elements that have an ID in it."""

    def __init__(self, element, doctype):
        self.element = element
        self.doctype = doctype
        short_name = element.child("SHORT-NAME")
        self.short_name = short_name.text if short_name is not None else ""
        self.imports = []
        self.elements = {}
        for descendant in element.descendants():
            if "ID" in descendant.attributes:
                self.elements.setdefault(descendant.attributes["ID"], []).append(descendant)

    def find(self, identifier, targets):
        for element in self.elements.get(identifier, []):
            if element.name in targets or element.key in targets:
                return element
        return None


class Checker:
    def __init__(self, grammar):
        self._grammar = grammar
        self._faults = []  # (file, line, message)
        self._files = []
        self._file = None
        self._scopes = []
        self._references = []  # (file, element, layer scope or None, category scope)

    def check(self, path):
        self._file = path
        self._files.append(path)
        try:
            root = parse(pathlib.Path(path).read_bytes())
        except OSError as error:
            self._fault(0, f"cannot be read: {error.strerror}")
            return
        except DocumentError as error:
            self._fault(error.line, str(error))
            return
        if root.name not in self._grammar.roots:
            self._fault(root.line, f"the root is {root.name}, not one of {', '.join(self._grammar.roots)}")
            return
        self._check_element(root)
        self._check_identifiers(root)
        for category in root.children:
            if category.name in CATEGORY_DOCTYPES:
                self._collect(category)

    def finish(self):
        """Resolves the references of all documents; returns the faults in file and line order."""
        imports = [reference for reference in self._references if reference[1].name == "IMPORT-REF"]
        others = [reference for reference in self._references if reference[1].name != "IMPORT-REF"]
        for self._file, element, layer, category in imports:
            target = self._resolve(element, layer, category)
            if layer is not None:
                layer.imports += [scope for scope in self._scopes if scope.element is target]
        for self._file, element, layer, category in others:
            self._resolve(element, layer, category)
        return sorted(self._faults, key=lambda fault: (self._files.index(fault[0]), fault[1]))

    def _fault(self, line, message):
        self._faults.append((self._file, line, message))

    # One element against its definition

    def _check_element(self, element):
        parent_key = element.parent.key if element.parent else ""
        definition = self._grammar.find(element.name, element.xsi_type, parent_key)
        if definition is None:
            if not self._grammar.knows(element.name):
                self._fault(element.line, f"unknown element {element.name}")
                return
            self._fault(element.line, f"{element.name} has no xsi:type {element.xsi_type}")
            definition = self._grammar.find(element.name, None, parent_key)
            if definition is None:
                return
        element.definition = definition
        self._check_attributes(element)
        self._check_text(element)
        self._check_order(element)
        for child in element.children:
            self._check_element(child)

    def _check_attributes(self, element):
        known = element.definition.attributes
        for name, value in element.attributes.items():
            if name == XSI_TYPE or (name == XSI_SCHEMA and element.parent is None):
                continue
            if name not in known:
                self._fault(element.line, f"{element.name} has no attribute {name.split(' ')[-1]}")
            elif not self._grammar.valid_value(known[name][1], value):
                self._fault(element.line, f"{element.name}/@{name}: '{value}' is no {known[name][1]}")
        for name, (required, _) in known.items():
            if required and name not in element.attributes:
                self._fault(element.line, f"{element.name} lacks the attribute {name}")

    def _check_text(self, element):
        definition = element.definition
        if definition.text_type:
            if not self._grammar.valid_value(definition.text_type, element.text):
                self._fault(element.line, f"{element.name}: '{element.text}' is no {definition.text_type}")
        elif element.text.strip() and not definition.mixed:
            self._fault(element.line, f"{element.name} must not hold text")

    def _check_order(self, element):
        match = Match(element.definition.content, [child.name for child in element.children])
        if match.complete:
            return
        expected = " or ".join(match.expected())
        wish = f"; expected {expected}" if expected else ""
        if match.position < len(element.children):
            child = element.children[match.position]
            self._fault(child.line, f"{child.name} must not stand here in {element.name}{wish}")
        else:
            self._fault(element.line, f"{element.name} is incomplete{wish}")

    # IDs and references

    def _check_identifiers(self, root):
        lines = {}
        for element in root.descendants():
            identifier = element.attributes.get("ID")
            if identifier is None:
                continue
            if identifier in lines:
                self._fault(element.line, f"ID {identifier} is taken by line {lines[identifier]}")
            else:
                lines[identifier] = element.line

    def _collect(self, category):
        category_scope = Scope(category, CATEGORY_DOCTYPES[category.name])
        self._scopes.append(category_scope)
        layers = {}
        for wrapper in category.children:
            for element in wrapper.children:
                if category.name == "DIAG-LAYER-CONTAINER" and element.name in self._grammar.targets["LAYER"]:
                    layers[element] = Scope(element, "LAYER")
                    self._scopes.append(layers[element])
        self._collect_references(category, None, category_scope, layers)

    def _collect_references(self, element, layer, category, layers):
        layer = layers.get(element, layer)
        if element.definition is not None and element.definition.targets and "ID-REF" in element.attributes:
            self._references.append((self._file, element, layer, category))
        for child in element.children:
            self._collect_references(child, layer, category, layers)

    def _resolve(self, element, layer, category):
        identifier = element.attributes["ID-REF"]
        targets = element.definition.targets
        if "DOCREF" in element.attributes:
            scopes, place = self._named_scopes(element)
            if not scopes:
                self._fault(element.line, f"{element.name}: there is no {place}")
                return None
        else:
            scopes = ([layer] if layer else []) + [category]
            if layer and element.name != "IMPORT-REF":
                scopes = scopes + layer.imports
            place = "own layer, own document or imported layer" if layer else "own document"
        for scope in scopes:
            target = scope.find(identifier, targets)
            if target is not None:
                return target
        self._fault(element.line, f"{element.name}: no {' or '.join(targets)} has the ID {identifier} in the {place}")
        return None

    def _named_scopes(self, element):
        name, doctype = element.attributes["DOCREF"], element.attributes.get("DOCTYPE")
        scopes = [scope for scope in self._scopes
                  if scope.short_name == name and (doctype is None or scope.doctype == doctype)]
        return scopes, f"{doctype or 'document'} {name}"


def main(arguments):
    if not arguments or any(argument.startswith("-") for argument in arguments):
        print("usage: check_grammar.py DOCUMENT...", file=sys.stderr)
        return 2
    checker = Checker(Grammar(GRAMMAR))
    for path in arguments:
        checker.check(path)
    faults = checker.finish()
    for file, line, message in faults:
        print(f"{file}:{line}: {message}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
