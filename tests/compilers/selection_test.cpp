#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "compilers/ZexCompilers.hpp"
#include "compilers/ZexSelectedOptsPerTVM.hpp"
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

class Selection : public testing::Test {
 protected:
  Selection() { args->languages = {"C"}; }

  static Document compiler(const std::string& name, const std::string& priority, bool installed = true) {
    Document document;
    document.name = name;
    document.shortName = "short " + name;
    document.priority = priority;
    document.installed = installed;
    return document;
  }

  /// Name of the selected compiler for one command, or the failure.
  std::string selected() {
    ZexCompilers compilers(&args);
    std::string name;
    const std::string failure =
        failureOf([&] { name = zex_test::utf8(compilers.getSelectedOpt()->attribute(u"NAME")); });
    return failure == "no error" ? name : failure;
  }

  InstalledTree tree;
  boost::shared_ptr<ZexArgs> args = boost::make_shared<ZexArgs>();
};

TEST_F(Selection, ImplicitChoiceFollowsThePriorityText) {
  struct Case {
    const char* what;
    std::vector<Document> catalogue;
    const char* expected;
  };
  const Case cases[] = {
      {"least text", {compiler("1", "B"), compiler("2", "A")}, "2"},
      {"not numbers", {compiler("1", "9"), compiler("2", "10")}, "2"},
      {"tie: first", {compiler("1", "A"), compiler("2", "A")}, "1"},
      {"at the ceiling: first", {compiler("1", "zzzzzzzzz"), compiler("2", "zzzzzzzzz")}, "1"},
      {"empty beats all", {compiler("1", "A"), compiler("2", "")}, "2"},
      {"not installed", {compiler("1", "A", false), compiler("2", "B")}, "2"},
      {"only one", {compiler("1", "~~~~~~~~~~")}, "1"},
      {"none", {}, "TESSEL:zex:NoCompilerFound_Win64"},
  };
  for (const Case& row : cases) {
    const InstalledTree fresh;
    int index = 0;
    for (const Document& document : row.catalogue) fresh.offer(std::to_string(index++) + ".xml", document);
    EXPECT_EQ(selected(), row.expected) << row.what;
    // Only what could be chosen is remembered.
    EXPECT_EQ(ZexSelectedOptsPerTVM::current().implicitSelections.empty(), row.catalogue.empty()) << row.what;
  }
}

TEST_F(Selection, SelectedFileWinsEvenIfItsCompilerIsGone) {
  tree.offer("a.xml", compiler("listed", "A"));
  tree.scratch.write("prefs/" + selection, compiler("chosen", "Z").xml());
  EXPECT_EQ(selected(), "chosen");
  tree.scratch.write("prefs/" + selection, compiler("chosen", "Z", false).xml());
  EXPECT_EQ(selected(), "TESSEL:zex:NoCompilerFound_Win64");
  EXPECT_EQ(tree.host.warnings, std::vector<std::string>{"TESSEL:zex:Warn(\"Install chosen.\\n\")"});
}

TEST_F(Selection, NoCompilerErrorDependsOnLanguagesAndLinks) {
  args->languages = {"C", "FORTRAN"};
  EXPECT_EQ(selected(), "TESSEL:zex:NoCompilerFound");
  tree.host.hot = true;
  EXPECT_EQ(selected(), "TESSEL:zex:NoCompilerFound_link");
  args->languages = {"C++"};
  EXPECT_EQ(selected(), "TESSEL:zex:NoCompilerFound_link_Win64");
}

TEST_F(Selection, ASecondCommandRemembersTheImplicitChoice) {
  ZexConfigPerTVM::current().verboseEnabled = ZexConfigPerTVM::current().verboseEcho = true;
  tree.offer("b.xml", compiler("first", "B"));
  EXPECT_EQ(selected(), "first");
  EXPECT_NE(tree.host.output.find("TESSEL:zex:LookforImplicitSel\n"), std::string::npos);
  tree.host.output.clear();
  tree.offer("a.xml", compiler("better", "A"));
  EXPECT_EQ(selected(), "first");
  EXPECT_EQ(tree.host.output.find("LookforImplicitSel"), std::string::npos);
}

TEST_F(Selection, SeveralInstalledWithoutOneSelectedFail) {
  ZexCompilers compilers(&args);
  tree.offer("a.xml", compiler("1", "A"));
  tree.offer("b.xml", compiler("2", "B"));
  ZexOptList list = compilers.findCatalogueOpts("C", u"", true);
  EXPECT_EQ(failureOf([&] { compilers.checkOptList(list, true); }), "TESSEL:zex:MultipleOrZeroCompiler");
}

TEST_F(Selection, MergingPutsTheSelectedDocumentInThePlaceOfItsTwin) {
  tree.offer("a.xml", compiler("1", "A"));
  tree.offer("b.xml", compiler("2", "B"));
  tree.scratch.write("prefs/" + selection, compiler("2", "B").xml());
  for (const char* kind : {"", "installed"}) {
    ZexCompilers compilers(&args);
    const ZexOptList listed = compilers.findCatalogueOpts("C", u"", true);
    const ZexOptList chosen = compilers.findSelectedOpts("C", u"");
    const ZexOptList merged = compilers.mergeOptLists(listed, chosen, kind);
    const bool query = *kind != '\0';
    EXPECT_EQ(merged, query ? listed : (ZexOptList{listed[0], chosen[0]}));
    // Of the pair only one stays in the cache, which a compiler query reads.
    EXPECT_EQ(compilers.cachedOpts().count(tree.scratch.path(catalogue + "b.xml")), query ? 1U : 0U);
    EXPECT_EQ(compilers.cachedOpts().count(tree.scratch.path("prefs/" + selection)), query ? 0U : 1U);
    EXPECT_FALSE(listed[0]->selected) << "the priority rule must rest";
  }
}

TEST_F(Selection, MergingMindsOnlyWhatIsInstalled) {
  struct Case {
    const char* what;
    Document listed;
    Document chosen;
    const char* kind;
    const char* names;  ///< of the merged list, "*" before a selected one
    std::size_t cached;
  };
  const Case cases[] = {
      {"no twin", compiler("1", "A"), compiler("2", "B"), "", "1 *2 ", 2},
      {"selected one is gone", compiler("1", "A"), compiler("1", "A", false), "", "*1 ", 2},
      {"query, listed twin is gone", compiler("1", "A", false), compiler("1", "A"), "installed", "1 ", 2},
  };
  for (const Case& row : cases) {
    const InstalledTree fresh;
    fresh.offer("a.xml", row.listed);
    fresh.scratch.write("prefs/" + selection, row.chosen.xml());
    ZexCompilers compilers(&args);
    const ZexOptList listed = compilers.findCatalogueOpts("C", u"", true);
    std::string names;
    for (const auto& opt : compilers.mergeOptLists(listed, compilers.findSelectedOpts("C", u""), row.kind)) {
      names += (opt->selected ? "*" : "") + zex_test::utf8(opt->attribute(u"NAME")) + " ";
    }
    EXPECT_EQ(names, row.names) << row.what;
    EXPECT_EQ(compilers.cachedOpts().size(), row.cached) << row.what;
  }
}

class Upgrade : public Selection {
 protected:
  boost::shared_ptr<ZexOpt> old(const Document& document, const std::string& file = "prefs/" + selection) {
    tree.scratch.write(file, document.xml());
    return boost::make_shared<ZexOpt>(tree.scratch.path(file), "", u"", false);
  }
};

TEST_F(Upgrade, IsDueForAnOlderFileOfThePreferencesOnly) {
  const ZexCompilers compilers(&args);
  Document document = compiler("1", "A");
  const auto here = old(document, selection);
  EXPECT_FALSE(compilers.needsUpgrade(*here)) << "no twin in the preferences folder";
  EXPECT_TRUE(compilers.needsUpgrade(*old(document)));
  EXPECT_TRUE(compilers.needsUpgrade(*here)) << "treated as its twin";
  document.release = "R2018a";
  EXPECT_FALSE(compilers.needsUpgrade(*old(document)));
  document.release = "R2017a";
  args->optionsFile = u"given";
  EXPECT_FALSE(compilers.needsUpgrade(*old(document)));
}

TEST_F(Upgrade, TakesTheTwinTheBestOrTheOldOne) {
  struct Case {
    const char* shortName;
    std::vector<Document> catalogue;
    const char* replacement;
    std::vector<std::string> warnings;
  };
  const Case cases[] = {
      {"short 2", {compiler("1", "A"), compiler("2", "B")}, "2", {}},
      {"gone", {compiler("1", "B"), compiler("2", "A")}, "2", {"TESSEL:zex:UnsupportedCompiler(\"old\")"}},
      {"gone", {compiler("1", "A", false)}, "old", {"TESSEL:zex:NoAlternativeCompilerFound(\"old\")"}},
      {"LCC64", {compiler("1", "A")}, "old", {}},
  };
  for (const Case& row : cases) {
    InstalledTree fresh;
    int index = 0;
    for (const Document& document : row.catalogue) fresh.offer(std::to_string(index++) + ".xml", document);
    Document document = compiler("old", "A");
    document.shortName = row.shortName;
    fresh.scratch.write("prefs/" + selection, document.xml());
    const auto former = boost::make_shared<ZexOpt>(fresh.scratch.path("prefs/" + selection), "", u"", false);
    former->selected = true;
    ZexCompilers compilers(&args);
    const auto replacement = compilers.upgradeOpt(former);
    EXPECT_EQ(replacement->attribute(u"NAME"), zex_test::utf16(row.replacement));
    EXPECT_TRUE(replacement->selected && replacement->currentRelease);
    EXPECT_EQ(replacement->attribute(u"ZEXOPT"), fresh.scratch.path("prefs/" + selection));
    EXPECT_EQ(fresh.host.warnings, row.warnings);
    EXPECT_TRUE(fresh.scratch.has("prefs/" + selectionBackup));
  }
}

}  // namespace
}  // namespace zex_cmd
