#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Memory runs out at any point: diagkit ends with status 3 and a message, whatever the call.

    memory_tests.py PROGRAM...

Every command runs in every format under limits that decrease from what it needs to the minimum for starting a program.
"""

import os
import pathlib
import tempfile
import unittest

from program import IS_POSIX, SAMPLE, is_for_windows, main, run

KIBIBYTE = 1024
MOST = 64 << 20  # more than any of these calls needs
STEPS = 8
MESSAGE = "diagkit: out of memory\n"


def run_within(limit, *arguments):
    """The call with the given limit of address space in bytes."""
    import resource

    def set_limits():
        resource.setrlimit(resource.RLIMIT_AS, (limit, limit))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    return run(*arguments, preexec_fn=set_limits)


def least_limit(suffices, low, high):
    """Approximately the lowest sufficient limit; `high` is sufficient, `low` need not be."""
    while high - low > 64 * KIBIBYTE:
        middle = (low + high) // 2
        if suffices(middle):
            high = middle
        else:
            low = middle
    return high


def document(content, version="2.2.0"):
    return (f'<ODX MODEL-VERSION="{version}"><DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME>{content}'
            "</DIAG-LAYER-CONTAINER></ODX>")


def element(tag, name, content=""):
    return f'<{tag} ID="{name}"><SHORT-NAME>{name}</SHORT-NAME>{content}</{tag}>'


def numbered(tag, count):
    return "".join(element(tag, f"{tag}-{number}") for number in range(count))


@unittest.skipUnless(IS_POSIX and "DIAGKIT_SANITIZED" not in os.environ, "needs limits of memory that count")
class MemoryThatRunsOut(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if is_for_windows():
            raise unittest.SkipTest("the limits are not those of Windows")
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        services = f"<DIAG-COMMS>{numbered('DIAG-SERVICE', 2000)}</DIAG-COMMS>"
        for name, text in {
            "services": document(f"<PROTOCOLS>{element('PROTOCOL', 'P', services)}</PROTOCOLS>"),
            "layers": document(f"<PROTOCOLS>{numbered('PROTOCOL', 1000)}</PROTOCOLS>"),
            "faults": document("<a/>\n" * 4000, "2.0.1"),
        }.items():
            (cls.folder / f"{name}.odx-d").write_text(text, encoding="utf-8")
        # Below it the system cannot load the program and its libraries.
        cls.floor = least_limit(lambda limit: run_within(limit, "--version").returncode in (0, 3), 0, MOST)

    def see(self, *arguments, steps=STEPS, window=MOST):
        """Compares the result of the call, with up to `window` bytes less than it needs, with its full output."""
        def is_like_full(limit):
            done = run_within(limit, *arguments)
            return (done.returncode, done.stdout, done.stderr) == (full.returncode, full.stdout, full.stderr)

        full = run(*arguments)
        needed = least_limit(is_like_full, self.floor, MOST)
        lowest = max(self.floor, needed - window)
        for step in range(steps):
            limit = lowest + (needed - lowest) * step // steps
            done = run_within(limit, *arguments)
            with self.subTest(arguments, limit=limit):
                if done.returncode != full.returncode or done.stdout != full.stdout:
                    self.assertEqual(done.returncode, 3, done.stderr)
                    self.assertTrue(done.stderr.endswith(MESSAGE), done.stderr)
                    self.assertEqual(done.stderr.count("diagkit: "), 1, done.stderr)
                    self.assertTrue(full.stdout.startswith(done.stdout))

    def see_as_text_and_json(self, *arguments):
        self.see(*arguments)
        self.see(*arguments, "--json")

    def test_help_and_messages_about_the_call(self):
        for arguments in (["view", "--help"], ["vew"], ["view", "dosp", "x"], ["layers", "x", "--max-depth", "deep"]):
            self.see(*arguments)

    def test_enums(self):
        self.see_as_text_and_json("enums")
        self.see("enums", "Radix", "HEXX")

    def test_info(self):
        self.see_as_text_and_json("info", self.folder / "faults.odx-d")

    def test_layers(self):
        self.see_as_text_and_json("layers", self.folder / "layers.odx-d")

    def test_graph(self):
        for form in ("dot", "mermaid"):
            self.see("graph", self.folder / "layers.odx-d", "--format", form)
        self.see("graph", SAMPLE, "--json", "--layer", "FrontWiper")

    def test_a_layer_that_is_not_there(self):
        self.see("view", "dops", self.folder / "layers.odx-d", "--layer", "PROTOCOL-1000")

    def test_view(self):
        self.see_as_text_and_json("view", "diag-comms", self.folder / "services.odx-d", "--layer", "P")
        self.see_as_text_and_json("view", "dops", SAMPLE, "--layer", "FrontWiper")

    def test_resolve(self):
        self.see_as_text_and_json("resolve", "diag-comm", "DIAG-SERVICE-2000", self.folder / "services.odx-d",
                                  "--layer", "P")

    def test_explain(self):
        self.see_as_text_and_json("explain", "diag-comm", "DIAG-SERVICE-1999", self.folder / "services.odx-d",
                                  "--layer", "P")
        self.see_as_text_and_json("explain", "diag-comm", "ReadTroubleCodes", SAMPLE, "--layer", "FrontWiperBasic")

    def test_traverse(self):
        self.see_as_text_and_json("traverse", self.folder / "services.odx-d", "--layer", "P")

    def test_oem(self):
        self.see_as_text_and_json("oem", SAMPLE)
        self.see("oem", "--each", "--json", "--quiet", self.folder)

    def test_diff(self):
        self.see_as_text_and_json("diff", self.folder / "services.odx-d", self.folder / "layers.odx-d")
        self.see_as_text_and_json("diff", SAMPLE, "--layer", "FrontWiper", "--to-layer", "FrontWiperRainLight")

    def test_check(self):
        for form in ("text", "json", "sarif"):
            self.see("check", self.folder / "faults.odx-d", "--format", form)

    def test_uses(self):
        self.see_as_text_and_json("uses", "P", self.folder / "services.odx-d")
        self.see_as_text_and_json("uses", "DIAG-SERVICE-2000", self.folder / "services.odx-d")
        self.see_as_text_and_json("uses", "--unused", SAMPLE)

    def test_a_search_that_goes_deep(self):
        def value(name, target):
            return f'<PARAM xsi:type="VALUE"><SHORT-NAME>{name}</SHORT-NAME><DOP-REF ID-REF="{target}"/></PARAM>'

        structures = "".join(element("STRUCTURE", f"S{number}", f"<PARAMS>{value('Next', f'S{number + 1}')}</PARAMS>")
                             for number in range(3000))
        content = (f"<DIAG-DATA-DICTIONARY-SPEC><STRUCTURES>{structures}</STRUCTURES></DIAG-DATA-DICTIONARY-SPEC>"
                   "<DIAG-COMMS>" + element("DIAG-SERVICE", "Read", '<REQUEST-REF ID-REF="Q"/>') + "</DIAG-COMMS>"
                   "<REQUESTS>" + element("REQUEST", "Q", f"<PARAMS>{value('Top', 'S0')}</PARAMS>") + "</REQUESTS>")
        text = document(f"<PROTOCOLS>{element('PROTOCOL', 'P', content)}</PROTOCOLS>")
        path = self.folder / "deep.odx-d"
        path.write_text(text.replace("<ODX ", '<ODX xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" ', 1),
                        encoding="utf-8")
        self.addCleanup(path.unlink)
        question = ("resolve", "out-param", "Gone", path, "--quiet", "--layer", "P", "--diag-comm", "Read")
        self.assertIn("no out-param 'Gone'", run(*question).stderr)
        self.see(*question, steps=4 * STEPS, window=600 * KIBIBYTE)


if __name__ == "__main__":
    main(__doc__)
