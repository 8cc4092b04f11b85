"""The headers of extensions under every standard that they promise, and the record that they leave in an object."""

import unittest

from tree import DATA, STRICT, ToolTest

INCLUDE = f"-I{DATA / 'extern/include'}"
SOURCE = "#include <zex.h>\n#include <zimstruc.h>\n#include <tzwtypes.h>\nzimPort port_of(void);\n"

LANGUAGES = (
    ("gcc", "c", ("c89", "c99", "c17")),
    ("clang", "c", ("c89", "c99", "c17")),
    ("g++", "cpp", ("c++98", "c++11", "c++20")),
    ("clang++", "cpp", ("c++98", "c++11", "c++20")),
)

# Macros, and what the record says of them.
REQUESTS = (
    ("", "release=R2017b dims=64"),
    ("TESSEL_DEFAULT_RELEASE=R2017b ZX_COMPAT_32", "release=R2017b dims=32"),
    ("TESSEL_ZEXCMD_RELEASE=R2018a ZX_COMPAT_64 ZX_COMPAT_32", "release=R2018a dims=64"),
    # Odd texts that the release switch takes as well.
    ("TESSEL_ZEXCMD_RELEASE=R0", "release=R0 dims=64"),
    ("TESSEL_ZEXCMD_RELEASE=R0x2018a", "release=R0x2018a dims=64"),
)


class Headers(ToolTest):
    def test_no_standard_warns_and_every_source_leaves_its_record(self):
        link = "-O3 -shared -fPIC -ffunction-sections -fdata-sections -Wl,--gc-sections -Wl,-s -o a.so".split()
        for compiler, extension, standards in LANGUAGES:
            sources = [f"a.{extension}", f"b.{extension}"]
            for name in sources:
                (self.folder / name).write_text(SOURCE)
            for standard, (macros, words) in ((s, r) for s in standards for r in REQUESTS):
                with self.subTest(compiler=compiler, standard=standard, macros=macros):
                    warn = [*STRICT, "-Wundef"]
                    defines = [f"-D{macro}" for macro in macros.split()]
                    self.expect_silence(compiler, f"-std={standard}", *warn, INCLUDE, *defines, *link, *sources)
                    self.assertEqual(self.records("a.so"), [f"@(#)zex-record form=1 kind=source {words};"] * 2)

    def test_fortran_compiles_under_every_size_of_integers(self):
        (self.folder / "a.f90").write_text("include 'zex_fortran.f90'\n")
        for option in ("-std=f2008", "-fdefault-integer-8"):
            self.expect_silence("gfortran", *STRICT, INCLUDE, option, "-fsyntax-only", "a.f90")


if __name__ == "__main__":
    unittest.main()
