#include "cmd/Zex.hpp"

#include <gtest/gtest.h>

#include "cmd/ZexCmdFactory.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "support/InstalledTree.hpp"

namespace zex_cmd {
namespace {

using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;

class Commands : public testing::Test {
 protected:
  Commands() {
    tree.offer("fake.xml", Document());
    tree.scratch.write("a.c", "");
    tree.scratch.write("bad.c", "FAIL");
  }

  std::string run(const std::vector<ustring>& arguments) {
    return failureOf([&] { zex.run(arguments); });
  }

  InstalledTree tree;
  Zex zex;
};

TEST_F(Commands, AFailureLeavesNoTraceInTheNextCommand) {
  EXPECT_EQ(run({u"bad.c", u"-g", u"-v"}), "TESSEL:zex:Error(\"out\\n\\nbad source\\n\")");
  EXPECT_TRUE(tree.scratch.names("tmp").empty());
  tree.toolLog();
  tree.host.output.clear();
  ZexConfigPerTVM::current().locationTrace = "of a former search";
  EXPECT_EQ(run({u"a.c"}), "no error");
  EXPECT_EQ(ZexConfigPerTVM::current().locationTrace, "");
  EXPECT_EQ(tree.toolLog().find("-g"), std::string::npos);
  EXPECT_EQ(tree.host.output, "TESSEL:zex:Building(\"Fake C\")\nTESSEL:zex:Complete\n");
}

TEST_F(Commands, TemporaryFolderGoesWhereTheAssignmentSays) {
  EXPECT_EQ(run({u"a.c", u"TEMP=\"my temp\"", u"-n", u"-silent"}), "no error");
  EXPECT_NE(tree.host.output.find("-o \"my temp/zex_"), std::string::npos);
  EXPECT_TRUE(tree.scratch.names("my temp").empty());
}

TEST_F(Commands, OptionsFileTellsTheLanguageOfTheVersionSource) {
  Document document;
  document.language = "c++";
  tree.scratch.write("given.xml", document.xml());
  EXPECT_EQ(run({u"a.c", u"-f", u"given.xml"}), "no error");
  EXPECT_NE(tree.toolLog().find("cpp_zexapi_version.cpp"), std::string::npos);
}

TEST_F(Commands, HelpWinsOverAllElseAndPrintsTheFileAsItIs) {
  EXPECT_EQ(run({u"-badswitch", u"-output", u"-help"}), "no error");
  EXPECT_EQ(tree.host.output,
            "The ZEX help file " + tree.scratch.told("root") + "/bin/util/zex/zexHelp.txt not exists.\n");
  tree.host.output.clear();
  tree.scratch.write("root/bin/util/zex/zexHelp.txt", "100%s \xff\n\nlast");
  EXPECT_EQ(run({u"-ada", u"-h"}), "no error");
  EXPECT_EQ(tree.host.output, zex_test::fromNative("100%s \xff\n\nlast\n"));
}

}  // namespace
}  // namespace zex_cmd
