#include "compilers/CompilersTest.hpp"

namespace zex_cmd {
namespace {

using testing::StartsWith;

class Discovery : public CompilersTest {
 protected:
  ZexCompilers compilers{&args};
};

TEST_F(Discovery, CatalogueScanFilters) {
  Document zbuild = compiler("zbuild", "A");
  zbuild.client = "<zbuild/>";
  tree.offer("b.XML", compiler("Two", "A", true, "c"));
  tree.offer("a.xml", compiler("one", "A"));
  tree.offer("cpp.xml", compiler("other", "A", true, "C++"));
  tree.offer("ignored.txt", compiler("text", "A"));
  tree.offer("z.xml", zbuild);
  tree.scratch.write(catalogue + "folder.xml/x", "");

  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"", true)), "one Two zbuild ");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"", true)), "") << "a second scan yields only what is new";
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"", false)), "one Two zbuild ");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"SHORTTWO", false)), "Two ");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("", u"", false)), "");
  args->client = "ZBUILD";
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"", false)), "zbuild ");
  args->arch = "nowhere";
  EXPECT_THAT(failureOf([&] { compilers.findCatalogueOpts("C", u"", false); }),
              StartsWith("TESSEL:zex:SrcNotFound"));
}

TEST_F(Discovery, ABadDocumentEndsTheScanUnlessTheMatchComesFirst) {
  tree.offer("a.xml", compiler("1", "A"));
  tree.scratch.write(catalogue + "b.xml", "<config");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"short1", true)), "1 ");
  EXPECT_THAT(failureOf([&] { compilers.findCatalogueOpts("C", u"", true); }),
              StartsWith("TESSEL:zex:InvalidXML"));
}

TEST_F(Discovery, SelectedFilesAreNamedByClientLanguageAndArchitecture) {
  const std::string ending = zex_test::architecture + ".xml";
  struct Case {
    std::string file;
    const char *client, *language;
    bool taken;
  };
  const Case cases[] = {
      {selection, "", "C", true},
      {selection, "", "C++", false},
      {"zex_C++_" + ending, "", "C++", true},
      {"ZEX_C_GLNXA64.XML", "", "C", false},
      {"zex_C_maci64.xml", "", "C", false},
      {"ENGINE_C_" + ending, "ENGINE", "C", true},
      {selection, "ENGINE", "C", true},
      {selection, "ZBUILD", "C", false},
      {"ZBUILD_C_" + ending, "ZBUILD", "C", true},
  };
  for (const Case& row : cases) {
    const InstalledTree fresh;
    Document document = compiler("x", "A", true, row.language);
    document.client = "<ENGINE/><ZBUILD/>";
    fresh.scratch.write("prefs/" + row.file, document.xml());
    args->client = row.client;
    EXPECT_EQ(namesOf(ZexCompilers(&args).findSelectedOpts(row.language, u"")), row.taken ? "*x " : "")
        << row.file << row.client;
  }
}

TEST_F(Discovery, OptionsFileHidesTheCurrentFolderWhichHidesThePreferences) {
  tree.scratch.write("any name", compiler("given", "A", true, "FORTRAN").xml());
  tree.scratch.write("prefs/" + selection, compiler("preferred", "A").xml());
  tree.scratch.write(selection, compiler("here", "A", false).xml());
  args->optionsFile = tree.scratch.path("any name");
  const ZexOptList first = compilers.findSelectedOpts("C", u"");
  EXPECT_EQ(namesOf(first), "*given ");
  EXPECT_EQ(compilers.findSelectedOpts("C", u"").front(), first.front()) << "read twice";
  args->setupArgument = u"x";  // then -f is a destination
  EXPECT_EQ(namesOf(compilers.findSelectedOpts("C", u"")), "*here ");
}

}  // namespace
}  // namespace zex_cmd
