#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "compilers/ZexCompilers.hpp"
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
using zex_test::told;

class Discovery : public testing::Test {
 protected:
  /// File names of a list, a "*" before those that are `selected`.
  static std::string namesOf(const ZexOptList& list) {
    std::string names;
    for (const auto& opt : list) {
      const std::string path = told(zex_test::utf8(opt->attribute(u"ZEXOPT")));
      names += (opt->selected ? "*" : "") + path.substr(path.rfind('/') + 1) + " ";
    }
    return names;
  }

  static Document named(const std::string& name, const std::string& language = "C") {
    Document document;
    document.name = name;
    document.shortName = name;
    document.language = language;
    return document;
  }

  InstalledTree tree;
  boost::shared_ptr<ZexArgs> args = boost::make_shared<ZexArgs>();
  ZexCompilers compilers{&args};
};

TEST_F(Discovery, CatalogueScanFilters) {
  tree.offer("b.XML", named("Two", "c"));
  tree.offer("a.xml", named("one"));
  tree.offer("cpp.xml", named("other", "C++"));
  tree.offer("ignored.txt", named("text"));
  Document zbuild = named("zbuild");
  zbuild.client = "<zbuild/>";
  tree.offer("z.xml", zbuild);
  tree.scratch.write(catalogue + "folder.xml/x", "");

  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"", true)), "a.xml b.XML z.xml ");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"", true)), "") << "a second scan yields only what is new";
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"", false)), "a.xml b.XML z.xml ");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"TWO", false)), "b.XML ");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("", u"", false)), "");
  args->client = "ZBUILD";
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"", false)), "z.xml ");
  args->arch = "nowhere";
  EXPECT_EQ(failureOf([&] { compilers.findCatalogueOpts("C", u"", false); }).substr(0, 22),
            "TESSEL:zex:SrcNotFound");
}

TEST_F(Discovery, ABadDocumentEndsTheScanUnlessTheMatchComesFirst) {
  tree.offer("a.xml", named("one"));
  tree.scratch.write(catalogue + "b.xml", "<config");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"one", true)), "a.xml ");
  EXPECT_EQ(failureOf([&] { compilers.findCatalogueOpts("C", u"", true); }).substr(0, 21),
            "TESSEL:zex:InvalidXML");
}

TEST_F(Discovery, SelectedFilesAreNamedByClientLanguageAndArchitecture) {
  const std::string ending = zex_test::architecture + ".xml";
  struct Case {
    std::string file;
    const char* client;
    const char* language;
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
    InstalledTree fresh;
    Document document = named("x", row.language);
    document.client = "<ENGINE/><ZBUILD/>";
    fresh.scratch.write("prefs/" + row.file, document.xml());
    args->client = row.client;
    const std::string expected = row.taken ? "*" + row.file + " " : "";
    EXPECT_EQ(namesOf(ZexCompilers(&args).findSelectedOpts(row.language, u"")), expected)
        << row.file << row.client;
  }
}

TEST_F(Discovery, CurrentFolderHidesThePreferences) {
  tree.scratch.write("prefs/" + selection, named("preferred").xml());
  Document gone = named("here");
  gone.installed = false;
  tree.scratch.write(selection, gone.xml());
  const ZexOptList found = compilers.findSelectedOpts("C", u"");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front()->attribute(u"NAME"), u"here");
}

TEST_F(Discovery, OptionsFileIsTakenWhateverItsNameAndLanguage) {
  tree.scratch.write("any name", named("given", "FORTRAN").xml());
  tree.scratch.write(selection, named("here").xml());
  args->optionsFile = tree.scratch.path("any name");
  const ZexOptList first = compilers.findSelectedOpts("C", u"");
  EXPECT_EQ(namesOf(first), "*any name ");
  EXPECT_EQ(compilers.findSelectedOpts("C", u"").front(), first.front()) << "read twice";
  args->setupArgument = u"x";  // then -f is a destination
  EXPECT_EQ(namesOf(compilers.findSelectedOpts("C", u"")), "*" + selection + " ");
}

}  // namespace
}  // namespace zex_cmd
