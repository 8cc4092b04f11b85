#include <gtest/gtest.h>

#include "cmd/Zex.hpp"
#include "support/InstalledTree.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using zex_test::architecture;
using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;

class Query : public testing::Test {
 protected:
  Query() {
    offer("a.xml", "1", "B", "C");
    offer("b.xml", "2", "A", "C");
    offer("c.xml", "3", "0", "C", false);
    offer("d.xml", "4", "B", "C++");
    offer("e.xml", "5", "zz", "FORTRAN");
  }

  void offer(const std::string& file, const std::string& name, const std::string& priority,
             const std::string& language, bool installed = true) {
    Document document;
    document.name = name;
    document.shortName = name;
    document.priority = priority;
    document.language = language;
    document.installed = installed;
    tree.offer(file, document);
  }

  /// Names of the records in order, or the failure.
  std::string query(const std::string& language, const std::string& kind, const std::string& arch = architecture) {
    std::string names;
    const std::string failure = failureOf([&] {
      for (const CompilerRecord& record : zex.queryCompilers(language, kind, arch)) {
        names += zex_test::utf8(record.at(u"Name"));
      }
    });
    return failure == "no error" ? names : failure;
  }

  InstalledTree tree;
  Zex zex;
};

TEST_F(Query, GivesTheRecordsOfEachKindInKeyOrder) {
  struct Case {
    const char* language;
    const char* kind;
    const char* expected;
  };
  const Case cases[] = {
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
  for (const Case& row : cases) {
    EXPECT_EQ(query(row.language, row.kind), row.expected) << row.language << ' ' << row.kind;
  }
  EXPECT_EQ(tree.host.output, "");
  EXPECT_EQ(tree.scratch.names(), before);
  EXPECT_TRUE(tree.scratch.names("prefs").empty());
}

TEST_F(Query, ASelectedFileBesideACatalogueThatDoesNotFindItsCompilerIsResolved) {
  Document selected;
  selected.name = "3";
  tree.scratch.write("prefs/" + zex_test::selection, selected.xml());
  for (const CompilerRecord& record : zex.queryCompilers("c", "installed", architecture))
    EXPECT_EQ(record.at(u"Location"), u".");
  EXPECT_EQ(query("c", "installed"), "312");
}

TEST_F(Query, EmptyPriorityIsTheDefault) {
  offer("f.xml", "6", "", "C");
  EXPECT_EQ(query("c", "default"), "6");
}

TEST_F(Query, OddArchitectureWordsGiveNoOlderAnswer) {
  EXPECT_EQ(query("c", "installed"), "12");
  EXPECT_EQ(query("c", "installed", "help"), "");
  EXPECT_EQ(query("c", "installed", "").substr(0, 22), "TESSEL:zex:SrcNotFound");
}

TEST_F(Query, KindOfAFailedQueryStaysUntilTheNext) {
  EXPECT_EQ(query("c", "installed", "elsewhere"), "TESSEL:zex:UnknownSwitch(\"-elsewhere\")");
  tree.host.output.clear();
  zex.run({u"-setup"});  // still sees the stale kind, so it prints and writes nothing
  EXPECT_EQ(tree.host.output, "");
  EXPECT_TRUE(tree.scratch.names("prefs").empty());
  EXPECT_EQ(query("c", "installed"), "12");
  zex.run({u"-setup"});
  EXPECT_NE(tree.host.output, "");
}

TEST_F(Query, RecordsDescribeTheResolvedDocument) {
  Document document;
  document.language = "FORTRAN";
  document.vars = "SETENV=\"set X=$ARCH\"";
  document.details = "LinkerExecutable=\"$LINKER\"";
  document.env = "PATH=\"p\" LIB=\"l\" LIBPATH=\"lp\"";
  tree.offer("e.xml", document);
  const CompilerRecord record = zex.queryCompilers("fortran", "installed", architecture).front();
  const ustring arch = zex_test::utf16(architecture);
  const std::pair<const char16_t*, ustring> expected[] = {
      {u"SetEnv",
       u"set X=" + arch + u"\nset PATH=p;%TESSEL_BIN%;%PATH%\nset LIB=l;%LIB%\nset LIBPATH=lp;%LIBPATH%\n"},
      {u"LinkerName", u"tool"},
      {u"LinkerExecutable", u"tool"},
      {u"SystemPath", u"p;%PATH%"},
      {u"LibraryPath", u"l;lp;%LIB%"},
      {u"IncludePath", u"%INCLUDE%"},
      {u"TargetArch", arch},
      {u"RenameObjectFlag", u"/Fo"},
      {u"LinkLibraryLocation", u"l"},
      {u"LinkOutputFlagAndDLLName", u"/out:.zexa64"},
      {u"OptimizationFlags", u"-O"},
  };
  for (const auto& [key, value] : expected) {
    ASSERT_TRUE(record.contains(key)) << zex_test::utf8(key);
    EXPECT_EQ(record.at(key), value);
  }
  EXPECT_FALSE(record.contains(u"CommandLineShell"));
}

}  // namespace
}  // namespace zex_cmd
