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

struct Change {
  ustring text, expected;
};

template <std::size_t count>
void expectChanges(const Change (&cases)[count], ustring (*change)(const ustring&)) {
  for (const Change& row : cases) {
    EXPECT_EQ(to_string(change(row.text)), to_string(row.expected));
  }
}

TEST(NormalizePath, TidiesByKindOfSeparator) {
  const Change cases[] = {
      {u"", u""},
      {u"/", u"/"},
      {u"//server/a//b///c", u"//server/a/b/c"},
      {u"\\\\\\a\\\\b", u"\\\\a\\b"},
      {u"/a/b/c/../../../d", u"/d"},
      {u"C:\\a\\b\\..\\..\\d", u"C:\\d"},
      {u"../a", u"../a"},
      {u"/../../a", u"/a"},
      {u"/a\\..", u"/a\\.."},
      {u"/\U0001F600é/../x", u"/x"},
  };
  expectChanges(cases, [](const ustring& text) {
    ustring changed = text;
    normalizePath(changed);
    return changed;
  });
}

TEST(Quoting, WhenNeededLooksOutsideClosedQuotesOnly) {
  const Change cases[] = {
      {u"\"a b\"", u"\"a b\""},       {u"(é)&", u"\"(é)&\""},           {u"é\u00a0ß", u"é\u00a0ß"},
      {u"X=\"a b\"c", u"X=\"a b\"c"}, {u"X=\"a\" b", u"\"X=\"a\" b\""}, {u"X=\"a b", u"\"X=\"a b\""},
  };
  expectChanges(cases, quoteWhenNeeded);
}

TEST(Quoting, InACommandTakesInAllThatAShellActsUpon) {
  for (const char16_t unit : ustring(u" ()&'|<>*?[]{}#~!\\\t")) {
    const ustring text = ustring(u"/a") + unit + u"é";
    EXPECT_EQ(to_string(quoteInCommand(text)), to_string(u'"' + text + u'"'));
  }
  const Change cases[] = {
      {u"/a/-+=,.:@%^_é", u"/a/-+=,.:@%^_é"}, {u"\"a*b\"", u"\"a*b\""},     {u"X=\"a*b\"c", u"X=\"a*b\"c"},
      {u"X=\"a*b", u"\"X=\"a*b\""},           {u"-l'c d'", u"\"-l'c d'\""}, {u"$HOME;`x`", u"$HOME;`x`"},
  };
  expectChanges(cases, quoteInCommand);
}

TEST(Quoting, ForPosix) {
  const Change cases[] = {{u"a&b", u"a&b"}, {u"a=b", u"'a=b'"}, {u"\"a b\"", u"\"a b\""}, {u"'a \"", u"''a \"'"}};
  expectChanges(cases, quoteForPosix);
}

TEST(Tokens, RejoinAndSplit) {
  EXPECT_THAT(rejoinQuoted({u"\"a", u"b", u"c\"", u"d"}), ElementsAre(u"\"a b c\"", u"d"));
  EXPECT_THAT(rejoinQuoted({u"a", u"x\"", u"b", u"\"c\""}), ElementsAre(u"a", u"x\" b \"c\""));
  EXPECT_THAT(splitTokens(u" a  \"b   c\" x\"d e\"", u" "), ElementsAre(u"", u"a", u"b c", u"x\"d e\""));
  EXPECT_THAT(splitTokens(u"\"a;;b\";", u";"), ElementsAre(u"\"a", u"b\"", u""));
  EXPECT_EQ(replacedAll(u"aXXb", u"X", u"XX"), u"aXXXXb");
}

TEST(FullPath, FoldsByTextAlone) {
  const zex_test::Scratch scratch;
  const ustring here = scratch.path();
  const std::pair<ustring, ustring> cases[] = {
      {u"", here},
      {u".", here},
      {u"no/../such/./a.c", here + u"/such/a.c"},
      {u"out/", here + u"/out"},
      {u"//usr///lib/..", u"/usr"},
      {u"/../..", u"/"},
      {u"/..a/b..", u"/..a/b.."},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(to_string(fullPath(text)), to_string(expected));
}

TEST(FullPath, RefusesWhatNoCommandCanCarry) {
  const zex_test::RecordingServices host;
  const std::pair<ustring, std::string> cases[] = {
      {u"/a$/../b.c", "/a$/../b.c"}, {u"`b`.c", "`b`.c"}, {u"/\"a\"/c.c", "/\\\"a\\\"/c.c"}, {u"a;b", "a;b"},
      {u"/a\nb.c", "/a\\nb.c"},
  };
  for (const auto& [path, shown] : cases) {
    EXPECT_EQ(failureOf([&] { fullPath(path); }), "TESSEL:zex:Error(\"Invalid path " + shown + "\")");
  }
  const ustring longest = u"/" + ustring(510, u'x');
  EXPECT_EQ(fullPath(longest), longest);
  EXPECT_NE(failureOf([&] { fullPath(longest + u"x"); }), "no error");

  const zex_test::Scratch scratch;
  std::filesystem::create_directory("a$b");
  std::filesystem::current_path("a$b");
  EXPECT_EQ(failureOf([] { fullPath(u"x.c"); }), "TESSEL:zex:Error(\"Invalid path x.c\")");
}

}  // namespace
}  // namespace zex_cmd
