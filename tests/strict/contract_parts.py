#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Write down the parts that the classes of the contract return, according to its headers.

    contract_parts.py FOLDER

Into FOLDER: Parts.def, with rows for a class between PARTS and END,

    TEXT(X)     GetX(), a text          OPTIONAL_TEXT(X)   the same behind HasX()
    PART(X)     GetX(), an element      CHILD(X)           the same behind HasX()
    LIST(X)     X(), a collection       OPTIONAL_LIST(X)   the same, which HasX() says to be there
    LINK()      GetLink()

and Links.def, with LINK(link, target) or LINK_IN_LAYER(link, target) for each class of links. Operations.def has every
class that elements are of and every operation that it must implement, those of its bases included, with its header:

    CLASS(Units, VUnit)     OPERATION(Units, VUnit, GetShortName)
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
CLASS = re.compile(r"^class (?:DIAGKIT_EXPORT )?(\w+)(?: : public (\w+))?[^;{]*\{(.*?)^\};", re.MULTILINE | re.DOTALL)
OPERATION = re.compile(r"virtual (\w+)( const\*|&) (Get)?(\w+)\(\)( const)? = 0;")
NO_ELEMENTS = re.compile(r"Visitor$|^VDiagLayerCollection$|Resolver$|^ILink$|^VSnref$|^VOdxLink$|^VProcessingInstruction$")
ANY_OPERATION = re.compile(r"virtual [^;{}]*?(\w+)\([^;{}]*\)(?: const)? = 0;")
ALSO_MADE = {"VParentRef"}  # others are derived from it, and it is a kind itself
LINKS = {"VLink", "VParentRef"}
PART_WORDS = ["PARTS", "END", "TEXT", "OPTIONAL_TEXT", "PART", "CHILD", "LIST", "OPTIONAL_LIST", "LINK"]


def classes():
    """Name, base and body of each class of elements."""
    for header in sorted((ROOT / "diagkit/model").glob("*.h")):
        for name, base, body in CLASS.findall(header.read_text(encoding="utf-8")):
            if not NO_ELEMENTS.search(name):
                yield name, base, body


def row(kind, getter, name, body):
    if name == "Link":
        return "LINK()"
    is_optional = f"virtual bool Has{name}() const" in body
    if kind == "wchar_t":
        return f"OPTIONAL_TEXT({name})" if is_optional else f"TEXT({name})"
    if not getter:
        return f"OPTIONAL_LIST({name})" if is_optional else f"LIST({name})"
    return f"CHILD({name})" if is_optional else f"PART({name})"


def parts_and_links():
    parts, links = [], []
    for name, base, body in classes():
        rows = []
        for kind, _, getter, part, _ in OPERATION.findall(body):
            if base not in LINKS:
                rows.append(row(kind, getter, part, body))
            elif f"Has{part}(VDiagLayer& layer)" in body:
                links.append(f"LINK_IN_LAYER({name}, {part})")
            elif f"Has{part}() const" in body and not part.endswith("Collection"):
                links.append(f"LINK({name}, {part})")
            elif part.endswith("Collection"):
                rows.append(row(kind, getter, part, body))
        if rows:
            parts.append("\n".join([f"PARTS({name})", *rows, "END"]))
    return parts, links


def operations():
    topics, bases, own = {}, {}, {}
    for header in sorted((ROOT / "diagkit/model").glob("*.h")):
        for name, base, body in CLASS.findall(header.read_text(encoding="utf-8")):
            topics[name], bases[name], own[name] = header.stem, base, ANY_OPERATION.findall(body)
    rows = []
    for name in topics:
        above = [name]
        while above[-1] in bases:
            above.append(bases[above[-1]])
        is_made = name not in bases.values() or name in ALSO_MADE
        if is_made and "VOdxElement" in above and not NO_ELEMENTS.search(name):
            rows.append(f"CLASS({topics[name]}, {name})")
            rows += [f"OPERATION({topics[name]}, {name}, {operation})" for base in above for operation in own.get(base, [])]
    return rows


def undefined(words):
    return "".join(f"#undef {word}\n" for word in words)


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    parts, links = parts_and_links()
    files = (
        ("Parts.def", parts, PART_WORDS),
        ("Links.def", links, ["LINK", "LINK_IN_LAYER"]),
        ("Operations.def", operations(), ["CLASS", "OPERATION"]),
    )
    for name, rows, words in files:
        text = "\n".join(rows) + "\n" + undefined(words)
        path = folder / name
        if not path.exists() or path.read_text(encoding="utf-8") != text:
            path.write_text(text, encoding="utf-8")
    return 0 if parts and links else 1


if __name__ == "__main__":
    sys.exit(main())
