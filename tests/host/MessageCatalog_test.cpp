#include "fl/i18n/MessageCatalog.hpp"

#include <gtest/gtest.h>

#include "Record.hpp"
#include "standalone/StandaloneServices.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace {

using fl::ustring;

class Catalogue : public testing::Test {
 protected:
  Catalogue() {
    host_.install = scratch_.path();
    scratch_.write("resources/zex/en/messages.txt",
                   "\xEF\xBB\xBF# TESSEL:zex:Comment = no\n\n"
                   "TESSEL:zex:Two = {1} before {0}\\n\\\\n {{0}} {2} {x} {\n"
                   "  TESSEL:zex:Trailing  = a = b \r\n"
                   "TESSEL:zex:Empty =\n"
                   "a line that is none\n"
                   "TESSEL:zex:Land = English");
    scratch_.write("resources/zex/de/messages.txt", "TESSEL:zex:Land = Sprache \xC3\xBC\nTESSEL:zex:Both = de\n");
    scratch_.write("resources/zex/de_CH/messages.txt", "TESSEL:zex:Both = de_CH\n");
  }

  static ustring words(const Record& record, const std::string& locale = "en") {
    return fl::i18n::MessageCatalog::get_message(record, fl::i18n::ZwLocale(locale));
  }

  const zex_test::Scratch scratch_;
  zex_test::RecordingServices host_;
};

TEST_F(Catalogue, FillsArgumentsInAndNeverReadsThemAgain) {
  EXPECT_EQ(words(Record("Two", {u"{1}\\n", u"ü"})), u"ü before {1}\\n\n\\n {0} {2} {x} {");
  EXPECT_EQ(words(Record("Trailing")), u"a = b ");
  EXPECT_EQ(words(Record("Empty")), u"");
}

TEST_F(Catalogue, FallsBackFromCountryToLanguageToEnglishToTheIdentifier) {
  EXPECT_EQ(words(Record("Both"), "de_CH"), u"de_CH");
  EXPECT_EQ(words(Record("Both"), "de_AT"), u"de");
  EXPECT_EQ(words(Record("Land"), "de_CH"), u"Sprache ü");
  EXPECT_EQ(words(Record("Land"), "fr_FR"), u"English");
  EXPECT_EQ(words(Record("Land"), "../en/../de"), u"English");
  EXPECT_EQ(words(Record("Comment")), u"TESSEL:zex:Comment");
  EXPECT_EQ(words(Record("Absent", {u"a", u""}), "de"), u"TESSEL:zex:Absent(\"a\", \"\")");
  host_.install = u"/missing";
  EXPECT_EQ(words(Record("Land")), u"TESSEL:zex:Land");
}

TEST_F(Catalogue, PseudoLocaleShowsArgumentsUnmistakably) {
  EXPECT_EQ(words(Record("Two", {u"\"\\\n\t\r\x1b", u"ü"}), "id"),
            u"TESSEL:zex:Two(\"\\\"\\\\\\n\\t\\x0D\\x1B\", \"ü\")");
  EXPECT_EQ(words(Record("Land"), "id"), u"TESSEL:zex:Land");
}

TEST(Locale, ComesFromTheFirstVariableThatSaysSomething) {
  struct Case {
    const char *own, *all, *messages, *language, *expected;
  };
  const Case cases[] = {
      {nullptr, nullptr, nullptr, nullptr, "en"},
      {nullptr, "", nullptr, "de_CH.UTF-8@euro", "de_CH"},
      {nullptr, "C.UTF-8", "fr_FR", "de", "en"},
      {nullptr, nullptr, "fr@x", "de", "fr"},
      {"id", "de", "de", "de", "id"},
      {nullptr, "POSIX", nullptr, "de", "en"},
  };
  for (const Case& one : cases) {
    const zex_test::ScopedVariable own("TESSEL_LOCALE", one.own), all("LC_ALL", one.all),
        messages("LC_MESSAGES", one.messages), language("LANG", one.language);
    EXPECT_EQ(host::standalone::StandaloneServices().locale(), one.expected);
  }
}

}  // namespace
