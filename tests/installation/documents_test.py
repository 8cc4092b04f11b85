"""What every shipped option document keeps to. The driver checks none of it: a slip is a build gone wrong."""

import pathlib
import re
import shutil
import subprocess
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


class Document:
    """One option document: its text, and the parts that tests look into."""

    def __init__(self, path):
        self.path = path
        self.text = path.read_text(encoding="utf-8")
        self.config = ElementTree.fromstring(self.text)
        self.arch = path.parts[-3]
        # Compilers of one system that build for another, beside those of the system itself.
        self.cross = path.name.startswith("cross_")


def shipped_documents():
    return [Document(path) for path in sorted(DATA.glob("bin/*/zexopts/*.xml"))]


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

    def test_each_fits_its_system_and_its_year(self):
        versions = {"2022": "[17.0,18.0)", "2019": "[16.0,17.0)", "2017": "[15.0,16.0)"}
        for document in shipped_documents():
            with self.subTest(document=document.path):
                library = {"glnxa64": ".so", "maci64": ".dylib"}.get(document.arch, ".dll")
                clients = [client for client in document.config.iterfind("client/*") if client.tag != "ENGINE"]
                self.assertLessEqual({client.get("LDEXT") for client in clients}, {library})
                told = {versions[year] for year in versions if document.path.stem.endswith(year)}
                self.assertEqual(set(re.findall('-version "([^"]+)"', document.text)), told)

    @unittest.skipUnless(shutil.which("xmllint"), "xmllint is not installed")
    def test_each_is_valid(self):
        command = ["xmllint", "--noout", "--nonet", "--schema", str(ZEXOPTS / "zexopts.xsd")]
        paths = [str(document.path) for document in shipped_documents()]
        result = subprocess.run([*command, *paths], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.assertEqual(result.returncode, 0, result.stdout)


if __name__ == "__main__":
    unittest.main()
