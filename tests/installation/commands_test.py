"""What each shipped document makes of a few requests, compared with commands/ARCH.txt.

`commands_test.py ZEX --rewrite`, with the staged program, writes these files anew: read what changed in them.
Nothing is run but the driver, with -n. The finder of a document is replaced by one that "finds" fixed folders, so the
commands of compilers that this machine cannot have are seen as well.
"""

import pathlib
import re
import subprocess
import sys
import unittest

from documents_test import PROMISED, shipped_documents
from tree import ROOT, ToolTest

EXPECTED = ROOT / "tests/installation/commands"
SOURCES = {"C": "a.c", "C++": "a.cpp", "CUDA": "a.cu", "FORTRAN": "a.f90"}
REQUESTS = ("-DNAME=1 -Iinc -Lfolder -lfoo {}", "-g {}", "-c {}", "-client ENGINE {}")
# The same in nearly every build: shown for the first request.
ALWAYS = re.compile("^folder=|^for |/extern/version/")
# Compilers that are not there have no version, and Fortran has a default to warn of.
WARNINGS = r"(zex: warning: .*\[TESSEL:zex:(MinGWVersion|FortranLargeArrayDimsWarn)\]\n)*"
SET_ENV = re.compile(r'''TESSEL:zex:SetEnv\("(\w+)", "(.*)"\)''')
FINDER = re.compile("<locationFinder>.*</locationFinder>", re.DOTALL)

PATH = "/usr/bin:/bin"
ZEX = ""
REWRITE = False


def found(document, variable):
    """What the finder of the copy answers, with a blank in it."""
    if "VERSION" in variable:
        return "1.2.3"
    windows = document.arch.startswith("win")
    return rf"C:\the tools\{variable.lower()}" if windows else f"/opt/the tools/{variable.lower()}"


class Commands(ToolTest):
    def setUp(self):
        super().setUp()
        for name in ("tmp", "preferences"):
            (self.folder / name).mkdir()
        for name in SOURCES.values():
            (self.folder / name).touch()

    def zex(self, environment, *arguments):
        own = {"PATH": PATH, "TMPDIR": f"{self.folder}/tmp", "TESSEL_LOCALE": "id"}
        own["TESSEL_PREFDIR"] = f"{self.folder}/preferences"
        own.update(environment)
        return subprocess.run([ZEX, *arguments], cwd=self.folder, env=own, capture_output=True, text=True)

    def commands(self, document, request):
        finder = document.config.find("locationFinder")
        fakes = {f"FAKE_{child.tag}": found(document, child.tag) for child in finder}
        tests = "".join(f'<{child.tag}><envVarExists name="FAKE_{child.tag}" /></{child.tag}>' for child in finder)
        copy = self.folder / "copy.xml"
        copy.write_text(FINDER.sub(f"<locationFinder>{tests}</locationFinder>", document.text), encoding="utf-8")

        result = self.zex(fakes, f"-{document.arch}", "-n", "-v", "-silent", "-f", str(copy), *request.split())
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertTrue(re.fullmatch(WARNINGS, result.stderr), result.stderr)
        text = result.stdout.replace(str(pathlib.Path(ZEX).parents[2]), "<TREE>")
        text = re.sub(re.escape(f"{self.folder}/tmp/") + r"""[^/\\\s"']+""", "<TEMP>", text)
        text = text.replace(str(self.folder), "<WORK>")
        environment = [f"{name}={value}" for name, value in SET_ENV.findall(text)]
        environment = [line.replace(r"\\", "\\").removesuffix(f":{PATH}") for line in environment]
        # The commands stand behind the ruled table of the document.
        return environment, re.split("\n-+\n", text)[-1].splitlines()

    def blocks(self, document):
        source = SOURCES[document.config.get("Language")]
        for index, request in enumerate(REQUESTS):
            if "ENGINE" in request and document.config.find("client/ENGINE") is None:
                continue
            environment, commands = self.commands(document, request.format(source))
            shown = [*environment, *commands] if index == 0 else [c for c in commands if not ALWAYS.search(c)]
            yield "\n".join([f"$ zex -{document.arch} {request.format(source)}", *shown])

    def test_requests_become_these_commands(self):
        for arch in PROMISED:
            names_by_text = {}
            for document in shipped_documents():
                # What other systems offer depends on what is built for them.
                if document.arch == arch and not document.cross:
                    with self.subTest(document=document.path):
                        text = "\n\n".join(self.blocks(document))
                        names_by_text.setdefault(text, []).append(document.path.name)
            text = "\n\n\n".join(f"# {' '.join(names)}\n\n{text}" for text, names in names_by_text.items()) + "\n"
            file = EXPECTED / f"{arch}.txt"
            if REWRITE:
                file.write_text(text, encoding="utf-8")
            with self.subTest(file=file.name):
                self.assertEqual(text.split("\n"), file.read_text(encoding="utf-8").split("\n"))


if __name__ == "__main__":
    ZEX = str(pathlib.Path(sys.argv.pop(1)).resolve())
    REWRITE = "--rewrite" in sys.argv
    unittest.main(argv=[argument for argument in sys.argv if argument != "--rewrite"])
