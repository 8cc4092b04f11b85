#include <gmock/gmock.h>

#include "fl/i18n/strings.hpp"
#include "platform/paths.hpp"
#include "platform/quoting.hpp"
#include "platform/tokens.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace zex_cmd {
namespace {

using fl::i18n::to_string;
using testing::ElementsAre;
using zex_test::failureOf;
using Changes = std::vector<std::pair<ustring, ustring>>;

template <class Change>
void expectChanges(const Changes& cases, Change&& change) {
  for (const auto& [text, expected] : cases) EXPECT_EQ(to_string(change(text)), to_string(expected));
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
  for (const char16_t unit : ustring(u" ()&'|<>*?[]{}#~!\\\t")) {
    const ustring text = ustring(u"/a") + unit + u"é";
    EXPECT_EQ(to_string(quoteInCommand(text)), to_string(u'"' + text + u'"'));
  }
  expectChanges({{u"/a/-+=,.:@%^_é", u"/a/-+=,.:@%^_é"}, {u"$HOME;`x`", u"$HOME;`x`"}}, quoteInCommand);
  expectChanges({{u"a&b", u"a&b"}, {u"a=b", u"'a=b'"}, {u"\"a b\"", u"\"a b\""}}, quoteForPosix);
}

TEST(Tokens, RejoinAndSplit) {
  EXPECT_THAT(rejoinQuoted({u"\"a", u"b", u"c\"", u"d"}), ElementsAre(u"\"a b c\"", u"d"));
  EXPECT_THAT(rejoinQuoted({u"a", u"x\"", u"b", u"\"c\""}), ElementsAre(u"a", u"x\" b \"c\""));
  EXPECT_THAT(splitTokens(u" a  \"b   c\" x\"d e\"", u" "), ElementsAre(u"", u"a", u"b c", u"x\"d e\""));
}

TEST(FullPath, FoldsByTextAloneAndRefusesWhatNoCommandCanCarry) {
  const zex_test::RecordingServices host;
  const zex_test::Scratch scratch;
  const ustring longest = u"/" + ustring(510, u'x');
  const Changes cases = {
      {u"", scratch.path()},        {u"no/../such/./a.c", scratch.path("such/a.c")},
      {u"//usr///lib/..", u"/usr"}, {u"/../..", u"/"},
      {u"/..a/b..", u"/..a/b.."},   {longest, longest},
  };
  expectChanges(cases, fullPath);
  EXPECT_NE(failureOf([&] { fullPath(longest + u"x"); }), "no error");

  for (const char16_t* path : {u"/a$/../b.c", u"`b`.c", u"a;b"}) {
    EXPECT_EQ(failureOf([&] { fullPath(path); }), "TESSEL:zex:Error(\"Invalid path " + to_string(path) + "\")");
  }
  std::filesystem::create_directory("a$b");
  std::filesystem::current_path("a$b");
  EXPECT_EQ(failureOf([] { fullPath(u"x.c"); }), "TESSEL:zex:Error(\"Invalid path x.c\")");
}

}  // namespace
}  // namespace zex_cmd
