#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Input made to exhaust a machine: diagkit ends in time, with little memory and one diagnostic that names the limit.

    hostile_tests.py PROGRAM...

With DIAGKIT_SANITIZED in the environment memory is not measured: sanitizers use additional memory.
"""

import io
import json
import os
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest
import zipfile

from program import IS_POSIX, PROGRAM, main

IS_MEASURED = IS_POSIX and "DIAGKIT_SANITIZED" not in os.environ
MEBIBYTE = 1 << 20
LONGEST = 60  # seconds; without the limits it takes many times that
GOOD = b'<ODX MODEL-VERSION="2.2.0"><DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME></DIAG-LAYER-CONTAINER></ODX>'
HEAD, TAIL = GOOD[:-len("</DIAG-LAYER-CONTAINER></ODX>")], GOOD[-len("</DIAG-LAYER-CONTAINER></ODX>"):]


# Runs calls, one per line, in a process that stays small: the memory of a process counts for those that it starts.
RUNNER = """
import json, os, subprocess, sys, tempfile, time
for line in sys.stdin:
    start = time.monotonic()
    with tempfile.TemporaryFile() as errors:
        child = subprocess.Popen(json.loads(line), stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=errors)
        memory = 0
        if hasattr(os, "wait4"):
            _, status, usage = os.wait4(child.pid, 0)
            child.returncode = -os.WTERMSIG(status) if os.WIFSIGNALED(status) else os.WEXITSTATUS(status)
            memory = usage.ru_maxrss * (1 if sys.platform == "darwin" else 1024)
        status = child.wait()
        errors.seek(0)
        lines = errors.read().decode("utf-8").splitlines()
    print(json.dumps([status, lines, memory, time.monotonic() - start]), flush=True)
"""


class Call:
    """The result of `diagkit info`, or of another command, with these options: its status, diagnostics and peak
    memory."""

    runner = None

    def __init__(self, path, *options, question=("info",)):
        words = [*PROGRAM, *question, "--json", str(path), *options]
        print(json.dumps(words), file=Call.runner.stdin, flush=True)
        self.status, self.lines, self.memory, self.seconds = json.loads(Call.runner.stdout.readline())


class Hostile(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        Call.runner = subprocess.Popen(
            [sys.executable, "-c", RUNNER], stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "good.odx"
            path.write_bytes(GOOD)
            cls.least = Call(path).memory

    @classmethod
    def tearDownClass(cls):
        Call.runner.communicate()

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, name, *pieces):
        path = self.folder / name
        with path.open("wb") as stream:
            for piece in pieces:
                stream.write(piece)
        return path

    def pack(self, **pieces):
        """A package with a member of each name; each consists of the same piece, repeated."""
        path = self.folder / "attack.pdx"
        with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
            for name, (head, piece, times, tail) in pieces.items():
                with package.open(name + ".odx", "w") as member:
                    member.write(head)
                    for _ in range(times):
                        member.write(piece)
                    member.write(tail)
        return path

    def expect(self, call, status, diagnostics, memory=48 * MEBIBYTE):
        """Checks a call against the ends of its diagnostics, and its memory beyond the minimum against the limit."""
        self.assertEqual(call.status, status, call.lines)
        self.assertEqual(len(call.lines), len(diagnostics), call.lines)
        for line, diagnostic in zip(call.lines, diagnostics):
            self.assertTrue(line.endswith(diagnostic), line)
        self.assertLess(call.seconds, LONGEST)
        if IS_MEASURED:
            self.assertLess(call.memory - self.least, memory)

    # Packages

    def test_a_member_that_is_packed_too_tightly_is_left_out(self):
        path = self.pack(bomb=(HEAD, b"\n" * MEBIBYTE, 256, TAIL), good=(GOOD, b"", 0, b""))
        self.expect(Call(path), 0, ["!bomb.odx: error: the member unpacks to more than 500 times its size in the "
                                    "package; --max-ratio allows more [too-compressed]"])

    def test_a_member_of_nothing_but_blanks_is_no_more_than_its_limit_of_work(self):
        path = self.pack(bomb=(b"", b" " * MEBIBYTE, 256, b""), good=(GOOD, b"", 0, b""))
        call = Call(path, "--max-ratio", "100000", "--max-member-size", "64M")
        self.expect(call, 0, ["!bomb.odx: error: the member unpacks to more than 67108864 bytes; --max-member-size "
                              "allows more [too-large]"])

    def test_a_member_whose_header_says_ten_bytes_is_no_more_than_its_limit_of_work(self):
        path = self.pack(bomb=(HEAD, b"\n" * MEBIBYTE, 128, TAIL), good=(GOOD, b"", 0, b""))
        data = bytearray(path.read_bytes())
        entry = data.index(b"PK\1\2")
        data[entry + 24:entry + 28] = struct.pack("<I", 10)
        path.write_bytes(data)
        call = Call(path, "--max-ratio", "100000", "--max-member-size", "64M")
        self.expect(call, 0, ["!bomb.odx: error: the member unpacks to more than 67108864 bytes; --max-member-size "
                              "allows more [too-large]"])

    def test_a_packed_member_of_another_size_than_its_header_says_is_left_out(self):
        for said in (10, len(GOOD) - 1, len(GOOD) + 1, 1_000_000_000):
            path = self.pack(bad=(GOOD, b"", 0, b""), good=(GOOD, b"", 0, b""))
            data = bytearray(path.read_bytes())
            for start, place in ((b"PK\3\4", 22), (b"PK\1\2", 24)):
                entry = data.index(start) + place
                data[entry:entry + 4] = struct.pack("<I", said)
            path.write_bytes(data)
            self.expect(Call(path), 0, [f"!bad.odx: error: cannot be read: the member unpacks to {len(GOOD)} bytes, the "
                                        f"package says {said} [unreadable]"])

    def test_members_that_share_their_bytes_count_each_against_the_package(self):
        path = self.pack(a=(HEAD, b"\n" * MEBIBYTE, 8, TAIL))
        data = path.read_bytes()
        start = data.index(b"PK\1\2")
        end = data.index(b"PK\5\6")
        count = 1000
        entries = b"".join(data[start:end].replace(b"a.odx", b"%05d.odx" % number) for number in range(count))
        entries = entries.replace(struct.pack("<HHHHHII", 5, 0, 0, 0, 0, 0o600 << 16, 0),
                                  struct.pack("<HHHHHII", 9, 0, 0, 0, 0, 0o600 << 16, 0))
        tail = struct.pack("<4sHHHHIIH", b"PK\5\6", 0, 0, count, count, len(entries), start, 0)
        path.write_bytes(data[:start] + entries + tail)
        call = Call(path, "--max-package-size", "64M")
        self.expect(call, 3, ["attack.pdx: error: the package unpacks to more than 67108864 bytes; --max-package-size "
                              "allows more [too-large]"])

    def test_a_package_of_very_many_members_is_refused(self):
        buffer = io.BytesIO()
        with zipfile.ZipFile(buffer, "w") as package:
            for number in range(110000):
                package.writestr(zipfile.ZipInfo(str(number)), b"")
        path = self.write("many.pdx", buffer.getvalue())
        self.expect(Call(path), 3, ["many.pdx: error: the package has more members than 100000; --max-members allows "
                                    "more [too-many]"], 128 * MEBIBYTE)

    def test_a_package_that_says_to_have_very_many_members_is_refused(self):
        many = 1 << 40
        record = struct.pack("<4sQHHIIQQQQ", b"PK\6\6", 44, 45, 45, 0, 0, many, many, many * 46, 4)
        locator = struct.pack("<4sIQI", b"PK\6\7", 0, 4, 1)
        end = struct.pack("<4sHHHHIIH", b"PK\5\6", 0, 0, 0xFFFF, 0xFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0)
        call = Call(self.write("many.pdx", b"PK\3\4", record, locator, end))
        self.assertEqual((call.status, len(call.lines)), (3, 1), call.lines)
        self.assertRegex(call.lines[0], r"many\.pdx: error: the package cannot be read: .* \[no-package\]\Z")
        self.expect(call, 3, [" [no-package]"])

    # Documents

    def test_a_tag_of_four_million_attributes_is_refused(self):
        attributes = (b' a%x=""' % number for number in range(4000000))
        path = self.write("a.odx", HEAD, b"<A", *attributes, b"/>", TAIL)
        self.expect(Call(path), 3, [": error: a tag, comment or processing instruction is longer than 8388608 bytes; "
                                    "--max-tag-size allows more [too-large]"])

    def test_a_tag_of_half_a_million_attributes_is_refused(self):
        attributes = b"".join(b' a%x=""' % number for number in range(500000))
        path = self.write("a.odx", HEAD, b"<A", attributes, b"/>", TAIL)
        self.expect(Call(path), 3, [": error: 'A' has more attributes than 1000; --max-attributes allows more "
                                    "[too-many]"], 160 * MEBIBYTE)

    def test_a_comment_without_end_is_refused(self):
        path = self.write("a.odx", HEAD, b"<!--", *[b"x" * MEBIBYTE] * 256)
        self.expect(Call(path), 3, [": error: a tag, comment or processing instruction is longer than 8388608 bytes; "
                                    "--max-tag-size allows more [too-large]"], 64 * MEBIBYTE)

    def test_elements_without_end_are_refused(self):
        path = self.write("a.odx", HEAD, *[b"<a>" * 100000] * 100)
        self.expect(Call(path), 3, [": error: elements are nested deeper than 1000; --max-depth allows more "
                                    "[too-deep]"])

    def test_elements_nested_very_deep_are_taken_apart_again(self):
        depth = 500000
        path = self.write("a.odx", HEAD, b"<SDGS>", *[b"<SDG>" * 1000] * (depth // 1000),
                          *[b"</SDG>" * 1000] * (depth // 1000), b"</SDGS>", TAIL)
        self.expect(Call(path, "--max-depth", "3000000"), 0, [], 512 * MEBIBYTE)

    def test_a_text_without_end_is_refused(self):
        path = self.write("a.odx", HEAD, b"<LONG-NAME>", *[b"x" * MEBIBYTE] * 128)
        self.expect(Call(path, "--max-text-size", "4M"), 3,
                    [": error: a text is longer than 4194304 bytes; --max-text-size allows more [too-large]"])

    def test_very_many_elements_are_refused(self):
        path = self.write("a.odx", HEAD, *[b"<a/>" * 100000] * 20, TAIL)
        self.expect(Call(path, "--max-elements", "1000000"), 3,
                    [": error: the document has more elements than 1000000; --max-elements allows more [too-many]"])

    def test_very_many_faults_are_counted(self):
        head = HEAD.replace(b"2.2.0", b"2.0.1")
        path = self.write("a.odx", head, *[b"<a/>" * 100000] * 20, TAIL)
        call = Call(path, "--max-diagnostics", "1000")
        self.assertEqual((call.status, len(call.lines)), (0, 1001), call.lines[-1])
        self.assertTrue(call.lines[-1].endswith(
            ": warning: left out are 1999000 diagnostics, 0 of them errors, the first here: there are more errors, "
            "warnings or notes than 1000; --max-diagnostics allows more [too-many-diagnostics]"), call.lines[-1])
        self.assertLess(call.seconds, LONGEST)
        if IS_MEASURED:
            self.assertLess(call.memory - self.least, 48 * MEBIBYTE)

    def test_a_file_that_is_too_large_is_not_begun(self):
        path = self.folder / "a.odx"
        with path.open("wb") as stream:
            stream.truncate(5 << 30)  # only a size, no data
        self.expect(Call(path), 3, ["a.odx: error: the file is larger than 4294967296 bytes; --max-file-size allows "
                                    "more [too-large]"])

    @unittest.skipUnless(os.path.exists("/dev/zero"), "needs /dev/zero")
    def test_a_device_without_end_is_refused(self):
        call = Call("/dev/zero")
        self.assertEqual((call.status, len(call.lines)), (3, 1), call.lines)
        self.assertLess(call.seconds, LONGEST)

    # Entities

    def explain(self, layers):
        """Explains Read in V0, of BASE-VARIANTs with these parents, which no pass takes; only Top has it."""
        def layer(name, parents):
            refs = "".join(f'<PARENT-REF ID-REF="{parent}" xsi:type="BASE-VARIANT-REF"/>' for parent in parents)
            comms = '<DIAG-SERVICE ID="Read"><SHORT-NAME>Read</SHORT-NAME></DIAG-SERVICE>' if name == "Top" else ""
            return (f'<BASE-VARIANT ID="{name}"><SHORT-NAME>{name}</SHORT-NAME><DIAG-COMMS>{comms}</DIAG-COMMS>'
                    f"<PARENT-REFS>{refs}</PARENT-REFS></BASE-VARIANT>")

        head = HEAD.replace(b"<ODX ", b'<ODX xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" ')
        text = "".join(layer(name, parents) for name, parents in {**layers, "Top": []}.items())
        path = self.write("ways.odx", head, f"<BASE-VARIANTS>{text}</BASE-VARIANTS>".encode(), TAIL)
        call = Call(path, "--layer", "V0", "--quiet", question=("explain", "diag-comm", "Read"))
        self.assertEqual(call.status, 1, call.lines)
        self.assertLess(call.seconds, LONGEST)
        if IS_MEASURED:
            self.assertLess(call.memory - self.least, 400 * MEBIBYTE)

    def test_ways_that_double_at_each_level_are_counted(self):
        levels = {f"V{level}": [f"V{level + 1}"] * 2 for level in range(20000)}
        self.explain({**levels, "V20000": ["Top"]})

    def test_a_chain_of_parents_is_no_deeper_than_its_memory(self):
        chain = {f"V{level}": [f"V{level + 1}"] for level in range(100000)}
        self.explain({**chain, "V100000": ["Top"]})

    def test_layers_that_are_all_parents_of_each_other_end(self):
        names = [f"V{number}" for number in range(150)]
        self.explain({**{name: names for name in names}, "V1": [*names, "Top"]})

    def test_long_ways_in_a_large_circle_end(self):
        names = [f"V{number}" for number in range(20000)]
        ring = {name: [names[number - 1], names[number - 2]] for number, name in enumerate(names)}
        self.explain({**ring, "V10000": ["V9999", "V9998", "Top"]})

    def test_entities_that_multiply_are_not_expanded(self):
        entities = b'<!ENTITY a0 "ha">' + b"".join(
            b'<!ENTITY a%d "%s">' % (number, b"&a%d;" % (number - 1) * 10) for number in range(1, 30))
        path = self.write("a.odx", b"<!DOCTYPE ODX [", entities, b"]><ODX>&a29;</ODX>")
        self.expect(Call(path), 3, ["a.odx:1:15: error: a document type declaration is not ODX; remove it "
                                    "[document-type]"])

    @unittest.skipUnless(IS_POSIX, "needs pipes that have names")
    def test_files_that_entities_name_are_not_opened(self):
        os.mkfifo(self.folder / "secret")  # opening it would block for ever
        for kind in (b'ENTITY e SYSTEM "secret"', b'ENTITY % e SYSTEM "secret"> %e; <!ENTITY f "f"'):
            path = self.write("a.odx", b"<!DOCTYPE ODX [<!", kind, b">]><ODX>&e;</ODX>")
            self.expect(Call(path), 3, [": error: a document type declaration is not ODX; remove it [document-type]"])


if __name__ == "__main__":
    main(__doc__)
