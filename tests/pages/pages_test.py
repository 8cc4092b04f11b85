"""Runs what the pages tell a user to type: pages_test.py TREE PAGE...

A page is run from its top to its end in a folder of its own, with the programs of the staged tree on the PATH and the
tree's root in TESSEL_ROOT. Its blocks in the language "sh" must succeed. A comment in the line above changes that:

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
TREE = Path(sys.argv[1]).resolve()
BLOCK = re.compile(r"^(?:<!-- (not run|needs): (.*?) -->\n)?```sh\n(.*?)^```$", re.M | re.S)


class Pages(unittest.TestCase):
    def run_page(self, page, home):
        work = home / "work"
        work.mkdir()
        environment = dict(os.environ, HOME=str(home), TMPDIR=str(home), TESSEL_ROOT=str(TREE), XDG_CONFIG_HOME=str(home),
                           # For a sanitizer build: Bear loads a library of its own ahead of all others.
                           ASAN_OPTIONS="verify_asan_link_order=0",
                           PATH=f"{TREE}/bin/glnxa64:{os.environ['PATH']}")
        for rule, word, text in BLOCK.findall((PROJECT / page).read_text()):
            if rule == "not run" or not all(map(shutil.which, word.split())):
                continue
            done = subprocess.run(["bash", "-euo", "pipefail", "-c", text], cwd=work, env=environment, text=True,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
            self.assertEqual(done.returncode, 0, f"{page}:\n{text}\n{done.stdout}")

    def test_what_they_tell_to_type_works(self):
        for page in sys.argv[2:]:
            with self.subTest(page), tempfile.TemporaryDirectory() as home:
                self.run_page(page, Path(home))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
