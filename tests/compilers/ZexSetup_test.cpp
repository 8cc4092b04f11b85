#include "compilers/ZexSetup.hpp"

#include "compilers/CompilersTest.hpp"

namespace zex_cmd {
namespace {

using testing::HasSubstr;

class Setup : public CompilersTest {
 protected:
  std::string setup(const std::vector<ustring>& arguments) {
    tree.host.output.clear();
    return failureOf([&] {
      args = boost::make_shared<ZexArgs>();
      args->parseArguments(arguments);
      ZexSetup(args, boost::make_shared<ZexCompilers>(&args), "");
    });
  }

  std::string offered(const std::string& file) const { return tree.scratch.told(catalogue + file); }
};

const std::string configured1 =
    "TESSEL:zex:ConfiguredToUse(\"ZEX\", \"1\", \"C\")\nTESSEL:zex:LargeArrayDimsSetupWarn\n";

TEST_F(Setup, WritesTheDocumentWithoutItsValuesForThisCommandWhereTheOptionsFileSays) {
  Document document = compiler("1", "A");
  document.vars = "NOTE=\"$ARCH\"";
  tree.offer("a.xml", document);
  tree.scratch.write("my.xml", document.xml());
  const std::pair<std::vector<ustring>, std::string> cases[] = {
      {{u"-setup", u"-f", u"my.xml"}, "prefs/" + selection},  // without a name -f is the document
      {{u"-setup"}, "prefs/" + selection},
      {{u"-setup:short1", u"C", u"-f", u"some/new.xml"}, "some/new.xml"},
      {{u"-setup:short1", u"C", u"-f", u"new folder"}, "new folder/" + selection},
  };
  for (const auto& [arguments, file] : cases) {
    EXPECT_EQ(setup(arguments), "no error");
    EXPECT_THAT(tree.host.output, testing::StartsWith(configured1));
    const ZexOpt saved(tree.scratch.path(file), "", u"", false);
    EXPECT_TRUE(saved.currentRelease && saved.installed) << file;
    EXPECT_EQ(saved.variable(u"NOTE"), u"$ARCH") << file;
    EXPECT_THAT(tree.scratch.names("prefs"), testing::ElementsAre(selection)) << "written again";
  }
}

TEST_F(Setup, ADocumentWhoseCompilerHasNoTwinIsWrittenUnresolvedToo) {
  Document document = compiler("1", "A");
  document.shortName = "lcc64";
  tree.offer("a.xml", document);
  EXPECT_EQ(setup({u"-setup"}), "no error");
  const ZexOpt saved(tree.scratch.path("prefs/" + selection), "", u"", false);
  EXPECT_EQ(saved.detail(u"OptimizationFlags"), u"$OPTFLAGS");
  EXPECT_FALSE(saved.variable(u"OBJ"));
}

TEST_F(Setup, SeveralCompilersAreListedBehindTheConfiguredOne) {
  std::vector<Document> documents = {compiler("2", "B"), compiler("1", "A"), compiler("3", "0", false)};
  for (Document& document : documents) document.client = "<ENGINE/>";
  offer(tree, documents);
  EXPECT_EQ(setup({u"-setup"}), "no error");
  EXPECT_EQ(tree.host.output, configured1 + "\nTESSEL:zex:MultiCompilers(\"C\")\nFor 2:  zex -setup:\"" +
                                  offered("0.xml") + "\" C\nFor 1:  zex -setup:\"" + offered("1.xml") +
                                  "\" C\n\nTESSEL:zex:NoLangSelected(\"\", \"\")\n");

  tree.host.hot = true;
  EXPECT_EQ(setup({u"-setup", u"-client", u"engine", u"-called_from_tessel"}), "no error");
  const std::string command = "zex -setup:'" + offered("0.xml") + "' C -client ENGINE";
  EXPECT_THAT(tree.host.output, HasSubstr("TESSEL:zex:ConfiguredToUse_bold(\"ENGINE\", \"1\", \"C\")\n\n"
                                          "TESSEL:zex:MultiCompilers_link(\"C\")\n<a href=\"tessel:" +
                                          command + "\">2</a>  " + command + "\n"));
}

TEST_F(Setup, AChosenCompilerStaysChosenAndAFormerChoiceIsKept) {
  offer(tree, {compiler("1", "A"), compiler("2", "B")});
  EXPECT_EQ(setup({u"-setup:SHORT2", u"C"}), "no error");
  EXPECT_EQ(setup({u"-setup", u"C"}), "no error");
  EXPECT_THAT(tree.host.output, HasSubstr("ConfiguredToUse(\"ZEX\", \"2\""));
  EXPECT_EQ(setup({u"-setup:" + zex_test::utf16(offered("0.xml")), u"C"}), "no error");
  EXPECT_THAT(tree.scratch.read("prefs/" + selectionBackup), HasSubstr("Name=\"2\""));
  EXPECT_EQ(setup({u"-setup:" + tree.scratch.path("prefs/" + selection), u"C"}), "no error");
  EXPECT_EQ(tree.host.output, configured1) << "written again";
}

TEST_F(Setup, FailuresNameWhatIsMissing) {
  tree.offer("a.xml", compiler("1", "A", false));
  const ustring file = zex_test::utf16(offered("a.xml"));
  const std::pair<std::vector<ustring>, const char*> cases[] = {
      {{u"-setup", u"fortran"}, "TESSEL:zex:NoCompilerFound"},
      {{u"-setup:nonsense"}, "TESSEL:zex:SrcNotFound(\"nonsense\", \"nonsense\")"},
      {{u"-setup:" + file}, "TESSEL:zex:NotConfiguredToUse(\"ZEX\", \"1\")"},
  };
  for (const auto& [arguments, failure] : cases) EXPECT_EQ(setup(arguments), failure);
}

}  // namespace
}  // namespace zex_cmd
