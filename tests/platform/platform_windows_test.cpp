#include <gmock/gmock.h>
#include <windows.h>

#include "platform/ShellCommand.hpp"
#include "platform/paths.hpp"
#include "support/FakeTool.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using namespace testing;
using zex_test::ScopedVariable;
using zex_test::utf8;

/// What differs from system to system: how a command is run, and what a path is made to. The shell that stands in
/// for Wine's keeps the lines that it is given.
class Windows : public testing::Test {
 protected:
  std::int32_t run(const ustring& text) { return runShellCommand(text, output, errors, false); }

  zex_test::Scratch scratch;
  zex_test::FakeTool tool;
  ScopedVariable tmpdir{"TMPDIR", scratch.folder()};
  ScopedVariable log{"ZEX_TEST_SHELL_LOG", scratch.folder() / "log"};
  zex_test::RecordingServices host;
  ustring output = u"old", errors = u"old";
};

TEST_F(Windows, CommandsAreAGroupWithBothStreamsInFiles) {
  scratch.write("out", "one\r\n\r\n two\n\xE9 last");
  EXPECT_EQ(run(u"type out& tool --say \"a  b\" é%x 1>&2& exit 7"), 7);
  EXPECT_EQ(output, u"one\n two\né last\n");
  EXPECT_EQ(errors, u"a  b\né%x\n");
  const std::string file = " \"" + scratch.told("zex_");
  EXPECT_THAT(zex_test::told(scratch.read("log")),
              AllOf(StartsWith("( type out& tool --say \"a  b\" é%x 1>&2& exit 7 ) >" + file),
                    HasSubstr("\" 2>" + file), EndsWith("\"\n")));
  EXPECT_THAT(scratch.names(), ElementsAre("log", "out", "tool.log")) << "a capture file stays";
  const ScopedVariable missing("COMSPEC", "C:\\missing.exe");
  EXPECT_EQ(run(u"tool --say"), ERROR_FILE_NOT_FOUND) << "the shell itself does not start";
  EXPECT_EQ(output + errors, u"");
}

TEST_F(Windows, ANetworkFolderIsEnteredFirst) {
  // Made ahead of the tests under Wine.
  if (SetCurrentDirectoryW(L"\\\\zex\\share") == 0) GTEST_SKIP() << "there is no network folder of that name";
  EXPECT_EQ(run(u"tool --exit 0"), 0);
  EXPECT_THAT(scratch.read("log"), StartsWith("pushd \\\\zex\\share & ( tool --exit 0 ) > "));
}

TEST_F(Windows, FullPathsFoldByTextAloneAndKnowDrivesAndServers) {
  const ustring drive = scratch.path().substr(0, 2);
  const ustring longest = u"C:\\" + ustring(508, u'x');
  const std::pair<ustring, ustring> cases[] = {
      {u"", scratch.path()},
      {u"no/../such/./a.c", scratch.path("such/a.c")},
      {u"C:/a//b\\../c/", u"C:\\a\\c\\"},
      {u"\\a\\..\\..\\b", drive + u"\\b"},
      {drive + u"a.c", scratch.path("a.c")},
      {u"\\\\server\\share\\..\\..\\a/b", u"\\\\server\\share\\a\\b"},
      {u"$a%`b`", scratch.path("$a%`b`")},
      {longest, longest},
  };
  for (const auto& [path, expected] : cases) EXPECT_EQ(utf8(fullPath(path)), utf8(expected));
  for (const ustring& path : {longest + u"x", ustring(u"a;b"), ustring(u"%a%")})
    EXPECT_THAT(zex_test::failureOf([&] { fullPath(path); }), StartsWith("TESSEL:zex:Error(\"Invalid path "));
}

}  // namespace
}  // namespace zex_cmd
