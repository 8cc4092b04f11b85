"""Where the data of the installed tree lies, and the option documents among it."""

import pathlib
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
DATA = ROOT / "installation"
ZEXOPTS = DATA / "bin" / "glnxa64" / "zexopts"
SCHEMA = ZEXOPTS / "zexopts.xsd"


class Document:
    """One option document: its text, and the parts that tests look into."""

    def __init__(self, path):
        self.path = path
        self.text = path.read_text(encoding="utf-8")
        self.config = ElementTree.fromstring(self.text)
        self.vars = self.config.find("vars").attrib
        self.finder = self.config.find("locationFinder")
        self.commands = {name: text for name, text in self.vars.items() if name.startswith("CMDLINE")}

    def client_attributes(self):
        return [attribute for client in self.config.iterfind("client/*") for attribute in client.attrib.items()]


def shipped_documents():
    return [Document(path) for path in sorted(DATA.glob("bin/*/zexopts/*.xml"))]
