#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Holds tables for spreadsheets (--csv) against RFC 4180 and against the answers in JSON.

    csv_tests.py PROGRAM...
"""

import csv
import io
import json
import subprocess
import unittest

from program import DATA, PROGRAM, SAMPLE, main, run

ENTRY = ["short_name", "element", "id", "layer", "type"]


def call(*arguments):
    """The bytes of standard output: text would hide line ends."""
    done = subprocess.run([*PROGRAM, *map(str, arguments)], cwd=DATA, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    return done.returncode, done.stdout


def table(*arguments):
    """The header and the rows, each a dictionary."""
    text = call(*arguments, "--csv", "--quiet")[1].decode("utf-8")
    header, *rows = csv.reader(io.StringIO(text, newline=""), strict=True)
    return header, [dict(zip(header, row, strict=True)) for row in rows]


def answer(*arguments):
    return json.loads(run(*arguments, "--json", "--quiet").stdout)


def cells(members):
    """What a table says of these members of an object; null is an empty cell."""
    return {name: "" if value is None else str(value) for name, value in members.items()}


def entry(members):
    return cells({name: members.get(name) for name in ENTRY})


class Tables(unittest.TestCase):
    def test_lines_end_with_cr_lf_and_nothing_else_is_in_a_line_end(self):
        for arguments in (["layers", "find.odx-d"], ["find", "kettle", "find.odx-d"], ["check", "faulty.odx-d"]):
            data = call(*arguments, "--csv", "--quiet")[1]
            self.assertTrue(data.endswith(b"\r\n"))
            self.assertEqual(data.count(b"\r"), data.count(b"\n"))
            self.assertEqual(data.count(b"\r\n"), data.count(b"\n"))

    def test_cells_are_quoted_where_they_must_be_and_nowhere_else(self):
        data = call("find", "kettles", "find.odx-d", "--csv")[1].decode("utf-8")
        self.assertEqual(data.splitlines()[1],
                         'Find,DIAG-LAYER-CONTAINER,C.Find,,,long_name,"Kettles, ""all"" of them",find.odx-d,4')

    def test_a_value_that_looks_like_a_formula_stands_as_it_is(self):
        data = call("find", "no water", "find.odx-d", "--csv")[1].decode("utf-8")
        self.assertIn(",description,=no water,find.odx-d,19\r\n", data)

    def test_text_is_utf8(self):
        self.assertIn("Wasserhöhe".encode("utf-8"), call("find", "wasser", "find.odx-d", "--csv")[1])

    def test_a_header_stands_above_no_rows(self):
        self.assertEqual(call("find", "nothing like it", "find.odx-d", "--csv", "--quiet"),
                         (1, b"short_name,element,id,layer,type,matched,text,file,line\r\n"))
        self.assertEqual(call("check", SAMPLE, "--csv"), (0, b"file,line,column,severity,code,message\r\n"))

    def test_layers(self):
        for file in (SAMPLE, "doors.odx-d"):
            header, rows = table("layers", file)
            self.assertEqual(header, ["short_name", "kind", "id", "container", "parents", "unresolved_parents"])
            expected = []
            for layer in answer("layers", file)["layers"]:
                parents = layer.pop("parents")
                names = [parent["short_name"] for parent in parents]
                unresolved = [parent["short_name"] for parent in parents if not parent["resolved"]]
                expected.append(cells(layer) | {"parents": "/".join(names), "unresolved_parents": "/".join(unresolved)})
            self.assertEqual(rows, expected)
        self.assertTrue(any(row["unresolved_parents"] for row in rows))

    def test_view_of_what_is_inherited(self):
        for kind in ("diag-comms", "diag-variables", "global-neg-responses", "dops"):
            call_of_view = ("view", kind, SAMPLE, "--layer", "FrontWiperRainLight")
            header, rows = table(*call_of_view)
            self.assertEqual(header, [*ENTRY, "via", "file", "line"])
            expected = [entry(one) | {"via": "/".join(one["via"])} | cells({"file": one["file"], "line": one["line"]})
                        for one in answer(*call_of_view)["entries"]]
            self.assertEqual(rows, expected)
            self.assertTrue(any("/" in row["via"] for row in rows))

    def test_other_views(self):
        selections = (
            ["protocols", "--layer", "FrontWiper"],
            ["in-params", "--layer", "FrontWiper", "--diag-comm", "ReadWiperStatus"],
            ["out-params", "--layer", "FrontWiper", "--diag-comm", "ReadWiperStatus"],
            ["idents", "--flash", "WiperFlash"],
            ["sessions", "--flash", "WiperFlash"],
        )
        for kind, *selection in selections:
            header, rows = table("view", kind, SAMPLE, *selection)
            self.assertEqual(header, ENTRY)
            self.assertEqual(rows, [entry(one) for one in answer("view", kind, SAMPLE, *selection)["entries"]])
            self.assertNotEqual(rows, [])

    def test_check(self):
        files = ("faulty.odx-d", "warned.odx-d")
        header, rows = table("check", *files)
        self.assertEqual(header, ["file", "line", "column", "severity", "code", "message"])
        self.assertEqual(rows, [cells(one) for one in answer("check", *files)["diagnostics"]])
        self.assertEqual(call("check", *files, "--csv")[0], 1)

    def test_check_of_a_file_that_is_refused(self):
        status, data = call("check", "not-xml.odx-d", "--csv", "--quiet")
        self.assertEqual((status, len(data.splitlines())), (3, 2))

    def test_uses(self):
        for question in (["FrontWiper.TroubleCode", SAMPLE], ["PartNumber", SAMPLE, "--kind", "PARAM"]):
            header, rows = table("uses", *question)
            self.assertEqual(header, [*ENTRY, "tag", "file", "line", "column", "layers"])
            expected = [entry(one["from"]) | cells({name: one[name] for name in ("tag", "file", "line", "column")})
                        | {"layers": "/".join(one["layers"] or [])} for one in answer("uses", *question)["references"]]
            self.assertEqual(rows, expected)
            self.assertTrue(any(row["layers"] for row in rows))

    def test_unused(self):
        header, rows = table("uses", "--unused", "uses.odx-d")
        self.assertEqual(header, ENTRY)
        self.assertEqual(rows, [entry(one) for one in answer("uses", "--unused", "uses.odx-d")["unused"]])
        self.assertNotEqual(rows, [])

    def test_find(self):
        for pattern in ("wiper", "0x"):
            header, rows = table("find", pattern, SAMPLE)
            rest = ["matched", "text", "file", "line"]
            self.assertEqual(header, [*ENTRY, *rest])
            self.assertEqual(rows, [entry(one) | cells({name: one[name] for name in rest})
                                    for one in answer("find", pattern, SAMPLE)["matches"]])
            self.assertNotEqual(rows, [])

    def test_other_commands_have_no_tables(self):
        for command in ("info", "graph", "explain", "resolve", "traverse", "oem", "enums", "diff"):
            done = run(command, "--csv")
            self.assertEqual((done.returncode, done.stdout), (2, ""))
            self.assertIn("unknown option '--csv'", done.stderr)


if __name__ == "__main__":
    main(__doc__)
