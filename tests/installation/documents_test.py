"""What every shipped option document keeps to. The driver checks none of it: a slip is a build gone wrong."""

import functools
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

from tree import DATA, SCHEMA, ZEXOPTS, shipped_documents

# Set by the driver for each request.
DRIVER_VARIABLES = set(
    "TESSELROOT ARCH SRC OBJ OBJS SRCROOT DEF EXP LIB EXE ILK MANIFEST TEMPNAME EXEDIR EXENAME"
    " OPTIM LINKOPTIM".split()
)
VANISH_WHEN_UNDEFINED = {"CLIBS", "CXXLIBS", "FLIBS"}
# Names of variables that the driver reads, and formatters, by attribute of "Details".
NAMING = (
    "IncludeFlags CompilerDefines LinkerLibraries"
    " OptimizationFlags DebugFlags LinkerOptimizationFlags LinkerDebugFlags"
).split()
FORMATTERS = {
    "CompilerDefineFormatter": "-D%1%",
    "LinkerPathFormatter": "-L%s",
    "LinkerLibrarySwitchFormatter": "-l%s",
}
# A tool reads these even when they are empty, or the driver and the tools need them.
FORBIDDEN_IN_ENV = {"COMPILER_PATH", "LIBRARY_PATH", "GCC_EXEC_PREFIX", "TMPDIR", "HOME"}

REFERENCE = re.compile(r"\$([A-Z][A-Z0-9_]+)")
RAW_ATTRIBUTE = re.compile(r"""[\w:.-]+\s*=\s*("[^"]*"|'[^']*')""")
COMMENT = re.compile(r"<!--.*?-->", re.DOTALL)


def references(text):
    return set(REFERENCE.findall(text))


def for_each_document(test):
    @functools.wraps(test)
    def run(self):
        for document in shipped_documents():
            with self.subTest(document=document.path.name):
                test(self, document)

    return run


class Catalogue(unittest.TestCase):
    def setUp(self):
        self.documents = shipped_documents()

    def test_the_promised_compilers_are_there(self):
        found = {(d.config.get("ShortName"), d.config.get("Language")) for d in self.documents}
        promised = "gcc:C clang:C g++:C++ clang++:C++ gfortran:FORTRAN nvcc:CUDA"
        self.assertEqual(found, {tuple(pair.split(":")) for pair in promised.split()})

    def test_names_are_unique_for_a_language(self):
        for attribute in ("Name", "ShortName"):
            keys = [(d.path.parent, d.config.get("Language"), d.config.get(attribute)) for d in self.documents]
            self.assertEqual(len(keys), len(set(keys)), attribute)

    def test_gcc_comes_before_clang(self):
        priority = {d.config.get("ShortName"): d.config.get("Priority") for d in self.documents}
        self.assertLess(priority["gcc"], priority["clang"])
        self.assertLess(priority["g++"], priority["clang++"])

    @for_each_document
    def test_an_attribute_is_one_line(self, document):
        # An XML parser turns line feeds into blanks, the driver's does not: look at the text itself.
        attributes = [match.group(1) for match in RAW_ATTRIBUTE.finditer(COMMENT.sub("", document.text))]
        self.assertGreater(len(attributes), 30)
        self.assertEqual([a for a in attributes if "\n" in a or "\r" in a], [])

    @for_each_document
    def test_commands_are_recognised_and_carry_no_stamp(self, document):
        self.assertEqual(document.config.get("Manufacturer").lower(), "gnu")
        self.assertIsNone(document.config.find("TESSEL"))
        self.assertIsNone(document.config.get("Zexopt"))

    @for_each_document
    def test_details_name_variables_that_exist(self, document):
        details = document.config.find("Details").attrib
        for attribute in NAMING:
            self.assertRegex(details[attribute], r"^\$[A-Z][A-Z0-9_]+$", attribute)
            self.assertIn(details[attribute][1:], document.vars)
        for attribute, formatter in FORMATTERS.items():
            self.assertEqual(details[attribute], formatter)
        self.assertNotIn("LibrarySearchPath", details)

    @for_each_document
    def test_what_switches_fill_is_not_what_a_user_assigns(self, document):
        details = document.config.find("Details").attrib
        private = {details[name] for name in ("IncludeFlags", "CompilerDefines", "LinkerLibraries")}
        self.assertEqual(len(private), 3)
        self.assertFalse(private & {details["CompilerFlags"], details["LinkerFlags"], "$LINKLIBS"})

    @for_each_document
    def test_every_reference_is_defined(self, document):
        defined = set(document.vars) | DRIVER_VARIABLES | {child.tag for child in document.finder}
        config = document.config
        expanded = [config, *config.iterfind("*"), *config.iterfind("client/*")]
        used = {name for element in expanded for text in element.attrib.values() for name in references(text)}
        self.assertEqual(used - defined - VANISH_WHEN_UNDEFINED, set())
        self.assertFalse([text for text in document.vars.values() if "$$" in text])

    @for_each_document
    def test_only_commands_name_one_source(self, document):
        rest = [*document.vars.items(), *document.client_attributes()]
        naming = {name for name, text in rest if references(text) & {"SRC", "OBJ"}}
        self.assertEqual(naming, {name for name in naming if name.startswith("CMDLINE")})

    @for_each_document
    def test_vars_and_env_share_no_name(self, document):
        order = [child.tag for child in document.config]
        self.assertEqual(order.count("vars"), 1)
        self.assertLess(order.index("vars"), order.index("env"))
        env = set(document.config.find("env").attrib)
        self.assertFalse(env & (set(document.vars) | FORBIDDEN_IN_ENV))

    @for_each_document
    def test_clients(self, document):
        clients = {c.tag: {**document.vars, **c.attrib} for c in document.config.iterfind("client/*")}
        products = {name: (vars_["LDEXT"], vars_["SHAREDFLAGS"]) for name, vars_ in clients.items()}
        library = (".so", "-shared")
        expected = {"ENGINE": ("", ""), "ZBUILD": library, "ZBUILD_COM": library}
        self.assertEqual(products, expected if document.config.get("Language") in ("C", "C++") else {})


class Commands(unittest.TestCase):
    @for_each_document
    def test_kinds_and_order(self, document):
        names = sorted(document.commands)
        self.assertEqual(len({len(name) for name in names}), 1, "suffixes of equal length")
        folder, compile_, link = (document.commands[name] for name in names)
        self.assertIn("$DEF", folder)
        self.assertRegex(compile_, r"^\$COMPILER -c .* \$SRC -o \$OBJ$")
        self.assertRegex(link, r"^\$LINKER -o \$EXE .*\$OBJS.* \$USERLIBS")
        for text in (folder, compile_, link):
            self.assertNotRegex(text, r"\brm ")
            self.assertNotRegex(text, r"[;|#<>]|&&")

    @for_each_document
    def test_a_link_holds_no_compile_switch(self, document):
        link = [t for t in document.commands.values() if t.startswith("$LINKER")]
        reached, open_ = [], link + [t for name, t in document.client_attributes()]
        while open_:
            reached.append(open_.pop())
            open_ += [document.vars[n] for n in references(reached[-1]) if n in document.vars]
        self.assertEqual([text for text in reached if "-c" in text], [])

    @for_each_document
    def test_flags_of_a_user_win(self, document):
        compile_ = next(t for t in document.commands.values() if t.startswith("$COMPILER"))
        flags = document.config.find("Details").get("CompilerFlags")
        self.assertIn(flags, compile_)
        self.assertLess(compile_.index("$OPTIM"), compile_.index(flags))

    @for_each_document
    def test_fortran_compiles_do_not_carry_what_the_driver_adds(self, document):
        carriers = [name for name, text in document.vars.items() if "COMPFLAGS" in references(text)]
        self.assertEqual(not carriers, document.config.get("Language") == "FORTRAN")

    @for_each_document
    def test_shell_functions_read_response_files(self, document):
        """A compiler that cannot take such a file as it is gets what the shell makes of its text."""
        compiler = document.vars["COMPILER"]
        self.assertEqual("()" in compiler, document.config.get("Name") in ("gfortran", "nvcc"))
        if "()" not in compiler:
            return
        arguments = """-c -DT='"x y"' -J"$(dirname "/tmp/p q/o.o")" "/tmp/p (q) & r/ä.f90" -o /tmp/o.o"""
        with tempfile.TemporaryDirectory() as folder:
            tool = pathlib.Path(folder, "to ol")
            tool.write_text('#!/bin/sh\nprintf "[%s]" "$@"\n')
            tool.chmod(0o755)
            file = pathlib.Path(folder, "zex_temp.rsp")
            file.write_text(" " + arguments)
            compiler = compiler.replace("$TESSELROOT", "/opt/t (x) & y").replace("$ARCH", "glnxa64")
            compiler = REFERENCE.sub(str(tool), compiler)
            direct, through_file = (
                subprocess.run(["sh", "-c", line], stdout=subprocess.PIPE, check=True, text=True).stdout
                for line in (f"{compiler} {arguments}", f"{compiler} @{file}")
            )
        self.assertEqual(direct, through_file)
        words = ["-c", '-DT="x y"', "-J/tmp/p q", "/tmp/p (q) & r/ä.f90", "-o", "/tmp/o.o"]
        self.assertTrue(direct.endswith("".join(f"[{word}]" for word in words)), direct)


class Finders(unittest.TestCase):
    @for_each_document
    def test_every_variable_has_cheap_tests_first_and_a_remedy(self, document):
        for variable in document.finder:
            group = variable.find("or")
            self.assertRegex(group.get("diagnostic"), r"not found.*(Install|apt install)")
            kinds = [test.tag for test in group]
            self.assertEqual(kinds, sorted(kinds, key=lambda kind: kind == "cmdReturns"))
            self.assertEqual(kinds[0], "fileExists")

    @for_each_document
    def test_commands_survive_the_tidying_of_paths(self, document):
        for command in document.finder.iter("cmdReturns"):
            self.assertNotRegex(command.get("name"), r"//|\\\\|\.\.|[;|]|&&")

    def test_folders_of_all_architectures_exist(self):
        for architecture in ("glnxa64", "maci64", "win32", "win64"):
            self.assertTrue(any((DATA / "bin" / architecture / "zexopts").iterdir()), architecture)


@unittest.skipUnless(shutil.which("xmllint"), "xmllint is not installed")
class Schema(unittest.TestCase):
    def validates(self, path):
        command = ["xmllint", "--noout", "--nonet", "--schema", str(SCHEMA), str(path)]
        result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.assertIn(result.returncode, (0, 3), result.stdout)  # 3 is invalid; others are failures of the check
        return result.returncode == 0

    def test_every_document_is_valid(self):
        for document in shipped_documents():
            self.assertTrue(self.validates(document.path), document.path)

    def test_common_slips_are_not(self):
        text = (ZEXOPTS / "gcc.xml").read_text(encoding="utf-8")
        slips = (
            ("an empty name of a variable", 'IncludeFlags="$INCLUDES"', 'IncludeFlags=""'),
            ("a missing attribute", 'IncludeFlags="$INCLUDES"', ""),
            ("two formatters", '"-D%1%"', '"-D%1%;"'),
            ("an empty priority", 'Priority="A"', 'Priority=""'),
            ("an unknown language", 'Language="C"', 'Language="Ada"'),
            ("env before vars", "<vars", "<env /><vars"),
            ("a test without a name", "<fileExists name=", "<fileExists path="),
            ("an unknown test", "<cmdReturns", "<commandReturns"),
            ("no link program", "LINKER=", "LINKR="),
        )
        for slip, old, new in slips:
            with self.subTest(slip=slip), tempfile.NamedTemporaryFile("w", encoding="utf-8") as file:
                self.assertIn(old, text)
                file.write(text.replace(old, new))
                file.flush()
                self.assertFalse(self.validates(file.name))


if __name__ == "__main__":
    unittest.main()
