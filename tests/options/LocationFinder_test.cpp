#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "options/DocumentTest.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using LocationFinderTest = DocumentTest;

TEST_F(LocationFinderTest, AConditionTreeGivesAVariableOrItsDiagnostics) {
  scratch.write("bad", "FAIL");
  const struct {
    std::string conditions;
    std::string value;  ///< "-" for a compiler that is not found
    std::string trace = "";
  } cases[] = {
      {"<or><fileExists name='no' diagnostic='d'/><dirExists name='tools'/></or>", "tools", "d\n"},
      {"<fileExists name='$TESSELROOT/real'/>", scratch.told("real")},
      {"<fileExists name='tools'/>", "tools"},  // files and folders are not told apart
      {"<dirExists name='tools/cc'/>", "tools/cc"},
      {"<dirExists name='~/tools'/>", scratch.told("tools")},
      {"<fileExists name='./tools/../real//cc'/>", "./real/cc"},
      // "$$" is the folder found so far; a file stands for its folder.
      {"<envVarExists name='ZEX_TEST_PLACE'/><fileExists name='$$/cc'/><fileExists name='$$/ld'/>", "tools/ld"},
      {"<fileExists name='tools/cc'/><cmdReturns name='tool --say in:$$'/>", "in:tools"},
      {"<envVarExists name='ZEX_TEST_EMPTY' diagnostic='Set it.'/>", "-", "Set it.\n"},
      {"<dirExists name='tools'/><not><envVarExists name='ZEX_TEST_EMPTY'/></not>", "tools"},
      {"<cmdReturns name='tool --say \"\" \"  a//b \"'/>", "a/b"},
      {"<cmdReturns name='tool --exit 0' diagnostic='silent'/>", "-", "silent\n"},
      // A command that fails wipes the value, whatever it printed.
      {"<dirExists name='tools'/><not><cmdReturns name='tool -c bad'/></not>", ""},
      {"<not diagnostic='n'/>", "-", "n\n"},
      {"<not diagnostic='n'><fileExists name='no' diagnostic='a'/><dirExists name='tools'/></not>", "-", "a\nn\n"},
      {"<anyName><dirExists name='tools'/><fileExists name='no'/><dirExists name='real'/></anyName>", "-"},
      // A missing required attribute skips the element's own diagnostic.
      {"<or diagnostic='outer'><fileExists diagnostic='inner'/></or>", "-", "outer\n"},
      {"<hklmExists name='n' diagnostic='d'/>", "-", ""},
      {"<hklmExists path='p' name='n' diagnostic='d'/>", "-", "d\n"},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.conditions);
    ZexConfigPerTVM::current().locationTrace.clear();
    const ZexOpt opt = load("<locationFinder><V>" + row.conditions + "</V></locationFinder>");
    EXPECT_EQ(opt.installed, row.value != "-");
    EXPECT_EQ(zex_test::told(zex_test::utf8(opt.variable(u"V").value_or(u"-"))), row.value);
    EXPECT_EQ(ZexConfigPerTVM::current().locationTrace, row.trace);
  }
  EXPECT_THAT(host.shellFlags, testing::Each(true));
}

TEST_F(LocationFinderTest, TheFirstMissingVariableEndsTheSearch) {
  ZexConfigPerTVM::current().verboseEnabled = true;
  const ZexOpt opt = load(
      "<locationFinder><AA><or><hkcuExists path='p' name='k'/><envVarExists name='ZEX_TEST_PLACE'/></or></AA>"
      "<!-- note --><BB><dirExists name='$$'/></BB><CC><dirExists name='real'/></CC></locationFinder>");
  EXPECT_EQ(opt.variable(u"AA"), u"tools");
  EXPECT_EQ(zex_test::utf8(ZexConfigPerTVM::current().verboseText),
            "TESSEL:zex:LookingCompiler(\"n\")\n"
            "TESSEL:zex:LookingRegistry(\"HKCU\", \"p\", \"k\")TESSEL:zex:No\n"
            "TESSEL:zex:LookingEnv(\"ZEX_TEST_PLACE\")TESSEL:zex:YesValue(\"tools\")\n"
            "TESSEL:zex:LookingFolder(\"$$\")TESSEL:zex:No\n"
            "TESSEL:zex:NotInstalledCompiler(\"n\")\n");
}

}  // namespace
}  // namespace zex_cmd
