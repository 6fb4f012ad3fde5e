#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Compare the exports of the toolkit's shared library with those intended.

    check_exports.py LIBRARY [OBJDUMP]

With OBJDUMP, the program of that name for the library's platform, the library is a Windows DLL. Intended are the names
in exported.txt, and every class and function that a header of model/ marks DIAGKIT_EXPORT. Symbols of std:: that the
compiler emitted along with others do not count.
"""

import pathlib
import re
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]

PREFIXES = re.compile(
    r"^(typeinfo name for|typeinfo for|vtable for|VTT for|guard variable for|non-virtual thunk to|virtual thunk to) "
)
DECLARED_CLASS = re.compile(r"^(?:class|struct) DIAGKIT_EXPORT (\w+)", re.MULTILINE)
DECLARED_FUNCTION = re.compile(r"^DIAGKIT_EXPORT [^;{]*?(\w+)\(", re.MULTILINE)


def split_outside_brackets(text, separator):
    """Split at the separator outside of <> and ()."""
    parts, depth, start, position = [], 0, 0, 0
    while position < len(text):
        if text[position] in "<(":
            depth += 1
        elif text[position] in ">)":
            depth -= 1
        elif depth == 0 and text.startswith(separator, position):
            parts.append(text[start:position])
            position += len(separator)
            start = position
            continue
        position += 1
    parts.append(text[start:])
    return parts


def without_operators(symbol):
    """Operators of comparison and increment must not be treated as brackets."""
    return re.sub(r"operator[^\w\s(]+", "operator_", symbol)


def owner_of(symbol):
    """The class or function in a namespace that a demangled symbol belongs to, without template arguments."""
    symbol = PREFIXES.sub("", without_operators(symbol))
    # A template function is demangled with its result type first, and every function with its parameters at the end.
    for word in split_outside_brackets(symbol, " "):
        parts = split_outside_brackets(word, "::")
        if len(parts) > 1:
            return "::".join(re.split(r"[<(\[]", part)[0] for part in parts[:2])
    return symbol


def output_of(*command, given=None):
    return subprocess.run(command, check=True, capture_output=True, text=True, input=given).stdout


def exported_symbols(library):
    output = output_of("nm", "-DC", "--defined-only", library)
    return [line.split(" ", 2)[2] for line in output.splitlines()]


def names_in_export_table(dump):
    """The names that `objdump -p` prints of a DLL's export table, as the compiler made them."""
    lines = iter(dump.splitlines())
    for line in lines:
        if line.startswith("[Ordinal/Name Pointer] Table"):
            break
    names = []
    for line in lines:
        row = re.fullmatch(r"\s*\[ *\d+\] (?:.* )?(\S+)", line)
        if row is None:
            break
        names.append(row[1])
    return names


def exported_by_dll(library, objdump):
    names = names_in_export_table(output_of(objdump, "-p", library))
    return output_of("c++filt", given="\n".join(names)).splitlines()


def without_type_information(symbols):
    """GCC for Windows exports the type information of some other classes that it uses, and nothing else of them."""
    return [symbol for symbol in symbols if not symbol.startswith("typeinfo for ")]


def listed_names(lines):
    names = [line.split("#")[0].strip() for line in lines]
    return {name for name in names if name}


def contract_names(headers):
    names = set()
    for header in headers:
        text = header.read_text(encoding="utf-8")
        for pattern in (DECLARED_CLASS, DECLARED_FUNCTION):
            names.update("NODX201::" + name for name in pattern.findall(text))
    return names


def faults(symbols, meant):
    exported = {owner_of(symbol): symbol for symbol in symbols}
    exported = {owner: symbol for owner, symbol in exported.items() if not owner.startswith("std::")}
    found = [f"exported and not meant to be: {owner} (by {exported[owner]})" for owner in sorted(set(exported) - meant)]
    found += [f"meant to be exported and is not: {owner}" for owner in sorted(meant - set(exported))]
    return found


def main():
    listed = listed_names((HERE / "exported.txt").read_text(encoding="utf-8").splitlines())
    meant = listed | contract_names(sorted((ROOT / "diagkit/model").glob("*.h")))
    if len(sys.argv) > 2:
        symbols = without_type_information(exported_by_dll(sys.argv[1], sys.argv[2]))
    else:
        symbols = exported_symbols(sys.argv[1])
    found = faults(symbols, meant)
    for fault in found:
        print(fault)
    print(f"{len(meant)} names meant to be exported, {len(found)} faults")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
