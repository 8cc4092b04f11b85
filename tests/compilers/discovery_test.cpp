#include "compilers/CompilersTest.hpp"

namespace zex_cmd {
namespace {

class Discovery : public CompilersTest {
 protected:
  /// Names of what a scan of the catalogue yields, or the failure without its arguments.
  std::string scanned(const ustring& shortName = {}, bool onlyNew = false) {
    std::string names;
    const std::string failure =
        failureOf([&] { names = namesOf(compilers.findCatalogueOpts("C", shortName, onlyNew)); });
    return failure == "no error" ? names : failure.substr(0, failure.find('('));
  }

  ZexCompilers compilers{&args};
};

TEST_F(Discovery, ACatalogueIsScannedForWhatServesTheLanguageAndTheClient) {
  Document zbuild = compiler("2", "A");
  zbuild.client = "<zbuild/>";
  offer(tree, {compiler("1", "A", true, "c"), zbuild, compiler("other", "A", true, "C++")});
  tree.offer("3.XML", compiler("3", "A"));
  tree.offer("ignored.txt", compiler("text", "A"));
  EXPECT_EQ(scanned({}, true), "1 2 3 ");
  EXPECT_EQ(scanned({}, true), "") << "a second scan yields only what is new";
  EXPECT_EQ(scanned(u"SHORT2"), "2 ");
  args->client = "ZBUILD";
  EXPECT_EQ(scanned(), "2 ");
  tree.scratch.write(catalogue + "4.xml", "<config");
  EXPECT_EQ(scanned(), "TESSEL:zex:InvalidXML");
  EXPECT_EQ(scanned(u"short2"), "2 ") << "the match comes first";
  args->arch = "nowhere";
  EXPECT_EQ(scanned(), "TESSEL:zex:SrcNotFound");
}

TEST_F(Discovery, SelectedFilesAreNamedByClientLanguageAndArchitecture) {
  const std::string ending = zex_test::architecture + ".xml";
  const std::tuple<std::string, const char*, bool> cases[] = {
      {selection, "", true},           {"zex_C++_" + ending, "", false},       {"ZEX_C_GLNXA64.XML", "", false},
      {"zex_C_maci64.xml", "", false}, {"ENGINE_C_" + ending, "ENGINE", true}, {selection, "ENGINE", true},
      {selection, "ZBUILD", false},    {"ZBUILD_C_" + ending, "ZBUILD", true},
  };
  Document document = compiler("x", "A");
  document.client = "<ENGINE/><ZBUILD/>";
  for (const auto& [file, client, taken] : cases) {
    const InstalledTree fresh;
    fresh.scratch.write("prefs/" + file, document.xml());
    args->client = client;
    EXPECT_EQ(namesOf(ZexCompilers(&args).findSelectedOpts("C", u"")), taken ? "*x " : "") << file << client;
  }
}

TEST_F(Discovery, TheCurrentFolderHidesThePreferencesEvenIfItsCompilerIsGone) {
  tree.scratch.write("prefs/" + selection, compiler("preferred", "A").xml());
  tree.scratch.write(selection, compiler("here", "A", false).xml());
  EXPECT_EQ(namesOf(compilers.findSelectedOpts("C", u"")), "*here ");
}

}  // namespace
}  // namespace zex_cmd
