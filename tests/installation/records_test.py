"""The records that the driver's version sources and the header leave in a product, by the real compilers, under every
standard that they promise."""

import pathlib
import unittest

from tree import DATA, ToolTest

STRICT = ["-Wall", "-Wextra", "-pedantic", "-Werror", f"-I{DATA / 'extern/include'}"]
COMPILE = ["-O3", "-fPIC", "-ffunction-sections", "-fdata-sections", "-c"]
SOURCE = "#include <zex.h>\n#include <zimstruc.h>\n#include <tzwtypes.h>\nzimPort port_of(void);\n"
# Without a run-time: gcc links the Fortran record too.
LINK = "gcc -shared -s -Wl,--gc-sections,--no-undefined -o product.so".split()

# Compilers, standards and the version source; sources of an extension with the header, for those that can include it.
LANGUAGES = (
    ("gcc", ("c89", "c99", "c17"), "c_zexapi_version.c", ["a.c", "b.c"]),
    ("clang", ("c89", "c99", "c17"), "c_zexapi_version.c", ["a.c", "b.c"]),
    ("g++", ("c++98", "c++11", "c++20"), "cpp_zexapi_version.cpp", ["a.cpp", "b.cpp"]),
    ("clang++", ("c++98", "c++11", "c++20"), "cpp_zexapi_version.cpp", ["a.cpp", "b.cpp"]),
    ("gfortran", ("gnu", "f2003"), "fortran_zexapi_version.F", []),
)
# Macros, and what the record of the driver says of them; sources say the same, but for R2017b where nothing is told.
REQUESTS = (
    ("", "release=none dims=64 cmd=0"),
    ("ZX_COMPAT_32 TESSEL_DEFAULT_RELEASE=R2017b USE_ZEX_CMD", "release=R2017b dims=32 cmd=1"),
    ("ZX_COMPAT_64 TESSEL_ZEXCMD_RELEASE=R2018a USE_ZEX_CMD", "release=R2018a dims=64 cmd=1"),
    ("TESSEL_ZEXCMD_RELEASE=R2018a TESSEL_DEFAULT_RELEASE=R2017b", "release=R2018a dims=64 cmd=0"),
)


class Records(ToolTest):
    def test_records_tell_the_request_and_survive_the_link(self):
        for name in ("a.c", "b.c", "a.cpp", "b.cpp"):
            (self.folder / name).write_text(SOURCE)
        for compiler, standards, version, sources in LANGUAGES:
            only = ["-Wundef", "-fvisibility=hidden"] if sources else ["-fdefault-integer-8"]
            files = [str(DATA / "extern/version" / version), *sources]
            objects = [pathlib.Path(file).stem + ".o" for file in files]
            for standard, (macros, told) in ((s, r) for s in standards for r in REQUESTS):
                defines = [f"-D{macro}" for macro in macros.split()]
                self.expect_silence(compiler, f"-std={standard}", *STRICT, *only, *COMPILE, *defines, *files)
                self.expect_silence(*LINK, *objects)
                source = told.replace("none", "R2017b").rpartition(" ")[0]
                expected = [f"form=1 kind=driver {told}", *[f"form=1 kind=source {source}"] * len(sources)]
                self.assertEqual(self.records("product.so"), expected, [compiler, standard, macros])


if __name__ == "__main__":
    unittest.main()
