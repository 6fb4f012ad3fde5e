#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""What `show` answers in JSON against the document itself, read with no code of the library.

    show_tests.py PROGRAM...

Every attribute and text of an element and of what is in it must be there, as often as it is there, and nothing else but
the defaults of attributes. Samples beside the tree, where there are any, are held against it as well.
"""

import collections
import concurrent.futures
import html
import json
import pathlib
import re
import unittest
import xml.etree.ElementTree
import zipfile

from program import main, run

ROOT = pathlib.Path(__file__).resolve().parents[2]
SHARED = ROOT.parent / "shared" / "samples"
TYPE = "{http://www.w3.org/2001/XMLSchema-instance}type"
# Attributes that the model has where the document leaves them out.
DEFAULTS = {("@" + name, value) for name, value in (("INTERVAL-TYPE", "CLOSED"), ("DISPLAY-RADIX", "DEC"),
                                                    ("ADDRESSING", "PHYSICAL"))}
# Elements of a later version that are as they were.
TAGS = {"REQUEST", "POS-RESPONSE", "NEG-RESPONSE", "DATA-OBJECT-PROP", "DIAG-SERVICE", "STRUCTURE", "UNIT"}
# Names that the model has a place for.
KNOWN = set(re.findall(r'(?m)^"([A-Z][A-Z0-9_-]*)"$', (ROOT / "fuzz" / "odx.dict").read_text(encoding="utf-8")))


def plain(text):
    """A text without markup, and with single blanks."""
    return " ".join(html.unescape(re.sub(r"</?[a-zA-Z][^<>]*>", " ", text)).split())


def values_in_document(element, values):
    """(tag, text) and (@attribute, text) of an element with what is in it, as far as the model has a place for it."""
    if element.tag == "DESC":
        if text := plain(" ".join(element.itertext())):
            values[("DESC", text)] += 1
        return
    for name, value in element.attrib.items():
        if name != TYPE and name not in KNOWN:
            continue
        name = "@xsi:type" if name == TYPE else "@" + name
        flags = {"1": "true", "0": "false"} if name.startswith("@IS-") else {}
        values[(name, plain(flags.get(value, value)))] += 1
    if len(element) == 0 and (element.text or "").strip():
        values[(element.tag, plain(element.text))] += 1
    for child in element:
        if child.tag in KNOWN:
            values_in_document(child, values)


def values_in_answer(node, values):
    for name, value in node.get("attributes", {}).items():
        values[("@" + name, plain(value))] += 1
    if "text" in node and "tag" in node:
        values[(node["tag"], plain(node["text"]))] += 1
    for child in node.get("children", []):
        values_in_answer(child, values)


def is_default(entry):
    name, value = entry
    return entry in DEFAULTS or (name.startswith("@IS-") and value in ("true", "false"))


class AgainstTheDocument(unittest.TestCase):
    def compare(self, file, text, tags=None):
        """Asks for every element that alone has its ID, or those of some tags; how many there were."""
        root = xml.etree.ElementTree.fromstring(text)
        is_whole = tags is None
        elements = [element for element in root.iter() if element.get("ID") and (is_whole or element.tag in tags)]
        count = collections.Counter(element.get("ID") for element in elements)
        chosen = [element for element in elements if count[element.get("ID")] == 1]
        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            calls = [pool.submit(run, "show", element.get("ID"), file, "--json", "--quiet") for element in chosen]
            for element, call in zip(chosen, calls):
                with self.subTest(element.get("ID")):
                    self.compare_one(element, call.result(), is_whole)
        return len(chosen)

    def compare_one(self, element, done, is_whole):
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        answer = json.loads(done.stdout)
        self.assertEqual(answer["entry"]["id"], element.get("ID"))
        in_document, in_answer = collections.Counter(), collections.Counter()
        values_in_document(element, in_document)
        values_in_answer(answer["content"]["xml"], in_answer)
        if element.tag == "PARAM" or not is_whole:  # the type may be known by what is inside alone
            in_document = collections.Counter({key: n for key, n in in_document.items() if key[0] != "@xsi:type"})
        missing = in_document - in_answer
        self.assertEqual(dict(missing), {})
        if is_whole:
            others = {entry for entry in in_answer - in_document if not is_default(entry)}
            self.assertEqual({entry for entry in others if entry[0] != "@xsi:type"}, set())

    def test_samples(self):
        files = sorted((ROOT / "samples").glob("*.odx-*"))
        self.assertGreater(len(files), 5)
        for file in files:
            with self.subTest(file.name):
                self.assertGreater(self.compare(file, file.read_bytes()), 5)

    @unittest.skipUnless((SHARED / "snref-base.odx-d").exists(), "needs other samples")
    def test_other_samples(self):
        self.assertGreater(self.compare(SHARED / "snref-base.odx-d", (SHARED / "snref-base.odx-d").read_bytes()), 5)

    @unittest.skipUnless((SHARED / "somersault.pdx").exists(), "needs other samples")
    def test_documents_of_a_later_version(self):
        with zipfile.ZipFile(SHARED / "somersault.pdx") as package:
            text = package.read("somersault.odx-d")
        self.assertGreater(self.compare(SHARED / "somersault.pdx", text, TAGS), 40)


class Messages(unittest.TestCase):
    def rows(self, layer):
        done = run("show", "MoveWiper", ROOT / "samples" / "WiperDatabase.pdx", "--layer", layer, "--json", "--quiet")
        message = json.loads(done.stdout)["content"]["messages"][0]
        return {row["short_name"]: row for row in message["params"]}

    def test_a_short_name_means_what_the_layer_means(self):
        dops = {layer: self.rows(layer)["WiperMode"]["dop"]["layer"] for layer in ("FrontWiper", "FrontWiperBasic")}
        self.assertEqual(dops, {"FrontWiper": "FrontWiper", "FrontWiperBasic": "FrontWiperBasic"})

    def test_texts_and_positions_stand_at_the_parameter(self):
        mode = self.rows("FrontWiper")["WiperMode"]
        self.assertEqual([scale["text"] for scale in mode["scales"]], ["off", "interval", "continuous"])
        self.assertEqual([scale["lower"] for scale in mode["scales"]], ["0", "1", "2"])
        self.assertEqual((mode["bit_length"], mode["min_bit_length"], mode["max_bit_length"]), (8, 8, 8))
        self.assertEqual(mode["category"], "TEXTTABLE")


if __name__ == "__main__":
    main(__doc__)
