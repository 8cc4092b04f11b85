"""Where the data of the installed tree lies, and a folder in which tools work upon it."""

import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DATA = ROOT / "installation"


class ToolTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name).resolve()

    def expect_silence(self, *command):
        if shutil.which(command[0]) is None:
            self.skipTest(f"{command[0]} is not installed")
        result = subprocess.run(command, cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.assertEqual((result.returncode, result.stdout), (0, ""), command)

    def records(self, file):
        found = re.findall(rb"@\(#\)zex-record ([ -:<-~]*);", (self.folder / file).read_bytes())
        return [record.decode("ascii") for record in found]
