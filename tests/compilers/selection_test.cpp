#include "compilers/CompilersTest.hpp"
#include "compilers/ZexSelectedOptsPerTVM.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Selection : public CompilersTest {
 protected:
  Selection() { args->languages = {"C"}; }

  /// Name of the selected compiler for one command, or the failure.
  std::string selected() {
    std::string name;
    const std::string failure = failureOf([&] { name = nameOf(*ZexCompilers(&args).getSelectedOpt()); });
    return failure == "no error" ? name : failure;
  }

  boost::shared_ptr<ZexOpt> written(const Document& document, const std::string& file = "prefs/" + selection) {
    tree.scratch.write(file, document.xml());
    return boost::make_shared<ZexOpt>(tree.scratch.path(file), "", u"", false);
  }
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
    offer(fresh, row.catalogue);
    EXPECT_EQ(selected(), row.expected) << row.what;
    // Only what could be chosen is remembered.
    EXPECT_EQ(ZexSelectedOptsPerTVM::current().implicitSelections.empty(), row.catalogue.empty()) << row.what;
  }
}

TEST_F(Selection, SelectedFileWinsEvenIfItsCompilerIsGone) {
  offer(tree, {compiler("listed", "A")});
  tree.scratch.write("prefs/" + selection, compiler("chosen", "Z").xml());
  EXPECT_EQ(selected(), "chosen");
  tree.scratch.write("prefs/" + selection, compiler("chosen", "Z", false).xml());
  EXPECT_EQ(selected(), "TESSEL:zex:NoCompilerFound_Win64");
  EXPECT_THAT(tree.host.warnings, ElementsAre("TESSEL:zex:Warn(\"Install chosen.\\n\")"));
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
  EXPECT_THAT(tree.host.output, HasSubstr("TESSEL:zex:LookforImplicitSel\n"));
  tree.host.output.clear();
  tree.offer("a.xml", compiler("better", "A"));
  EXPECT_EQ(selected(), "first");
  EXPECT_THAT(tree.host.output, testing::Not(HasSubstr("LookforImplicitSel")));
}

TEST_F(Selection, SeveralInstalledWithoutOneSelectedFail) {
  offer(tree, {compiler("1", "A"), compiler("2", "B")});
  ZexCompilers compilers(&args);
  ZexOptList list = compilers.findCatalogueOpts("C", u"", true);
  EXPECT_EQ(failureOf([&] { compilers.checkOptList(list, true); }), "TESSEL:zex:MultipleOrZeroCompiler");
}

TEST_F(Selection, MergingMindsOnlyWhatIsInstalled) {
  struct Case {
    const char* what;
    Document listed, chosen;
    const char *kind, *names;
    const char* cached;  ///< "prefs" and "root", where what a compiler query reads comes from
  };
  const Case cases[] = {
      {"no twin", compiler("1", "A"), compiler("2", "B"), "", "1 *2 ", "prefs root "},
      {"twin", compiler("1", "A"), compiler("1", "A"), "", "*1 ", "prefs "},
      {"query, twin", compiler("1", "A"), compiler("1", "A"), "installed", "1 ", "root "},
      {"selected one is gone", compiler("1", "A"), compiler("1", "A", false), "", "*1 ", "prefs root "},
      {"query, listed twin is gone", compiler("1", "A", false), compiler("1", "A"), "installed", "1 ",
       "prefs root "},
  };
  for (const Case& row : cases) {
    const InstalledTree fresh;
    offer(fresh, {row.listed});
    fresh.scratch.write("prefs/" + selection, row.chosen.xml());
    ZexCompilers compilers(&args);
    const ZexOptList listed = compilers.findCatalogueOpts("C", u"", true);
    EXPECT_EQ(namesOf(compilers.mergeOptLists(listed, compilers.findSelectedOpts("C", u""), row.kind)), row.names)
        << row.what;
    std::string cached;
    for (const auto& [path, opt] : compilers.cachedOpts())
      cached += path.starts_with(fresh.scratch.path("prefs")) ? "prefs " : "root ";
    EXPECT_EQ(cached, row.cached) << row.what;
  }
}

TEST_F(Selection, AnUpgradeIsDueForAnOlderFileOfThePreferencesOnly) {
  const ZexCompilers compilers(&args);
  Document document = compiler("1", "A");
  const auto here = written(document, selection);
  EXPECT_FALSE(compilers.needsUpgrade(*here)) << "no twin in the preferences folder";
  EXPECT_TRUE(compilers.needsUpgrade(*written(document)));
  EXPECT_TRUE(compilers.needsUpgrade(*here)) << "treated as its twin";
  document.release = "R2018a";
  EXPECT_FALSE(compilers.needsUpgrade(*written(document)));
  document.release = "R2017a";
  args->optionsFile = u"given";
  EXPECT_FALSE(compilers.needsUpgrade(*written(document)));
}

TEST_F(Selection, AnUpgradeTakesTheTwinTheBestOrTheOldOne) {
  struct Case {
    const char* shortName;
    std::vector<Document> catalogue;
    const char* replacement;
    std::vector<std::string> warnings;
  };
  const Case cases[] = {
      {"short2", {compiler("1", "A"), compiler("2", "B")}, "2", {}},
      {"gone",
       {compiler("1", "B"), compiler("2", "A"), compiler("3", "C")},
       "2",
       {"TESSEL:zex:UnsupportedCompiler(\"old\")"}},
      {"gone", {compiler("1", "A", false)}, "old", {"TESSEL:zex:NoAlternativeCompilerFound(\"old\")"}},
      {"LCC64", {compiler("1", "A")}, "old", {}},
  };
  for (const Case& row : cases) {
    const InstalledTree fresh;
    offer(fresh, row.catalogue);
    Document document = compiler("old", "A");
    document.shortName = row.shortName;
    fresh.scratch.write("prefs/" + selection, document.xml());
    const ustring path = fresh.scratch.path("prefs/" + selection);
    ZexCompilers compilers(&args);
    const auto replacement = compilers.upgradeOpt(boost::make_shared<ZexOpt>(path, "", u"", false));
    EXPECT_EQ(nameOf(*replacement), row.replacement);
    EXPECT_TRUE(replacement->selected && replacement->currentRelease);
    EXPECT_EQ(replacement->attribute(u"ZEXOPT"), path);
    EXPECT_EQ(fresh.host.warnings, row.warnings);
    EXPECT_TRUE(fresh.scratch.has("prefs/" + selectionBackup));
  }
}

}  // namespace
}  // namespace zex_cmd
