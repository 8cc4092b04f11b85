#include <gmock/gmock.h>

#include "platform/paths.hpp"
#include "platform/quoting.hpp"
#include "platform/tokens.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;
using zex_test::utf8;
using Changes = std::vector<std::pair<ustring, ustring>>;

template <class Change>
void expectChanges(const Changes& cases, Change&& change) {
  for (const auto& [text, expected] : cases) EXPECT_EQ(utf8(change(text)), utf8(expected));
}

TEST(NormalizePath, TidiesByKindOfSeparator) {
  const Changes cases = {
      {u"", u""},
      {u"//server/a//b///c", u"//server/a/b/c"},
      {u"C:\\a\\b\\..\\..\\d", u"C:\\d"},
      {u"../a", u"../a"},
      {u"/../../a", u"/a"},
      {u"/\U0001F600é/../x", u"/x"},
  };
  expectChanges(cases, [](ustring text) {
    normalizePath(text);
    return text;
  });
}

TEST(Quoting, LooksOutsideClosedQuotesOnly) {
  const Changes cases = {
      {u"\"a b\"", u"\"a b\""},
      {u"(é)&", u"\"(é)&\""},
      {u"X=\"a b\"c", u"X=\"a b\"c"},
      {u"X=\"a b", u"\"X=\"a b\""},
  };
  expectChanges(cases, quoteWhenNeeded);
  expectChanges(cases, quoteInCommand);
  for (const char16_t unit : ustring(zex_test::platform.quotedInCommands)) {
    const ustring text = ustring(u"/a") + unit + u"é";
    EXPECT_EQ(utf8(quoteInCommand(text)), utf8(u'"' + text + u'"'));
  }
  expectChanges({{u"/a/-+=,.:@%_é", u"/a/-+=,.:@%_é"}, {u"$HOME;`x`", u"$HOME;`x`"}}, quoteInCommand);
  expectChanges({{u"a&b", u"a&b"}, {u"a=b", u"'a=b'"}, {u"\"a b\"", u"\"a b\""}}, quoteForPosix);
}

TEST(Tokens, RejoinAndSplit) {
  EXPECT_THAT(rejoinQuoted({u"\"a", u"b", u"c\"", u"d"}), ElementsAre(u"\"a b c\"", u"d"));
  EXPECT_THAT(rejoinQuoted({u"a", u"x\"", u"b", u"\"c\""}), ElementsAre(u"a", u"x\" b \"c\""));
  EXPECT_THAT(splitTokens(u" a  \"b   c\" x\"d e\"", u" "), ElementsAre(u"", u"a", u"b c", u"x\"d e\""));
}

}  // namespace
}  // namespace zex_cmd
