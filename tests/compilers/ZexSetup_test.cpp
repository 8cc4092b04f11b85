#include "compilers/ZexSetup.hpp"

#include <filesystem>

#include "compilers/CompilersTest.hpp"
#include "compilers/compiler_reports.hpp"

namespace zex_cmd {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class Setup : public CompilersTest {
 protected:
  static Document forEngine(const std::string& name, const std::string& priority, bool installed = true) {
    Document document = compiler(name, priority, installed);
    document.client = "<ENGINE/>";
    return document;
  }

  std::string setup(const std::vector<ustring>& arguments, const ustring& list = {}) {
    tree.host.output.clear();
    return failureOf([&] {
      args = boost::make_shared<ZexArgs>();
      args->parseArguments(arguments);
      args->xmlFile = list;
      ZexSetup(args, boost::make_shared<ZexCompilers>(&args), "");
    });
  }

  std::string offered(const std::string& file) const { return tree.scratch.told(catalogue + file); }
  std::vector<std::string> preferences() const { return tree.scratch.names("prefs"); }
};

const std::string configured1 =
    "TESSEL:zex:ConfiguredToUse(\"ZEX\", \"1\", \"C\")\nTESSEL:zex:LargeArrayDimsSetupWarn\n";
const std::string hint = "\nTESSEL:zex:NoLangSelected(\"\", \"\")\n";

TEST_F(Setup, BareWithOneCompilerWritesOnce) {
  tree.offer("a.xml", compiler("1", "A"));
  tree.offer("f.xml", compiler("F", "A", true, "FORTRAN"));
  for (int time = 1; time <= 2; ++time) {
    EXPECT_EQ(setup({u"-setup"}), "no error");
    EXPECT_EQ(tree.host.output, configured1 + hint);
    EXPECT_THAT(preferences(), ElementsAre(selection)) << "written again";
  }
}

TEST_F(Setup, WhatIsWrittenIsTheDocumentAndNotItsValuesForThisCommand) {
  Document document = compiler("1", "A");
  document.vars = "NOTE=\"tab&#9;feed&#10;&quot;quote&quot; &amp; é\"";
  tree.offer("a.xml", document);
  tree.scratch.write("given.xml", document.xml());
  const ZexOpt source(tree.scratch.path("given.xml"), "", u"", false);
  const std::vector<ustring> requests[] = {{u"-setup", u"C"}, {u"-setup", u"C", u"-f", u"given.xml"}};
  for (const std::vector<ustring>& arguments : requests) {
    EXPECT_EQ(setup(arguments), "no error");
    EXPECT_THAT(tree.host.output, EndsWith(configured1));
    const ZexOpt saved(tree.scratch.path("prefs/" + selection), "", u"", false);
    EXPECT_TRUE(saved.currentRelease && saved.installed);
    for (const ustring& key : source.attributePaths(u"config.vars"))
      EXPECT_EQ(saved.value(key), source.value(key));
    EXPECT_EQ(saved.attributePaths(u"config.vars"), source.attributePaths(u"config.vars"));
  }
}

TEST_F(Setup, SeveralCompilersAreListedBehindTheConfiguredOne) {
  tree.offer("a b.xml", forEngine("2", "B"));
  tree.offer("c.xml", forEngine("1", "A"));
  tree.offer("gone.xml", forEngine("3", "0", false));
  EXPECT_EQ(setup({u"-setup"}), "no error");
  EXPECT_EQ(tree.host.output, configured1 + "\nTESSEL:zex:MultiCompilers(\"C\")\nFor 2:  zex -setup:\"" +
                                  offered("a b.xml") + "\" C\nFor 1:  zex -setup:\"" + offered("c.xml") +
                                  "\" C\n" + hint);

  tree.host.hot = true;
  EXPECT_EQ(setup({u"-setup", u"-client", u"engine", u"-called_from_tessel"}), "no error");
  const std::string command = "zex -setup:'" + offered("a b.xml") + "' C -client ENGINE";
  const std::string client = "\" -client ENGINE\"";
  EXPECT_THAT(tree.host.output, AllOf(HasSubstr("TESSEL:zex:ConfiguredToUse_bold(\"ENGINE\", \"1\", \"C\")\n\n"
                                                "TESSEL:zex:MultiCompilers_link(\"C\")\n<a href=\"tessel:" +
                                                command + "\">2</a>  " + command + "\n"),
                                      EndsWith("\nTESSEL:zex:NoLangSelected_link(" + client + ", " + client +
                                               ", " + client + ", " + client + ")\n")));
}

TEST_F(Setup, AChosenCompilerStaysChosenAndAFormerChoiceIsKept) {
  offer(tree, {compiler("1", "A"), compiler("2", "B")});
  EXPECT_EQ(setup({u"-setup:SHORT2", u"C"}), "no error");
  EXPECT_THAT(tree.host.output, Not(HasSubstr("Multi")));
  EXPECT_EQ(setup({u"-setup", u"C"}), "no error");
  EXPECT_THAT(tree.host.output, HasSubstr("ConfiguredToUse(\"ZEX\", \"2\""));
  EXPECT_EQ(setup({u"-setup:" + zex_test::utf16(offered("0.xml")), u"C"}), "no error");
  EXPECT_THAT(tree.scratch.read("prefs/" + selectionBackup), HasSubstr("Name=\"2\""));
  EXPECT_EQ(setup({u"-setup:" + tree.scratch.path("prefs/" + selection), u"C"}), "no error");
  EXPECT_EQ(tree.host.output, configured1) << "written again";
}

TEST_F(Setup, DestinationIsWhatTheOptionsFileSays) {
  tree.offer("a.xml", compiler("1", "A"));
  const std::pair<const char16_t*, std::string> cases[] = {{u"new folder", "new folder/" + selection},
                                                           {u"some/new.xml", "some/new.xml"}};
  for (const auto& [destination, file] : cases) {
    EXPECT_EQ(setup({u"-setup:short1", u"C", u"-f", destination}), "no error");
    EXPECT_TRUE(tree.scratch.has(file)) << file;
    EXPECT_TRUE(preferences().empty());
  }
  tree.scratch.write("my.xml", compiler("1", "A").xml());
  EXPECT_EQ(setup({u"-setup", u"-f", u"my.xml"}), "no error") << "without a name -f is the document";
  EXPECT_THAT(preferences(), ElementsAre(selection));
}

TEST_F(Setup, FailuresNameWhatIsMissing) {
  tree.offer("a.xml", forEngine("1", "A", false));
  const ustring file = zex_test::utf16(offered("a.xml"));
  const std::pair<std::vector<ustring>, const char*> cases[] = {
      {{u"-setup"}, "TESSEL:zex:NoCompilerFound_Win64"},
      {{u"-setup", u"fortran"}, "TESSEL:zex:NoCompilerFound"},
      {{u"-setup:nonsense"}, "TESSEL:zex:SrcNotFound(\"nonsense\", \"nonsense\")"},
      {{u"-setup:" + file}, "TESSEL:zex:NotConfiguredToUse(\"ZEX\", \"1\")"},
      {{u"-setup:" + file, u"-client", u"engine"}, "TESSEL:zex:NotConfiguredToUse(\"ENGINE\", \"1\")"},
  };
  for (const auto& [arguments, failure] : cases) EXPECT_EQ(setup(arguments), failure);
  EXPECT_EQ(tree.host.warnings.front(), "TESSEL:zex:Warn(\"Install 1.\\n\")");
  EXPECT_EQ(tree.host.output, "");
  EXPECT_TRUE(preferences().empty());
}

TEST_F(Setup, ATakenBackupNameLeavesTheFormerChoice) {
  tree.offer("a.xml", compiler("1", "A"));
  tree.scratch.write("prefs/" + selection, compiler("1", "A").xml());
  std::filesystem::create_directories("prefs/" + selectionBackup + "/in the way");
  const std::string prefs = tree.scratch.told("prefs");
  EXPECT_EQ(setup({u"-setup", u"C"}), "TESSEL:zex:SrcNotFound(\"" + prefs + "\", \"" + prefs + "\")");
  EXPECT_EQ(tree.scratch.read("prefs/" + selection), compiler("1", "A").xml());
}

TEST_F(Setup, ACallerGetsTheListOfResolvedDocuments) {
  Document document = compiler("1", "A");
  document.vars = "WHERE=\"$ARCH\" SAID=\"&quot;x&quot;\"";
  tree.offer("a.xml", document);
  ZexConfigPerTVM::current().locationTrace = "trace\n";
  ZexConfigPerTVM::current().reportText = u"text";
  EXPECT_EQ(setup({u"-setup", u"C", u"-v"}, u"list.xml"), "no error");
  const std::string report = tree.scratch.read("list.xml");
  EXPECT_EQ(report.find("<config "), 55U);
  EXPECT_THAT(report, AllOf(HasSubstr("WHERE=\"" + zex_test::architecture + "\" SAID=\"&amp;quot;x&amp;quot;\""),
                            EndsWith("</config>\n</compiler-list><!--\n\"text\"-->\n<!--\n\"\"-->\n"
                                     "<!--\n\"trace\n\"-->\n\n")));
  EXPECT_THAT(tree.host.output, HasSubstr("list.xml is output.\n"));

  ustring path = tree.scratch.path("no/list.xml");
  EXPECT_THAT(failureOf([&] { writeCompilerList(path, {}); }), testing::StartsWith("TESSEL:zex:FileCannotOpen"));
  path = u"list.xml";
  writeCompilerList(path, {});
  EXPECT_EQ(path, u"");
}

}  // namespace
}  // namespace zex_cmd
