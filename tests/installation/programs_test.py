"""`programs_test.py ZEX`: how the programs beside the staged ZEX answer and end, and an Ada package from end to end."""

import ctypes
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import unittest

from tree import ToolTest

BIN = ""

# A line of the shell and its status; what it prints and what it says on standard error, as patterns for the whole.
ANSWERS = (
    ("zex --version", 0, r"zex \d.*\n", ""),
    ("zex --help", 0, r"(.|\n)+", ""),
    ("zex --help --version", 1, "", r"zex: error: .*\[TESSEL:zex:UnknownSwitch\]\n"),
    ("zex --help > /dev/full", 1, "", "zex: error: cannot write to standard output\n"),
    ("zex broken.c", 1, "Building with 'gcc'.\n", r"zex: error: /.*/broken.c:1:9: (.|\n)* \[TESSEL:zex:Error\]\n"),
    ("TESSEL_PREFDIR=src// zex -v fine.c 'POSTLINK_CMDS=printenv TESSEL_PREFDIR'", 0, r"(.|\n)*\nsrc\n(.|\n)*", ""),
    ("zexcompilers c default --json", 0, r'\[\{.*"ShortName":"gcc".*\}\]\n', ""),
    ("zexcompilers c supported win64", 0, r"NAME (.|\n)* vc2019 +- +\$VS_HOME (.|\n)*", ""),
    ("zexrun missing", 1, "", r"zexrun: error: .*\[TESSEL:host:ProductNotFound\]\n"),
    ("zexrun x -nlhs 1001", 1, "", "zexrun: error: '1001' is no number of outputs\n"),
)

# Sources. The start-up code of the Ada package fills a table by way of a second unit in another folder.
SOURCES = {
    "src/sums.ads": """package Sums is function Squares (Count : Integer) return Integer;
        pragma Export (C, Squares, "sum_of_squares"); end Sums;""",
    "src/sums.adb": """with Powers; package body Sums is
        Table : array (0 .. 9) of Integer := (others => 0);
        function Squares (Count : Integer) return Integer is (Table (Count));
        begin for I in 1 .. 9 loop Table (I) := Table (I - 1) + Powers.Square (I); end loop; end Sums;""",
    "it's \"q\" $x/powers.ads": "package Powers is function Square (X : Integer) return Integer is (X * X); end Powers;",
    "broken.c": "int x = ;",
    "fine.c": "void zexFunction(void) {}",
    "wrong.adb": "procedure Wrong is begin Nothing_Of_This_Name; end Wrong;",
}


class Programs(ToolTest):
    def setUp(self):
        super().setUp()
        for name, text in SOURCES.items():
            file = self.folder / name
            file.parent.mkdir(exist_ok=True)
            file.write_text(text)
        (self.folder / "tmp").mkdir()

    def tearDown(self):
        self.assertEqual(list((self.folder / "tmp").iterdir()), [], "a temporary folder stays")

    def run_line(self, line):
        # In a sanitizer build: the Ada route leaves its arguments to the host on purpose.
        own = {"PATH": f"{BIN}:{os.environ['PATH']}", "TMPDIR": f"{self.folder}/tmp", "ASAN_OPTIONS": "detect_leaks=0"}
        return subprocess.run(line, shell=True, cwd=self.folder, env=own, capture_output=True, text=True)

    def test_each_command_has_its_answer_and_status(self):
        for line, status, out, err in ANSWERS:
            with self.subTest(line=line):
                result = self.run_line(line)
                self.assertEqual(result.returncode, status)
                self.assertRegex(result.stdout, rf"\A{out}\Z")
                self.assertRegex(result.stderr, rf"\A{err}\Z")

    @unittest.skipUnless(shutil.which("gnatmake"), "GNAT is not installed")
    def test_an_ada_package_starts_itself_and_answers(self):
        include = shlex.quote("-Iit's \"q\" $x")
        built = self.run_line(f"zex -ada src/sums.ads {include}")
        self.assertRegex(built.stdout, r"\ABuilt '.*sums.zexa64' with GNAT.\n\Z")
        printed = self.run_line(f"zex src/sums.adb -n -ada {include} -OUTPUT named.x -outdir \"új it's\"").stdout
        self.assertFalse((self.folder / "új it's").exists())
        self.assertEqual(self.run_line(printed).returncode, 0)
        # A dry run's own folder is gone: its commands make it anew.
        shutil.rmtree(next((self.folder / "tmp").iterdir()))
        for product in ("sums.zexa64", "új it's/named.zexa64"):
            self.assertEqual(ctypes.CDLL(str(self.folder / product)).sum_of_squares(3), 1 + 4 + 9)
        self.assertEqual(sorted(entry.name for entry in (self.folder / "src").iterdir()), ["sums.adb", "sums.ads"])
        wrong = self.run_line("zex -ada wrong.adb").stderr
        self.assertRegex(wrong, r'"Nothing_Of_This_Name" is undefined\n.*\[TESSEL:host:AdaBuildFailed\]\n\Z')


if __name__ == "__main__":
    BIN = str(pathlib.Path(sys.argv.pop(1)).resolve().parent)
    unittest.main()
