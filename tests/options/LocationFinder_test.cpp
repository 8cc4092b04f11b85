#include <filesystem>

#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "options/DocumentTest.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

class LocationFinderTest : public DocumentTest {
 protected:
  LocationFinderTest() {
    host.install = scratch.path("root");
    scratch.write("bad", "FAIL");
    for (const char* file : {"tools/cc", "tools/ld", "root/marker", "real/cc", "real/ld"}) scratch.write(file, "");
  }

  ZexOpt find(const std::string& conditions) {
    ZexConfigPerTVM::current().locationTrace.clear();
    return load("<config Name='n'><locationFinder>" + conditions + "</locationFinder></config>");
  }

  zex_test::ScopedVariable home{"HOME", scratch.folder()};
  zex_test::ScopedVariable place{"ZEX_TEST_PLACE", "tools"};
  zex_test::ScopedVariable empty{"ZEX_TEST_EMPTY", ""};
};

TEST_F(LocationFinderTest, AConditionTreeGivesAVariableOrItsDiagnostics) {
  const std::string folder = scratch.told();
  struct Case {
    std::string conditions;
    std::string value;  // "-" for a compiler that is not found
    std::string trace;
  };
  const Case cases[] = {
      {"<or><fileExists name='no' diagnostic='d'/><dirExists name='tools'/></or>", "tools", "d\n"},
      {"<fileExists name='$TESSELROOT/marker'/>", folder + "/root/marker", ""},
      {"<fileExists name='tools'/>", "tools", ""},  // files and folders are not told apart
      {"<dirExists name='tools/cc'/>", "tools/cc", ""},
      {"<dirExists name='~/tools'/>", folder + "/tools", ""},
      {"<fileExists name='./tools/../real//cc'/>", "./real/cc", ""},
      // "$$" is the folder found so far; a file stands for its folder.
      {"<envVarExists name='ZEX_TEST_PLACE'/><fileExists name='$$/cc'/><fileExists name='$$/ld'/>", "tools/ld",
       ""},
      {"<fileExists name='tools/cc'/><cmdReturns name='tool --say in:$$'/>", "in:tools", ""},
      {"<envVarExists name='ZEX_TEST_EMPTY' diagnostic='Set it.'/>", "-", "Set it.\n"},
      {"<cmdReturns name='tool --say \"\" \"  a//b \"'/>", "a/b", ""},
      {"<cmdReturns name='tool --exit 0' diagnostic='silent'/>", "-", "silent\n"},
      // A command that fails wipes the value.
      {"<dirExists name='tools'/><not><cmdReturns name='tool -c bad'/></not>", "", ""},
      {"<not diagnostic='n'/>", "-", "n\n"},
      {"<not diagnostic='n'><fileExists name='no' diagnostic='a'/><dirExists name='tools'/></not>", "-", "a\nn\n"},
      {"<anyName><dirExists name='tools'/><fileExists name='no'/><dirExists name='real'/></anyName>", "-", ""},
      // A missing required attribute skips the element's own diagnostic.
      {"<or diagnostic='outer'><fileExists diagnostic='inner'/></or>", "-", "outer\n"},
      {"<hklmExists name='n' diagnostic='d'/>", "-", ""},
      {"<hklmExists path='p' name='n' diagnostic='d'/>", "-", "d\n"},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.conditions);
    const ZexOpt opt = find("<V>" + test.conditions + "</V>");
    EXPECT_EQ(opt.installed, test.value != "-");
    EXPECT_EQ(zex_test::told(zex_test::utf8(opt.variable(u"V").value_or(u"-"))), test.value);
    EXPECT_EQ(ZexConfigPerTVM::current().locationTrace, test.trace);
  }
  EXPECT_THAT(host.shellFlags, testing::Each(true));
}

TEST_F(LocationFinderTest, TheFirstMissingVariableEndsTheSearch) {
  ZexConfigPerTVM::current().verboseEnabled = true;
  const ZexOpt opt = find(
      "<AA><or><hkcuExists path='p' name='k'/><envVarExists name='ZEX_TEST_PLACE'/></or></AA><!-- note -->"
      "<BB><dirExists name='$$'/></BB><CC><dirExists name='real'/></CC>");
  EXPECT_EQ(opt.variable(u"AA"), u"tools");
  EXPECT_EQ(opt.variable(u"CC"), std::nullopt);
  EXPECT_EQ(zex_test::utf8(ZexConfigPerTVM::current().verboseText),
            "TESSEL:zex:LookingCompiler(\"n\")\n"
            "TESSEL:zex:LookingRegistry(\"HKCU\", \"p\", \"k\")TESSEL:zex:No\n"
            "TESSEL:zex:LookingEnv(\"ZEX_TEST_PLACE\")TESSEL:zex:YesValue(\"tools\")\n"
            "TESSEL:zex:LookingFolder(\"$$\")TESSEL:zex:No\n"
            "TESSEL:zex:NotInstalledCompiler(\"n\")\n");
  EXPECT_FALSE(load("<config/>").installed);
}

}  // namespace
}  // namespace zex_cmd
