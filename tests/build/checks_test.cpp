#include <gtest/gtest.h>

#include "build/ZexCommandResult.hpp"
#include "build/built_file.hpp"
#include "build/compiler_versions.hpp"
#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;

TEST(CommandFailure, DeprecatedNamesComeAheadOfTheToolsWords) {
  struct Case {
    const char16_t* text;
    const char* failure;
  };
  const Case cases[] = {
      {u"x zexGetIsDeprecated", "TESSEL:zex:ZexDoubleHandle(\"ZEX_DOUBLE_HANDLE\")"},
      {u"zexSetIsDeprecated", "TESSEL:zex:ZexDoubleHandle(\"ZEX_DOUBLE_HANDLE\")"},
      {u"zexSetTrapFlagIsDeprecated", "TESSEL:zex:ZexSetTrapFlagNotSupported"},
      {u"zxSetPiIsDeprecated zxGetPiIsDeprecated", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxGetPi\")"},
      {u"zxSetImagDataIsDeprecated", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxSetImagData\")"},
      {u"zxUnshareArrayIsDeprecated", "TESSEL:zex:UndocumentedNotSupported(\"zxUnshareArray\")"},
      {u"zxFastZerosIsDeprecated zxGetPiIsDeprecated", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxGetPi\")"},
      {u"undefined zxGetPi", "TESSEL:zex:Error(\"undefined zxGetPi\")"},
      {u"", "TESSEL:zex:ZexErrorCode(\"gcc\", \"-1\")"},
  };
  const InstalledTree tree;
  for (const Case& row : cases) {
    ZexCommandResult result;
    result.errorText = row.text;
    EXPECT_EQ(failureOf([&] { raiseCommandFailure(u"gcc -c x", result); }), row.failure);
    result.succeeded = true;
    EXPECT_EQ(failureOf([&] { raiseCommandFailure(u"gcc -c x", result); }), "no error");
  }
}

TEST(VersionFlag, TakesTheFormOfTheCommandItIsFor) {
  struct Case {
    const char16_t* command;
    const char16_t* flag;
    const char16_t* expected;
  };
  const Case cases[] = {
      {u"gcc -c -DUSE_ZEX_CMD", u"-DR=1", u"-DR=1"},
      {u"cl /c /DUSE_ZEX_CMD", u"-DR=1", u"/DR=1"},
      {u"cl /c /DZEX_DOUBLE_HANDLE /DUSE_ZEX_CMD", u"-DR=1", u"/DZX_COMPAT_64"},
      {u"cl /c /DZEX_DOUBLE_HANDLE", u"-DZX_COMPAT_32", u"-DZX_COMPAT_32"},
      {u"DUSE_ZEX_CMD", u"-DR=1", u"-DR=1"},  // nothing stands ahead of the mark
      {u"gcc", u"-DR=1", u"-DR=1"},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(versionFlagFor(row.command, row.flag), row.expected) << zex_test::utf8(row.command);
  }
}

class CompilerVersions : public testing::Test {
 protected:
  /// Warnings about a document whose program prints `text`.
  std::vector<std::string> warningsFor(const std::string& name, const std::string& text) {
    tree.host.warnings.clear();
    tree.scratch.write("tool.version", text);
    Document document;
    document.name = name;
    document.shortName = name;
    tree.scratch.write("d.xml", document.xml());
    ZexOpt option(tree.scratch.path("d.xml"), "", u"", false);
    option.setValue(u"config.<xmlattr>.Location", name == "mingw" ? u"./" : u"tool");
    checkGccVersion(option, false);
    checkMinGwVersion(option, false);
    return tree.host.warnings;
  }

  InstalledTree tree;
};

TEST_F(CompilerVersions, GccIsJudgedByTheLastSingleDigitVersionOfItsLine) {
  struct Case {
    const char* name;
    const char* line;
    const char* warned;  ///< the token, or empty
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
    const std::string warning = std::string("TESSEL:zex:GccVersion(\"") + row.warned + "\", \"6.3.x\")";
    const std::vector<std::string> expected = *row.warned == '\0' || zex_test::architecture != "glnxa64"
                                                  ? std::vector<std::string>{}
                                                  : std::vector<std::string>{warning};
    EXPECT_EQ(warningsFor(row.name, row.line), expected) << row.line;
  }
}

TEST_F(CompilerVersions, MinGwMustBeTheSupportedOneAndSetUpSo) {
  // "./" and the told "\\bin\\gcc.exe" read "./bingcc.exe" to a POSIX shell.
  std::filesystem::create_directory("bin");
  for (const char* program : {"bin/gcc.exe", "bingcc.exe"}) {
    std::filesystem::copy_file(zex_test::FakeTool::program(), program);
  }
  EXPECT_EQ(warningsFor("mingw", "4.9.2\n"), std::vector<std::string>{"TESSEL:zex:MinGWVersion"});
  EXPECT_EQ(warningsFor("mingw", "5.3.0\n"), std::vector<std::string>{"TESSEL:zex:InvalidMinGWConfig"});
  tree.host.hot = true;
  EXPECT_EQ(warningsFor("mingw", ""), std::vector<std::string>{"TESSEL:zex:MinGWVersion_link"});
}

}  // namespace
}  // namespace zex_cmd
