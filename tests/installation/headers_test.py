"""The headers of extensions under every standard that they promise, and the record that they leave in an object."""

import itertools
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

from tree import DATA

HEADERS = DATA / "extern/include"
STRICT = ["-Wall", "-Wextra", "-pedantic", "-Werror"]
SOURCE = "#include <zex.h>\n#include <zimstruc.h>\n#include <tzwtypes.h>\nzimPort port_of(void);\n"

LANGUAGES = (
    ("gcc", "c", ("c89", "c99", "c11", "c17")),
    ("clang", "c", ("c89", "c99", "c11", "c17")),
    ("g++", "cpp", ("c++98", "c++11", "c++17", "c++20")),
    ("clang++", "cpp", ("c++98", "c++11", "c++17", "c++20")),
)

# Macros, and what the record says of them.
REQUESTS = (
    ([], "release=R2017b dims=64"),
    (["TESSEL_DEFAULT_RELEASE=R2017b", "ZX_COMPAT_32"], "release=R2017b dims=32"),
    (["TESSEL_ZEXCMD_RELEASE=R2018a", "ZX_COMPAT_64", "ZX_COMPAT_32"], "release=R2018a dims=64"),
    # Odd texts that the release switch takes as well.
    (["TESSEL_ZEXCMD_RELEASE=R00"], "release=R00 dims=64"),
    (["TESSEL_ZEXCMD_RELEASE=R0x2018a"], "release=R0x2018a dims=64"),
)


class Headers(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_tool(self, *command):
        if shutil.which(command[0]) is None:
            self.skipTest(f"{command[0]} is not installed")
        command = [*command, f"-I{HEADERS}"]
        return subprocess.run(command, cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

    def expect_silence(self, *command):
        result = self.run_tool(*command)
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_no_standard_warns(self):
        for compiler, extension, standards in LANGUAGES:
            file = self.folder / f"a.{extension}"
            file.write_text(SOURCE)
            for standard, (macros, _) in itertools.product(standards, REQUESTS):
                with self.subTest(compiler=compiler, standard=standard, macros=macros):
                    defines = [f"-D{macro}" for macro in macros]
                    self.expect_silence(compiler, f"-std={standard}", *STRICT, *defines, "-fsyntax-only", str(file))

    def test_records_survive_optimisers_and_linkers(self):
        link = "-O3 -shared -fPIC -ffunction-sections -fdata-sections -Wl,--gc-sections -Wl,-s a.c b.c -o a.so".split()
        for name in ("a.c", "b.c"):
            (self.folder / name).write_text(SOURCE)
        for compiler, (macros, words) in itertools.product(("gcc", "clang"), REQUESTS):
            with self.subTest(compiler=compiler, macros=macros):
                self.expect_silence(compiler, *(f"-D{macro}" for macro in macros), *link)
                found = re.findall(rb"@\(#\)zex-record [ -:<-~]*;", (self.folder / "a.so").read_bytes())
                self.assertEqual(found, [f"@(#)zex-record form=1 kind=source {words};".encode()] * 2)

    def test_block_headers_in_the_wrong_order_are_marked(self):
        file = self.folder / "a.c"
        file.write_text("#include <tzwtypes.h>\n#include <zimstruc.h>\n")
        for compiler in ("gcc", "clang", "g++", "clang++"):
            result = self.run_tool(compiler, "-fsyntax-only", str(file))
            self.assertIn("tzwtypesbeforezimstrucdetected", result.stdout)
            self.expect_silence(compiler, "-xc", "-fsyntax-only", "-DZX_COMPAT_32", str(file))

    def test_fortran_compiles_under_every_size_of_integers(self):
        file = self.folder / "a.f90"
        file.write_text("include 'zex_fortran.f90'\n")
        for option in ("-std=f2008", "-fdefault-integer-8", "-cpp"):
            self.expect_silence("gfortran", *STRICT, option, "-fsyntax-only", str(file))


if __name__ == "__main__":
    unittest.main()
