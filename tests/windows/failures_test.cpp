#include <windows.h>

#include "windows/WindowsTree.hpp"

namespace windows_tests {
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class WindowsFailures : public WindowsTree {
 protected:
  WindowsFailures() { write("a.c", ""); }

  /// What a compile says that runs the odd tool in a mode.
  Outcome compileBy(const std::string& mode) const {
    writeOddDocument("CMDLINE100='$TOOL " + mode + " -c $SRC -o $OBJ'");
    return zex("a.c -c -f odd.xml");
  }
};

TEST_F(WindowsFailures, OfToolsAreTold) {
  const std::string odd = fs::absolute(ZEX_ODD_TOOL).string();
  EXPECT_THAT(compileBy("silent").err, HasSubstr("TESSEL:zex:ZexErrorCode(\"\\\""));
  EXPECT_THAT(compileBy("silent").err, HasSubstr("\", \"3\")"));
  // Killed: the code is read as a signed number.
  EXPECT_THAT(compileBy("crash").err, HasSubstr("\", \"-1073741819\")"));
  const Outcome chatty = compileBy("chatty");
  EXPECT_THAT(chatty.err, StartsWith("zex: error: TESSEL:zex:Error(\"line 0\\nline 1\\n"));
  EXPECT_THAT(chatty.err, HasSubstr("line 19999\\n"));
  EXPECT_THAT(compileBy("unicode").err, HasSubstr("café"));
  EXPECT_EQ(compileBy("unicode").status, 1);
  EXPECT_FALSE(fs::exists("a.obj"));
}

TEST_F(WindowsFailures, OfWhatCannotBeStartedAreTold) {
  writeOddDocument("CMDLINE100='no_such_tool -c $SRC -o $OBJ'");
  EXPECT_THAT(zex("a.c -c -f odd.xml").err, HasSubstr("not recognized"));
  set("COMSPEC", temporary / "no_shell.exe");
  EXPECT_THAT(zex("a.c -c -f odd.xml").err, HasSubstr("TESSEL:zex:ZexErrorCode(\"no_such_tool\", \"" +
                                                      std::to_string(ERROR_FILE_NOT_FOUND) + "\")"));
}

TEST_F(WindowsFailures, OfPathsNameThem) {
  write("p;q.c", "");
  const std::pair<const char*, const char*> cases[] = {
      {"a.c -outdir Q:\\x\\y", "TESSEL:zex:SrcNotFound(\"Q:\\\\x\\\\y\""},
      {"a.c TEMP=Q:\\x", "TESSEL:zex:SrcNotFound(\"Q:\\\\x\""},
      {"p;q.c", "TESSEL:zex:Error(\"Invalid path p;q.c\")"},
      {"%TEMP%.c", "TESSEL:zex:Error(\"Invalid path %TEMP%.c\")"},
      {"\xEF\xBC\x8D"
       "c a.c",
       "TESSEL:zex:SrcNotFound("},  // a wide "-" is none
  };
  for (const auto& [arguments, expected] : cases) {
    const Outcome outcome = zex(arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_THAT(outcome.err, HasSubstr(expected)) << arguments;
  }
}

TEST_F(WindowsFailures, CaptureFilesThatCannotBeMadeAreAFailedCommand) {
  writeOddDocument("CMDLINE100='$TOOL make $OBJ -c $SRC'");
  set("TMPDIR", "Z:\\proc");  // where not even an administrator makes a file
  const Outcome outcome = zex("a.c -c -f odd.xml TEMP=here");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("TESSEL:zex:ZexErrorCode("));
  EXPECT_TRUE(fs::is_empty("here"));
}

}  // namespace
}  // namespace windows_tests
