"""The English catalogue against the records that the driver makes: an entry for each, with all its arguments."""

import re
import unittest

from tree import DATA, ROOT

RECORD = re.compile(r'return \{"([^"]+)", "([^"]+)", \{([^}]*)\}\};')
PLACEHOLDER = re.compile(r"\{(\d+)\}")
LINK = re.compile(r'<a href="tessel:zex -[^"]+">[^<]+</a>')


def records():
    """Identifier -> arguments by name. Of an identifier with two signatures only the types differ."""
    headers = (header.read_text(encoding="utf-8") for header in (ROOT / "src/cmd/messages").glob("*.hpp"))
    found = [record for header in headers for record in RECORD.findall(header)]
    return {f"{component}:{tag}": re.findall(r"[^\s,]+", arguments) for component, tag, arguments in found}


def entries():
    lines = (DATA / "resources/zex/en/messages.txt").read_text(encoding="utf-8").split("\n")
    return [line.partition(" = ")[::2] for line in lines if line and not line.startswith("#")]


class EnglishCatalogue(unittest.TestCase):
    def test_one_entry_for_each_record(self):
        self.assertGreater(len(records()), 80)
        self.assertEqual(sorted(identifier for identifier, _ in entries()), sorted(records()))

    def test_every_argument_is_shown_in_its_order_and_every_bracket_closed(self):
        names_by_record = records()
        for identifier, text in entries():
            with self.subTest(identifier=identifier):
                used = [int(index) for index in PLACEHOLDER.findall(text)]
                self.assertEqual(used, list(range(len(names_by_record[identifier]))))
                self.assertNotRegex(text.replace(r"\\", ""), r"\\[^n]|\\$|^$")
                plain = PLACEHOLDER.sub("", re.sub(r"\{\{|\}\}", "", text)).replace("{note}", "", 1)
                self.assertNotRegex(plain, r"[{}]")

    def test_marked_up_texts_have_a_plain_twin(self):
        texts = dict(entries())
        for identifier, text in texts.items():
            with self.subTest(identifier=identifier):
                plain = re.sub("_link|_bold", "", identifier)
                self.assertIn(plain, texts)
                bare = LINK.sub("", text) if "_link" in identifier else text
                bare = re.sub("<strong>[^<]+</strong>", "", bare) if "_bold" in identifier else bare
                self.assertNotRegex(bare, "<a |</a|strong>")
                # The links of this one are the lines that the driver prints behind it.
                self.assertEqual(bare == text, plain == identifier or "MultiCompilers" in identifier)


if __name__ == "__main__":
    unittest.main()
