#include "fl/i18n/MessageCatalog.hpp"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "resource_core/BaseMsgID.hpp"
#include "standalone/StandaloneServices.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace {

using fl::ustring;

/// A message of the test's own.
struct Record : resource_core::BaseMsgID {
  Record(const char* tag, std::vector<ustring> values) : name(tag), arguments(std::move(values)) {}
  const std::string& component() const override { return owner; }
  const std::string& tag() const override { return name; }
  std::size_t argumentCount() const override { return arguments.size(); }
  ustring argument(std::size_t index) const override { return arguments.at(index); }

  std::string owner = "TESSEL:zex", name;
  std::vector<ustring> arguments;
};

TEST(Catalogue, FillsArgumentsInAndFallsBackFromCountryToLanguageToEnglishToTheIdentifier) {
  const zex_test::Scratch scratch;
  zex_test::RecordingServices host;
  host.install = scratch.path();
  scratch.write("resources/zex/en/messages.txt",
                "\xEF\xBB\xBF# TESSEL:zex:Comment = no\n\n"
                "TESSEL:zex:Two = {1} before {0}\\n\\\\n {{0}} {2} {x} {\n"
                "  TESSEL:zex:Trailing  = a = b \r\n"
                "a line that is none\n"
                "TESSEL:zex:Land = English");
  scratch.write("resources/zex/de/messages.txt", "TESSEL:zex:Land = Sprache \xC3\xBC\nTESSEL:zex:Both = de\n");
  scratch.write("resources/zex/de_CH/messages.txt", "TESSEL:zex:Both = de_CH\n");
  const struct {
    const char* locale;
    Record record;
    ustring words;
  } rows[] = {{"en", {"Two", {u"{1}\\n", u"ü"}}, u"ü before {1}\\n\n\\n {0} {2} {x} {"},
              {"en", {"Trailing", {}}, u"a = b "},
              {"de_CH", {"Both", {}}, u"de_CH"},
              {"de_CH", {"Land", {}}, u"Sprache ü"},
              {"fr_FR", {"Land", {}}, u"English"},
              {"de", {"Absent", {u"a", u""}}, u"TESSEL:zex:Absent(\"a\", \"\")"},
              {"id", {"Land", {u"\"\\\n\x1b"}}, u"TESSEL:zex:Land(\"\\\"\\\\\\n\\x1B\")"}};
  for (const auto& [locale, record, words] : rows)
    EXPECT_EQ(fl::i18n::MessageCatalog::get_message(record, fl::i18n::ZwLocale(locale)), words);
}

TEST(Locale, ComesFromTheFirstVariableThatSaysSomething) {
  const char* const cases[][5] = {
      {nullptr, "", nullptr, "de_CH.UTF-8@euro", "de_CH"},
      {nullptr, "C.UTF-8", "fr_FR", "de", "en"},
      {"id", "de", "de", "de", "id"},
  };
  for (const auto& [own, all, messages, language, expected] : cases) {
    const zex_test::ScopedVariable a("TESSEL_LOCALE", own), b("LC_ALL", all), c("LC_MESSAGES", messages),
        d("LANG", language);
    EXPECT_EQ(host::standalone::StandaloneServices().locale(), expected);
  }
}

}  // namespace
