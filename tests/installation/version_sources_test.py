"""The record that the version sources leave in a product, made by the real compilers."""

import unittest

from tree import DATA, STRICT, ToolTest

LANGUAGES = (
    ("gcc", "c_zexapi_version.c", ("c89", "c17")),
    ("clang", "c_zexapi_version.c", ("c89", "c17")),
    ("g++", "cpp_zexapi_version.cpp", ("c++98", "c++20")),
    ("clang++", "cpp_zexapi_version.cpp", ("c++98", "c++20")),
    ("gfortran", "fortran_zexapi_version.F", ("gnu", "f2003")),
)

# Macros, and what the record says of them.
REQUESTS = (
    ("", "release=none dims=64 cmd=0"),
    ("ZX_COMPAT_32 TESSEL_DEFAULT_RELEASE=R2017b USE_ZEX_CMD", "release=R2017b dims=32 cmd=1"),
    ("ZX_COMPAT_64 TESSEL_ZEXCMD_RELEASE=R2018a USE_ZEX_CMD", "release=R2018a dims=64 cmd=1"),
    ("TESSEL_ZEXCMD_RELEASE=R2018a TESSEL_DEFAULT_RELEASE=R2017b", "release=R2018a dims=64 cmd=0"),
    # An odd text that the release switch takes as well.
    ("TESSEL_ZEXCMD_RELEASE=R0x2018a", "release=R0x2018a dims=64 cmd=0"),
)


class VersionSources(ToolTest):
    def test_record_tells_the_request_and_survives_the_link(self):
        shrinking = "-shared -s -Wl,--gc-sections,--no-undefined version.o -o version.so".split()
        for compiler, source, standards in LANGUAGES:
            how = [*STRICT, "-O3", "-fPIC", "-ffunction-sections", "-fdata-sections"]
            how += ["-fdefault-integer-8"] if compiler == "gfortran" else ["-fvisibility=hidden"]
            for standard, (macros, told) in ((s, r) for s in standards for r in REQUESTS):
                with self.subTest(compiler=compiler, standard=standard, macros=macros):
                    how_now = [*how, f"-std={standard}", *(f"-D{macro}" for macro in macros.split()), "-o", "version.o"]
                    self.expect_silence(compiler, *how_now, "-c", str(DATA / "extern/version" / source))
                    # Without a run-time: gcc links the Fortran record too.
                    self.expect_silence("gcc", *shrinking)
                    self.assertEqual(self.records("version.so"), [f"@(#)zex-record form=1 kind=driver {told};"])


if __name__ == "__main__":
    unittest.main()
