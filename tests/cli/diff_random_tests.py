#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Random small databases, changed at random: `diff` gives the result of a plain comparison of each layer's view.

    diff_random_tests.py PROGRAM...

The comparison here is independent of the program: it makes every view by walking to the parents, expands every entry
to a tree, and compares trees.
"""

import copy
import json
import pathlib
import random
import tempfile
import unittest

from program import main, run

KINDS = ("PROTOCOL", "FUNCTIONAL-GROUP", "ECU-SHARED-DATA", "BASE-VARIANT", "ECU-VARIANT")
SHARED, PROTOCOL, GROUP, BASE = {"ECU-SHARED-DATA"}, {"PROTOCOL"}, {"FUNCTIONAL-GROUP"}, {"BASE-VARIANT"}
# From which kinds of parent each kind of layer takes, pass by pass.
PASSES = {
    "PROTOCOL": [SHARED],
    "FUNCTIONAL-GROUP": [PROTOCOL, SHARED],
    "ECU-SHARED-DATA": [],
    "BASE-VARIANT": [PROTOCOL | GROUP, SHARED],
    "ECU-VARIANT": [BASE, SHARED],
}
VARIABLE_PASSES = {
    "PROTOCOL": [],
    "FUNCTIONAL-GROUP": [SHARED],
    "ECU-SHARED-DATA": [],
    "BASE-VARIANT": [GROUP, SHARED],
    "ECU-VARIANT": [BASE, SHARED],
}
VIEWS = ("diag-comms", "diag-variables", "global-neg-responses", "dops", "protocols", "comparams")
COMPARAMS = ("CP_A", "CP_B")
DATABASES = 150


# Databases.


class Maker:
    """Makes databases. An element is a dictionary with its tag and short name."""

    def __init__(self, seed):
        self.random = random.Random(seed)

    def some(self, names, most):
        return self.random.sample(names, self.random.randint(0, most))

    def params(self):
        return [self.param(name) for name in self.some(["P", "Q", "R"], 3)]

    def param(self, name):
        if self.random.random() < 0.4:
            return {"name": name, "type": "CODED-CONST", "value": str(self.random.randint(0, 3))}
        how = self.random.choice(["id", "name", "name"])
        return {"name": name, "type": "VALUE", "how": how, "dop": self.random.choice(["D", "E", "F", "S"])}

    def message(self, tag, name):
        return {"tag": tag, "name": name, "params": self.params()}

    def diag_comm(self, name):
        tag = "SINGLE-ECU-JOB" if self.random.random() < 0.2 else "DIAG-SERVICE"
        made = {"tag": tag, "name": name, "semantic": self.random.choice(["", "A", "B"])}
        if tag == "DIAG-SERVICE":
            made["request"] = self.message("REQUEST", self.random.choice(["RQ", "RQ2"]))
            made["responses"] = [self.message("POS-RESPONSE", found) for found in self.some(["PR1", "PR2"], 2)]
        return made

    def dop(self, name):
        if name == "S":
            params = [param for param in self.params() if param.get("dop") != "S"]
            return {"tag": "STRUCTURE", "name": name, "params": params}
        return {"tag": "DATA-OBJECT-PROP", "name": name, "bits": self.random.choice(["8", "16"]),
                "scales": [str(self.random.randint(0, 2)) for _ in range(self.random.randint(0, 3))]}

    def layer(self, kind, name, others):
        parents = [other["name"] for other in others if any(other["kind"] in kinds for kinds in PASSES[kind])]
        return {
            "kind": kind,
            "name": name,
            "diag-comms": [self.diag_comm(found) for found in self.some(["Read", "Write", "Start", "Stop"], 3)],
            "diag-variables": [] if kind == "PROTOCOL" else [
                {"tag": "DIAG-VARIABLE", "name": found, "long": self.random.choice(["", "x"])}
                for found in self.some(["V", "W"], 1)],
            "global-neg-responses": [self.message("GLOBAL-NEG-RESPONSE", found) for found in self.some(["G", "H"], 1)],
            "dops": sorted((self.dop(found) for found in self.some(["D", "E", "F", "S"], 3)),
                           key=lambda dop: dop["tag"]),
            "comparams": [(found, self.random.choice(["", "P1"]), str(self.random.randint(0, 2)))
                          for found in self.some(list(COMPARAMS), 1)],
            "parents": [(found, self.some(["Read", "Write"], 1))
                        for found in self.random.sample(parents, self.random.randint(0, min(2, len(parents))))],
        }

    def database(self):
        layers = []
        for kind in ("ECU-SHARED-DATA", "PROTOCOL", "FUNCTIONAL-GROUP", "BASE-VARIANT", "ECU-VARIANT"):
            for number in range(self.random.randint(1, 2)):
                layers.append(self.layer(kind, f"{kind[0]}{kind[-1]}{number}", layers))
        return in_order(layers)

    def changed(self, layers):
        layers = copy.deepcopy(layers)
        for _ in range(self.random.randint(0, 4)):
            self.random.choice([self.rename_entry, self.new_content, self.move_down, self.drop, self.rename_layer,
                                self.drop_layer, self.new_parents, self.new_comparam])(layers)
        return in_order(layers)

    def pick(self, layers, view=None):
        view = view or self.random.choice(["diag-comms", "diag-comms", "dops", "global-neg-responses"])
        filled = [layer for layer in layers if layer[view]]
        return (view, self.random.choice(filled)) if filled else (view, None)

    def rename_entry(self, layers):
        view, layer = self.pick(layers)
        if layer is not None and view != "dops":
            names = {entry["name"] for entry in layer[view]}
            new = self.random.choice(["New", "Newer"])
            if new not in names:
                self.random.choice(layer[view])["name"] = new

    def new_content(self, layers):
        view, layer = self.pick(layers)
        if layer is None:
            return
        place = self.random.randrange(len(layer[view]))
        name = layer[view][place]["name"]
        make = {"diag-comms": self.diag_comm, "dops": self.dop,
                "global-neg-responses": lambda found: self.message("GLOBAL-NEG-RESPONSE", found)}
        layer[view][place] = make[view](name)

    def move_down(self, layers):
        """An entry of a parent becomes the child's own."""
        children = [layer for layer in layers if layer["parents"]]
        if children:
            child = self.random.choice(children)
            parent = next(layer for layer in layers if layer["name"] == child["parents"][0][0])
            view, _ = self.pick(layers)
            own = {entry["name"] for entry in child[view]}
            free = [entry for entry in parent[view] if entry["name"] not in own]
            if free:
                child[view].append(copy.deepcopy(free[0]))
                child[view].sort(key=lambda entry: entry["tag"] if view == "dops" else "")

    def drop(self, layers):
        view, layer = self.pick(layers)
        if layer is not None:
            layer[view].pop(self.random.randrange(len(layer[view])))

    def rename_layer(self, layers):
        layer = self.random.choice(layers)
        old, layer["name"] = layer["name"], "Renamed" + layer["name"][:2]
        for other in layers:
            other["parents"] = [(layer["name"] if name == old else name, out) for name, out in other["parents"]]

    def drop_layer(self, layers):
        gone = layers.pop(self.random.randrange(len(layers)))["name"]
        for layer in layers:
            layer["parents"] = [parent for parent in layer["parents"] if parent[0] != gone]

    def new_parents(self, layers):
        layer = self.random.choice(layers)
        layer["parents"] = layer["parents"][1:]

    def new_comparam(self, layers):
        layer = self.random.choice(layers)
        layer["comparams"] = [(self.random.choice(COMPARAMS), "", str(self.random.randint(0, 2)))]


def in_order(layers):
    """In document order; names are unique, so that each layer is distinct."""
    seen, unique = set(), []
    for layer in layers:
        if layer["name"] not in seen:
            seen.add(layer["name"])
            unique.append(layer)
    return sorted(unique, key=lambda layer: KINDS.index(layer["kind"]))


# As XML.


def xml(tag, name, content, attributes=""):
    return f"<{tag}{attributes}><SHORT-NAME>{name}</SHORT-NAME>{content}</{tag}>"


def wrapped(tag, content):
    return f"<{tag}>{content}</{tag}>" if content else ""


def coded_type(bits):
    return ('<DIAG-CODED-TYPE xsi:type="STANDARD-LENGTH-TYPE" BASE-DATA-TYPE="A_UINT32">'
            f"<BIT-LENGTH>{bits}</BIT-LENGTH></DIAG-CODED-TYPE>")


def xml_of_params(params, ids):
    text = ""
    for param in params:
        if param["type"] == "CODED-CONST":
            content = f"<CODED-VALUE>{param['value']}</CODED-VALUE>" + coded_type("8")
        elif param["how"] == "id":
            content = f'<DOP-REF ID-REF="{ids}{param["dop"]}"/>'
        else:
            content = f'<DOP-SNREF SHORT-NAME="{param["dop"]}"/>'
        text += xml("PARAM", param["name"], content, f' xsi:type="{param["type"]}"')
    return f"<PARAMS>{text}</PARAMS>"


def xml_of_dop(dop, ids):
    if dop["tag"] == "STRUCTURE":
        return xml("STRUCTURE", dop["name"], xml_of_params(dop["params"], ids), f' ID="{ids}{dop["name"]}"')
    scales = "".join(f"<COMPU-SCALE><LOWER-LIMIT>{scale}</LOWER-LIMIT></COMPU-SCALE>" for scale in dop["scales"])
    method = ("<COMPU-METHOD><CATEGORY>TEXTTABLE</CATEGORY><COMPU-INTERNAL-TO-PHYS>"
              f"<COMPU-SCALES>{scales}</COMPU-SCALES></COMPU-INTERNAL-TO-PHYS></COMPU-METHOD>")
    return xml("DATA-OBJECT-PROP", dop["name"], method + coded_type(dop["bits"]), f' ID="{ids}{dop["name"]}"')


def xml_of_layer(layer, prefix):
    # A reference by ID refers to a DOP of the own layer, so it is looked for only there.
    ids = f"{prefix}.{layer['name']}."
    comms = requests = responses = ""
    for number, comm in enumerate(layer["diag-comms"]):
        semantic = f' SEMANTIC="{comm["semantic"]}"' if comm["semantic"] else ""
        content = ""
        if comm["tag"] == "DIAG-SERVICE":
            request = f"{ids}rq{number}"
            requests += xml("REQUEST", comm["request"]["name"], xml_of_params(comm["request"]["params"], ids),
                            f' ID="{request}"')
            content = f'<REQUEST-REF ID-REF="{request}"/>'
            links = ""
            for place, response in enumerate(comm["responses"]):
                responses += xml("POS-RESPONSE", response["name"], xml_of_params(response["params"], ids),
                                 f' ID="{ids}pr{number}.{place}"')
                links += f'<POS-RESPONSE-REF ID-REF="{ids}pr{number}.{place}"/>'
            content += wrapped("POS-RESPONSE-REFS", links)
        comms += xml(comm["tag"], comm["name"], content, f' ID="{ids}c{number}"{semantic}')
    props = "".join(xml_of_dop(dop, ids) for dop in layer["dops"] if dop["tag"] != "STRUCTURE")
    structures = "".join(xml_of_dop(dop, ids) for dop in layer["dops"] if dop["tag"] == "STRUCTURE")
    negatives = "".join(xml("GLOBAL-NEG-RESPONSE", entry["name"], xml_of_params(entry["params"], ids),
                            f' ID="{ids}g{number}"') for number, entry in enumerate(layer["global-neg-responses"]))
    variables = "".join(xml("DIAG-VARIABLE", entry["name"], wrapped("LONG-NAME", entry["long"]),
                            f' ID="{ids}v{number}"') for number, entry in enumerate(layer["diag-variables"]))
    comparams = ""
    for name, protocol, value in layer["comparams"]:
        snref = f'<PROTOCOL-SNREF SHORT-NAME="{protocol}"/>' if protocol else ""
        comparams += f'<COMPARAM-REF ID-REF="{prefix}.{name}"><VALUE>{value}</VALUE>{snref}</COMPARAM-REF>'
    parents = ""
    for name, excluded in layer["parents"]:
        out = "".join(f'<NOT-INHERITED-DIAG-COMM><DIAG-COMM-SNREF SHORT-NAME="{found}"/></NOT-INHERITED-DIAG-COMM>'
                      for found in excluded)
        parents += f'<PARENT-REF ID-REF="{prefix}.{name}">{wrapped("NOT-INHERITED-DIAG-COMMS", out)}</PARENT-REF>'
    content = wrapped("DIAG-DATA-DICTIONARY-SPEC",
                      wrapped("DATA-OBJECT-PROPS", props) + wrapped("STRUCTURES", structures))
    content += wrapped("DIAG-COMMS", comms) + wrapped("REQUESTS", requests) + wrapped("POS-RESPONSES", responses)
    content += wrapped("GLOBAL-NEG-RESPONSES", negatives) + wrapped("COMPARAM-REFS", comparams)
    content += wrapped("DIAG-VARIABLES", variables) + wrapped("PARENT-REFS", parents)
    return xml(layer["kind"], layer["name"], content, f' ID="{prefix}.{layer["name"]}"')


def document(layers, prefix):
    text = f'<?xml version="1.0"?><ODX MODEL-VERSION="2.2.0" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">'
    specs = "".join(xml("COMPARAM", name, "", f' ID="{prefix}.{name}"') for name in COMPARAMS)
    text += xml("COMPARAM-SPEC", "Spec", f"<COMPARAMS>{specs}</COMPARAMS>", f' ID="{prefix}.Spec"')
    content = "".join(wrapped(kind + "S", "".join(xml_of_layer(layer, prefix) for layer in layers
                                                 if layer["kind"] == kind)) for kind in KINDS)
    return text + xml("DIAG-LAYER-CONTAINER", "C", content, f' ID="{prefix}.C"') + "</ODX>"


# What each layer sees: entries are (owner, element).


class Database:
    def __init__(self, layers):
        self.layers = layers
        self.by_name = {layer["name"]: layer for layer in layers}

    def view(self, layer, view):
        if view == "protocols":
            return self.protocols(layer)
        if view == "comparams":
            return self.comparams(layer)
        passes = VARIABLE_PASSES if view == "diag-variables" else PASSES
        entries = [(layer, entry) for entry in layer[view]]
        for kinds in passes[layer["kind"]]:
            for name, excluded in layer["parents"]:
                parent = self.by_name[name]
                if parent["kind"] not in kinds:
                    continue
                for owner, entry in self.view(parent, view):
                    is_out = view == "diag-comms" and entry["name"] in excluded
                    if not is_out and all(entry["name"] != known["name"] for _, known in entries):
                        entries.append((owner, entry))
        return entries

    def protocols(self, layer):
        found = []
        for name, _ in layer["parents"] if layer["kind"] == "BASE-VARIANT" else ():
            parent = self.by_name[name]
            if parent["kind"] == "PROTOCOL":
                found.append((parent, {"tag": "PROTOCOL", "name": name}))
            if parent["kind"] == "FUNCTIONAL-GROUP":
                found += [(self.by_name[other], {"tag": "PROTOCOL", "name": other}) for other, _ in parent["parents"]
                          if self.by_name[other]["kind"] == "PROTOCOL"]
        return found

    def comparams(self, layer):
        found = [(layer, {"tag": "COMPARAM-REF", "name": name, "protocol": protocol, "value": value})
                 for name, protocol, value in layer["comparams"]]
        for kinds in PASSES[layer["kind"]]:
            for name, _ in layer["parents"]:
                if self.by_name[name]["kind"] in kinds:
                    found += self.comparams(self.by_name[name])
        firsts = {}
        for owner, entry in found:
            firsts.setdefault((entry["name"], entry["protocol"]), (owner, entry))
        return list(firsts.values())

    # Trees: a part is (name or None, tree), a text, or None for a reference without a target.

    def tree(self, entry, owner, seen_from):
        tag = entry["tag"]
        parts = {}
        if tag in ("DIAG-SERVICE", "SINGLE-ECU-JOB"):
            if entry["semantic"]:
                parts["@SEMANTIC"] = entry["semantic"]
            if tag == "DIAG-SERVICE":
                parts["REQUEST"] = (entry["request"]["name"], self.tree(entry["request"], owner, seen_from))
                for response in entry["responses"]:
                    parts[f"POS-RESPONSE[{response['name']}]"] = (
                        response["name"], self.tree(response, owner, seen_from))
        elif tag == "DATA-OBJECT-PROP":
            for number, scale in enumerate(entry["scales"], 1):
                parts[f"COMPU-METHOD/COMPU-SCALE[{number}]"] = (None, ("", {"LOWER-LIMIT": scale}))
            parts["DIAG-CODED-TYPE"] = (None, ("", {"BIT-LENGTH": entry["bits"]}))
        elif tag == "DIAG-VARIABLE":
            if entry["long"]:
                parts["LONG-NAME"] = entry["long"]
        elif tag == "COMPARAM-REF":
            parts["VALUE"] = entry["value"]
        before = None
        for param in entry.get("params", ()):
            content = self.param(param, owner, seen_from)
            if before is not None:  # no PARAM has a BYTE-POSITION, so each starts where the previous one ends
                content["@AFTER"] = before
            before = param["name"]
            parts[f"PARAM[{param['name']}]"] = (param["name"], ("PARAM", content))
        return (tag, parts)

    def param(self, param, owner, seen_from):
        parts = {"@xsi:type": param["type"]}
        if param["type"] == "CODED-CONST":
            parts["CODED-VALUE"] = param["value"]
            parts["DIAG-CODED-TYPE"] = (None, ("", {"BIT-LENGTH": "8"}))
            return parts
        if param["how"] == "id":
            found = [(owner, dop) for dop in owner["dops"] if dop["name"] == param["dop"]]
        else:
            found = [(layer, dop) for layer, dop in self.view(seen_from, "dops") if dop["name"] == param["dop"]]
        if found:
            parts["DOP"] = (param["dop"], self.tree(found[0][1], found[0][0], seen_from))
        else:
            parts["DOP"] = ("?" + (param["dop"] if param["how"] == "name" else ""), None)
        return parts


# Comparing.


def text_of(part):
    if isinstance(part, str):
        return part
    name, tree = part
    if name is not None:
        return name
    return " ".join(text_of(inner) for inner in tree[1].values())


def differences(old, new, path):
    """(path, old, new) of everything that differs between two trees."""
    if old[0] != new[0]:
        return [(path, old[0], new[0])]
    found = []
    old, new = old[1], new[1]
    for key in {**new, **old}:
        place = f"{path}/{key}" if path else key
        if key not in old:
            found.append((place, None, told(new[key])))
        elif key not in new:
            found.append((place, told(old[key]), None))
        elif isinstance(new[key], str) or isinstance(old[key], str):
            if new[key] != old[key]:
                found.append((place, old[key], new[key]))
        else:
            found += reference_differences(old[key], new[key], place)
    return found


def told(part):
    """An added or removed part; a reference without a target is shown by the name in it, or without one."""
    text = text_of(part)
    return (text[1:] or "DOP") if text.startswith("?") else text


def reference_differences(old, new, place):
    if old[0] == new[0]:
        return [] if old[1] is None else differences(old[1], new[1], place)
    if old[1] is None and new[1] is None:
        return [(place, old[0][1:], new[0][1:])]
    return [(place, None if old[1] is None else old[0], None if new[1] is None else new[0])]


class Comparison:
    def __init__(self, old, new):
        self.old, self.new = Database(old), Database(new)
        self.renamed = {}  # old name by new name
        by_name = {layer["name"]: layer for layer in old}
        self.partner = {}  # old layer by the new one's name
        for layer in new:
            other = by_name.get(layer["name"])
            if other is not None and other["kind"] == layer["kind"]:
                self.partner[layer["name"]] = other
        self.find_renamed()

    def find_renamed(self):
        for kind in ("ECU-SHARED-DATA", "PROTOCOL", "FUNCTIONAL-GROUP", "BASE-VARIANT", "ECU-VARIANT"):
            for layer in self.new.layers:
                if layer["kind"] != kind or layer["name"] in self.partner:
                    continue
                for other in self.old.layers:
                    is_free = all(other is not taken for taken in self.partner.values())
                    if other["kind"] == kind and is_free and self.is_same(other, layer):
                        self.partner[layer["name"]] = other
                        self.renamed[layer["name"]] = other["name"]
                        break

    def is_same(self, old, new):
        self.partner[new["name"]] = old
        same = not any(self.changes(view, old, new) for view in VIEWS)
        del self.partner[new["name"]]
        return same

    def is_same_owner(self, old, new):
        return self.partner.get(new["name"]) is old

    def changes(self, view, old_layer, new_layer):
        def key(entry):
            return (entry[1]["name"], entry[1].get("protocol", ""))

        def tree(database, entry, layer):
            return database.tree(entry[1], entry[0], layer)

        old = self.old.view(old_layer, view)
        new = self.new.view(new_layer, view)
        pairs, left = [], list(old)
        for entry in new:
            match = next((other for other in left if key(other) == key(entry)), None)
            if match is not None:
                left.remove(match)
            pairs.append([match, entry])
        if view not in ("protocols", "comparams"):
            for pair in pairs:
                if pair[0] is None:
                    wanted = tree(self.new, pair[1], new_layer)
                    same = next((other for other in left if tree(self.old, other, old_layer) == wanted), None)
                    if same is not None:
                        left.remove(same)
                        pair[0] = same
        found = []
        for match, entry in pairs:
            name = entry[1]["name"]
            if match is None:
                found.append((name, "added", None, []))
            elif key(match) != key(entry):
                found.append((name, "renamed", match[1]["name"], []))
            elif view != "protocols":
                details = differences(tree(self.old, match, old_layer), tree(self.new, entry, new_layer), "")
                if details:
                    found.append((name, "changed", None, sorted(details, key=str)))
                elif not self.is_same_owner(match[0], entry[0]):
                    found.append((name, "moved", None, []))
        return found + [(entry[1]["name"], "removed", None, []) for entry in left]

    def answer(self):
        layers = []
        for layer in self.new.layers:
            other = self.partner.get(layer["name"])
            if other is None:
                layers.append((layer["name"], layer["kind"], "added", None, []))
            elif layer["name"] in self.renamed:
                layers.append((layer["name"], layer["kind"], "renamed", other["name"], []))
            else:
                views = [(view, self.changes(view, other, layer)) for view in VIEWS]
                views = [(view, changes) for view, changes in views if changes]
                if views:
                    layers.append((layer["name"], layer["kind"], "changed", None, views))
        taken = [id(layer) for layer in self.partner.values()]
        layers += [(layer["name"], layer["kind"], "removed", None, []) for layer in self.old.layers
                   if id(layer) not in taken]
        return layers


def given(answer):
    """The program's answer in the form of `Comparison.answer`."""
    return [
        (layer["layer"], layer["kind"], layer["change"], layer["was"],
         [(view["view"],
           [(change["short_name"], change["change"], change["was"],
             sorted(((detail["path"], detail["old"], detail["new"]) for detail in change["details"]), key=str))
            for change in view["changes"]])
          for view in layer["views"]])
        for layer in answer["layers"]
    ]


class RandomDatabases(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def diff(self, old, new):
        paths = [self.folder / name for name in ("old.odx", "new.odx")]
        for path, layers, prefix in zip(paths, (old, new), ("a", "b")):
            path.write_text(document(layers, prefix), encoding="utf-8")
        done = run("diff", "--json", "--quiet", *paths)
        answer = json.loads(done.stdout)
        self.assertEqual(done.returncode, 1 if answer["layers"] else 0)
        self.assertEqual(answer["equal"], not answer["layers"])
        return given(answer)

    def test_answers_are_those_of_a_plain_comparison(self):
        kinds = set()
        for seed in range(DATABASES):
            with self.subTest(seed=seed):
                maker = Maker(seed)
                old = maker.database()
                new = maker.changed(old)
                expected = Comparison(old, new).answer()
                self.assertEqual(self.diff(old, new), expected)
                kinds |= {layer[2] for layer in expected}
                kinds |= {change[1] for layer in expected for _, changes in layer[4] for change in changes}
        self.assertEqual(kinds, {"added", "removed", "renamed", "changed", "moved"})

    def test_sides_exchanged_give_the_mirrored_answer(self):
        for seed in range(0, DATABASES, 5):
            with self.subTest(seed=seed):
                maker = Maker(seed)
                old = maker.database()
                new = maker.changed(old)
                self.assertEqual(self.diff(new, old), Comparison(new, old).answer())

    def test_a_database_is_equal_to_itself_under_other_ids(self):
        for seed in range(0, DATABASES, 10):
            with self.subTest(seed=seed):
                database = Maker(seed).database()
                self.assertEqual(self.diff(database, database), [])


if __name__ == "__main__":
    main(__doc__)
