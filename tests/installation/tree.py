"""Where the data of the installed tree lies, and a folder in which tools work upon it."""

import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DATA = ROOT / "installation"
STRICT = ["-Wall", "-Wextra", "-pedantic", "-Werror"]


class ToolTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_tool(self, *command):
        if shutil.which(command[0]) is None:
            self.skipTest(f"{command[0]} is not installed")
        return subprocess.run(command, cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

    def expect_silence(self, *command):
        result = self.run_tool(*command)
        self.assertEqual((result.returncode, result.stdout), (0, ""), command)

    def records(self, file):
        found = re.findall(rb"@\(#\)zex-record [ -:<-~]*;", (self.folder / file).read_bytes())
        return [record.decode("ascii") for record in found]
