#include "build/BuildTest.hpp"
#include "build/ZexCommandResult.hpp"
#include "build/built_file.hpp"
#include "build/compiler_versions.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;

class Checks : public BuildTest {
 protected:
  /// Warnings about a compiler whose program prints `text`.
  std::vector<std::string> warningsFor(const std::string& name, const std::string& text) {
    tree.host.warnings.clear();
    tree.scratch.write("tool.version", text);
    document.name = document.shortName = name;
    const auto option = loaded();
    option->setValue(u"config.<xmlattr>.Location", name == "mingw" ? u"./" : u"tool");
    checkGccVersion(*option, false);
    checkMinGwVersion(*option, false);
    return tree.host.warnings;
  }
};

TEST_F(Checks, DeprecatedNamesComeAheadOfTheToolsWords) {
  const std::pair<const char16_t*, const char*> cases[] = {
      {u"x zexSetIsDeprecated", "TESSEL:zex:ZexDoubleHandle(\"ZEX_DOUBLE_HANDLE\")"},
      {u"zexSetTrapFlagIsDeprecated", "TESSEL:zex:ZexSetTrapFlagNotSupported"},
      {u"zxSetPiIsDeprecated zxGetPiIsDeprecated", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxGetPi\")"},
      {u"zxFastZerosIsDeprecated zxGetPiIsDeprecated", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxGetPi\")"},
      {u"zxUnshareArrayIsDeprecated", "TESSEL:zex:UndocumentedNotSupported(\"zxUnshareArray\")"},
      {u"undefined zxGetPi", "TESSEL:zex:Error(\"undefined zxGetPi\")"},
      {u"", "TESSEL:zex:ZexErrorCode(\"gcc\", \"-1\")"},
  };
  for (const auto& [text, expected] : cases) {
    ZexCommandResult result;
    result.errorText = text;
    EXPECT_EQ(zex_test::failureOf([&] { raiseCommandFailure(u"gcc -c x", result); }), expected);
    result.succeeded = true;
    EXPECT_EQ(zex_test::failureOf([&] { raiseCommandFailure(u"gcc -c x", result); }), "no error");
  }
}

TEST_F(Checks, TheVersionFlagTakesTheFormOfTheCommandItIsFor) {
  struct Case {
    const char16_t *command, *flag, *expected;
  };
  const Case cases[] = {
      {u"gcc -c -DUSE_ZEX_CMD", u"-DR=1", u"-DR=1"},
      {u"cl /c /DUSE_ZEX_CMD", u"-DR=1", u"/DR=1"},
      {u"cl /c /DZEX_DOUBLE_HANDLE /DUSE_ZEX_CMD", u"-DR=1", u"/DZX_COMPAT_64"},
      {u"cl /c /DZEX_DOUBLE_HANDLE", u"-DZX_COMPAT_32", u"-DZX_COMPAT_32"},
      {u"DUSE_ZEX_CMD", u"-DR=1", u"-DR=1"},  // nothing stands ahead of the mark
  };
  for (const Case& row : cases)
    EXPECT_EQ(versionFlagFor(row.command, row.flag), row.expected) << zex_test::utf8(row.command);
}

TEST_F(Checks, GccIsJudgedByTheLastSingleDigitVersionOfItsLine) {
  struct Case {
    const char *name, *line;
    std::string warned;  ///< the token, or empty
  };
  const Case cases[] = {
      {"gcc", "gcc (GCC) 6.3.1\n", ""},
      {"g++", "g++ (GCC) 6.2.0\nmore 4.4.4\n", "6.2.0"},
      {"GCC", "gcc (Debian 6.3.0-18) 5.4.0 20160609\n", "5.4.0"},
      {"gcc", "gcc (Debian 12.2.0-14) 12.2.0\n", ""},  // two digits are never recognised
      {"gcc", "gcc (GCC) 6.3 7\n", ""},                // "7" has no second part
      {"gcc", "", ""},
      {"clang", "clang 6.2.0\n", ""},
  };
  for (const Case& row : cases) {
    for (const std::string form : {"", "_link"}) {
      tree.host.hot = !form.empty();
      const bool none = row.warned.empty() || zex_test::architecture != "glnxa64";
      std::vector<std::string> expected = {"TESSEL:zex:GccVersion" + form + "(\"" + row.warned + "\", \"6.3.x\")"};
      if (none) expected.clear();
      EXPECT_EQ(warningsFor(row.name, row.line), expected) << row.line;
    }
  }
}

TEST_F(Checks, MinGwMustBeTheSupportedOneAndSetUpSo) {
  // "./" and the told "\\bin\\gcc.exe" read "./bingcc.exe" to a POSIX shell.
  std::filesystem::create_directory("bin");
  for (const char* program : {"bin/gcc.exe", "bingcc.exe"})
    std::filesystem::copy_file(zex_test::FakeTool::program(), program);
  EXPECT_THAT(warningsFor("mingw", "4.9.2\n"), ElementsAre("TESSEL:zex:MinGWVersion"));
  EXPECT_THAT(warningsFor("mingw", "5.3.0\n"), ElementsAre("TESSEL:zex:InvalidMinGWConfig"));
  tree.host.hot = true;
  EXPECT_THAT(warningsFor("mingw", ""), ElementsAre("TESSEL:zex:MinGWVersion_link"));
  EXPECT_THAT(warningsFor("mingw", "5.3.0\n"), ElementsAre("TESSEL:zex:InvalidMinGWConfig_link"));
}

}  // namespace
}  // namespace zex_cmd
