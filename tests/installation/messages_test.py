"""The English catalogue against the records that the driver makes: an entry for each, with all its arguments."""

import re
import unittest

from tree import DATA, ROOT

RECORD = re.compile(r'return \{"([^"]+)", "([^"]+)", \{([^}]*)\}\};')
PLACEHOLDER = re.compile(r"\{(\d+)\}")


def records():
    """Identifier -> arguments by name. Of an identifier with two signatures only the types differ."""
    headers = (header.read_text(encoding="utf-8") for header in (ROOT / "src/cmd/messages").glob("*.hpp"))
    found = [record for header in headers for record in RECORD.findall(header)]
    return {f"{component}:{tag}": re.findall(r"[^\s,]+", arguments) for component, tag, arguments in found}


class EnglishTexts(unittest.TestCase):
    def test_the_help_tells_of_switches_that_there_are(self):
        text = (DATA / "bin/util/zex/zexHelp.txt").read_text(encoding="utf-8")
        shown = re.findall(r"^  (-[a-z]{2}\w{3,})", text, re.MULTILINE)
        source = "".join(file.read_text(encoding="utf-8") for file in (ROOT / "src/args").glob("*.cpp"))
        self.assertLessEqual(set(shown), {*re.findall(r'"(-\w+)', source), "-glnxa64", "-no_setup"})

    def test_each_record_has_a_text_that_shows_its_arguments_in_order(self):
        lines = (DATA / "resources/zex/en/messages.txt").read_text(encoding="utf-8").split("\n")
        entries = [line.partition(" = ")[::2] for line in lines if line and not line.startswith("#")]
        expected = records()
        self.assertGreater(len(expected), 80)
        self.assertEqual(sorted(identifier for identifier, _ in entries), sorted(expected))
        for identifier, text in entries:
            with self.subTest(identifier=identifier):
                shown = [int(place) for place in PLACEHOLDER.findall(text)]
                self.assertEqual(shown, list(range(len(expected[identifier]))))
                # Escapes are known ones, and braces closed.
                self.assertNotRegex(text.replace(r"\\", ""), r"\\[^n]|\\$|^$")
                self.assertNotRegex(PLACEHOLDER.sub("", re.sub(r"\{\{|\}\}|\{note\}", "", text)), r"[{}]")


if __name__ == "__main__":
    unittest.main()
