#include "build/CommandClassifier.hpp"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <string>

#include "build/response_file.hpp"
#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using zex_test::Document;
using zex_test::InstalledTree;

boost::shared_ptr<ZexOpt> documentOf(const InstalledTree& tree, const std::string& manufacturer) {
  Document document;
  document.manufacturer = manufacturer;
  document.vars = "OBJ=\"a.o;&quot;b b.o&quot;;a.obj\" EXE=\"&quot;out put.x&quot;\"";
  tree.scratch.write("d.xml", document.xml());
  return boost::make_shared<ZexOpt>(tree.scratch.path("d.xml"), "", u"", false);
}

TEST(CommandClassifier, KnowsCommandsByTheMakersMarks) {
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
  const InstalledTree tree;
  for (const Case& row : cases) {
    const auto option = documentOf(tree, row.manufacturer);
    const CommandClass found = CommandClassifier(*option).classifyCommand(row.text);
    EXPECT_EQ(found.kind, row.kind) << row.manufacturer << ": " << zex_test::utf8(row.text);
    EXPECT_EQ(found.output, row.output) << row.manufacturer << ": " << zex_test::utf8(row.text);
  }
}

TEST(ResponseFile, ServesCompilesAndLinksFromEightThousandCharacters) {
  const InstalledTree tree;
  ZexBuildCommand record;
  record.option = documentOf(tree, "GNU");
  record.command = u"tool" + ustring(7995, u'x');
  record.kind = ZexCommandKind::Compile;
  EXPECT_EQ(record.command.size(), 7999U);
  EXPECT_FALSE(needsResponseFile(record));
  record.command += u"\\";
  EXPECT_TRUE(needsResponseFile(record));
  record.kind = ZexCommandKind::Other;
  EXPECT_FALSE(needsResponseFile(record));

  record.kind = ZexCommandKind::Link;
  const ustring folder = tree.scratch.path("tmp");
  EXPECT_EQ(responseFileCommand(record, folder).command, u"tool @" + tree.scratch.path("tmp/zex_temp.rsp"));
  EXPECT_EQ(tree.scratch.read("tmp/zex_temp.rsp"), std::string(7995, 'x') + "/");  // a backslash becomes "/"

  record.option = documentOf(tree, "Other");
  EXPECT_EQ(responseFileCommand(record, folder).command, u"tool @" + tree.scratch.path("tmp/zex_temp.rsp"));
  EXPECT_EQ(tree.scratch.read("tmp/zex_temp.rsp"), std::string(7995, 'x') + "\\");
}

}  // namespace
}  // namespace zex_cmd
