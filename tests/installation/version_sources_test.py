"""The record that the version sources leave in a product, made by the real compilers."""

import functools
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

from tree import DATA

VERSION = DATA / "extern/version"
RECORD = re.compile(rb"@\(#\)zex-record [ -:<-~]*;")
STRICT = ["-Wall", "-Wextra", "-pedantic", "-Werror"]

LANGUAGES = (
    ("c_zexapi_version.c", ("gcc", "clang"), ("-std=c89", "-std=c99", "-std=c17")),
    ("cpp_zexapi_version.cpp", ("g++", "clang++"), ("-std=c++98", "-std=c++20")),
    # gcc compiles the Fortran source where a C build has been given -fortran.
    ("fortran_zexapi_version.F", ("gfortran", "gcc"), ("-std=gnu", "-std=f2003", "-fdefault-integer-8")),
)

# Macros, and what the record says of them.
REQUESTS = (
    ([], "release=none dims=64 cmd=0"),
    (["TESSEL_DEFAULT_RELEASE=R2017b", "USE_ZEX_CMD"], "release=R2017b dims=64 cmd=1"),
    (["ZX_COMPAT_32", "TESSEL_DEFAULT_RELEASE=R2017b", "USE_ZEX_CMD"], "release=R2017b dims=32 cmd=1"),
    (["ZX_COMPAT_64", "TESSEL_ZEXCMD_RELEASE=R2018a", "USE_ZEX_CMD"], "release=R2018a dims=64 cmd=1"),
    (["TESSEL_ZEXCMD_RELEASE=R2018a", "TESSEL_DEFAULT_RELEASE=R2017b"], "release=R2018a dims=64 cmd=0"),
    # Odd texts that the release switch takes as well.
    (["TESSEL_ZEXCMD_RELEASE=R00"], "release=R00 dims=64 cmd=0"),
    (["TESSEL_ZEXCMD_RELEASE=R0x2018a"], "release=R0x2018a dims=64 cmd=0"),
    (["TESSEL_ZEXCMD_RELEASE=R+2018a"], "release=R+2018a dims=64 cmd=0"),
)


def for_each_compiler(test):
    @functools.wraps(test)
    def run(self):
        for source, compilers, modes in LANGUAGES:
            for compiler in compilers:
                with self.subTest(source=source, compiler=compiler):
                    needed = {compiler, "gfortran"} if source.endswith(".F") else {compiler}
                    missing = [tool for tool in needed if shutil.which(tool) is None]
                    if missing:
                        self.skipTest(f"not installed: {missing}")
                    test(self, str(VERSION / source), compiler, modes)

    return run


class VersionSources(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_tool(self, *command):
        result = subprocess.run(command, cwd=self.folder, capture_output=True, text=True)
        self.assertEqual((result.returncode, result.stdout + result.stderr), (0, ""), command)

    def records(self, file):
        return [record.decode("ascii") for record in RECORD.findall((self.folder / file).read_bytes())]

    @for_each_compiler
    def test_record_tells_the_request_and_no_warning_is_given(self, source, compiler, modes):
        for mode in modes:
            for macros, told in REQUESTS:
                defines = ["-D" + macro for macro in macros]
                self.run_tool(compiler, *STRICT, mode, *defines, "-c", source, "-o", "version.o")
                self.assertEqual(self.records("version.o"), [f"@(#)zex-record form=1 kind=driver {told};"])

    @for_each_compiler
    def test_record_survives_the_link(self, source, compiler, _):
        hidden = [] if source.endswith(".F") else ["-fvisibility=hidden"]
        sections = ["-ffunction-sections", "-fdata-sections"]
        self.run_tool(compiler, "-O3", "-fPIC", *hidden, *sections, "-c", source, "-o", "version.o")
        # Without a run-time: gcc links the Fortran record too.
        shrinking = ["-s", "-Wl,--gc-sections,--no-undefined"]
        self.run_tool(compiler, "-shared", *shrinking, "version.o", "-o", "version.so")
        self.run_tool("strip", "version.so")
        self.assertEqual(len(self.records("version.so")), 1)


if __name__ == "__main__":
    unittest.main()
