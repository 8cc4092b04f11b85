"""What every shipped option document keeps to. The driver checks none of it: a slip is a build gone wrong."""

import functools
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

from tree import DATA

ZEXOPTS = DATA / "bin/glnxa64/zexopts"
VISUAL = "vc2022 vc2019 vc2017 vc2015"
VISUALXX = "vc++2022 vc++2019 vc++2017 vc++2015"
# The compilers of each architecture by language, in the order in which the driver takes them.
PROMISED = {
    "glnxa64": {"C": "gcc clang", "C++": "g++ clang++", "CUDA": "nvcc", "FORTRAN": "gfortran"},
    "maci64": {"C": "clang", "C++": "clang++", "FORTRAN": "gfortran"},
    "win32": {"C": f"{VISUAL} mingw-gcc", "C++": f"{VISUALXX} mingw-g++", "FORTRAN": "ifort mingw-gfortran"},
    "win64": {
        "C": f"{VISUAL} mingw-gcc",
        "C++": f"{VISUALXX} mingw-g++",
        "CUDA": "nvcc",
        "FORTRAN": "ifx ifort mingw-gfortran",
    },
}
# Set by the driver for each request, or gone when undefined.
DRIVER_VARIABLES = set(
    "TESSELROOT ARCH SRC OBJ OBJS SRCROOT DEF EXP LIB EXE ILK MANIFEST TEMPNAME EXEDIR EXENAME"
    " OPTIM LINKOPTIM CLIBS CXXLIBS FLIBS".split()
)

REFERENCE = re.compile(r"\$([A-Z][A-Z0-9_]+)")
RAW_ATTRIBUTE = re.compile(r"""[\w:.-]+\s*=\s*("[^"]*"|'[^']*')""")
COMMENT = re.compile(r"<!--.*?-->", re.DOTALL)


class Document:
    """One option document: its text, and the parts that tests look into."""

    def __init__(self, path):
        self.path = path
        self.text = path.read_text(encoding="utf-8")
        self.config = ElementTree.fromstring(self.text)
        self.vars = self.config.find("vars").attrib
        self.details = self.config.find("Details").attrib
        self.commands = [text for name, text in sorted(self.vars.items()) if name.startswith("CMDLINE")]
        self.arch = path.parts[-3]
        # Compilers of one system that build for another, beside those of the system itself.
        self.cross = path.name.startswith("cross_")
        self.posix = self.cross or not self.arch.startswith("win")
        self.gnu = self.config.get("Manufacturer") == "GNU"

    def __str__(self):
        return f"{self.arch}/{self.path.name}"


def shipped_documents():
    return [Document(path) for path in sorted(DATA.glob("bin/*/zexopts/*.xml"))]


def for_each_document(test):
    @functools.wraps(test)
    def run(self):
        for document in shipped_documents():
            with self.subTest(document=str(document)):
                test(self, document)

    return run


class Documents(unittest.TestCase):
    def test_the_promised_compilers_are_there_in_their_order(self):
        found = {}
        for document in sorted(shipped_documents(), key=lambda document: document.config.get("Priority")):
            language = (document.arch, document.config.get("Language"))
            found.setdefault(language, []).append(document)
        promised = {(arch, language): names for arch in PROMISED for language, names in PROMISED[arch].items()}
        self.assertEqual(set(found), set(promised))
        for language, documents in found.items():
            with self.subTest(language=language):
                natives = [document for document in documents if not document.cross]
                self.assertEqual(" ".join(d.config.get("ShortName") for d in natives), promised[language])
                # Those of another system come behind.
                self.assertEqual(documents[: len(natives)], natives)
                for key in ("Name", "ShortName", "Priority"):
                    self.assertEqual(len({document.config.get(key) for document in documents}), len(documents), key)

    @for_each_document
    def test_an_attribute_is_one_line(self, document):
        # An XML parser turns line feeds into blanks, the driver's does not: look at the text itself.
        attributes = RAW_ATTRIBUTE.findall(COMMENT.sub("", document.text))
        self.assertGreater(len(attributes), 30)
        self.assertEqual([a for a in attributes if "\n" in a or "\r" in a], [])

    @for_each_document
    def test_every_reference_is_defined_and_only_commands_name_one_source(self, document):
        finder = document.config.find("locationFinder")
        defined = {*document.vars, *DRIVER_VARIABLES, *(child.tag for child in finder)}
        expanded = [document.config, *document.config.iterfind("*"), *document.config.iterfind("client/*")]
        for name, text in (attribute for element in expanded for attribute in element.attrib.items()):
            used = set(REFERENCE.findall(text))
            self.assertLessEqual(used, defined)
            if not name.startswith("CMDLINE"):
                self.assertFalse(used & {"SRC", "OBJ"}, name)
        # An attribute of the environment block would take the place of the variable.
        self.assertFalse(set(document.config.find("env").attrib) & set(document.vars))

    @for_each_document
    def test_commands_bear_the_marks_by_which_the_driver_knows_them(self, document):
        (compile_,) = [text for text in document.commands if "$SRC" in text]
        (link,) = [text for text in document.commands if "$EXE" in text]
        self.assertIn("$DEF", document.commands[0])
        self.assertLess(document.commands.index(compile_), document.commands.index(link))
        switch, object_, product = ("-c", "-o ", "-o ") if document.gnu else ("/c", "/Fo", "/out:")
        self.assertRegex(compile_, rf"^\$COMPILER {switch} .* \$SRC {object_}\$OBJ$")
        self.assertRegex(link, rf"^\$LINKER {product}\$EXE .*\$OBJS.* \$USERLIBS")
        # Flags of a user win.
        self.assertLess(compile_.index("$OPTIM"), compile_.index(document.details["CompilerFlags"]))

    @for_each_document
    def test_plain_libraries_have_the_extension_of_their_system(self, document):
        library = {"glnxa64": ".so", "maci64": ".dylib"}.get(document.arch, ".dll")
        clients = document.config.iterfind("client/*")
        self.assertLessEqual({client.get("LDEXT") for client in clients if client.tag != "ENGINE"}, {library})

    @for_each_document
    def test_shell_functions_read_response_files(self, document):
        """A compiler that cannot take such a file as it is gets what the shell makes of its text."""
        compiler = document.vars["COMPILER"]
        if "()" not in compiler:
            self.assertFalse(document.posix and document.config.get("Name") in ("gfortran", "nvcc"))
            return
        arguments = """-c -DT='"x y"' -J"$(dirname "/tmp/p q/o.o")" "/tmp/p (q) & r/ä.f90" -o /tmp/o.o"""
        words = ["-c", '-DT="x y"', "-J/tmp/p q", "/tmp/p (q) & r/ä.f90", "-o", "/tmp/o.o"]
        with tempfile.TemporaryDirectory() as folder:
            tool = pathlib.Path(folder, "to ol")
            tool.write_text('#!/bin/sh\nprintf "[%s]" "$@"\n')
            tool.chmod(0o755)
            file = pathlib.Path(folder, "zex_temp.rsp")
            file.write_text(" " + arguments)
            compiler = compiler.replace("$TESSELROOT", "/opt/t (x) & y").replace("$ARCH", document.arch)
            compiler = REFERENCE.sub(str(tool), compiler)
            for line in (f"{compiler} {arguments}", f"{compiler} @{file}"):
                told = subprocess.run(["sh", "-c", line], stdout=subprocess.PIPE, check=True, text=True).stdout
                self.assertTrue(told.endswith("".join(f"[{word}]" for word in words)), told)

    @for_each_document
    def test_finders_try_cheap_tests_first_and_name_a_remedy(self, document):
        for variable in document.config.find("locationFinder"):
            (group,) = variable
            self.assertRegex(group.get("diagnostic"), r"not found.*([Ii]nstall)")
            for choice in variable.iter("or"):
                runs = [next(test.iter("cmdReturns"), None) is not None for test in choice]
                self.assertEqual(runs, sorted(runs))
            for command in variable.iter("cmdReturns"):
                # The driver tidies a command as if it were a path.
                self.assertNotRegex(command.get("name"), r"//|\\\\|\.\.|[;|]|&&")


@unittest.skipUnless(shutil.which("xmllint"), "xmllint is not installed")
class Schema(unittest.TestCase):
    def validates(self, text):
        command = ["xmllint", "--noout", "--nonet", "--schema", str(ZEXOPTS / "zexopts.xsd"), "-"]
        result = subprocess.run(command, input=text, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8")
        self.assertIn(result.returncode, (0, 3), result.stdout)  # 3 is invalid; others are failures of the check
        return result.returncode == 0

    @for_each_document
    def test_every_document_is_valid(self, document):
        self.assertTrue(self.validates(document.text))

    def test_common_slips_are_not(self):
        text = (ZEXOPTS / "gcc.xml").read_text(encoding="utf-8")
        slips = (
            ('IncludeFlags="$INCLUDES"', ""),
            ('"-D%1%"', '"-D%1%;"'),
            ('Priority="A"', 'Priority=""'),
            ("<vars", "<env /><vars"),
            ("<fileExists name=", "<fileExists path="),
        )
        for old, new in slips:
            with self.subTest(slip=new):
                self.assertIn(old, text)
                self.assertFalse(self.validates(text.replace(old, new)))


if __name__ == "__main__":
    unittest.main()
