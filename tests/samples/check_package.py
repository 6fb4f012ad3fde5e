#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that a package contains exactly the documents of a folder.

    check_package.py PACKAGE FOLDER

The members are index.xml, every ODX document of the folder and every other file that index.xml
lists, byte for byte; they are in name order, deflated, with one time stamp for all. The package
contains exactly the files listed in index.xml.

Prints PACKAGE: MESSAGE for every fault. Exit status: 0 no fault, 1 faults, 2 wrong usage.
"""

import pathlib
import sys
import xml.etree.ElementTree
import zipfile

CATALOGUE = "index.xml"


def catalogue_faults(folder, names):
    files = list(xml.etree.ElementTree.parse(folder / CATALOGUE).iter("FILE"))
    listed = sorted(file.text for file in files)
    if listed != sorted(set(names) - {CATALOGUE}):
        yield f"{CATALOGUE} lists {', '.join(listed)}"
    for file in files:
        suffix = pathlib.PurePath(file.text).suffix
        if suffix.startswith(".odx") and file.get("MIME-TYPE") != f"application/x-asam.odx{suffix}":
            yield f"{CATALOGUE} says that {file.text} is {file.get('MIME-TYPE')}"


def faults(package_path, folder):
    with zipfile.ZipFile(package_path) as package:
        members = package.infolist()
        names = [member.filename for member in members]
        documents = [path.name for path in folder.glob("*.odx*")]
        if names != sorted(set(names)):
            yield "the members are not in name order, or one is there twice"
        for name in sorted({CATALOGUE, *documents} - set(names)):
            yield f"{name} is missing"
        for member in members:
            path = folder / member.filename
            if not path.is_file():
                yield f"{member.filename} is no file of the folder"
            elif package.read(member) != path.read_bytes():
                yield f"{member.filename} differs from the file of the folder"
            if member.compress_type != zipfile.ZIP_DEFLATED:
                yield f"{member.filename} is not deflated"
        if len({member.date_time for member in members}) > 1:
            yield "the members have different time stamps"
    yield from catalogue_faults(folder, names)


def main(arguments):
    if len(arguments) != 2:
        print("usage: check_package.py PACKAGE FOLDER", file=sys.stderr)
        return 2
    found = list(faults(pathlib.Path(arguments[0]), pathlib.Path(arguments[1])))
    for message in found:
        print(f"{arguments[0]}: {message}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
