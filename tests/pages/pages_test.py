"""Runs what the pages tell a user to type: pages_test.py TREE PAGE...

A page is run from its top to its end in a folder of its own, with the programs of the staged tree on the PATH and the
tree's root in TESSEL_ROOT. A fenced block has a language: "sh" is run and must succeed, in "console" the lines behind "$ "
are run and must print what follows them ("..." stands for any lines). A comment in the line above a block changes that:

    <!-- file: NAME -->       the block is the content of a file, which is written
    <!-- not run: WHY -->     the block is for reading
    <!-- needs: TOOL... -->   the block is left out where one of the tools is missing
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
BLOCK = re.compile(r"^(?:<!-- (?P<rule>file|not run|needs): (?P<word>.*?) -->\n+)?```(?P<language>\S*)\n(?P<text>.*?)^```$", re.M | re.S)


def pattern(output):
    """Matches an expected output; a line "..." stands for any lines."""
    lines = [r"(?:.*\n)*?" if line == "..." else re.escape(line) + r"\n" for line in output]
    return re.compile("".join(lines) + r"\Z")


class Page(unittest.TestCase):
    tree = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="page")
        self.addCleanup(folder.cleanup)
        home = Path(folder.name)
        self.work = home / "work"
        self.work.mkdir()
        self.environment = dict(os.environ, HOME=str(home), TMPDIR=str(home), TESSEL_ROOT=str(self.tree), LC_ALL="C.UTF-8",
                                XDG_CONFIG_HOME=str(home / ".config"),
                                PATH=f"{self.tree}/bin/glnxa64:{os.environ['PATH']}")
        for name in ("TESSEL_PREFDIR", "TESSEL_LOCALE", "TESSEL_ZEX_JOBS", "MAKEFLAGS", "DESTDIR"):
            self.environment.pop(name, None)

    def typed(self, command):
        return subprocess.run(["bash", "-c", "set -euo pipefail\n" + command], cwd=self.work, env=self.environment, text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def run_script(self, text):
        done = self.typed(text)
        self.assertEqual(done.returncode, 0, f"\n{text}\n{done.stdout}")

    def run_console(self, text):
        for part in re.split(r"^\$ ", text, flags=re.M)[1:]:
            command, *output = part.rstrip("\n").split("\n")
            while command.endswith("\\") and output:
                command += "\n" + output.pop(0)
            printed = self.typed(command).stdout
            self.assertRegex(printed, pattern(output), f"\n$ {command}")

    def run_page(self, page):
        for block in BLOCK.finditer(page.read_text()):
            rule, word, language, text = block.group("rule", "word", "language", "text")
            with self.subTest(page=page.name, block=text.split("\n")[0]):
                self.assertTrue(language, "a block without a language")
                if rule == "file":
                    (self.work / word).parent.mkdir(parents=True, exist_ok=True)
                    (self.work / word).write_text(text)
                elif rule == "needs" and not all(map(shutil.which, word.split())):
                    print(f"{page.name}: left out for want of {word}: {text.split(chr(10))[0]}")
                elif rule != "not run" and language == "sh":
                    self.run_script(text)
                elif rule != "not run" and language == "console":
                    self.run_console(text)


def add_page(page):
    setattr(Page, "test_" + page.stem.replace("-", "_"), lambda self: self.run_page(page))


if __name__ == "__main__":
    Page.tree = Path(sys.argv[1]).resolve()
    for name in sys.argv[2:]:
        add_page(PROJECT / name)
    unittest.main(argv=sys.argv[:1])
