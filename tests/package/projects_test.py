"""Products of other build tools against those of zex: projects_test.py TREE."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
TREE = Path(sys.argv[1]).resolve() if len(sys.argv) > 1 else None
RECORD = re.compile(rb"@\(#\)zex-record [ -:<-~]*;")
TOOLCHAIN = HERE.parents[1] / "cmake/toolchains/mingw-w64.cmake"

# Target of zex_add_extension, source in the examples or beside the project, and the switches that say the same.
EXTENSIONS = (
    ("filter", "filter.c", ["-R2018a"]),
    ("product", "product.cpp", ["-compatibleArrayDims"]),
    ("sizes", "sizes.f90", ["-largeArrayDims"]),
    ("sizes_32", "sizes.f90", ["-compatibleArrayDims"]),
)
# What CMake refuses, and a word of the remedy.
MISTAKES = (
    ("zex_add_extension(a a.c)", "stand behind SOURCES"),
    ("zex_add_extension(a)", "there is no source"),
    ("zex_add_extension(a SOURCES a.cpp)", r"enable_language\(CXX\)"),
    ("zex_add_extension(a SOURCES a.c RELEASE R2018a COMPATIBLE_ARRAY_DIMS)", "Keep one of them"),
    ("zex_add_test(NAME t EXTENSION a EXPECTS 1)", "no target"),
)


class Projects(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.environment = dict(os.environ, TESSEL_PREFDIR=str(self.folder), TMPDIR=str(self.folder), TESSEL_ROOT=str(TREE),
                                PKG_CONFIG_PATH=str(TREE / "lib/pkgconfig"), PATH=f"{TREE}/bin/glnxa64:{os.environ['PATH']}")

    def done(self, *command, folder=None):
        return subprocess.run(command, cwd=folder or self.folder, env=self.environment, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)

    def output(self, *command, folder=None):
        done = self.done(*command, folder=folder)
        self.assertEqual(done.returncode, 0, f"{command}\n{done.stdout}")
        return done.stdout

    def names_shown(self, product):
        if product.suffix == ".zexw64":
            tables = self.output("x86_64-w64-mingw32-objdump", "-p", str(product))
            return re.findall(r"\[ *\d+\] (zex\w+)", tables)
        return re.findall(r"\b[TDRBV] (\S+)", self.output("nm", "-D", "--defined-only", str(product)))

    def seen(self, product):
        """What matters of a product: the names that it shows and the records in it."""
        return sorted(self.names_shown(product)), sorted(RECORD.findall(product.read_bytes()))

    def compare(self, suffix, zex_switches, cmake_switches):
        build = self.folder / "build"
        self.output("cmake", "-G", "Ninja", "-S", str(HERE / "extensions"), "-B", str(build), *cmake_switches)
        self.output("cmake", "--build", str(build))
        for name, source, switches in EXTENSIONS:
            with self.subTest(name + suffix):
                path = HERE / "extensions" / source
                path = path if path.exists() else TREE / "extern/examples" / source
                self.output("zex", "-silent", *zex_switches, *switches, str(path), "-output", name)
                names, records = self.seen(build / (name + suffix))
                self.assertEqual((names, records), self.seen(self.folder / (name + suffix)))
                self.assertEqual((len(names), len(records) > 0), (2, True))
        return build

    def test_cmake_builds_what_zex_builds(self):
        build = self.compare(".zexa64", [], [f"-DCMAKE_PREFIX_PATH={TREE}"])
        self.output("ctest", "--test-dir", str(build))
        self.assertIn("no work to do", self.output("cmake", "--build", str(build)))

    def test_cmake_builds_what_zex_builds_for_windows(self):
        if shutil.which("x86_64-w64-mingw32-gfortran") is None:
            self.skipTest("the cross compilers are not installed")
        self.compare(".zexw64", ["-win64"], [f"-Dzex_DIR={TREE}/lib/cmake/zex", f"-DCMAKE_TOOLCHAIN_FILE={TOOLCHAIN}"])

    def test_parts_that_disagree_end_the_build(self):
        (self.folder / "a.c").write_text("#include <zex.h>\nvoid zexFunction(int n, zxArray* p[], int m, const zxArray* q[]) {}\n")
        self.output("zex", "-silent", "-c", "-R2018a", "a.c")
        (self.folder / "b.c").write_text("#include <zex.h>\n")
        (self.folder / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(x LANGUAGES C)\nfind_package(zex REQUIRED)\n"
            "zex_add_extension(b SOURCES b.c a.o)\n")
        self.output("cmake", "-G", "Ninja", "-B", "build", f"-DCMAKE_PREFIX_PATH={TREE}")
        self.assertRegex(self.done("cmake", "--build", "build").stdout, r"Contradicting interfaces.*\[TESSEL:zexrun:RecordsDisagree\]")

    def test_mistakes_name_the_remedy(self):
        for line, remedy in MISTAKES:
            with self.subTest(line):
                (self.folder / "CMakeLists.txt").write_text(
                    f"cmake_minimum_required(VERSION 3.25)\nproject(x LANGUAGES NONE)\nfind_package(zex REQUIRED)\n{line}\n")
                done = self.done("cmake", "-B", "mistakes", f"-DCMAKE_PREFIX_PATH={TREE}")
                self.assertNotEqual(done.returncode, 0)
                self.assertRegex(re.sub(r"\s+", " ", done.stdout), remedy)

    def test_a_header_rebuilds_what_depends_on_it(self):
        tools = {
            "cmake": (["cmake", "-G", "Ninja", "-B", "b"], ["cmake", "--build", "b", "-v"], "b/smooth.zexa64"),
            "meson": (["meson", "setup", "b"], ["meson", "compile", "-v", "-C", "b"], "b/smooth.zexa64"),
            "make": (["true"], ["make"], "smooth.zexa64"),
        }
        for tool, (configure, build, product) in tools.items():
            with self.subTest(tool):
                if shutil.which(tool) is None:
                    self.skipTest(f"{tool} is not installed")
                work = self.folder / tool
                shutil.copytree(TREE / "extern/examples/projects/smooth", work)
                (work / "window.hpp").rename(work / "triangle.hpp")
                (work / "window.hpp").write_text('#include "triangle.hpp"\n')
                (work / "window.cpp").write_text((work / "window.cpp").read_text().replace("window.hpp", "triangle.hpp"))
                self.output(*configure, folder=work)
                self.output(*build, folder=work)
                os.utime(work / "window.hpp", (2**31, 2**31))
                again = self.output(*build, folder=work)
                compiled = [name for name in ("smooth.cpp", "window.cpp") if re.search(rf"-c \S*{name}| -c .*{name}", again)]
                self.assertEqual(compiled, ["smooth.cpp"], again)
                self.output("zexrun", product, "[0 0 4 0 0]", "3", "--expects", "[0 1 2 1 0]", folder=work)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
