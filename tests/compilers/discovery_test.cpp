#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "compilers/ZexCompilers.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"

namespace zex_cmd {
namespace {

using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;

class Discovery : public testing::Test {
 protected:
  /// File names of a list, a "*" before those that are `selected`.
  static std::string namesOf(const ZexOptList& list) {
    std::string names;
    for (const auto& opt : list) {
      const std::string path = fl::i18n::to_string(opt->attribute(u"ZEXOPT"));
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
  tree.scratch.write("root/bin/glnxa64/zexopts/folder.xml/x", "");

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
  tree.scratch.write("root/bin/glnxa64/zexopts/b.xml", "<config");
  EXPECT_EQ(namesOf(compilers.findCatalogueOpts("C", u"one", true)), "a.xml ");
  EXPECT_EQ(failureOf([&] { compilers.findCatalogueOpts("C", u"", true); }).substr(0, 21),
            "TESSEL:zex:InvalidXML");
}

TEST_F(Discovery, SelectedFilesAreNamedByClientLanguageAndArchitecture) {
  struct Case {
    const char* file;
    const char* client;
    const char* language;
    bool taken;
  };
  const Case cases[] = {
      {"zex_C_glnxa64.xml", "", "C", true},          {"zex_C_glnxa64.xml", "", "C++", false},
      {"zex_C++_glnxa64.xml", "", "C++", true},      {"ZEX_C_GLNXA64.XML", "", "C", false},
      {"zex_C_win64.xml", "", "C", false},           {"ENGINE_C_glnxa64.xml", "ENGINE", "C", true},
      {"zex_C_glnxa64.xml", "ENGINE", "C", true},    {"zex_C_glnxa64.xml", "ZBUILD", "C", false},
      {"ZBUILD_C_glnxa64.xml", "ZBUILD", "C", true},
  };
  for (const Case& row : cases) {
    InstalledTree fresh;
    Document document = named("x", row.language);
    document.client = "<ENGINE/><ZBUILD/>";
    fresh.scratch.write(std::string("prefs/") + row.file, document.xml());
    args->client = row.client;
    const std::string expected = row.taken ? std::string("*") + row.file + " " : "";
    EXPECT_EQ(namesOf(ZexCompilers(&args).findSelectedOpts(row.language, u"")), expected)
        << row.file << row.client;
  }
}

TEST_F(Discovery, CurrentFolderHidesThePreferences) {
  tree.scratch.write("prefs/zex_C_glnxa64.xml", named("preferred").xml());
  Document gone = named("here");
  gone.installed = false;
  tree.scratch.write("zex_C_glnxa64.xml", gone.xml());
  const ZexOptList found = compilers.findSelectedOpts("C", u"");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front()->attribute(u"NAME"), u"here");
}

TEST_F(Discovery, OptionsFileIsTakenWhateverItsNameAndLanguage) {
  tree.scratch.write("any name", named("given", "FORTRAN").xml());
  tree.scratch.write("zex_C_glnxa64.xml", named("here").xml());
  args->optionsFile = tree.scratch.path("any name");
  const ZexOptList first = compilers.findSelectedOpts("C", u"");
  EXPECT_EQ(namesOf(first), "*any name ");
  EXPECT_EQ(compilers.findSelectedOpts("C", u"").front(), first.front()) << "read twice";
  args->setupArgument = u"x";  // then -f is a destination
  EXPECT_EQ(namesOf(compilers.findSelectedOpts("C", u"")), "*zex_C_glnxa64.xml ");
}

}  // namespace
}  // namespace zex_cmd
