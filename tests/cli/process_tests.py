#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Tests of diagkit that need more than a call and its output: help, long lists, full disks, folders, terminals.

    process_tests.py PROGRAM...
"""

import json
import os
import pathlib
import re
import signal
import subprocess
import tempfile
import unittest

from program import DATA, IS_POSIX, PROGRAM, is_for_windows, main, run


class HelpAndVersion(unittest.TestCase):
    def test_version_of_program_and_of_commands(self):
        for arguments in (["--version"], ["-V"], ["info", "--version"], ["--version", "info"], ["view", "-V"]):
            done = run(*arguments)
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            self.assertRegex(done.stdout, r"\Adiagkit \d+\.\d+\.\d+\n\Z")

    def test_help_names_every_command(self):
        done = run("--help")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertRegex(done.stdout, r"(?m)^Commands:$")
        for command in ("info", "layers", "view", "resolve", "traverse", "oem", "enums", "check", "diff"):
            self.assertRegex(done.stdout, rf"(?m)^ +{command} ")

    def test_help_of_a_command_names_its_options(self):
        for command in ("info", "layers", "view", "traverse", "check", "diff"):
            done = run(command, "--help")
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            for option in ("--json", "--strict", "--quiet", "--help", "--version"):
                self.assertIn(option, done.stdout)

    def test_help_is_at_most_80_columns_wide(self):
        commands = re.findall(r"(?m)^  ([a-z]+)  ", run("--help").stdout)
        self.assertGreaterEqual(len(commands), 12)
        for call in ([], *([command] for command in commands)):
            for line in run(*call, "--help").stdout.splitlines():
                self.assertLessEqual(len(line), 80, line)

    def test_help_names_what_is_required(self):
        self.assertIn("\nUsage: diagkit traverse FILE... --layer L [OPTIONS]\n", run("traverse", "--help").stdout)
        self.assertIn("\nUsage: diagkit enums [TABLE] [LITERAL] [OPTIONS]\n", run("enums", "--help").stdout)

    def test_help_is_a_word_as_well(self):
        self.assertEqual(run("help").stdout, run("--help").stdout)
        for arguments in (["help", "view"], ["--quiet", "help", "view"], ["--help", "view"]):
            done = run(*arguments)
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, run("view", "--help").stdout, ""))

    def test_help_knows_no_other_words_than_commands(self):
        self.assertEqual(run("help", "veiw").returncode, 2)
        self.assertIn("unknown command 'veiw'", run("help", "veiw").stderr)

    def test_options_stand_before_the_command_as_well(self):
        sample = str(DATA / "signals.odx-d")
        after = run("view", "dops", sample, "--layer", "LampLeft", "--json", "--quiet")
        self.assertEqual(after.returncode, 0)
        for arguments in (
            ["--quiet", "--json", "--layer", "LampLeft", "view", "dops", sample],
            ["--layer=LampLeft", "view", "--json", "dops", "--quiet", sample],
            ["--max-depth", "50", "--quiet", "view", "dops", "--layer", "LampLeft", "--json", sample],
        ):
            before = run(*arguments)
            self.assertEqual((before.returncode, before.stdout, before.stderr), (0, after.stdout, ""))

    def test_a_value_before_the_command_may_be_called_like_one(self):
        done = run("--layer", "view", "layers", str(DATA / "signals.odx-d"))
        self.assertEqual(done.returncode, 2)
        self.assertIn("unknown option '--layer'", done.stderr)

    def test_help_of_a_command_tells_the_limits_with_their_defaults(self):
        limits = (
            ("file-size", "SIZE", "4G"),
            ("members", "N", "100000"),
            ("member-size", "SIZE", "1G"),
            ("package-size", "SIZE", "4G"),
            ("ratio", "N", "500"),
            ("elements", "N", "50000000"),
            ("depth", "N", "1000"),
            ("attributes", "N", "1000"),
            ("tag-size", "SIZE", "8M"),
            ("text-size", "SIZE", "256M"),
        )
        for command in ("info", "layers", "view", "resolve", "traverse", "oem", "check", "diff"):
            text = " ".join(run(command, "--help").stdout.split())
            for name, kind, default in limits:
                self.assertRegex(text, rf"--max-{name} {kind} [^(]*\(default: {default}\)")
        self.assertNotIn("--max-file-size", run("enums", "--help").stdout)

    def test_counts_are_whole_numbers_without_a_sign(self):
        calls = (["info", "gates.odx-d", "--max-depth"], ["traverse", "gates.odx-d", "--layer", "Door", "--max-visits"])
        for call in calls:
            for number in ("-1", "99999999999999999999999", "1e3", "+5", "5x"):
                done = run(*call, number)
                self.assertEqual((done.returncode, done.stdout), (2, ""), (call, number))
                self.assertIn(call[-1], done.stderr)

    def test_help_says_which_selection_belongs_to_which_kind(self):
        kinds = {
            "view": {
                "diag-comms": "--layer L",
                "diag-variables": "--layer L",
                "global-neg-responses": "--layer L",
                "dops": "--layer L",
                "protocols": "--container C, or --layer of a BASE-VARIANT",
                "in-params": "--layer L --diag-comm D, or --job J",
                "out-params": "--layer L --diag-comm D, or --job J; --range N",
                "idents": "--flash F",
                "sessions": "--flash F",
            },
            "resolve": {
                "dop": "--layer L",
                "data-object-prop": "--layer L",
                "diag-comm": "--layer L",
                "diag-variable": "--layer L",
                "protocol": "--container C",
                "ident": "--flash F",
                "session": "--flash F",
                "in-param": "--layer L --diag-comm D, or --job J",
                "out-param": "--layer L --diag-comm D, or --layer L --job J; --range N",
            },
        }
        for command, selections in kinds.items():
            text = run(command, "--help").stdout
            for kind, selection in selections.items():
                self.assertRegex(text, rf"(?m)^  {kind} +{re.escape(selection)}$")

    def test_help_says_what_the_ranges_take(self):
        for command in ("view", "resolve"):
            lines = run(command, "--help").stdout.splitlines()
            for line in (
                "  0  positive and negative responses",
                "  1  request and negative responses",
                "  2  nothing",
                "  3  request",
                "  4  positive responses",
                "  5  request, positive and negative responses (default)",
            ):
                self.assertIn(line, lines)


class Enumerations(unittest.TestCase):
    # The literals of each table; their values are their places, from 0.
    TABLES = (
        ("CommRelationValueType", "CURRENT STORED STATIC SUBSTITUTED"),
        ("Addressing", "FUNCTIONAL PHYSICAL FUNCTIONAL-OR-PHYSICAL"),
        ("PhysicalDataType", "A_INT32 A_UINT32 A_FLOAT32 A_FLOAT64 A_UNICODE2STRING A_BYTEFIELD"),
        ("Direction", "DOWNLOAD UPLOAD"),
        ("IdentValueType", "A_UINT32 A_BYTEFIELD A_ASCIISTRING"),
        ("ValidType", "VALID NOT-VALID NOT-DEFINED NOT-AVAILABLE"),
        ("Termination", "END-OF-PDU ZERO HEX-FF"),
        ("RowFragment", "KEY STRUCT KEY-AND-STRUCT"),
        ("DataformatSelection", "INTEL-HEX MOTOROLA-S BINARY"),
        (
            "DataType",
            "A_INT32 A_UINT32 A_FLOAT32 A_FLOAT64 A_ASCIISTRING A_UTF8STRING A_UNICODE2STRING A_BYTEFIELD",
        ),
        (
            "PhysicalLinkType",
            "ISO_11898_2_DWCAN ISO_11898_3_DWFTCAN ISO_11992_1_DWCAN ISO_9141_2_UART ISO_14230_1_UART ISO_11898_RAW "
            "SAE_J1850_VPW SAE_J1850_PWM SAE_J2610_UART SAE_J1708_UART SAE_J1939_11_DWCAN GMW_3089_SWCAN XDE_5024_UART "
            "CCD_UART",
        ),
        ("UnitGroupCategory", "COUNTRY EQUIV-UNITS"),
        ("IntervalType", "OPEN CLOSED INFINITE"),
        ("ProjIdentType", "DOC PART-NO TOOL"),
        (
            "DiagClassType",
            "STARTCOMM STOPCOMM VARIANTIDENTIFICATION READ-DYN-DEFINED-MESSAGE DYN-DEF-MESSAGE CLEAR-DYN-DEF-MESSAGE",
        ),
        ("StandardisationLevel", "STANDARD OEM-SPECIFIC OPTIONAL"),
        ("Radix", "HEX DEC BIN OCT"),
        ("PinType", "HI LOW K L TX RX PLUS MINUS SINGLE"),
        ("EncryptCompressMethodType", "A_UINT32 A_BYTEFIELD"),
        ("Encoding", "BCD-P BCD-UP 1C 2C SM UTF-8 UCS-2 ISO-8859-1 ISO-8859-2 WINDOWS-1252 NONE"),
        ("CompuCategory", "IDENTICAL LINEAR SCALE-LINEAR TEXTTABLE COMPUCODE TAB-INTP RAT-FUNC SCALE-RAT-FUNC"),
        ("Doctype", "FLASH CONTAINER LAYER MULTIPLE-ECU-JOB-SPEC COMPARAM-SPEC"),
        ("SessionSubElemType", "A_UINT32 A_BYTEFIELD A_ASCIISTRING"),
    )

    def test_without_arguments_all_tables_are_given_in_their_order(self):
        done = run("enums", "--json")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        expected = [
            {
                "name": name,
                "literals": [{"literal": literal, "value": value} for value, literal in enumerate(literals.split())],
            }
            for name, literals in self.TABLES
        ]
        self.assertEqual(len(expected), 23)
        self.assertEqual(sum(len(table["literals"]) for table in expected), 112)
        self.assertEqual(json.loads(done.stdout), {"tables": expected})

    def test_the_text_has_a_line_for_every_table_and_literal(self):
        done = run("enums")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        lines = [line.split() for line in done.stdout.splitlines()]
        expected = []
        for name, literals in self.TABLES:
            expected.append([name])
            expected += [[str(value), literal] for value, literal in enumerate(literals.split())]
        self.assertEqual(lines, expected)


class Writing(unittest.TestCase):
    # Every command that answers, in every format.
    CALLS = (
        ["--version"],
        ["layers", "--help"],
        ["info", "gates.odx-d"],
        ["layers", "gates.odx-d"],
        ["view", "diag-comms", "gates.odx-d", "--layer", "Door"],
        ["resolve", "dop", "Volt", "signals.odx-d", "--layer", "LampLeft"],
        ["traverse", "gates.odx-d", "--layer", "Door"],
        ["oem", "gates.odx-d"],
        ["oem", "--each", "gates.odx-d"],
        ["enums"],
        ["enums", "Radix"],
        ["check", "gates.odx-d"],
        ["check", "gates.odx-d", "--format", "json"],
        ["check", "gates.odx-d", "--format", "sarif"],
        ["uses", "Amp", "signals.odx-d"],
        ["uses", "--unused", "uses.odx-d"],
        ["diff", "gates.odx-d", "gates_copy.odx-d"],
    )

    def answering_calls(self):
        """The calls with output, and those as JSON; with --quiet, which must not silence errors of writing."""
        for call in self.CALLS:
            if call[-1].startswith("--"):
                yield call
                continue
            yield [*call, "--quiet"]
            if "--format" not in call:
                yield [*call, "--json", "--quiet"]

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_full_disk_is_status_3_with_a_message(self):
        for arguments in self.answering_calls():
            with self.subTest(arguments), open("/dev/full", "w", encoding="utf-8") as full:
                self.assertNotEqual(run(*arguments).stdout, "")
                done = run(*arguments, stdout=full)
                self.assertEqual(done.returncode, 3)
                self.assertRegex(done.stderr, r"\Adiagkit: standard output: .+\n\Z")

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_an_answer_that_nothing_is_there_needs_room_too(self):
        with open("/dev/full", "w", encoding="utf-8") as full:
            done = run("resolve", "dop", "Gone", "signals.odx-d", "--layer", "LampLeft", "--json", stdout=full)
        self.assertEqual(done.returncode, 3)
        self.assertRegex(done.stderr, r"(?m)^diagkit: standard output: .+$")

    @unittest.skipUnless(IS_POSIX, "needs a stream that can be closed")
    def test_closed_standard_output_is_status_3_with_a_message(self):
        for arguments in self.answering_calls():
            with self.subTest(arguments):
                done = run(*arguments, preexec_fn=lambda: os.close(1))
                self.assertEqual(done.returncode, 3)
                self.assertRegex(done.stderr, r"\Adiagkit: standard output: .+\n\Z")

    @unittest.skipUnless(IS_POSIX, "needs pipes whose reader is gone")
    def test_a_reader_that_is_gone_ends_the_call(self):
        for keeps_signal in (True, False):
            outer, inner = os.pipe()
            os.close(outer)
            call = ("traverse", "--json", "gates.odx-d", "--layer", "Door")
            done = run(*call, stdout=inner, restore_signals=keeps_signal)
            os.close(inner)
            if keeps_signal and not is_for_windows():  # as for every program in a pipeline; Windows has no signal
                self.assertEqual((done.returncode, done.stderr), (-signal.SIGPIPE, ""))
            else:  # also where the signal is ignored, as the interpreter of these tests does
                self.assertEqual(done.returncode, 3)
                self.assertRegex(done.stderr, r"\Adiagkit: standard output: .+\n\Z")

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_standard_error_that_cannot_be_written_changes_no_answer(self):
        expected = run("layers", "--json", "doors.odx-d")
        self.assertNotEqual(expected.stderr, "")
        with open("/dev/full", "w", encoding="utf-8") as full:
            done = subprocess.run([*PROGRAM, "layers", "--json", "doors.odx-d"], cwd=DATA, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=full, encoding="utf-8")
        self.assertEqual((done.returncode, done.stdout), (expected.returncode, expected.stdout))

    def test_a_pipe_gets_no_colour_and_no_progress(self):
        done = run("layers", "gates.odx-d")
        self.assertNotIn("\x1b", done.stdout + done.stderr)


class Steering(unittest.TestCase):
    """Characters that control a terminal or change the direction of text."""

    TURNING = "\u061c\u200e\u200f\u202a\u202b\u202c\u202d\u202e\u2066\u2067\u2068\u2069"
    CONTROLS = "\x1b\x7f\x80\x85\x9b\x9f"
    SEPARATORS = "\u2028\u2029"
    ALL = CONTROLS + SEPARATORS + TURNING

    def ask_for(self, name):
        """The raw name in a message that nothing of the name is there, and the whole message."""
        done = run("resolve", "dop", name, "signals.odx-d", "--layer", "LampLeft", "--json", "--quiet")
        self.assertEqual(done.returncode, 1)
        return re.search(r'"name": "(.*)"', done.stdout)[1], json.loads(done.stdout)

    def test_messages_about_the_call_replace_them(self):
        calls = (
            ["view", "out-params", "x", "--range"],
            ["check", "x", "--format"],
            ["layers", "x", "--max-depth"],
            ["layers", "x", "--max-file-size"],
            ["traverse", "x", "--layer", "L", "--max-visits"],
            ["view"],
            ["enums", "Radix", "HEX"],
            [],
        )
        for call in calls:
            with self.subTest(call):
                done = run(*call, f"7{self.ALL}m")
                self.assertEqual((done.returncode, done.stdout), (2, ""))
                self.assertIn("7" + "\ufffd" * len(self.ALL) + "m", done.stderr)
                self.assertFalse(set(self.ALL) & set(done.stderr))

    def test_text_answers_and_diagnostics_replace_them(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "layers.odx-d"
            path.write_text(
                '<ODX MODEL-VERSION="2.0.1"><DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME><PROTOCOLS><PROTOCOL '
                f'ID="P"><SHORT-NAME>P{self.TURNING}Q</SHORT-NAME></PROTOCOL></PROTOCOLS></DIAG-LAYER-CONTAINER></ODX>',
                encoding="utf-8",
            )
            for call in (["layers"], ["traverse", "--layer", "P"], ["check"], ["uses", "P"]):
                done = run(*call, path)
                written = done.stdout + done.stderr
                self.assertIn("P" + "\ufffd" * len(self.TURNING) + "Q", written)
                self.assertFalse(set(self.TURNING) & set(written))

    def test_json_escapes_them(self):
        raw, answer = self.ask_for(f"A{self.ALL}Z")
        self.assertEqual(raw, "A" + "".join(f"\\u{ord(character):04x}" for character in self.ALL) + "Z")
        self.assertEqual(answer["name"], f"A{self.ALL}Z")

    def test_json_writes_all_other_characters_as_they_are(self):
        name = "A\xa0\xad\xdf\u0430\u200d\u2027\u202f\u2030\u2065\u206a\u20ac\uffff\U0001f600Z"
        self.assertEqual(self.ask_for(name)[0], name)

    @unittest.skipUnless(IS_POSIX, "needs arguments of any bytes")
    def test_json_replaces_bytes_that_are_not_utf8(self):
        if is_for_windows():
            self.skipTest("arguments are UTF-16")
        # Lone and missing continuations, overlong forms, surrogates, values beyond Unicode.
        pieces = (b"\x80", b"\xbf\xbf", b"\xc3", b"\xe2\x82", b"\xe2\x28\xa1", b"\xf0\x9f\x98", b"\xf0\x28\x8c\xbc",
                  b"\xc0\xaf", b"\xc1\xbf", b"\xe0\x9f\x80", b"\xf0\x8f\xbf\xbf", b"\xed\xa0\x80", b"\xf4\x90\x80\x80",
                  b"\xf5\x80", b"\xff")
        for piece in pieces:
            for text in (piece, b"A" + piece + b"\xc3\xa4", piece + piece):
                self.assertEqual(self.ask_for(os.fsdecode(text))[0], text.decode("utf-8", "replace"))

    def test_json_escapes_what_json_itself_wants(self):
        raw, answer = self.ask_for('q"b\\t\t.')
        self.assertEqual((raw, answer["name"]), (r"q\"b\\t\t.", 'q"b\\t\t.'))


class OemOfEach(unittest.TestCase):
    def test_a_folder_stands_for_the_odx_files_in_it(self):
        databases = pathlib.Path(__file__).resolve().parents[1] / "tools" / "oem" / "databases"
        with tempfile.TemporaryDirectory() as folder:
            for name, content in {
                "b.odx-d": (databases / "Psa.odx-d").read_bytes(),
                "a.xml": b"<ODX>",
                "index.xml": b"<CATALOG/>",
                "c.PDX": b"PK\3\4",
                "notes.txt": b"not looked at",
            }.items():
                (pathlib.Path(folder) / name).write_bytes(content)
            done = run("oem", "--each", "--json", "--quiet", folder, databases / "Claas.odx-d")
        self.assertEqual((done.returncode, done.stderr), (3, ""))
        lines = [json.loads(line) for line in done.stdout.splitlines()]
        names = [pathlib.Path(line["file"]).name for line in lines]
        self.assertEqual(names, ["a.xml", "b.odx-d", "c.PDX", "Claas.odx-d"])
        self.assertEqual([line.get("manufacturer") for line in lines], [None, "Psa", None, "Claas"])
        self.assertEqual(["error" in line for line in lines], [True, False, True, False])

    def test_what_strict_does_not_pass_is_said_of_the_file(self):
        done = run("oem", "--each", "--strict", "doors.odx-d", "gates.odx-d")
        self.assertEqual(done.returncode, 3)
        self.assertRegex(done.stderr, r"(?m)^diagkit: doors\.odx-d: \d+ errors?, which --strict does not allow$")
        self.assertNotIn("diagkit: gates.odx-d", done.stderr)
        alone = run("oem", "--strict", "doors.odx-d")
        self.assertRegex(alone.stderr, r"(?m)^diagkit: \d+ errors?, which --strict does not allow$")

    def test_a_folder_without_odx_is_named(self):
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "notes.txt").write_text("no ODX", encoding="utf-8")
            reason = "the folder contains no ODX document or package"
            done = run("oem", "--each", folder, "--json", "--quiet")
            self.assertEqual((done.returncode, json.loads(done.stdout)), (3, {"file": folder, "error": reason}))
            beside = run("oem", "--each", folder, "gates.odx-d")
            self.assertEqual((beside.returncode, beside.stderr), (3, f"{folder}: error: {reason} [no-file]\n"))
            lines = [f"{folder}: not answered for: {reason}", "gates.odx-d: Unknown (36): no heuristic matches"]
            self.assertEqual(beside.stdout.splitlines(), lines)

    def each_in(self, documents):
        """The names of the databases in a folder of documents, each with the names of those that it refers to."""
        with tempfile.TemporaryDirectory() as folder:
            for name, references in documents.items():
                imports = "".join(f'<IMPORT-REF ID-REF="{target}.S"/>' for target in references)
                content = (
                    f'<ODX MODEL-VERSION="2.2.0"><DIAG-LAYER-CONTAINER ID="{name}"><SHORT-NAME>{name}</SHORT-NAME>'
                    f'<ECU-SHARED-DATAS><ECU-SHARED-DATA ID="{name}.S"><SHORT-NAME>S</SHORT-NAME>'
                    f"<IMPORT-REFS>{imports}</IMPORT-REFS></ECU-SHARED-DATA></ECU-SHARED-DATAS>"
                    f"</DIAG-LAYER-CONTAINER></ODX>"
                )
                content = "<ODX" if references == "broken" else content
                (pathlib.Path(folder) / f"{name}.odx-d").write_text(content, encoding="utf-8")
            done = run("oem", "--each", "--json", "--quiet", folder)
            return [json.loads(line)["file"].replace(folder, "F") for line in done.stdout.splitlines()]

    def test_documents_of_a_folder_that_refer_to_one_another_are_one_database(self):
        self.assertEqual(self.each_in({"A": "", "B": "A", "C": "B"}), ["F"])

    def test_those_that_do_not_are_databases_of_their_own(self):
        self.assertEqual(self.each_in({"A": "", "B": "", "C": "C"}), ["F/A.odx-d", "F/B.odx-d", "F/C.odx-d"])
        names = ["F/A.odx-d, F/C.odx-d", "F/B.odx-d", "F/D.odx-d, F/E.odx-d"]
        self.assertEqual(self.each_in({"A": "C", "B": "", "C": "", "D": "", "E": "D"}), names)

    def test_those_that_cannot_be_read_separate_no_others(self):
        self.assertEqual(self.each_in({"A": "", "B": "A", "Z": "broken"}), ["F", "F/Z.odx-d"])



class Folders(unittest.TestCase):
    def test_a_folder_is_the_files_in_it(self):
        names = ["gates.odx-d", "signals.odx-d"]
        with tempfile.TemporaryDirectory() as folder:
            for name in names:
                (pathlib.Path(folder) / name).write_bytes((DATA / name).read_bytes())
            (pathlib.Path(folder) / "notes.txt").write_text("no ODX", encoding="utf-8")
            for command in (["layers"], ["info"], ["check"], ["view", "dops", "--layer", "LampLeft"]):
                together = run(*command, folder, "--json", "--quiet")
                named = run(*command, *[f"{folder}/{name}" for name in names], "--json", "--quiet")
                self.assertEqual((together.returncode, together.stdout), (named.returncode, named.stdout))
                self.assertNotEqual(together.stdout, "")

    def test_a_folder_without_odx_cannot_be_read(self):
        with tempfile.TemporaryDirectory() as folder:
            done = run("layers", folder)
        reason = "error: the folder contains no ODX document or package [no-file]"
        self.assertEqual((done.returncode, done.stdout, done.stderr), (3, "", f"{folder}: {reason}\n"))


class SidesOfDiff(unittest.TestCase):
    def test_the_side_that_cannot_be_read_is_named(self):
        with tempfile.TemporaryDirectory() as folder:
            for sides, name in (([folder, "gates.odx-d"], "old"), (["gates.odx-d", folder], "new")):
                done = run("diff", *sides)
                self.assertEqual((done.returncode, done.stdout), (3, ""))
                self.assertIn(f"diagkit: the {name} database cannot be used\n", done.stderr)
                self.assertEqual(run("diff", *sides, "--quiet").stderr, "")

    def test_folders_stand_for_their_documents_and_packages(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ("gates.odx-d", "garage_old.odx-d"):
                (pathlib.Path(folder) / name).write_bytes((DATA / name).read_bytes())
            (pathlib.Path(folder) / "notes.txt").write_text("passed over", encoding="utf-8")
            done = run("diff", "--json", folder, "--quiet", folder)
            answer = json.loads(done.stdout)
            self.assertTrue(answer["equal"])
            self.assertEqual([pathlib.Path(file).name for file in answer["old"]], ["garage_old.odx-d", "gates.odx-d"])


@unittest.skipUnless(IS_POSIX, "needs pseudo terminals")
class Terminals(unittest.TestCase):
    def setUp(self):
        if is_for_windows():
            self.skipTest("Wine draws a console on the terminal itself")

    def run_on_terminal(self, *arguments, **environment):
        """The output of a call whose output streams are both the same terminal."""
        import pty

        outer, inner = pty.openpty()
        variables = {name: text for name, text in os.environ.items() if name != "NO_COLOR"}
        child = subprocess.Popen(
            [*PROGRAM, *arguments], cwd=DATA, stdout=inner, stderr=inner, env={**variables, **environment}
        )
        os.close(inner)
        written = b""
        try:
            while block := os.read(outer, 65536):
                written += block
        except OSError:  # the other end is closed
            pass
        os.close(outer)
        self.assertEqual(child.wait(), 0)
        return written.decode("utf-8")

    def test_headings_are_emphasised(self):
        self.assertIn("\x1b[1m1 layer in 1 container\x1b[0m", self.run_on_terminal("layers", "gates.odx-d"))

    def test_no_color_is_obeyed(self):
        self.assertNotIn("\x1b", self.run_on_terminal("layers", "gates.odx-d", NO_COLOR="1"))

    def test_a_long_check_shows_how_far_it_is(self):
        services = "".join(
            f'<DIAG-SERVICE ID="S{number}"><SHORT-NAME>S{number}</SHORT-NAME></DIAG-SERVICE>' for number in range(1000)
        )
        variants = "".join(
            f'<ECU-VARIANT ID="V{number}"><SHORT-NAME>V{number}</SHORT-NAME><PARENT-REFS>'
            '<PARENT-REF xsi:type="BASE-VARIANT-REF" ID-REF="B"/></PARENT-REFS></ECU-VARIANT>'
            for number in range(6000)
        )
        document = (
            '<ODX MODEL-VERSION="2.2.0" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">'
            '<DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME><BASE-VARIANTS><BASE-VARIANT ID="B">'
            f"<SHORT-NAME>B</SHORT-NAME><DIAG-COMMS>{services}</DIAG-COMMS>"
            "<DIAG-VARIABLES><DIAG-VARIABLE ID='W'><SHORT-NAME>W</SHORT-NAME><COMM-RELATIONS><COMM-RELATION>"
            "<RELATION-TYPE>r</RELATION-TYPE><DIAG-COMM-SNREF SHORT-NAME='S1'/></COMM-RELATION></COMM-RELATIONS>"
            "</DIAG-VARIABLE></DIAG-VARIABLES></BASE-VARIANT></BASE-VARIANTS>"
            f"<ECU-VARIANTS>{variants}</ECU-VARIANTS></DIAG-LAYER-CONTAINER></ODX>"
        )
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "long.odx-d"
            path.write_text(document, encoding="utf-8")
            bar = r"\r\x1b\[K\[#* *\] +\d+ %"
            answer = r"\r\x1b\[K0 errors, 0 warnings\r\n\Z"
            self.assertRegex(self.run_on_terminal("check", path), f"(?s)\\A({bar})+.*{answer}")
            self.assertNotIn("%", self.run_on_terminal("check", path, "--quiet"))

    def test_json_has_no_colour(self):
        answer = self.run_on_terminal("layers", "--json", "gates.odx-d")
        self.assertEqual(json.loads(answer)["layers"][0]["short_name"], "Door")


if __name__ == "__main__":
    main(__doc__)
