#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Tests of diagkit with databases that are made for them: walks, deep and nested parameters, packages.

    database_tests.py PROGRAM...
"""

import collections
import json
import math
import pathlib
import re
import tempfile
import unittest
import zipfile

from program import DATA, SAMPLE, main, run


class Traversing(unittest.TestCase):
    def calls_of(self, *arguments):
        """The hook calls of a walk, each checked against those around it."""
        done = run("traverse", "--json", *arguments)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        calls = [json.loads(line) for line in done.stdout.splitlines()]
        entered = []
        for call in calls:
            self.assertEqual(list(call), ["event", "kind", "short_name", "depth"])
            if call["event"] == "post":
                self.assertEqual(entered.pop(), dict(call, event="pre"))
            self.assertEqual(call["depth"], len(entered))
            if call["event"] == "pre":
                entered.append(call)
        self.assertEqual(entered, [])
        return calls

    def test_calls_of_every_layer_of_the_sample_are_pairs_at_the_right_depth(self):
        layers = json.loads(run("layers", "--json", SAMPLE).stdout)["layers"]
        self.assertEqual(len(layers), 11)
        for layer in layers:
            with self.subTest(layer["short_name"]):
                calls = self.calls_of(SAMPLE, "--layer", layer["id"])
                kind = "".join(word.capitalize() for word in layer["kind"].split("-"))
                self.assertEqual((calls[0]["kind"], calls[0]["short_name"]), (kind, layer["short_name"]))
                self.assertNotIn("cycle", {call["event"] for call in calls})

    @staticmethod
    def write_related(folder, targets):
        """A PROTOCOL whose service number n is related to the services targets[n]; the path."""
        services = "".join(
            f'<DIAG-SERVICE ID="S{number}"><SHORT-NAME>S{number}</SHORT-NAME><RELATED-DIAG-COMM-REFS>'
            + "".join(f'<RELATED-DIAG-COMM-REF ID-REF="S{other}"/>' for other in others)
            + "</RELATED-DIAG-COMM-REFS></DIAG-SERVICE>"
            for number, others in enumerate(targets)
        )
        path = pathlib.Path(folder) / "related.odx-d"
        path.write_text(
            '<ODX MODEL-VERSION="2.2.0"><DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME><PROTOCOLS>'
            f'<PROTOCOL ID="P"><SHORT-NAME>P</SHORT-NAME><DIAG-COMMS>{services}</DIAG-COMMS>'
            "</PROTOCOL></PROTOCOLS></DIAG-LAYER-CONTAINER></ODX>",
            encoding="utf-8",
        )
        return path

    def test_services_that_all_name_each_other_give_a_line_for_every_way_through_them(self):
        count = 5
        with tempfile.TemporaryDirectory() as folder:
            path = self.write_related(folder, [range(count)] * count)
            calls = self.calls_of("--quiet", path, "--layer", "P")
        # Ways of n steps without a repetition; at the end of each, as many references lead back into it.
        ways = {steps: math.perm(count, steps) for steps in range(1, count + 1)}
        events = collections.Counter(call["event"] for call in calls)
        self.assertEqual(events["pre"], 1 + sum(ways.values()))
        self.assertEqual(events["cycle"], sum(steps * number for steps, number in ways.items()))

    def test_a_walk_that_nobody_can_wait_for_ends_with_a_message(self):
        with tempfile.TemporaryDirectory() as folder:
            path = self.write_related(folder, [range(12)] * 12)
            done = run("traverse", "--json", "--quiet", path, "--layer", "P", "--max-visits", "1000")
        self.assertEqual(done.returncode, 3)
        self.assertIn("stopped after 1000 visits", done.stderr)
        self.assertEqual(done.stdout.count('"event":"pre"'), 1000)

    def test_lines_stay_short_however_deep_their_elements_are(self):
        count = 150
        with tempfile.TemporaryDirectory() as folder:
            path = self.write_related(folder, [[number + 1] for number in range(count - 1)] + [[]])
            lines = run("traverse", "--quiet", path, "--layer", "P").stdout.splitlines()
        # The layer, the first service at depth 1, the one that it refers to at depth 2, and so on.
        self.assertEqual(lines[1:3], ["  DIAG-SERVICE S0", "    DIAG-SERVICE S1"])
        self.assertEqual(lines[100], 200 * " " + "DIAG-SERVICE S99")
        self.assertEqual(lines[101], 200 * " " + "[101] DIAG-SERVICE S100")
        self.assertEqual(lines[150], 200 * " " + "[150] DIAG-SERVICE S149")

    def test_a_ring_that_is_too_long_for_the_stack_is_cut_with_a_message(self):
        count = 30000
        with tempfile.TemporaryDirectory() as folder:
            path = self.write_related(folder, [[1]] + [[(number + 1) % count] for number in range(1, count)])
            done = run("traverse", "--json", "--quiet", path, "--layer", "P", "--max-visits", "20000")
        self.assertEqual(done.returncode, 3)
        self.assertIn("stopped after 20000 visits", done.stderr)
        depths = [json.loads(line)["depth"] for line in done.stdout.splitlines()]
        self.assertEqual(max(depths), 1999)


class DeepNesting(unittest.TestCase):
    def ask(self, depth):
        """Looks for a parameter below n structures, each inside the previous one."""
        structures = "".join(
            f'<STRUCTURE ID="S{number}"><SHORT-NAME>S{number}</SHORT-NAME><PARAMS><PARAM xsi:type="VALUE">'
            f'<SHORT-NAME>P{number}</SHORT-NAME><DOP-REF ID-REF="S{number + 1}"/></PARAM></PARAMS></STRUCTURE>'
            for number in range(depth)
        )
        document = (
            '<ODX MODEL-VERSION="2.2.0" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">'
            '<DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME><BASE-VARIANTS><BASE-VARIANT ID="B">'
            "<SHORT-NAME>B</SHORT-NAME><DIAG-DATA-DICTIONARY-SPEC><STRUCTURES>" + structures + "</STRUCTURES>"
            "</DIAG-DATA-DICTIONARY-SPEC><DIAG-COMMS><DIAG-SERVICE ID='R'><SHORT-NAME>Read</SHORT-NAME>"
            "<REQUEST-REF ID-REF='Q'/></DIAG-SERVICE></DIAG-COMMS><REQUESTS><REQUEST ID='Q'><SHORT-NAME>Q</SHORT-NAME>"
            "<PARAMS><PARAM xsi:type='VALUE'><SHORT-NAME>Top</SHORT-NAME><DOP-REF ID-REF='S0'/></PARAM></PARAMS>"
            "</REQUEST></REQUESTS></BASE-VARIANT></BASE-VARIANTS></DIAG-LAYER-CONTAINER></ODX>"
        )
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "deep.odx-d"
            path.write_text(document, encoding="utf-8")
            name = f"P{depth - 1}"
            return run("resolve", "out-param", name, str(path), "--quiet", "--layer", "B", "--diag-comm", "Read")

    def test_a_deep_parameter_is_found(self):
        done = self.ask(500)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertRegex(done.stdout, r"\AP499 .* > STRUCTURE S499\n\Z")

    def test_a_parameter_deeper_than_any_stack_is_found(self):
        depth = 50000
        done = self.ask(depth)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertRegex(done.stdout, rf"\AP{depth - 1} .* > STRUCTURE S{depth - 1}\n\Z")


class NestedParameters(unittest.TestCase):
    STATUS = "POS-RESPONSE ReadWiperStatusResponse > PARAM "
    FAULT = (
        "POS-RESPONSE ReadFaultEnvironmentResponse > PARAM FaultEnvironments > END-OF-PDU-FIELD FaultEnvironments > "
        "ENV-DATA-DESC FaultEnvironment > ENV-DATA "
    )
    RECORD = "POS-RESPONSE ReadDataRecordResponse > PARAM RecordData > TABLE DataRecords > TABLE-ROW "
    OPERATION = RECORD + "OperatingData > STRUCTURE OperatingRecord"
    WAYS = (
        (
            "UdsOnCan ReadTroubleCodes Confirmed",
            "POS-RESPONSE ReadTroubleCodesResponse > PARAM TroubleCodes > END-OF-PDU-FIELD TroubleCodes > "
            "STRUCTURE TroubleCodeRecord",
        ),
        (
            "Kwp2000OnKLine ReadTroubleCodes Stored",
            "POS-RESPONSE ReadTroubleCodesResponse > PARAM ShortTroubleCodes > DYNAMIC-LENGTH-FIELD ShortTroubleCodes > "
            "STRUCTURE ShortTroubleCodeRecord",
        ),
        ("FrontWiper ReadWiperStatus MotorCurrent", STATUS + "MotorNow > STRUCTURE Motor"),
        (
            "FrontWiper ReadWiperStatus ParkedForHours",
            STATUS + "Activity > MUX Activity > DEFAULT-CASE Parked > STRUCTURE Parked",
        ),
        ("FrontWiper ReadWiperStatus WipingSpeed", STATUS + "Activity > MUX Activity > CASE Wiping > STRUCTURE Wiping"),
        ("FrontWiper ReadFaultEnvironment TimeOfFault", FAULT + "GeneralEnvironment"),
        ("FrontWiper ReadFaultEnvironment MotorTemperature", FAULT + "MotorEnvironment"),
        ("BodyLibrary ReadDataRecord SupplyVoltage", RECORD + "SupplyVoltage > STRUCTURE SupplyVoltageRecord"),
        ("BodyLibrary ReadDataRecord OperatingTime", OPERATION),
        (
            "BodyLibrary ReadDataRecord WakeUpSource",
            OPERATION + " > PARAM WakeUpHistory > DYNAMIC-ENDMARKER-FIELD WakeUps > STRUCTURE WakeUp",
        ),
        (
            "RainLightLibrary ReadRainIntensity RainIntensity",
            "POS-RESPONSE ReadRainIntensityResponse > PARAM RecordData > TABLE-ROW Rain > STRUCTURE RainRecord",
        ),
    )

    def ask(self, question):
        layer, diag_comm, name = question.split()
        return run("resolve", "out-param", name, SAMPLE, "--layer", layer, "--diag-comm", diag_comm)

    def test_the_way_to_each_is_shown(self):
        for question, way in self.WAYS:
            with self.subTest(question):
                done = self.ask(question)
                self.assertEqual((done.returncode, done.stderr), (0, ""))
                self.assertTrue(done.stdout.endswith(f"  in {way}\n"), done.stdout)

    def test_those_of_a_job_are_not_searched(self):
        done = self.ask("FrontWiper CalibrateParkPosition MotorCurrent")
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertIn("where 2 names are visible", done.stderr)


class Packages(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.package = pathlib.Path(folder.name) / "Doors.pdx"

    def pack(self, **texts):
        """A package of the data files that are named, and of members with these texts."""
        with zipfile.ZipFile(self.package, "w", zipfile.ZIP_DEFLATED) as package:
            for name in ("comparams.odx-c", "protocols.odx-d", "gates.odx-d"):
                package.write(DATA / name, name)
            for name, text in texts.items():
                package.writestr(name + ".odx-d", text)

    def test_documents_name_package_and_member(self):
        self.pack()
        done = run("info", "--json", self.package)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        files = {document["file"] for document in json.loads(done.stdout)["documents"]}
        self.assertEqual(files, {f"{self.package}!{name}" for name in ("comparams.odx-c", "protocols.odx-d", "gates.odx-d")})

    def test_a_member_that_cannot_be_read_is_left_out(self):
        self.pack(broken="<ODX><DIAG-LAYER-CONTAINER>")
        done = run("layers", "--json", self.package)
        self.assertEqual(done.returncode, 0)
        self.assertEqual([layer["short_name"] for layer in json.loads(done.stdout)["layers"]], ["Door", "UDS", "Library"])
        self.assertRegex(done.stderr, rf"{re.escape(str(self.package))}!broken\.odx-d:\d+:\d+: error: ")

    def test_strict_does_not_pass_such_a_member(self):
        self.pack(broken="<ODX><DIAG-LAYER-CONTAINER>")
        done = run("layers", "--json", "--strict", self.package)
        self.assertEqual((done.returncode, done.stdout), (3, ""))

    def test_a_member_over_the_limit_is_left_out(self):
        self.pack(large="<ODX>" + " " * 100000 + "</ODX>")
        done = run("layers", "--json", "--max-member-size", "64K", self.package)
        self.assertEqual((done.returncode, len(json.loads(done.stdout)["layers"])), (0, 3))
        self.assertRegex(done.stderr, r"!large\.odx-d: error: .* 65536 bytes; --max-member-size allows more \[too-large\]\n\Z")

    def test_what_is_over_the_limit_for_packages_is_an_error(self):
        self.pack()
        done = run("layers", "--json", "--strict", "--max-package-size", "1K", self.package)
        self.assertEqual((done.returncode, done.stdout), (3, ""))
        self.assertRegex(
            done.stderr, r"\A.*Doors\.pdx: error: .* 1024 bytes; --max-package-size allows more \[too-large\]\n\Z"
        )



class Names(unittest.TestCase):
    """What a name selects that several elements have."""

    LAYERS = """<ODX MODEL-VERSION="2.2.0"><DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME><PROTOCOLS>
        <PROTOCOL ID="P"><SHORT-NAME>P</SHORT-NAME><DIAG-COMMS><DIAG-SERVICE ID="P.Stop"><SHORT-NAME>Stop</SHORT-NAME>
        </DIAG-SERVICE></DIAG-COMMS></PROTOCOL></PROTOCOLS><BASE-VARIANTS>
        <BASE-VARIANT ID="Engine"><SHORT-NAME>Engine</SHORT-NAME><PARENT-REFS><PARENT-REF ID-REF="P"
        xsi:type="PROTOCOL-REF" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"><NOT-INHERITED-DIAG-COMMS>
        <NOT-INHERITED-DIAG-COMM><DIAG-COMM-SNREF SHORT-NAME="Stop"/></NOT-INHERITED-DIAG-COMM>
        </NOT-INHERITED-DIAG-COMMS></PARENT-REF></PARENT-REFS></BASE-VARIANT>
        <BASE-VARIANT ID="Other"><SHORT-NAME>Engine</SHORT-NAME></BASE-VARIANT></BASE-VARIANTS>
        </DIAG-LAYER-CONTAINER></ODX>"""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = pathlib.Path(folder.name, "layers.odx-d")
        self.file.write_text(self.LAYERS, encoding="utf-8")

    def test_an_id_goes_before_a_short_name(self):
        for name in ("Engine", "Other"):
            done = run("view", "diag-comms", self.file, "--layer", name, "--json", "--quiet")
            self.assertEqual((done.returncode, json.loads(done.stdout)["context"]["id"]), (0, name))

    def test_uses_says_that_a_name_is_excluded(self):
        done = run("uses", "Stop", self.file, "--layer", "Engine", "--quiet")
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertIn("; that of PROTOCOL P is excluded in Engine; diagkit explain diag-comm Stop ", done.stderr)

    def test_a_dop_of_another_kind_that_hides_the_name_is_said_to_hide_it(self):
        reference = '<PARENT-REF xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xsi:type="PROTOCOL-REF" ID-REF="P"/>'
        dop = '<DATA-OBJECT-PROP ID="D"><SHORT-NAME>Speed</SHORT-NAME></DATA-OBJECT-PROP>'
        structure = '<STRUCTURE ID="S"><SHORT-NAME>Speed</SHORT-NAME></STRUCTURE>'
        self.file.write_text(
            '<ODX MODEL-VERSION="2.2.0"><DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME><PROTOCOLS><PROTOCOL ID="P">'
            "<SHORT-NAME>P</SHORT-NAME><DIAG-DATA-DICTIONARY-SPEC><DATA-OBJECT-PROPS>" + dop + "</DATA-OBJECT-PROPS>"
            '</DIAG-DATA-DICTIONARY-SPEC></PROTOCOL></PROTOCOLS><BASE-VARIANTS><BASE-VARIANT ID="B"><SHORT-NAME>B</SHORT-NAME>'
            "<DIAG-DATA-DICTIONARY-SPEC><STRUCTURES>" + structure + "</STRUCTURES></DIAG-DATA-DICTIONARY-SPEC><PARENT-REFS>"
            + reference + "</PARENT-REFS></BASE-VARIANT></BASE-VARIANTS></DIAG-LAYER-CONTAINER></ODX>",
            encoding="utf-8",
        )
        hidden = "; that of PROTOCOL P is hidden in B by that of BASE-VARIANT B; diagkit explain dop Speed "
        for call in (["resolve", "data-object-prop", "Speed"], ["show", "Speed", "--kind", "DATA-OBJECT-PROP"]):
            done = run(*call, self.file, "--layer", "B", "--quiet")
            self.assertEqual((done.returncode, done.stdout), (1, ""))
            self.assertIn(hidden, done.stderr)

    def test_comparam_refs_of_one_comparam_are_told_by_their_protocols(self):
        reference = '<COMPARAM-REF ID-REF="CP"><VALUE>{}</VALUE><PROTOCOL-SNREF SHORT-NAME="{}"/></COMPARAM-REF>'
        files = [self.file.with_name(name) for name in ("old.odx-d", "new.odx-d")]
        for file, values in zip(files, ((1, 1), (1, 2))):
            references = "".join(reference.format(value, protocol) for value, protocol in zip(values, "PQ"))
            file.write_text(
                '<ODX MODEL-VERSION="2.2.0"><DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME><BASE-VARIANTS>'
                f'<BASE-VARIANT ID="B"><SHORT-NAME>B</SHORT-NAME><COMPARAM-REFS>{references}</COMPARAM-REFS></BASE-VARIANT>'
                "</BASE-VARIANTS></DIAG-LAYER-CONTAINER></ODX>",
                encoding="utf-8",
            )
        done = run("diff", *files, "--quiet")
        self.assertIn("changed: COMPARAM-REF CP for PROTOCOL Q, in BASE-VARIANT B\n    VALUE: 1 -> 2\n", done.stdout)
        self.assertNotIn("for PROTOCOL P", done.stdout)


if __name__ == "__main__":
    main(__doc__)
