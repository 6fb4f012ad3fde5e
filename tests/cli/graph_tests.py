#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Pictures of inheritance drawn by Graphviz, and the messages when it fails.

    graph_tests.py PROGRAM...

Graphviz is the program `dot` in a folder of PATH, so most tests provide a program of that name themselves.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

from program import DATA, IS_POSIX, SAMPLE, is_for_windows, main, run

SVG = "{http://www.w3.org/2000/svg}"
MISSING = ("diagkit: SVG output requires the program 'dot' of Graphviz, which is not in PATH; install it, or use --format "
           "dot or --format mermaid\n")
LONGEST = 60  # seconds; a deadlock would last for ever


def document(layers):
    return ('<ODX MODEL-VERSION="2.2.0" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">'
            '<DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME>' + layers + "</DIAG-LAYER-CONTAINER></ODX>")


def base_variants(names):
    return "<BASE-VARIANTS>" + "".join(
        f'<BASE-VARIANT ID="B{number}"><SHORT-NAME>{name}</SHORT-NAME></BASE-VARIANT>'
        for number, name in enumerate(names)) + "</BASE-VARIANTS>"


class Pictures(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if is_for_windows():
            raise unittest.SkipTest("the programs that it would start are not those of Windows")

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, text):
        path = self.folder / "made.odx-d"
        path.write_text(text, encoding="utf-8")
        return path

    def svg(self, *arguments):
        """The elements of the picture, by their class, in the order of the text."""
        done = run("graph", "--quiet", *arguments)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        root = xml.etree.ElementTree.fromstring(done.stdout)
        self.assertEqual(root.tag, SVG + "svg")
        found = {"node": [], "edge": [], "cluster": []}
        for group in root.iter(SVG + "g"):
            if group.get("class") in found:
                found[group.get("class")].append(group)
        return found

    @staticmethod
    def texts(group):
        return [text.text for text in group.iter(SVG + "text")]


@unittest.skipUnless(shutil.which("dot"), "needs Graphviz")
class PicturesByGraphviz(Pictures):
    def test_the_sample_has_a_node_for_each_layer_and_an_arrow_for_each_parent(self):
        found = self.svg(SAMPLE)
        self.assertEqual((len(found["node"]), len(found["edge"]), len(found["cluster"])), (11, 12, 3))
        self.assertIn(["FrontWiper", "BASE-VARIANT"], [self.texts(node) for node in found["node"]])
        self.assertEqual(sorted(text for edge in found["edge"] for text in self.texts(edge)),
                         ["2 excluded"] * 4 + ["3 excluded"] * 2 + ["5 excluded"])

    def test_one_layer_of_the_sample(self):
        found = self.svg(SAMPLE, "--layer", "TroubleCodeLibrary")
        self.assertEqual([self.texts(node) for node in found["node"]], [["TroubleCodeLibrary", "ECU-SHARED-DATA"]])

    def test_names_are_shown_as_they_are(self):
        found = self.svg(DATA / "graph.odx-d")
        names = [self.texts(node)[0] for node in found["node"]]
        self.assertIn('C:\\new "]; x --> y &lt;b> %%{init}%% #35; `Tür`', [name.replace("\u00a0", " ") for name in names])
        self.assertIn('Doors "left" & <right>', [self.texts(cluster)[0] for cluster in found["cluster"]])

    def test_broken_references_are_red(self):
        found = self.svg(DATA / "graph.odx-d")
        red = [edge for edge in found["edge"] if any(path.get("stroke") == "red" for path in edge.iter(SVG + "path"))]
        self.assertEqual([self.texts(edge) for edge in red],
                         [["unresolved"], ["no PROTOCOL"], ["nothing inherited"], ["unresolved"]])

    def test_hostile_names(self):
        names = ["&lt;b&gt;", "&amp;amp;", "&quot;", "\\N\\G", "\\", "a\\&quot;b", "/* x */", "// x", "]", "->", "&#x202E;x",
                 "&lt;/text&gt;&lt;script&gt;", "#", "n0", "subgraph", "", "日本", "\U0001F697", "x" * 5000]
        shown = ["<b>", "&amp;", '"', "\\N\\G", "\\", 'a\\"b', "/* x */", "// x", "]", "->", "\uFFFDx",
                 "</text><script>", "#", "n0", "subgraph", "-", "日本", "\U0001F697", "x" * 5000]
        found = self.svg(self.write(document(base_variants(names))))
        self.assertEqual([self.texts(node)[0].replace("\u00a0", " ") for node in found["node"]], shown)

    def test_a_database_without_layers_is_an_empty_picture(self):
        found = self.svg(DATA / "comparams.odx-c")
        self.assertEqual(found["node"], [])


@unittest.skipUnless(IS_POSIX, "brings scripts as programs")
class ProgramsCalledDot(Pictures):
    def graph(self, script, path=DATA / "gates.odx-d", **options):
        """`graph` with this script as `dot`, and no other program within reach."""
        tools = self.folder / "tools"
        tools.mkdir(exist_ok=True)
        if script is not None:
            (tools / "dot").write_text(f"#!{sys.executable} -I\n{script}", encoding="utf-8")
            (tools / "dot").chmod(0o755)
        return run("graph", "--quiet", path, env=os.environ | {"PATH": str(tools)}, timeout=LONGEST, **options)

    def test_without_graphviz_the_message_says_what_to_do(self):
        done = self.graph(None)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (3, "", MISSING))

    def test_a_file_that_cannot_be_run_is_no_graphviz(self):
        tools = self.folder / "tools"
        tools.mkdir()
        (tools / "dot").write_text("", encoding="utf-8")
        done = self.graph(None)
        self.assertEqual((done.returncode, done.stdout), (3, ""))

    def test_it_gets_the_words_and_the_text_and_no_shell(self):
        done = self.graph("import sys; print(sys.argv[1:]); print(sys.stdin.read())")
        text = run("graph", "--quiet", "--format", "dot", DATA / "gates.odx-d").stdout
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(done.stdout, f"['-Tsvg']\n{text}\n")

    def test_one_that_fails_leaves_nothing_on_standard_output(self):
        done = self.graph("import sys; print('half'); sys.stderr.write('no \\x1b[31mfonts\\nmore\\n'); sys.exit(1)")
        self.assertEqual((done.returncode, done.stdout), (3, ""))
        self.assertEqual(done.stderr, "diagkit: the program 'dot' of Graphviz failed: no \uFFFD[31mfonts; --format dot prints "
                                      "its input\n")

    def test_one_that_a_signal_ends_has_failed(self):
        done = self.graph("import os; os.kill(os.getpid(), 9)")
        self.assertEqual((done.returncode, done.stdout), (3, ""))
        self.assertIn("failed; --format dot", done.stderr)

    def test_neither_waits_for_the_other_however_much_they_write(self):
        many = self.write(document(base_variants(f"Name{number}" for number in range(30000))))
        text = run("graph", "--quiet", "--format", "dot", many).stdout
        self.assertGreater(len(text), 2 << 20)
        done = self.graph("import sys; sys.stdout.write('x' * (4 << 20)); sys.stdout.flush(); "
                          "sys.stderr.write('y' * (4 << 20)); print(len(sys.stdin.read()))", many)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(done.stdout, "x" * (4 << 20) + f"{len(text)}\n")

    def test_one_that_reads_nothing_is_no_reason_to_end(self):
        many = self.write(document(base_variants(f"Name{number}" for number in range(30000))))
        done = self.graph("import os; os.close(0); print('done')", many)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "done\n", ""))

    def test_closed_streams_of_the_call_do_not_mix(self):
        done = self.graph("import sys; sys.stdin.read(); print('done')",
                          preexec_fn=lambda: os.close(0))
        self.assertEqual((done.returncode, done.stdout), (0, "done\n"))

    def test_the_answer_may_be_read_by_nobody(self):
        many = self.write(document(base_variants(f"Name{number}" for number in range(3000))))
        tools = self.folder / "tools"
        self.graph("import sys; sys.stdin.read(); print('x' * (1 << 20))", many)
        with subprocess.Popen([*sys.modules["program"].PROGRAM, "graph", "--quiet", str(many)], stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, env=os.environ | {"PATH": str(tools)}) as call:
            call.stdout.close()
            self.assertIn(call.wait(LONGEST), (3, -13))


if __name__ == "__main__":
    main(__doc__)
