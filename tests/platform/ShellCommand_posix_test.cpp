#include <gmock/gmock.h>

#include "platform/ShellCommand.hpp"
#include "platform/full_disk_posix.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;

class ShellCommand : public testing::Test {
 protected:
  zex_test::Scratch scratch;
  zex_test::ScopedVariable tmpdir{"TMPDIR", scratch.folder()};
  zex_test::RecordingServices host;
  ustring output = u"old", errors = u"old";
};

TEST_F(ShellCommand, TakesBothStreamsLineByLineAndTheStatus) {
  EXPECT_EQ(runShellCommand(u"{ printf 'é\\n\\n b'; printf '\\nbad\\n\\n' >&2; exit 7; }", output, errors, true),
            7);
  EXPECT_EQ(output, u"é\n b\n");
  EXPECT_EQ(errors, u"bad\n");
  EXPECT_THAT(host.shellFlags, ElementsAre(true));
  EXPECT_THAT(scratch.names(), ElementsAre());
  // The shell's own words lose the script and its line.
  EXPECT_EQ(runShellCommand(u"no_such_tool_of_zex", output, errors, false), 127);
  EXPECT_THAT(zex_test::utf8(errors), testing::MatchesRegex(" no_such_tool_of_zex: .*not found\n"));
}

TEST_F(ShellCommand, HalfAScriptIsNotRun) {
  const ustring text = u"echo " + ustring(500, u'x');
  EXPECT_EQ(zex_test::onFullDisk([&] { return runShellCommand(text, output, errors, false); }), EFBIG);
  EXPECT_EQ(output + errors, u"");
  EXPECT_THAT(host.shellLines, ElementsAre());
  EXPECT_THAT(scratch.names(), ElementsAre());
}

}  // namespace
}  // namespace zex_cmd
