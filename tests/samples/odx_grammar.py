# SPDX-License-Identifier: Apache-2.0
"""The grammar of ODX 2.0.1 as grammar.txt writes it down: value types, definitions, content models."""

import datetime
import re


def _is_date(text):
    match = re.fullmatch(r"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d)(\.\d+)?(Z|[+-](0\d|1[0-3]):[0-5]\d|[+-]14:00)?", text, re.ASCII)
    return bool(match) and _is_calendar(match.group(1), "%Y-%m-%dT%H:%M:%S")


def _is_day(text):
    return bool(re.fullmatch(r"\d{4}-\d\d-\d\d", text, re.ASCII)) and _is_calendar(text, "%Y-%m-%d")


def _is_calendar(text, form):
    try:
        datetime.datetime.strptime(text, form)
        return True
    except ValueError:
        return False


def _matches(pattern):
    return lambda text: re.fullmatch(pattern, text, re.ASCII) is not None


_NAME_START = r"A-Za-z_\u00C0-\u00D6\u00D8-\u00F6\u00F8-\u02FF\u0370-\u037D\u037F-\u1FFF\u3001-\uD7FF"

VALUE_TYPES = {
    "text": lambda text: True,
    "reference": lambda text: text != "",
    "id": _matches(rf"[{_NAME_START}][{_NAME_START}0-9.\-\u00B7]*"),
    "uint": _matches(r"\+?\d+"),
    "byte": lambda text: re.fullmatch(r"\+?\d+", text, re.ASCII) is not None and int(text) <= 255,
    "int": _matches(r"[+-]?\d+"),
    "double": _matches(r"[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?|-?INF|NaN"),
    "bool": _matches(r"true|false|1|0"),
    "hex": _matches(r"([0-9A-Fa-f]{2})*"),
    "date": _is_date,
    "day": _is_day,
}
# For these, blanks around the value do not count.
COLLAPSED_TYPES = set(VALUE_TYPES) - {"text"}


class GrammarError(Exception):
    pass


class Definition:
    """The definition of one element (with one xsi:type, in one parent) in the grammar."""

    def __init__(self):
        self.attributes = {}  # name -> (required, type)
        self.targets = None   # names of the elements that a reference may target
        self.content = None   # content model; None for text and empty elements
        self.text_type = None
        self.mixed = False


# A content model is a name (str) or a tuple: ("sequence", models), ("choice", models),
# ("repeat", model, least, most) with most None for any number.

class Grammar:
    def __init__(self, path):
        self.roots = []
        self.values = {}
        self.definitions = {}  # key (NAME, NAME[TYPE], PARENT/NAME) -> Definition
        self._by_name = {}     # name -> the Definitions of all its keys
        self.targets = {}
        self._attributes = {}
        self._contents = {}
        self._wrappers = {}
        for number, line in self._logical_lines(path):
            try:
                self._read(line)
            except GrammarError as error:
                raise GrammarError(f"{path.name}:{number}: {error}") from None
        self._verify()

    def find(self, name, xsi_type, parent_key):
        """The definition of an element, or None when there is none with this xsi:type."""
        key = f"{name}[{xsi_type}]" if xsi_type is not None else name
        parent_name = parent_key.split("[")[0]
        for candidate in (f"{parent_key}/{key}", f"{parent_name}/{key}", key):
            if candidate in self.definitions:
                return self.definitions[candidate]
        return None

    def is_wrapper(self, name):
        return name in self._wrappers

    def knows(self, name):
        return name in self._by_name

    def valid_value(self, value_type, text):
        if value_type in self.values:
            return text in self.values[value_type]
        return VALUE_TYPES[value_type](text.strip() if value_type in COLLAPSED_TYPES else text)

    @staticmethod
    def _logical_lines(path):
        lines = []
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            if line.startswith("#") or not line.strip():
                continue
            if line[0] == " ":
                lines[-1][1] += " " + line.strip()
            else:
                lines.append([number, line])
        return lines

    def _read(self, line):
        keyword, _, rest = line.partition(" ")
        if keyword == "roots":
            self.roots = rest.split()
        elif keyword == "values":
            name, _, literals = rest.partition(" = ")
            self.values[name] = literals.split()
        elif keyword == "attributes":
            name, _, attributes = rest.partition(" = ")
            self._attributes[name] = self._parse_attributes(attributes.split())
        elif keyword == "targets":
            name, _, targets = rest.partition(" = ")
            self.targets[name] = self._parse_targets(targets)
        elif keyword == "content":
            name, _, content = rest.partition(" = ")
            self._contents[name] = self._parse_content(content)
        else:
            self._define(line)

    def _define(self, line):
        match = re.fullmatch(r"(?P<key>\S+)(?P<attributes>( [A-Z@][^ |]*)*)( -> (?P<targets>[^:=]+?))?"
                             r"( : (?P<type>\w+)| = (?P<mixed>mixed )?(?P<content>.+))?", line)
        if not match:
            raise GrammarError(f"not a definition: {line}")
        definition = Definition()
        definition.attributes = self._parse_attributes(match["attributes"].split())
        definition.text_type = match["type"]
        if match["targets"]:
            definition.targets = self._parse_targets(match["targets"])
        if match["content"]:
            definition.content = self._parse_content(match["content"])
            definition.mixed = match["mixed"] is not None
        self._add(match["key"], definition)

    def _add(self, key, definition):
        if key in self.definitions:
            raise GrammarError(f"{key} is defined twice")
        self.definitions[key] = definition
        self._by_name.setdefault(_bare_name(key), []).append(definition)

    def _parse_attributes(self, words):
        attributes = {}
        for word in words:
            if not word.startswith("@"):
                if word not in self._attributes:
                    raise GrammarError(f"unknown attributes {word}")
                attributes.update(self._attributes[word])
                continue
            match = re.fullmatch(r"@([\w.-]+)(!)?(?::(\w+))?(?:=(\S+))?", word)
            if not match:
                raise GrammarError(f"not an attribute: {word}")
            name, required, value_type, default = match.groups()
            value_type = value_type or "text"
            self._require_type(value_type)
            if default is not None and not self.valid_value(value_type, default):
                raise GrammarError(f"{default} is no default for {name}")
            attributes[name] = (required is not None, value_type)
        return attributes

    def _parse_targets(self, text):
        targets = []
        for name in text.split("|"):
            targets += self.targets.get(name.strip(), [name.strip()])
        return targets

    def _require_type(self, value_type):
        if value_type not in VALUE_TYPES and value_type not in self.values:
            raise GrammarError(f"unknown type {value_type}")

    def _parse_content(self, text):
        tokens = re.findall(r"[A-Za-z][\w.-]*|[(),|?*+>]", text)
        if "".join(tokens) != text.replace(" ", ""):
            raise GrammarError(f"not a content: {text}")
        model = self._parse_sequence(tokens)
        if tokens:
            raise GrammarError(f"unexpected {tokens[0]}")
        return model

    def _parse_sequence(self, tokens):
        models = [self._parse_choice(tokens)]
        while tokens and tokens[0] == ",":
            tokens.pop(0)
            models.append(self._parse_choice(tokens))
        return models[0] if len(models) == 1 else ("sequence", models)

    def _parse_choice(self, tokens):
        models = [self._parse_item(tokens)]
        while tokens and tokens[0] == "|":
            tokens.pop(0)
            models.append(self._parse_item(tokens))
        return models[0] if len(models) == 1 else ("choice", models)

    def _parse_item(self, tokens):
        if not tokens:
            raise GrammarError("content ends too early")
        token = tokens.pop(0)
        if token == "(":
            model = self._parse_sequence(tokens)
            if not tokens or tokens.pop(0) != ")":
                raise GrammarError("closing parenthesis is missing")
        else:
            model = self._contents.get(token, token)
        if tokens and tokens[0] in "?*+":
            least, most = {"?": (0, 1), "*": (0, None), "+": (1, None)}[tokens.pop(0)]
            model = ("repeat", model, least, most)
        if tokens and tokens[0] == ">":
            tokens.pop(0)
            self._define_wrapper(token, self._parse_item(tokens))
        return model

    def _define_wrapper(self, name, content):
        if self._wrappers.setdefault(name, content) != content:
            raise GrammarError(f"{name} wraps two different things")
        if name not in self.definitions:
            definition = Definition()
            definition.content = content
            self._add(name, definition)

    def _verify(self):
        """Every element that is named is defined, every element that is defined can be reached."""
        reached, waiting = set(), list(self.roots)
        while waiting:
            name = waiting.pop()
            if name in reached:
                continue
            reached.add(name)
            if not self.knows(name):
                raise GrammarError(f"{name} is named but not defined")
            for definition in self._by_name[name]:
                if definition.content is not None:
                    waiting += _names(definition.content)
        for key, definition in self.definitions.items():
            if _bare_name(key) not in reached:
                raise GrammarError(f"{key} is defined but never named")
            if definition.text_type:
                self._require_type(definition.text_type)
            for target in definition.targets or []:
                if target not in self.definitions and not self.knows(target):
                    raise GrammarError(f"{key}: unknown target {target}")


def _bare_name(key):
    """NAME of NAME[TYPE], PARENT/NAME and PARENT[TYPE]/NAME."""
    return key.rpartition("/")[2].partition("[")[0]


def _names(model):
    if isinstance(model, str):
        return [model]
    parts = model[1] if model[0] in ("sequence", "choice") else [model[1]]
    return [name for part in parts for name in _names(part)]


class Match:
    """Matches a list of child names against a content model."""

    def __init__(self, model, names):
        self._names = names
        self._expected = {}  # position -> names that could have stood there
        ends = self._ends(model, 0) if model is not None else {0}
        self.complete = len(names) in ends
        self.position = max([*ends, *self._expected])

    def expected(self):
        return sorted(self._expected.get(self.position, ()))

    def _ends(self, model, start):
        """The positions that a match of model from start may end at."""
        if isinstance(model, str):
            if start < len(self._names) and self._names[start] == model:
                return {start + 1}
            self._expected.setdefault(start, set()).add(model)
            return set()
        if model[0] == "sequence":
            ends = {start}
            for part in model[1]:
                ends = {end for begin in ends for end in self._ends(part, begin)}
            return ends
        if model[0] == "choice":
            return {end for part in model[1] for end in self._ends(part, start)}
        _, part, least, most = model
        ends = {start} if least == 0 else set()
        seen, waiting, count = {start}, {start}, 0
        while waiting and (most is None or count < most):
            waiting = {end for begin in waiting for end in self._ends(part, begin)} - seen
            seen |= waiting
            ends |= waiting
            count += 1
        return ends
