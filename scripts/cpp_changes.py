# SPDX-License-Identifier: Apache-2.0
"""Changes to C++ sources, described by their effect.

A scope is a function or a table of a file by name; NAME(WORD) is the overload with WORD among its parameters, or the row
NAME(WORD, ...) of a list for the preprocessor. A change
is one of these, where A is a part of the scope, in tokens: blanks, line breaks and comments do not count.

    replace A by B
    swap A and B
    drop A [unless E]     the statement with A is executed only if E is true; never without E
    never A [unless E]    the condition with A is true only if E is true, too; never without E
    always A              the condition with A is true

A #2 is the second A of the scope; without a number there has to be exactly one. A condition is that of if, while or ?,
or what is returned.
"""

import re

CHANGE = re.compile(
    r"(replace) (.+) by (.+)|(swap) (.+) and (.+)|(drop|never) (.+?)(?: unless (.+))?|(always) (.+)"
)
TOKEN = re.compile(
    r"""(?P<blank>\s+|//[^\n]*|/\*.*?\*/)|(?:L|u8|u|U)?"(?:\\.|[^"\\])*"|'(?:\\.|[^'\\])+'"""
    r"""|0x[\dA-Fa-f']+|\d[\d'.]*|\w+|->|::|\+\+|--|[-+*/%&|^<>=!]=|&&|\|\||.""",
    re.DOTALL,
)
CLOSING = {"(": ")", "[": "]", "{": "}"}


class Unfit(Exception):
    """Why a row does not fit the sources."""


class Source:
    """A file as tokens; a place is the number of one."""

    def __init__(self, text):
        self.text = text
        found = [token for token in TOKEN.finditer(text) if not token["blank"]]
        self.tokens = [token[0] for token in found]
        self.spans = [token.span() for token in found]
        self.partner = {}
        open_places = []
        for place, token in enumerate(self.tokens):
            if token in CLOSING:
                open_places.append(place)
            elif open_places and token == CLOSING[self.tokens[open_places[-1]]]:
                self.partner[place] = open_places.pop()
                self.partner[self.partner[place]] = place

    def places_of(self, words, first, end):
        wanted = tokens_of(words)
        size = len(wanted)
        return [place for place in range(first, end - size + 1) if self.tokens[place : place + size] == wanted]

    def body_behind(self, place, overload):
        """The braces of the definition whose name ends before the place; None where the name is only used."""
        is_initialised = False
        if self.tokens[place] == "(":
            if overload and overload not in self.tokens[place : self.partner[place]]:
                return None
            place = self.partner[place] + 1
        while self.tokens[place] not in ("{", ";", ")", "}") and (self.tokens[place] != "," or is_initialised):
            is_initialised = is_initialised or self.tokens[place] == ":"
            place = self.partner[place] + 1 if self.tokens[place] in "([" else place + 1
        return (place + 1, self.partner[place]) if self.tokens[place] == "{" else None

    def scope(self, name):
        name, overload = re.fullmatch(r"(.+?)(?:\((\w+)\))?", name).groups()
        size = len(tokens_of(name))
        used = [place for place in self.places_of(name, 0, len(self.tokens) - 1)]
        used = [place for place in used if self.tokens[place - 1] not in (".", "->")]
        if name.isupper():
            rows = [place + size for place in used if self.tokens[place + size : place + size + 2] == ["(", overload]]
            bodies = [(place, self.partner[place]) for place in rows]
        else:
            bodies = [body for place in used if (body := self.body_behind(place + size, overload))]
        if len(bodies) != 1:
            raise Unfit(f"'{name}' is defined {len(bodies)} times")
        return bodies[0]

    def place(self, words, scope):
        """The place of the words in the scope, as the first of their tokens and the one after the last."""
        words, number = re.fullmatch(r"(.+?)(?: #(\d+))?", words).groups()
        found = self.places_of(words, *scope)
        if len(found) != 1 and not (number and int(number) <= len(found)):
            raise Unfit(f"'{words}' stands there {len(found)} times")
        first = found[int(number) - 1 if number else 0]
        return first, first + len(tokens_of(words))

    def edge(self, place, step, ends):
        """The next of such tokens in a direction, outside of brackets."""
        place += step
        while self.tokens[place] not in ends:
            is_bracket = self.tokens[place] in (")]" if step < 0 else "([{")
            place = (self.partner[place] if is_bracket else place) + step
        return place

    def condition(self, place):
        while True:
            left = self.edge(place, -1, ("(", "{", "}", ";", ",", "=", "return", "["))
            right = self.edge(place, 1, (")", "}", ";", ",", "?", "]"))
            opening = self.partner[right] if self.tokens[right] == ")" else None
            is_of_if = opening is not None and self.tokens[opening - 1] in ("if", "while")
            if is_of_if or self.tokens[right] == "?" or self.tokens[left] == "return":
                return left + 1, right
            if opening is None and self.tokens[left] != "(":
                raise Unfit("that is in no condition")
            place = opening if opening is not None else left

    def statement(self, place):
        left = place
        while self.tokens[left] not in ("{", "}", ";"):
            left = (self.partner[left] if self.tokens[left] in ")]" else left) - 1
            while self.tokens[left] == "}" and self.tokens[left + 1] in ",);.":
                left = self.partner[left] - 1
        right = place
        while self.tokens[right] != ";":
            if self.tokens[right] == "}":
                raise Unfit("that is in no statement")
            right = (self.partner[right] if self.tokens[right] in "([{" else right) + 1
        return left + 1, right + 1

    def between(self, first, end):
        return self.text[self.spans[first][0] : self.spans[end - 1][1]]

    def changed(self, *changes):
        """The text with places replaced, which are pairs of the first token and the one after the last."""
        text = self.text
        for (first, end), new in sorted(changes, reverse=True):
            text = text[: self.spans[first][0]] + new + text[self.spans[end - 1][1] :]
        return text


def tokens_of(text):
    return [token[0] for token in TOKEN.finditer(text) if not token["blank"]]


def changed_text(text, scope, change):
    """A source with a change made in the scope of that name."""
    found = CHANGE.fullmatch(change)
    if not found:
        raise Unfit(f"'{change}' is no change")
    kind, what, *other = [word for word in found.groups() if word]
    source = Source(text)
    scope = source.scope(scope)
    place = source.place(what, scope)
    if kind == "replace":
        return source.changed((place, other[0]))
    if kind == "swap":
        return source.changed((place, other[0]), (source.place(other[0], scope), what))
    condition = other[0] if other else "false"
    if kind == "drop":
        place = source.statement(place[0])
        return source.changed((place, f"if ({condition}) {{ {source.between(*place)} }}"))
    place = source.condition(place[0])
    join = "true ||" if kind == "always" else f"({condition}) &&"
    return source.changed((place, f"{join} ({source.between(*place)})"))
