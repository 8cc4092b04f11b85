#include <gmock/gmock.h>
#include <windows.h>

#include <regex>

#include "platform/ShellCommand.hpp"
#include "platform/tokens.hpp"
#include "support/FakeTool.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;
using zex_test::ScopedVariable;

/// The shell that stands in for Wine's keeps the lines that it is given.
class ShellCommand : public testing::Test {
 protected:
  std::int32_t run(const ustring& text) { return runShellCommand(text, output, errors, false); }

  /// The kept lines; "~" stands for the scratch folder and "#" for the name of a capture file.
  std::string lines() const {
    const std::string kept = zex_test::told(scratch.read("log"));
    const ustring shown = replacedAll(zex_test::utf16(kept), zex_test::utf16(scratch.told()), u"~");
    return std::regex_replace(zex_test::utf8(shown), std::regex("zex_[0-9]+_[0-9]+"), "#");
  }

  zex_test::Scratch scratch;
  zex_test::FakeTool tool;
  ScopedVariable tmpdir{"TMPDIR", scratch.folder()};
  ScopedVariable log{"ZEX_TEST_SHELL_LOG", scratch.folder() / "log"};
  zex_test::RecordingServices host;
  ustring output = u"old", errors = u"old";
};

TEST_F(ShellCommand, TakesBothStreamsLineByLineAndTheStatus) {
  scratch.write("out", "one\r\n\r\n two\n\n\xE9 last");
  scratch.write("err", "\r\nbad");
  EXPECT_EQ(run(u"type out& type err 1>&2& exit 7"), 7);
  EXPECT_EQ(output, u"one\n two\né last\n");
  EXPECT_EQ(errors, u"bad\n");
  EXPECT_THAT(scratch.names(), ElementsAre("err", "log", "out")) << "a capture file stays";
  EXPECT_EQ(run(u"tool --exit -1073741510"), -1073741510);
  EXPECT_EQ(output + errors, u"");
  const ScopedVariable missing("COMSPEC", "C:\\missing.exe");
  EXPECT_EQ(run(u"tool --say x"), ERROR_FILE_NOT_FOUND) << "the shell itself does not start";
  EXPECT_EQ(output + errors, u"");
}

TEST_F(ShellCommand, TheLineIsAGroupWithBothStreamsInFiles) {
  EXPECT_EQ(run(u"tool --say \"a  b\" é%x"), 0);
  EXPECT_EQ(output, u"a  b\né%x\n");
  EXPECT_EQ(lines(), "( tool --say \"a  b\" é%x ) > \"~/#\" 2> \"~/#\"\n");
  const ScopedVariable plain("TMPDIR", "tmp");
  EXPECT_EQ(run(u"tool --say"), 0);
  EXPECT_THAT(lines(), testing::EndsWith("\n( tool --say ) > tmp/# 2> tmp/#\n"));
}

TEST_F(ShellCommand, ANetworkFolderIsEnteredFirst) {
  // Made ahead of the tests under Wine.
  if (SetCurrentDirectoryW(L"\\\\zex\\share") == 0) GTEST_SKIP() << "there is no network folder of that name";
  EXPECT_EQ(run(u"tool --exit 0"), 0);
  EXPECT_THAT(scratch.read("log"), testing::StartsWith("pushd \\\\zex\\share & ( tool --exit 0 ) > "));
}

TEST_F(ShellCommand, WithoutANameTheShellIsCmd) {
  const std::filesystem::path shell = zex_test::utf16(zex_test::variable("COMSPEC").value());
  const ScopedVariable unset("COMSPEC", nullptr);
  std::filesystem::copy_file(shell, "CMD.EXE");  // found ahead of the system's
  EXPECT_EQ(run(u"tool --exit 5"), 5);
  EXPECT_THAT(lines(), testing::StartsWith("( tool --exit 5 ) > "));
}

}  // namespace
}  // namespace zex_cmd
