#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""What Doxygen reads: copies of the headers, with the descriptions that follow from the names of their operations.

The headers say a rule once: optional children come in pairs Has and Get, AddX adds at the end, MakeX makes what is
absent. A reference is read operation by operation, so there each gets its sentence, in its own line. An operation
that no rule knows and no comment describes stays as it is, and Doxygen warns of it. `@ID` is an attribute of ODX.
"""

import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]
TAG = re.compile(r'^ODX_TAG\((\w+), *\d+, "([^"]*)", *"([^"]*)"\)', re.MULTILINE)

# Operations by their declarations. WORD is what the group `x` holds, as ODX writes it, and NAME as it stands.
MODEL = [
    (r"bool Has(?P<x>\w+)Collection\(\) const", "Whether the element around each WORD is there, even if it is empty."),
    (r"bool Has(?P<x>\w+)\(\) const", "Whether there is a WORD."),
    (r"[\w:]+& Get(?P<x>\w+)\(\)", "The WORD. REQUIRES: `HasNAME` is true."),
    (r"wchar_t const\* Get(?P<x>\w+)\(\) const", 'WORD; "" when absent.'),
    (r"[\w:]+Collection& (?P<x>\w+)Collection\(\)", "Each WORD, in document order; empty when there is none."),
    (r"bool Is(?P<x>\w+)\(\) const = 0", "Whether it is a WORD; then it can be cast to `VNAME`."),
    (r"[\w:]+\* Resolve(?P<x>\w+)Snref\(", "The WORD of this short name; null when none is visible."),
    (r"void Dispatch(?P<x>\w+)\(", "Calls `Accept` of this WORD with this visitor."),
    (r"void Visit(?P<x>\w+)\(.*\) = 0", "Called by `Accept` of a WORD."),
]
LINKS = [
    (r"[\w:]+& GetLink\(\)", "The reference itself: a `VOdxLink` or a `VSnref`."),
    MODEL[0],
    (r"bool Has(?P<x>\w+)\(.+\)", "Whether the reference, read in this context, leads to a WORD that exists."),
    (r"bool Has(?P<x>\w+)\(\) const( = 0| .*Find)", "Whether the reference leads to a WORD that exists."),
    (r"[\w:]+& Get(?P<x>\w+)\(\)( = 0| .*Found)", "The WORD found last. REQUIRES: `HasNAME` was true."),
]
MEMORY = [
    (r"VMemCollection<[\w:]+>& Make(?P<x>\w+)Collection\(\)", "What each WORD is added to; there from now on."),
    (r"[\w:]+& Make(?P<x>\w+)\(wchar_t .*\)", "The WORD; one that is absent is made, with a copy of the text."),
    (r"\w[\w:]*& Make(?P<x>\w+)\(\)", "The WORD, made when it is absent."),
    (r"void Remove(?P<x>\w+)\(\)", "Destroys the WORD; no effect when there is none."),
    (r"[\w:]+& Add(?P<x>\w+)\(wchar_t const\* shortName\)", "Adds a WORD of this short name at the end."),
    (r"[\w:]+& Add(?P<x>\w+)\(wchar_t const\* text\)", "Adds a WORD with a copy of this text at the end."),
    (r"void Add(?P<x>\w+)\(wchar_t const\* text\)", "Adds a copy of this text as WORD at the end."),
    (r"[\w:]+& Add(?P<x>\w+)\(VReference const& reference\)", "Adds a WORD at the end; its target may come later."),
    (r"[\w:]+& Add(?P<x>\w+)\(\)", "Adds an empty WORD at the end."),
    (r"[\w:]+& Set(?P<x>\w+)\(VReference const& \w+\)", "The WORD, made or redirected; the target may come later."),
    (r"void Set(?P<x>\w+)\(wchar_t const\* \w+\)", 'WORD becomes a copy of this text; "" removes it.'),
    (r"void Set(?P<x>\w+)\(bool value\)", "WORD becomes this value."),
    (r"void Set(?P<x>Kind)\(NODX201::VOdxTagEnum kind\)", "It is of this kind from now on."),
    (r"void Adopt\(std::unique_ptr<VMem(?P<x>\w+)> made\)", "Takes in a WORD of `MakeDetached`, as the last one."),
    (r"void Make(?P<x>\w+)Collection\(\)", "The collection for each WORD is there from now on."),
    (r"[\w:]+& (ParentRef|Node)\(\)", "This same element."),
    (r"(explicit )?VMem\w+\(VPlace const& place.*\)", "For the operations of its owner, which make it."),
    (r"NODX201::VOdxTagEnum GetOdxTag\(\)", "The kind of the element."),
    (r"NODX201::VOdxObject\* GetOwner\(\)", "What it stands in."),
]
TOOLS = [
    (r"explicit V\w+View\(\w+::V(?P<x>\w+)& \w+\)", "The view of a WORD."),
    (r"V\w+View\(\w+::V(?P<x>\w+)& \w+, NODX201::VSearchRange range\)", "The view of what a range takes of a WORD."),
    (r"V\w+View\* Create(?P<x>\w+)\(", "A new view, in the place of the builder's last one; null when it made none."),
    (r"void Destroy(?P<x>\w+)\(", "Destroys a view that a builder made."),
    (r"void Visit(?P<x>\w+)\(.*\)", "Visits a WORD: hook before, `DefaultVisit`, what it holds, hook after."),
    (r"void Descend(?P<x>\w+)\(", "Visits what a WORD holds and refers to."),
    (r"void PreProcess(?P<x>\w+)\(", "Hook before what a WORD holds is visited; does nothing by itself."),
    (r"void PostProcess(?P<x>\w+)\(", "Hook after what a WORD holds was visited; does nothing by itself."),
    (r".* Get(?P<x>\w+)\(wchar_t const\* literal\)", "The value of a literal; 0 for one that the table does not hold."),
    (r"wchar_t const\* Get(?P<x>\w+)Str\(", 'The literal of a value; "?" for one that the table does not hold.'),
    (r"static constexpr \w.* (?P<x>k\w+)\b", "For the view's assertions; see `VListView`."),
    (r"static wchar_t const\* (?P<x>ShortNameOf)\(", "By what an entry is found; null when no name can find it."),
]
ITERATORS = [
    (r".*\b(?P<x>[Bb]egin)\(\)", "The position of the first entry; the end when there is none."),
    (r".*\b(?P<x>[Ee]nd)\(\)", "The position behind the last entry."),
    (r".*\b(?P<x>Count)\(\) const", "How many entries there are."),
    (r"bool (?P<x>IsEmpty)\(\) const", "Whether there is no entry."),
    (r"using (?P<x>Element) =", "What it holds."),
    (r"using (?P<x>List|Map|Set) =", "How it holds its entries: as pointers."),
    (r"using (?P<x>Iterator) =", "A position in it."),
    (r"(List|Map) (?P<x>m_elements|m_collection);", "The entries, in their order."),
    (r".* (?P<x>_Find)\(", "What `Find` gives, as the position of the standard container."),
    (r"void (?P<x>_Remove)\(", "Removes the entry at the position."),
    (r"Ref (?P<x>operator\*)\(\)", "The object at the position."),
    (r".*(?P<x>operator\+\+)\(\)", "Goes to the next entry."),
    (r"bool (?P<x>operator==)\(", "Whether both are the same position."),
    (r"bool (?P<x>operator!=)\(", "Whether they are not equal."),
    (r"V(?P<x>\w+)\(V(?P=x) const&( other)?\)", "A copy."),
    (r"V\w+& (?P<x>operator=)\(V\w+ const&( other)?\)", "Becomes a copy."),
]
RULES = MEMORY + TOOLS[:2] + MODEL + TOOLS[2:] + ITERATORS

# What bears a name of the contract's own.
WORDS = {
    "AllValueDtcValuesChoice": "ALL-VALUE or DTC-VALUES",
    "BasicStructureEnvDataDescChoice": "BASIC-STRUCTURE-REF or ENV-DATA-DESC-REF",
    "CompuConstCompuRationalCoeffsChoice": "COMPU-CONST or COMPU-RATIONAL-COEFFS",
    "CompuScalesProgCodeChoice": "COMPU-SCALES or PROG-CODE",
    "Database": "database",
    "DiagLayer": "diagnostic layer",
    "DopBase": "DOP",
    "EcuParentPattern": "ECU-VARIANT-PATTERN",
    "Field": "field",
    "IdentIf": "EXPECTED-IDENT or OWN-IDENT",
    "InParamIf": "input parameter",
    "OutParamIf": "output parameter",
    "Param": "PARAM",
    "Response": "response",
    "RowWrapper": "TABLE-ROW or TABLE-ROW-REF",
    "SdgSdChoice": "SDG or SD",
    "TableRefTableRowRefChoice": "TABLE-REF or TABLE-ROW-REF",
    "Text": "text",
}
TAGS = (ROOT / "diagkit" / "model" / "OdxTags.def").read_text(encoding="utf-8")
NAMES = {name: kind or element for name, element, kind in TAG.findall(TAGS)}


def in_odx_words(name):
    """DiagCommSnref as DIAG-COMM-SNREF."""
    name = re.sub("Link$", "Ref", re.sub("Proxy$", "", name))
    return WORDS.get(name) or NAMES.get(name) or re.sub(r"(?<=[a-z0-9])(?=[A-Z])", "-", name).upper()


def declaration_end(lines, first):
    """The line in which the declaration that starts in this one ends."""
    depth = 0
    for number in range(first, len(lines)):
        code = lines[number].split("//")[0]
        depth += code.count("{") + code.count("(") - code.count("}") - code.count(")")
        if depth == 0 and code.rstrip().endswith((";", "}")):
            return number
    return first


def words_of_siblings(lines):
    """What the comment behind one operation of an element's part says for the others: ///< DEF-MODE."""
    words = {}
    for number, line in enumerate(lines):
        name = re.match(r"    .*?\b(?:Has|Get|Make|Is)?(\w+?)(?<!Collection)\(", line)
        text = re.search(r"///< (@?[A-Z][A-Z0-9-]+(?: or [.A-Z-]+)?)$", lines[declaration_end(lines, number)])
        if name and text:
            words.setdefault(name[1], text[1].replace("@", r"\@"))
    return words


def sentence(declaration, rules, words):
    for pattern, text in rules:
        if found := re.match(r"(?:virtual )?(?:friend )?" + pattern, declaration):
            name = found.groupdict().get("x", "")
            meaning = {"WORD": words.get(name) or in_odx_words(name), "NAME": name}
            text = re.sub("WORD|NAME", lambda place: meaning[place[0]], text)
            return re.sub(r"\ba (?=[AEIOX]|S[DW])", "an ", text)
    return None


def describe_class(lines, before):
    """Gives each operation of a class, whose members stand four columns in, its sentence."""
    is_link = re.search(r"\b(VLink|VParentRef|VMem\w*Link)\b", " ".join(lines[:3]).split("{")[0])
    is_template = before.startswith("template")
    rules = (LINKS if is_link else []) + RULES
    words = words_of_siblings(lines)
    for number, line in enumerate(list(lines)):
        if not re.match(r"    \w", line) or lines[number - 1].lstrip().startswith("///"):
            continue
        end = declaration_end(lines, number)
        is_override = "override" in " ".join(lines[number:end + 1])  # which inherits its description
        if "///<" in lines[end] or "= delete" in lines[end] or is_override and not is_template:
            continue
        if text := sentence(line.strip(), rules, words):
            lines[number] = f"    /** {text} */{line[3:]}"
    return lines


def describe_classes(lines):
    number = 0
    while number < len(lines):
        end = number + 1
        if re.match(r"(class|struct) .*[^;]$", lines[number]):
            end = next(n for n in range(number, len(lines)) if lines[n].startswith("}") or lines[n].endswith("{};"))
            lines[number:end] = describe_class(lines[number:end], lines[number - 1])
        number = end
    return lines


def describe_file(lines):
    """A comment in front of the namespace is about the file; the empty line before it makes room to say so."""
    first = next((number for number, line in enumerate(lines) if line.startswith("///")), None)
    if first is not None:
        end = next(number for number in range(first, len(lines)) if not lines[number].startswith("///"))
        if lines[end] == "" and lines[end + 1].startswith("namespace"):
            lines[first - 1] = "/// @file"
    return lines


def describe(text):
    text = re.sub(r"///.*", lambda comment: re.sub(r"@(?=[A-Z])", r"\\@", comment[0]), text)
    return "\n".join(describe_file(describe_classes(text.splitlines()))) + "\n"
