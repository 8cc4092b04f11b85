#include "build/CommandClassifier.hpp"

#include "build/BuildTest.hpp"
#include "build/built_file.hpp"
#include "build/response_file.hpp"

namespace zex_cmd {
namespace {

class CommandClassifierTest : public BuildTest {
 protected:
  boost::shared_ptr<ZexOpt> documentOf(const std::string& manufacturer) {
    document.manufacturer = manufacturer;
    document.vars = "OBJ=\"a.o;&quot;b b.o&quot;;a.obj\" EXE=\"&quot;out put.x&quot;\"";
    return loaded();
  }
};

TEST_F(CommandClassifierTest, KnowsCommandsByTheMakersMarks) {
  using enum ZexCommandKind;
  const std::tuple<const char*, const char16_t*, ZexCommandKind, const char16_t*> cases[] = {
      {"GNU", u"gcc -c a.c -o a.o", Compile, u""},        // the object is not right behind the mark
      {"GNU", u"gcc -c   a.o", Compile, u"a.o"},          // blanks are passed over
      {"GNU", u"gcc -c \"b b.o\" x", Compile, u"b b.o"},  // quotes go
      {"GNU", u"gcc -c a.obj", Compile, u"a.o"},          // the first entry that the text begins with
      {"GNU", u"gcc -c A.o", Compile, u""},               // letter case counts
      {"GNU", u"gcc -o \"out put.x\" a.o", Link, u"out put.x"},
      {"GNU", u"/my-code/ld -o \"out put.x\"", Compile, u""},  // the mark inside a word counts
      {"GNU", u"ld -o elsewhere", Link, u""},
      {"gnu", u"strip x -oy", Other, u""},
      {"GNU", u"gcc -c", Compile, u""},
      {"lcc", u"lcc /Foa.o a.c", Compile, u"a.o"},
      {"lcc", u"lcc /Foa.o lccstub.c", Link, u""},
      {"lcc", u"lcclnk -o \"out put.x\"", Link, u"out put.x"},
      {"Other", u"cl /Foa.o lccstub.c", Compile, u"a.o"},
      {"Other", u"link /out:\"out put.x\"", Link, u"out put.x"},
      {"Other", u"gcc -c a.o -o x", Other, u""},
  };
  for (const auto& [manufacturer, text, kind, output] : cases) {
    SCOPED_TRACE(manufacturer + (": " + zex_test::utf8(text)));
    const CommandClass found = CommandClassifier(*documentOf(manufacturer)).classifyCommand(text);
    EXPECT_EQ(found.kind, kind);
    EXPECT_EQ(found.output, output);
  }
}

TEST_F(CommandClassifierTest, ResponseFilesServeCompilesAndLinksFromEightThousandCharacters) {
  ZexBuildCommand record;
  for (const auto kind : {ZexCommandKind::Other, ZexCommandKind::Compile, ZexCommandKind::Link}) {
    record.kind = kind;
    record.command = ustring(7999, u'x');
    EXPECT_FALSE(needsResponseFile(record));
    record.command += u'x';
    EXPECT_EQ(needsResponseFile(record), kind != ZexCommandKind::Other);
  }
  record.command = u"tool a\\b";
  for (const auto& [manufacturer, content] : {std::pair("GNU", " a/b"), {"Other", " a\\b"}}) {
    record.option = documentOf(manufacturer);
    EXPECT_EQ(zex_test::told(zex_test::utf8(responseFileCommand(record, u"tmp").command)),
              "tool @tmp/zex_temp.rsp");
    EXPECT_EQ(tree.scratch.read("tmp/zex_temp.rsp"), content);
  }
}

TEST(VersionFlag, TakesTheFormOfTheCommandItIsFor) {
  const std::tuple<const char16_t*, const char16_t*, const char16_t*> cases[] = {
      {u"gcc -c -DUSE_ZEX_CMD", u"-DR=1", u"-DR=1"},
      {u"cl /c /DUSE_ZEX_CMD", u"-DR=1", u"/DR=1"},
      {u"cl /c /DZEX_DOUBLE_HANDLE /DUSE_ZEX_CMD", u"-DR=1", u"/DZX_COMPAT_64"},
      {u"cl /c /DZEX_DOUBLE_HANDLE", u"-DZX_COMPAT_32", u"-DZX_COMPAT_32"},
  };
  for (const auto& [command, flag, expected] : cases)
    EXPECT_EQ(versionFlagFor(command, flag), expected) << zex_test::utf8(command);
}

}  // namespace
}  // namespace zex_cmd
