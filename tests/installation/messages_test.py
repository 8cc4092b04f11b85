"""The English catalogue against the records that the driver makes: an entry for each, with all its arguments."""

import re
import unittest

from tree import DATA, ROOT

RECORD = re.compile(r'return \{"([^"]+)", "([^"]+)", \{([^}]*)\}\};')
PLACEHOLDER = re.compile(r"\{(\d+)\}")


def records():
    """Identifier -> arguments by name. Of an identifier with two signatures only the types differ."""
    found = {}
    for header in sorted((ROOT / "src/cmd/messages").glob("*.hpp")):
        for component, tag, arguments in RECORD.findall(header.read_text(encoding="utf-8")):
            names = [name.strip() for name in arguments.split(",") if name.strip()]
            known = found.setdefault(f"{component}:{tag}", names)
            assert len(known) == len(names), tag
    return found


def entries():
    lines = (DATA / "resources/zex/en/messages.txt").read_text(encoding="utf-8").split("\n")
    return [line.partition(" = ")[::2] for line in lines if line and not line.startswith("#")]


class EnglishCatalogue(unittest.TestCase):
    def setUp(self):
        self.records = records()
        self.entries = entries()
        self.texts = dict(self.entries)

    def test_one_entry_for_each_record(self):
        self.assertGreater(len(self.records), 80)
        self.assertEqual(sorted(identifier for identifier, _ in self.entries), sorted(self.records))

    def test_every_argument_is_shown(self):
        for identifier, names in self.records.items():
            with self.subTest(identifier=identifier):
                used = {int(index) for index in PLACEHOLDER.findall(self.texts[identifier])}
                # A record may carry the same value twice, under a name that says so.
                needed = {index for index, name in enumerate(names) if not name.startswith("same")}
                self.assertLessEqual(needed, used)
                self.assertLessEqual(used, set(range(len(names))))

    def test_form_of_a_text(self):
        for identifier, text in self.entries:
            with self.subTest(identifier=identifier):
                self.assertTrue(text)
                self.assertEqual(text, text.strip())
                self.assertNotRegex(text.replace(r"\\", ""), r"\\[^n]|\\$")
                bare = PLACEHOLDER.sub("", text.replace("{{", "").replace("}}", ""))
                self.assertNotRegex(bare, r"[{}]")

    def test_marked_up_texts_have_a_plain_twin(self):
        link = re.compile(r'<a href="tessel:zex -[^"]+">[^<]+</a>')
        for identifier, text in self.entries:
            with self.subTest(identifier=identifier):
                if identifier == "TESSEL:zex:MultiCompilers_link":
                    pass  # the links are the lines that the driver prints behind it
                elif "_link" in identifier:
                    self.assertRegex(text, link)
                    self.assertNotRegex(link.sub("", text), "[<>]")
                elif "_bold" in identifier:
                    self.assertRegex(text, "<strong>[^<]+</strong>")
                else:
                    self.assertNotRegex(text, "<a |<strong>")
                    continue
                self.assertIn(re.sub("_link|_bold", "", identifier), self.texts)

    def test_a_tools_own_words_stand_alone(self):
        self.assertEqual(self.texts["TESSEL:zex:Error"], "{0}")
        self.assertEqual(self.texts["TESSEL:zex:Warn"], "{0}")


if __name__ == "__main__":
    unittest.main()
