#include <gtest/gtest.h>

#include "platform/paths.hpp"
#include "platform/quoting.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using zex_test::utf8;

TEST(Texts, ChangeByTheirRules) {
  const auto normalized = [](const ustring& text) {
    ustring result = text;
    normalizePath(result);
    return result;
  };
  const struct {
    ustring (*change)(const ustring&);
    ustring text, expected;
  } cases[] = {
      {normalized, u"//server/a//b///c", u"//server/a/b/c"},
      {normalized, u"C:\\a\\b\\..\\..\\d", u"C:\\d"},
      {normalized, u"../a", u"../a"},
      {normalized, u"/../../a", u"/a"},
      {normalized, u"/\U0001F600é/../x", u"/x"},
      // Quotes count where they are closed.
      {quoteWhenNeeded, u"\"a b\"", u"\"a b\""},
      {quoteWhenNeeded, u"(é)&", u"\"(é)&\""},
      {quoteWhenNeeded, u"X=\"a b\"c", u"X=\"a b\"c"},
      {quoteWhenNeeded, u"X=\"a b", u"\"X=\"a b\""},
      {quoteInCommand, u"X=\"a b\"c", u"X=\"a b\"c"},
      {quoteInCommand, u"/a/-+=,.:@%_é", u"/a/-+=,.:@%_é"},
      {quoteInCommand, u"$HOME;`x`", u"$HOME;`x`"},
      {quoteForPosix, u"a&b", u"a&b"},
      {quoteForPosix, u"a=b", u"'a=b'"},
      {quoteForPosix, u"'a b'", u"'a b'"},
      {quoteForPosix, u"\"a b\"", u"\"a b\""},
  };
  for (const auto& row : cases) EXPECT_EQ(utf8(row.change(row.text)), utf8(row.expected)) << utf8(row.text);
  for (const char16_t unit : ustring(zex_test::platform.quotedInCommands)) {
    const ustring text = ustring(u"/a") + unit + u"é";
    EXPECT_EQ(utf8(quoteInCommand(text)), utf8(u'"' + text + u'"'));
  }
}

}  // namespace
}  // namespace zex_cmd
