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
class Record : public resource_core::BaseMsgID {
 public:
  explicit Record(std::string tag, std::vector<ustring> arguments = {})
      : tag_(std::move(tag)), arguments_(std::move(arguments)) {}
  const std::string& component() const override { return component_; }
  const std::string& tag() const override { return tag_; }
  std::size_t argumentCount() const override { return arguments_.size(); }
  ustring argument(std::size_t index) const override { return arguments_.at(index); }

 private:
  std::string component_ = "TESSEL:zex", tag_;
  std::vector<ustring> arguments_;
};

class Catalogue : public testing::Test {
 protected:
  Catalogue() {
    host_.install = scratch_.path();
    scratch_.write("resources/zex/en/messages.txt",
                   "\xEF\xBB\xBF# TESSEL:zex:Comment = no\n\n"
                   "TESSEL:zex:Two = {1} before {0}\\n\\\\n {{0}} {2} {x} {\n"
                   "  TESSEL:zex:Trailing  = a = b \r\n"
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
}

TEST_F(Catalogue, FallsBackFromCountryToLanguageToEnglishToTheIdentifier) {
  EXPECT_EQ(words(Record("Both"), "de_CH"), u"de_CH");
  EXPECT_EQ(words(Record("Land"), "de_CH"), u"Sprache ü");
  EXPECT_EQ(words(Record("Land"), "fr_FR"), u"English");
  EXPECT_EQ(words(Record("Absent", {u"a", u""}), "de"), u"TESSEL:zex:Absent(\"a\", \"\")");
  EXPECT_EQ(words(Record("Land", {u"\"\\\n\x1b"}), "id"), u"TESSEL:zex:Land(\"\\\"\\\\\\n\\x1B\")");
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
