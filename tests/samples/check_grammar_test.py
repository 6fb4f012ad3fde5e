#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Break one sample document at a time and check that check_grammar.py detects it.

    check_grammar_test.py [DOCUMENT...]

Documents on the command line must pass too: a second database to test the grammar.
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

import check_grammar
from odx_grammar import Grammar

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
DOCUMENTS = sorted(SAMPLES.glob("*.odx-*")) + [SAMPLES / "index.xml"]
OTHER_DOCUMENTS = []


def faults(paths):
    checker = check_grammar.Checker(Grammar(check_grammar.GRAMMAR))
    for path in paths:
        checker.check(str(path))
    return [(pathlib.Path(file).name, line, message) for file, line, message in checker.finish()]


# What is broken: (document, text, text in its place at the first occurrence, part of the message to expect).
MUTATIONS = {
    "children in another order": (
        "WiperFlash.odx-f",
        "<SHORT-NAME>WiperFlash</SHORT-NAME>\n    <LONG-NAME>Programs and calibrations of the front wiper</LONG-NAME>",
        "<LONG-NAME>Programs and calibrations of the front wiper</LONG-NAME>\n    <SHORT-NAME>WiperFlash</SHORT-NAME>",
        "LONG-NAME must not stand here in FLASH; expected SHORT-NAME"),
    "groups of the data dictionary in another order": (
        "WiperJobs.odx-m", "<DATA-OBJECT-PROPS>", "<TABLES/><DATA-OBJECT-PROPS>",
        "DATA-OBJECT-PROPS must not stand here in DIAG-DATA-DICTIONARY-SPEC"),
    "a required child is missing": (
        "SharedLibraries.odx-d", "<AUDIENCE/>", "", "must not stand here in DIAG-SERVICE; expected AUDIENCE"),
    "a required child at the end is missing": (
        "WiperFlash.odx-f", "<VALUE>AW-2210-07</VALUE>", "", "PROJECT-IDENT is incomplete; expected VALUE"),
    "a child too many": (
        "WiperFamily.odx-d",
        '<REQUEST-REF ID-REF="FrontWiper.Request.MoveWiper"/>',
        '<REQUEST-REF ID-REF="FrontWiper.Request.MoveWiper"/><REQUEST-REF ID-REF="FrontWiper.Request.MoveWiper"/>',
        "REQUEST-REF must not stand here in DIAG-SERVICE"),
    "both alternatives of a choice": (
        "SharedLibraries.odx-d", "<ALL-VALUE/>", "<ALL-VALUE/><DTC-VALUES><DTC-VALUE>1</DTC-VALUE></DTC-VALUES>",
        "DTC-VALUES must not stand here in ENV-DATA"),
    "an empty wrapper": (
        "WiperFamily.odx-d", "<AUT-METHOD>SeedAndKey</AUT-METHOD>", "", "AUT-METHODS is incomplete; expected AUT-METHOD"),
    "an unknown element": (
        "BodyProtocols.odx-d", "<AUDIENCE/>", "<AUDIENCE/><STATE-CHARTS/>", "unknown element STATE-CHARTS"),
    "an element in a namespace": (
        "BodyCommunication.odx-c", "<COMPARAMS>", '<COMPARAMS xmlns="http://example.org/">', "unknown element"),
    "a missing attribute": (
        "BodyProtocols.odx-d", ' TYPE="ISO_15765_3"', "", "PROTOCOL lacks the attribute TYPE"),
    "a missing ID": (
        "WiperFlash.odx-f", ' ID="WiperFlash.Segment.Program"', "", "SEGMENT lacks the attribute ID"),
    "an unknown attribute": (
        "SharedLibraries.odx-d", "<STRUCTURE-REF ", '<STRUCTURE-REF TARGET="x" ', "STRUCTURE-REF has no attribute TARGET"),
    "an attribute of another kind": (
        "SharedLibraries.odx-d", '<BIT-LENGTH>', '<BIT-LENGTH TI="x">', "BIT-LENGTH has no attribute TI"),
    "no unsigned integer": (
        "BodyCommunication.odx-c", "<BIT-LENGTH>32<", "<BIT-LENGTH>-32<", "BIT-LENGTH: '-32' is no uint"),
    "no integer": (
        "WiperFamily.odx-d", "<TROUBLE-CODE>10092819<", "<TROUBLE-CODE>9A0113h<", "TROUBLE-CODE: '9A0113h' is no int"),
    "a level above 255": (
        "WiperFamily.odx-d", "<LEVEL>2<", "<LEVEL>256<", "LEVEL: '256' is no byte"),
    "no number": (
        "SharedLibraries.odx-d", "<V>0.1</V>", "<V>0,1</V>", "V: '0,1' is no double"),
    "no truth value": (
        "WiperFlash.odx-f", 'LATEBOUND-DATAFILE="true"', 'LATEBOUND-DATAFILE="yes"', "'yes' is no bool"),
    "an odd number of hexadecimal digits": (
        "WiperFlash.odx-f", "<FILTER-END>0000EFFF<", "<FILTER-END>EFF<", "FILTER-END: 'EFF' is no hex"),
    "a day that is in no calendar": (
        "SharedLibraries.odx-d", "2005-09-30T", "2005-09-31T", "DATE: '2005-09-31T00:00:00' is no date"),
    "a day with a time": (
        "index.xml", 'CREATION-DATE="2006-03-14"', 'CREATION-DATE="2006-03-14T12:00:00"', "is no day"),
    "an unknown literal in an attribute": (
        "SharedLibraries.odx-d", 'BASE-TYPE-ENCODING="2C"', 'BASE-TYPE-ENCODING="2c"', "'2c' is no Encoding"),
    "an unknown literal in a text": (
        "WiperFamily.odx-d", "<CATEGORY>SCALE-RAT-FUNC<", "<CATEGORY>SCALE_RAT_FUNC<", "is no CompuCategory"),
    "another version": (
        "WiperJobs.odx-m", 'MODEL-VERSION="2.0.1"', 'MODEL-VERSION="2.2.0"', "'2.2.0' is no ModelVersion"),
    "text between elements": (
        "WiperJobs.odx-m", "<FUNCT-CLASS-REFS>", "<FUNCT-CLASS-REFS>survey", "FUNCT-CLASS-REFS must not hold text"),
    "text directly in DESC": (
        "BodyProtocols.odx-d", "<DESC/>", "<DESC>signed</DESC>", "DESC must not hold text"),
    "an unknown xsi:type": (
        "SharedLibraries.odx-d", 'xsi:type="TABLE-ENTRY"', 'xsi:type="NRC-CONST"', "PARAM has no xsi:type NRC-CONST"),
    "the xsi:type of other children": (
        "SharedLibraries.odx-d", 'xsi:type="TABLE-STRUCT"', 'xsi:type="VALUE"',
        "TABLE-KEY-REF must not stand here in PARAM; expected"),
    "no xsi:type for children that need one": (
        "WiperFlash.odx-f", ' xsi:type="POS-OFFSET"', "", "POSITIVE-OFFSET must not stand here in TARGET-ADDR-OFFSET"),
    "an attribute that only another xsi:type has": (
        "BodyProtocols.odx-d", 'TERMINATION="END-OF-PDU" xsi:type="MIN-MAX-LENGTH-TYPE"',
        'TERMINATION="END-OF-PDU" xsi:type="STANDARD-LENGTH-TYPE"', "DIAG-CODED-TYPE has no attribute TERMINATION"),
    "an ID that is no XML name": (
        "WiperJobs.odx-m", 'ID="WiperJobs" ', 'ID="1 job" ', "'1 job' is no id"),
    "an ID twice in a file": (
        "SharedLibraries.odx-d", 'ID="BodyLibrary.Unit.Ampere"', 'ID="BodyLibrary.Unit.Volt"',
        "ID BodyLibrary.Unit.Volt is taken by line"),
    "a reference to nothing": (
        "BodyCommunication.odx-c", '<UNIT-REF ID-REF="BodyCommunication.Unit.Millisecond"/>', '<UNIT-REF ID-REF="Second"/>',
        "UNIT-REF: no UNIT has the ID Second in the own document"),
    "a reference to another kind of element": (
        "WiperFamily.odx-d", '<DOP-REF ID-REF="FrontWiper.Structure.Motor"/>',
        '<DOP-REF ID-REF="FrontWiper.Table.WiperRecords"/>', "has the ID FrontWiper.Table.WiperRecords"),
    "a structure for a constant": (
        "BodyProtocols.odx-d",
        '<PHYS-CONSTANT-VALUE>16777215</PHYS-CONSTANT-VALUE>\n                <DOP-REF ID-REF="UdsOnCan.DataObject.TroubleCode"/>',
        '<PHYS-CONSTANT-VALUE>0</PHYS-CONSTANT-VALUE><DOP-REF ID-REF="UdsOnCan.Structure.TroubleCodeRecord"/>',
        "DOP-REF: no DATA-OBJECT-PROP has the ID"),
    "a DOCREF that names nothing": (
        "WiperFlash.odx-f", 'DOCREF="FrontWiper"', 'DOCREF="RearWiper"', "there is no LAYER RearWiper"),
    "a DOCTYPE of another kind": (
        "WiperFamily.odx-d", 'DOCREF="UdsOnCan" DOCTYPE="LAYER"', 'DOCREF="UdsOnCan" DOCTYPE="CONTAINER"',
        "there is no CONTAINER UdsOnCan"),
    "a DOCREF to a layer that does not hold the target": (
        "WiperFlash.odx-f", 'DOCREF="BodyLibrary"', 'DOCREF="RainLightLibrary"', "no COMPANY-DATA has the ID"),
    "a reference into another document without DOCREF": (
        "WiperFlash.odx-f", ' DOCREF="BodyLibrary" DOCTYPE="LAYER"', "", "no COMPANY-DATA has the ID"),
    "an import that is missing": (
        "WiperFamily.odx-d",
        '<IMPORT-REFS>\n          <IMPORT-REF ID-REF="TroubleCodeLibrary" DOCREF="SharedLibraries" DOCTYPE="CONTAINER"/>\n        </IMPORT-REFS>',
        "", "DTC-REF: no DTC has the ID TroubleCodeLibrary.TroubleCode.U015500"),
    "a parent of another kind than its xsi:type": (
        "WiperFamily.odx-d", 'xsi:type="BASE-VARIANT-REF"', 'xsi:type="PROTOCOL-REF"',
        "PARENT-REF: no PROTOCOL has the ID FrontWiper"),
    "not well-formed": (
        "WiperJobs.odx-m", "</FUNCT-CLASSS>", "", "not well-formed"),
    "another root": (
        "index.xml", "CATALOG", "CATALOGUE", "not well-formed"),
}

# What another author might have written: (document, text, text in its place).
VARIATIONS = {
    "a parent without xsi:type": ("WiperFamily.odx-d", ' xsi:type="FUNCTIONAL-GROUP-REF"', ""),
    "a DOCREF without DOCTYPE": ("WiperFamily.odx-d", 'DOCREF="UdsOnCan" DOCTYPE="LAYER"', 'DOCREF="UdsOnCan"'),
    "a DOCTYPE without DOCREF": (
        "WiperFlash.odx-f", "<FLASHDATA-REF ", '<FLASHDATA-REF DOCTYPE="FLASH" '),
    "an environment for no trouble code in particular": ("SharedLibraries.odx-d", "<ALL-VALUE/>", ""),
    "blanks around a number": ("BodyCommunication.odx-c", "<BIT-LENGTH>32<", "<BIT-LENGTH> 32 <"),
    "a processing instruction anywhere": ("WiperFlash.odx-f", "<MEM>", "<MEM><?Workshop?>"),
    "text in a section of its own": ("WiperJobs.odx-m", ">Survey<", "><![CDATA[Survey]]><"),
}

# A category that no sample document has.
VEHICLE = pathlib.Path(__file__).resolve().parent / "Vehicle.odx-v"


class GrammarTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def change(self, document, old, new):
        """Writes all documents into the folder, one of them changed."""
        for path in DOCUMENTS:
            text = path.read_text(encoding="utf-8")
            if path.name == document:
                self.assertIn(old, text, f"{document} has changed: choose another place to break")
                text = text.replace(old, new, 1)
            (self.folder / path.name).write_text(text, encoding="utf-8")
        return [self.folder / path.name for path in DOCUMENTS]

    def test_samples_are_valid(self):
        self.assertEqual(faults(DOCUMENTS), [])

    def test_other_documents_are_valid(self):
        self.assertEqual(faults(OTHER_DOCUMENTS), [])

    def test_mutations_are_rejected(self):
        for name, (document, old, new, message) in MUTATIONS.items():
            with self.subTest(name):
                found = faults(self.change(document, old, new))
                self.assertTrue(any(file == document and message in text for file, _, text in found), found)

    def test_variations_are_accepted(self):
        for name, (document, old, new) in VARIATIONS.items():
            with self.subTest(name):
                self.assertEqual(faults(self.change(document, old, new)), [])

    def test_vehicle_information(self):
        self.assertEqual(faults([*DOCUMENTS, VEHICLE]), [])
        document = self.folder / VEHICLE.name
        text = VEHICLE.read_text(encoding="utf-8")
        document.write_text(text.replace("GATEWAY-LOGICAL-LINK\"", "MEMBER-LOGICAL-LINK\""), encoding="utf-8")
        found = [message for _, _, message in faults([*DOCUMENTS, document])]
        self.assertEqual(found, [
            "SEMANTIC must not stand here in LOGICAL-LINK; expected BASE-VARIANT-REF or ECU-PROXY-REFS or FUNCTIONAL-GROUP-REF"
            " or LINK-COMPARAM-REFS or PROTOCOL-REF",
            "GATEWAY-LOGICAL-LINK-REF: no LOGICAL-LINK[GATEWAY-LOGICAL-LINK] has the ID Vehicle.Gateway in the own document"])

    def test_fault_names_the_line(self):
        document, old, new, _ = MUTATIONS["no number"]
        lines = (SAMPLES / document).read_text(encoding="utf-8").splitlines()
        line = next(number for number, text in enumerate(lines, 1) if old in text)
        self.assertEqual([fault[1] for fault in faults(self.change(document, old, new))], [line])

    def test_exit_status(self):
        def run(paths):
            command = [sys.executable, "-B", check_grammar.__file__, *map(str, paths)]
            return subprocess.run(command, capture_output=True, text=True, check=False)

        self.assertEqual(run(DOCUMENTS).returncode, 0)
        broken = run(self.change(*MUTATIONS["no number"][:3]))
        self.assertEqual(broken.returncode, 1)
        self.assertRegex(broken.stdout, r"^\S+SharedLibraries\.odx-d:\d+: V: '0,1' is no double\n$")
        self.assertEqual(run([]).returncode, 2)
        self.assertEqual(run([self.folder / "absent.odx-d"]).returncode, 1)


if __name__ == "__main__":
    OTHER_DOCUMENTS = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
