#include "cmd/Zex.hpp"

#include <gmock/gmock.h>

#include "support/InstalledTree.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using testing::HasSubstr;
using zex_test::architecture;
using zex_test::compiler;
using zex_test::Document;
using zex_test::failureOf;

/// One object that runs one command after another, among compilers that are named by numbers.
class Commands : public testing::Test {
 protected:
  Commands() {
    for (const Document& document : {compiler("1", "B"), compiler("2", "A"), compiler("3", "0", false),
                                     compiler("4", "B", true, "C++"), compiler("5", "zz", true, "FORTRAN")})
      tree.offer(document.name + ".xml", document);
    tree.scratch.write("a.c", "");
    tree.scratch.write("bad.c", "FAIL");
  }

  std::string run(const std::vector<ustring>& arguments) {
    tree.host.output.clear();
    return failureOf([&] { zex.run(arguments); });
  }

  /// Names of the records in order, or the failure.
  std::string query(const std::string& language, const std::string& kind, const std::string& arch = architecture) {
    std::string names;
    const std::string failure = failureOf([&] {
      for (const CompilerRecord& record : zex.queryCompilers(language, kind, arch))
        names += zex_test::utf8(record.at(u"Name"));
    });
    return failure == "no error" ? names : failure;
  }

  zex_test::InstalledTree tree;
  Zex zex;
};

TEST_F(Commands, AFailureLeavesNoTraceInTheNextCommand) {
  EXPECT_EQ(run({u"bad.c", u"-g", u"-v"}), "TESSEL:zex:Error(\"out\\n\\nbad source\\n\")");
  tree.toolLog();
  EXPECT_EQ(run({u"a.c"}), "no error");
  EXPECT_THAT(tree.toolLog(), testing::Not(HasSubstr("-g")));
  EXPECT_EQ(tree.host.output, "TESSEL:zex:Building(\"2\")\nTESSEL:zex:Complete\n");

  tree.scratch.write(zex_test::selection, compiler("gone", "A", false).xml());
  for (int time = 1; time <= 2; ++time) EXPECT_EQ(run({u"a.c"}), "TESSEL:zex:NoCompilerFound_Win64");
  EXPECT_EQ(tree.host.warnings, std::vector<std::string>(2, "TESSEL:zex:Warn(\"Install gone.\\n\")"));
}

TEST_F(Commands, OptionsFileTellsTheLanguageOfTheVersionSource) {
  tree.scratch.write("given.xml", compiler("given", "A", true, "c++").xml());
  EXPECT_EQ(run({u"a.c", u"-f", u"given.xml"}), "no error");
  EXPECT_THAT(tree.toolLog(), HasSubstr("cpp_zexapi_version.cpp"));
}

TEST_F(Commands, HelpWinsOverAllElseAndPrintsTheFileAsItIs) {
  tree.scratch.write("root/bin/util/zex/zexHelp.txt", "100%s \xff\n\nlast");
  EXPECT_EQ(run({u"-ada", u"-badswitch", u"-h"}), "no error");
  EXPECT_EQ(tree.host.output, zex_test::fromNative("100%s \xff\n\nlast\n"));
}

TEST_F(Commands, AQueryGivesTheRecordsOfItsKindInKeyOrderAndChangesNothing) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"c", "supported", "123"},
      {"C", "Installed", "12"},
      {"c", "selected", "2"},
      {"c", "default", "3"},  // whether it is installed does not count
      {"CPP", "installed", "4"},
      {"c++", "installed", "4"},
      {"any", "installed", "1245"},
      {"fortran", "default", ""},  // a priority of "z" and higher never is
      {"cuda", "installed", "TESSEL:zex:UnknownSwitch(\"cuda\")"},
      {"c", "all", "TESSEL:zex:UnknownSwitch(\"all\")"},
  };
  const std::vector<std::string> before = tree.scratch.names();
  for (const auto& [language, kind, expected] : cases)
    EXPECT_EQ(query(language, kind), expected) << language << ' ' << kind;
  EXPECT_EQ(tree.host.output, "");
  EXPECT_EQ(tree.scratch.names(), before);
  EXPECT_EQ(query("c", "installed", "help"), "") << "an older answer";

  tree.offer("6.xml", compiler("6", "0"));
  EXPECT_EQ(query("c", "default"), "3") << "not the first of equals";
  tree.offer("7.xml", compiler("7", ""));
  EXPECT_EQ(query("c", "default"), "7") << "an empty priority is the least";
  tree.scratch.write("prefs/" + zex_test::selection, compiler("1", "B").xml());
  EXPECT_EQ(query("c", "installed"), "1267") << "a selected compiler is there twice";
}

TEST_F(Commands, ASelectedFileWhoseCatalogueTwinIsNotInstalledIsResolved) {
  tree.scratch.write("prefs/" + zex_test::selection, compiler("3", "0").xml());
  for (const CompilerRecord& record : zex.queryCompilers("c", "installed", architecture))
    EXPECT_EQ(record.at(u"Location"), u".");
  EXPECT_EQ(query("c", "installed"), "312") << "the selected one lies ahead of the catalogue";
}

TEST_F(Commands, KindOfAFailedQueryStaysUntilTheNext) {
  EXPECT_EQ(query("c", "installed", "elsewhere"), "TESSEL:zex:UnknownSwitch(\"-elsewhere\")");
  run({u"-setup"});
  EXPECT_EQ(tree.host.output, "") << "the stale kind is not seen";
  EXPECT_EQ(query("c", "installed"), "12");
  run({u"-setup"});
  EXPECT_NE(tree.host.output, "");
}

TEST_F(Commands, RecordsDescribeTheResolvedDocument) {
  Document document = compiler("5", "zz", true, "FORTRAN");
  document.vars = "SETENV=\"set X=$ARCH\"";
  document.env = "PATH=\"p\" LIB=\"l\" LIBPATH=\"lp\"";
  tree.offer("5.xml", document);
  const CompilerRecord record = zex.queryCompilers("fortran", "installed", architecture).front();
  const ustring arch = zex_test::utf16(architecture);
  EXPECT_EQ(record.at(u"SetEnv"),
            u"set X=" + arch + u"\nset PATH=p;%TESSEL_BIN%;%PATH%\nset LIB=l;%LIB%\nset LIBPATH=lp;%LIBPATH%\n");
  EXPECT_EQ(record.at(u"LibraryPath"), u"l;lp;%LIB%");
}

}  // namespace
}  // namespace zex_cmd
