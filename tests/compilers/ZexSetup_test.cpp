#include "compilers/ZexSetup.hpp"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <filesystem>

#include "args/ZexArgs.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "compilers/compiler_reports.hpp"
#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using zex_test::catalogue;
using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;
using zex_test::selection;
using zex_test::selectionBackup;

class Setup : public testing::Test {
 protected:
  static Document compiler(const std::string& name, const std::string& priority,
                           const std::string& language = "C") {
    Document document;
    document.name = name;
    document.shortName = "short" + name;
    document.priority = priority;
    document.language = language;
    document.client = "<ENGINE/>";
    return document;
  }

  std::string setup(std::vector<ustring> arguments, const std::string& kind = {}) {
    tree.host.output.clear();
    return failureOf([&] {
      args = boost::make_shared<ZexArgs>();
      args->parseArguments(arguments);
      compilers = boost::make_shared<ZexCompilers>(&args);
      ZexSetup(args, compilers, kind);
    });
  }

  std::string offered(const std::string& file) const { return tree.scratch.told(catalogue + file); }
  std::vector<std::string> preferences() const { return tree.scratch.names("prefs"); }

  InstalledTree tree;
  boost::shared_ptr<ZexArgs> args;
  boost::shared_ptr<ZexCompilers> compilers;
};

const std::string configured1 =
    "TESSEL:zex:ConfiguredToUse(\"ZEX\", \"1\", \"C\")\nTESSEL:zex:LargeArrayDimsSetupWarn\n";
const std::string hint = "\nTESSEL:zex:NoLangSelected(\"\", \"\")\n";

TEST_F(Setup, BareWithOneCompilerWritesOnce) {
  tree.offer("a.xml", compiler("1", "A"));
  tree.offer("f.xml", compiler("F", "A", "FORTRAN"));
  EXPECT_EQ(setup({u"-setup"}), "no error");
  EXPECT_EQ(tree.host.output, configured1 + hint);
  EXPECT_EQ(preferences(), std::vector<std::string>{selection});
  EXPECT_EQ(setup({u"-setup"}), "no error");
  EXPECT_EQ(tree.host.output, configured1 + hint);
  EXPECT_EQ(preferences(), std::vector<std::string>{selection}) << "written again";
}

TEST_F(Setup, WhatIsWrittenIsTheDocumentAndNotItsValuesForThisCommand) {
  Document document = compiler("1", "A");
  document.vars = "NOTE=\"tab&#9;feed&#10;&quot;quote&quot; &amp; é\"";
  tree.offer("a.xml", document);
  EXPECT_EQ(setup({u"-setup", u"C"}), "no error");
  const ZexOpt source(zex_test::utf16(offered("a.xml")), "", u"", false);
  const ZexOpt saved(tree.scratch.path("prefs/" + selection), "", u"", false);
  EXPECT_TRUE(saved.currentRelease);
  EXPECT_TRUE(saved.installed);
  for (const ustring& key : source.attributePaths(u"config.vars")) EXPECT_EQ(saved.value(key), source.value(key));
  EXPECT_EQ(saved.attributePaths(u"config.vars"), source.attributePaths(u"config.vars"));
}

TEST_F(Setup, SeveralCompilersAreListedBehindTheConfiguredOne) {
  tree.offer("a b.xml", compiler("2", "B"));
  tree.offer("c.xml", compiler("1", "A"));
  Document gone = compiler("3", "0");
  gone.installed = false;
  tree.offer("gone.xml", gone);
  const std::string second = offered("a b.xml");
  const std::string saved = offered("c.xml");
  EXPECT_EQ(setup({u"-setup"}), "no error");
  EXPECT_EQ(tree.host.output, configured1 + "\nTESSEL:zex:MultiCompilers(\"C\")\nFor 2:  zex -setup:\"" + second +
                                  "\" C\nFor 1:  zex -setup:\"" + saved + "\" C\n" + hint);

  tree.host.hot = true;
  EXPECT_EQ(setup({u"-setup", u"c", u"-client", u"engine", u"-called_from_tessel"}), "no error");
  const std::string command = "zex -setup:'" + second + "' C -client ENGINE";
  EXPECT_NE(tree.host.output.find("TESSEL:zex:ConfiguredToUse_bold(\"ENGINE\", \"1\", \"C\")\n\n"
                                  "TESSEL:zex:MultiCompilers_link(\"C\")\n<a href=\"tessel:" +
                                  command + "\">2</a>  " + command + "\n"),
            std::string::npos)
      << tree.host.output;
  EXPECT_EQ(tree.host.output.find("NoLangSelected"), std::string::npos);
}

TEST_F(Setup, AChosenCompilerStaysChosenAndAFormerChoiceIsKept) {
  tree.offer("a.xml", compiler("1", "A"));
  tree.offer("b.xml", compiler("2", "B"));
  EXPECT_EQ(setup({u"-setup:SHORT2", u"C"}), "no error");
  EXPECT_EQ(tree.host.output.find("Multi"), std::string::npos);
  EXPECT_EQ(setup({u"-setup", u"C"}), "no error");
  EXPECT_NE(tree.host.output.find("ConfiguredToUse(\"ZEX\", \"2\""), std::string::npos);

  const ustring line = u"-setup:" + zex_test::utf16(offered("a.xml"));
  EXPECT_EQ(setup({line, u"C"}), "no error");
  EXPECT_NE(tree.scratch.read("prefs/" + selectionBackup).find("Name=\"2\""), std::string::npos);
  EXPECT_EQ(tree.host.output.find("FileRenamed"), tree.host.output.rfind("FileRenamed"));
  EXPECT_NE(tree.host.output.find("FileRenamed"), std::string::npos);
}

TEST_F(Setup, DestinationIsWhatTheOptionsFileSays) {
  tree.offer("a.xml", compiler("1", "A"));
  struct Case {
    const char16_t* destination;
    std::string file;
  };
  const Case cases[] = {{u"new folder", "new folder/" + selection}, {u"some/new.xml", "some/new.xml"}};
  for (const Case& row : cases) {
    EXPECT_EQ(setup({u"-setup:short1", u"C", u"-f", row.destination}), "no error");
    EXPECT_TRUE(tree.scratch.has(row.file)) << row.file;
    EXPECT_TRUE(preferences().empty());
  }
  tree.scratch.write("my.xml", compiler("1", "A").xml());
  EXPECT_EQ(setup({u"-setup", u"-f", u"my.xml"}), "no error") << "without a name -f is the document";
  EXPECT_EQ(preferences(), std::vector<std::string>{selection});
}

TEST_F(Setup, FailuresNameWhatIsMissing) {
  Document gone = compiler("1", "A");
  gone.installed = false;
  tree.offer("a.xml", gone);
  const ustring file = zex_test::utf16(offered("a.xml"));
  struct Case {
    std::vector<ustring> arguments;
    const char* failure;
  };
  const Case cases[] = {
      {{u"-setup"}, "TESSEL:zex:NoCompilerFound_Win64"},
      {{u"-setup", u"fortran"}, "TESSEL:zex:NoCompilerFound"},
      {{u"-setup", u"nonsense"}, "TESSEL:zex:UnknownLanguage(\"nonsense\")"},
      {{u"-setup:nonsense"}, "TESSEL:zex:SrcNotFound(\"nonsense\", \"nonsense\")"},
      {{u"-setup:" + file}, "TESSEL:zex:NotConfiguredToUse(\"ZEX\", \"1\")"},
      {{u"-setup:" + file, u"-client", u"engine"}, "TESSEL:zex:NotConfiguredToUse(\"ENGINE\", \"1\")"},
  };
  for (const Case& row : cases) EXPECT_EQ(setup(row.arguments), row.failure);
  EXPECT_EQ(tree.host.warnings.front(), "TESSEL:zex:Warn(\"Install 1.\\n\")");
  EXPECT_EQ(tree.host.output, "");
  EXPECT_TRUE(preferences().empty());
}

TEST_F(Setup, ATakenBackupNameLeavesTheFormerChoice) {
  tree.offer("a.xml", compiler("1", "A"));
  tree.scratch.write("prefs/" + selection, compiler("1", "A").xml());
  std::filesystem::create_directories(tree.scratch.folder() / ("prefs/" + selectionBackup) / "in the way");
  const std::string prefs = tree.scratch.told("prefs");
  EXPECT_EQ(setup({u"-setup", u"C"}), "TESSEL:zex:SrcNotFound(\"" + prefs + "\", \"" + prefs + "\")");
  EXPECT_EQ(tree.scratch.read("prefs/" + selection), compiler("1", "A").xml());
}

TEST_F(Setup, HintsWithLinksRepeatTheClient) {
  tree.offer("a.xml", compiler("1", "A"));
  tree.host.hot = true;
  EXPECT_EQ(setup({u"-setup", u"-client", u"engine"}), "no error");
  const std::string client = "\" -client ENGINE\"";
  EXPECT_TRUE(tree.host.output.ends_with("\nTESSEL:zex:NoLangSelected_link(" + client + ", " + client + ", " +
                                         client + ", " + client + ")\n"))
      << tree.host.output;
}

TEST_F(Setup, ACallerGetsTheListOfResolvedDocuments) {
  Document document = compiler("1", "A");
  document.vars = "WHERE=\"$ARCH\"";
  tree.offer("a.xml", document);
  args = boost::make_shared<ZexArgs>();
  args->parseArguments({u"-setup", u"C", u"-v"});
  args->xmlFile = u"list.xml";
  compilers = boost::make_shared<ZexCompilers>(&args);
  ZexSetup(args, compilers, "");
  EXPECT_EQ(args->xmlFile, u"list.xml");
  EXPECT_NE(tree.scratch.read("list.xml").find("WHERE=\"" + zex_test::architecture + "\""), std::string::npos);
  EXPECT_NE(tree.host.output.find("list.xml is output.\n"), std::string::npos);
}

TEST_F(Setup, ListReportHoldsDocumentsAndTheReportTexts) {
  Document document = compiler("1", "A");
  document.vars = "SAID=\"&quot;x&quot;\"";
  tree.scratch.write("d.xml", "<!-- gone -->" + document.xml().substr(document.xml().find('\n') + 1));
  ZexConfigPerTVM::current().locationTrace = "trace\n";
  ustring path = tree.scratch.path("list.xml");
  writeCompilerList(path, {boost::make_shared<ZexOpt>(tree.scratch.path("d.xml"), "", u"", false)});
  EXPECT_EQ(path, u"");
  const std::string report = tree.scratch.read("list.xml");
  EXPECT_EQ(report.find("<config "), 55U);
  EXPECT_NE(report.find("SAID=\"&amp;quot;x&amp;quot;\""), std::string::npos);
  EXPECT_EQ(report.find("locationFinder"), std::string::npos);
  EXPECT_EQ(report.find("<client"), std::string::npos);
  EXPECT_TRUE(
      report.ends_with("</config>\n</compiler-list><!--\n\"\"-->\n<!--\n\"\"-->\n<!--\n\"trace\n\"-->\n\n"));

  ustring nowhere = tree.scratch.path("no/list.xml");
  EXPECT_EQ(failureOf([&] { writeCompilerList(nowhere, {}); }).substr(0, 25), "TESSEL:zex:FileCannotOpen");
}

}  // namespace
}  // namespace zex_cmd
