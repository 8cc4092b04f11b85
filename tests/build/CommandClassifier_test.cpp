#include "build/CommandClassifier.hpp"

#include "build/BuildTest.hpp"
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
  constexpr auto compile = ZexCommandKind::Compile;
  constexpr auto link = ZexCommandKind::Link;
  constexpr auto other = ZexCommandKind::Other;
  struct Case {
    const char* manufacturer;
    const char16_t* text;
    ZexCommandKind kind;
    const char16_t* output;
  };
  const Case cases[] = {
      {"GNU", u"gcc -c a.c -o a.o", compile, u""},        // the object is not right behind the mark
      {"GNU", u"gcc -c   a.o", compile, u"a.o"},          // blanks are passed over
      {"GNU", u"gcc -c \"b b.o\" x", compile, u"b b.o"},  // quotes go
      {"GNU", u"gcc -c a.obj", compile, u"a.o"},          // the first entry that the text begins with
      {"GNU", u"gcc -c A.o", compile, u""},               // letter case counts
      {"GNU", u"gcc -o \"out put.x\" a.o", link, u"out put.x"},
      {"GNU", u"/my-code/ld -o \"out put.x\"", compile, u""},  // the mark inside a word counts
      {"GNU", u"ld -o elsewhere", link, u""},
      {"gnu", u"strip x -oy", other, u""},
      {"GNU", u"gcc -c", compile, u""},
      {"lcc", u"lcc /Foa.o a.c", compile, u"a.o"},
      {"lcc", u"lcc /Foa.o lccstub.c", link, u""},
      {"lcc", u"lcclnk -o \"out put.x\"", link, u"out put.x"},
      {"Other", u"cl /Foa.o lccstub.c", compile, u"a.o"},
      {"Other", u"link /out:\"out put.x\"", link, u"out put.x"},
      {"Other", u"gcc -c a.o -o x", other, u""},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.manufacturer + (": " + zex_test::utf8(row.text)));
    const CommandClass found = CommandClassifier(*documentOf(row.manufacturer)).classifyCommand(row.text);
    EXPECT_EQ(found.kind, row.kind);
    EXPECT_EQ(found.output, row.output);
  }
}

TEST_F(CommandClassifierTest, ResponseFilesServeCompilesAndLinksFromEightThousandCharacters) {
  ZexBuildCommand record;
  for (const auto kind : {ZexCommandKind::Compile, ZexCommandKind::Link, ZexCommandKind::Other}) {
    record.kind = kind;
    record.command = ustring(7999, u'x');
    EXPECT_FALSE(needsResponseFile(record));
    record.command += u'x';
    EXPECT_EQ(needsResponseFile(record), kind != ZexCommandKind::Other);
  }

  record.kind = ZexCommandKind::Link;
  record.command = u"tool a\\b";
  for (const auto& [manufacturer, content] : {std::pair("GNU", " a/b"), {"Other", " a\\b"}}) {
    record.option = documentOf(manufacturer);
    const ustring command = responseFileCommand(record, tree.scratch.path("tmp")).command;
    EXPECT_EQ(command, u"tool @" + tree.scratch.path("tmp/zex_temp.rsp"));
    EXPECT_EQ(tree.scratch.read("tmp/zex_temp.rsp"), content);
  }
}

}  // namespace
}  // namespace zex_cmd
