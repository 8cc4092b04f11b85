#include "compilers/CompilersTest.hpp"

namespace zex_cmd {
namespace {

class Selection : public CompilersTest {
 protected:
  Selection() { args->languages = {"C"}; }

  /// Name of the selected compiler for one command, or the failure.
  std::string selected() {
    std::string name;
    const std::string failure = failureOf([&] { name = nameOf(*ZexCompilers(&args).getSelectedOpt()); });
    return failure == "no error" ? name : failure;
  }
};

TEST_F(Selection, ImplicitChoiceFollowsThePriorityTextAndIsRemembered) {
  const std::pair<std::vector<Document>, const char*> cases[] = {
      {{compiler("1", "B"), compiler("2", "A")}, "2"},                  // the least text
      {{compiler("1", "9"), compiler("2", "10")}, "2"},                 // which is no number
      {{compiler("1", "A"), compiler("2", "A")}, "1"},                  // the first of equals
      {{compiler("1", "zzzzzzzzz"), compiler("2", "zzzzzzzzz")}, "1"},  // at the ceiling, too
      {{compiler("1", "A"), compiler("2", "")}, "2"},
      {{compiler("1", "A", false), compiler("2", "B")}, "2"},
      {{compiler("1", "~~~~~~~~~~")}, "1"},
      {{}, "TESSEL:zex:NoCompilerFound_Win64"},
  };
  for (const auto& [documents, expected] : cases) {
    const InstalledTree fresh;
    offer(fresh, documents);
    EXPECT_EQ(selected(), expected);
    fresh.offer("more.xml", compiler("newer", ""));
    EXPECT_EQ(selected(), documents.empty() ? "newer" : expected) << "not remembered";
  }
}

TEST_F(Selection, ASelectedFileWinsEvenIfItsCompilerIsGone) {
  offer(tree, {compiler("listed", "A")});
  tree.scratch.write("prefs/" + selection, compiler("chosen", "Z").xml());
  EXPECT_EQ(selected(), "chosen");
  tree.scratch.write("prefs/" + selection, compiler("chosen", "Z", false).xml());
  EXPECT_EQ(selected(), "TESSEL:zex:NoCompilerFound_Win64");
  EXPECT_THAT(tree.host.warnings, testing::ElementsAre("TESSEL:zex:Warn(\"Install chosen.\\n\")"));
  tree.host.hot = true;
  EXPECT_EQ(selected(), "TESSEL:zex:NoCompilerFound_link_Win64");
}

TEST_F(Selection, AnUpgradeTakesTheTwinTheBestOrTheOldOne) {
  struct Case {
    const char* shortName;
    std::vector<Document> catalogue;
    const char* replacement;
    std::vector<std::string> warnings;
  };
  const Document best = compiler("2", "A"), worst = compiler("3", "C");
  const Case cases[] = {
      {"short3", {best, worst}, "3", {}},
      {"gone", {compiler("1", "B"), best, worst}, "2", {"TESSEL:zex:UnsupportedCompiler(\"old\")"}},
      {"gone", {compiler("1", "A", false)}, "old", {"TESSEL:zex:NoAlternativeCompilerFound(\"old\")"}},
      {"LCC64", {best}, "old", {}},
  };
  for (const Case& row : cases) {
    const InstalledTree fresh;
    offer(fresh, row.catalogue);
    Document document = compiler("old", "A");
    document.shortName = row.shortName;
    fresh.scratch.write("prefs/" + selection, document.xml());
    ZexCompilers compilers(&args);
    const auto replacement = compilers.upgradeOpt(compilers.findSelectedOpts("C", u"").front());
    EXPECT_EQ(nameOf(*replacement), row.replacement);
    EXPECT_TRUE(replacement->selected && replacement->currentRelease);
    EXPECT_EQ(fresh.host.warnings, row.warnings);
  }
}

}  // namespace
}  // namespace zex_cmd
