#include "platform/ShellCommand.hpp"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>

#include "fl/i18n/strings.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace zex_cmd {
namespace {

using fl::i18n::to_string;
using testing::ElementsAre;
using testing::MatchesRegex;

/// Looks at the folder of temporary files while the script stands in it.
class WatchingHost : public zex_test::RecordingServices {
 public:
  explicit WatchingHost(const zex_test::Scratch& scratch) : scratch_(scratch) {}

  std::string script;
  bool wasCalledFromHost = false;

  host::ShellResult runShellLine(const fl::ustring& line, bool calledFromHost) override {
    script = scratch_.read(scratch_.names().front());
    wasCalledFromHost = calledFromHost;
    host::ShellResult result = RecordingServices::runShellLine(line, calledFromHost);
    result.text += u"from the host\n";
    return result;
  }

 private:
  const zex_test::Scratch& scratch_;
};

class ShellCommand : public testing::Test {
 protected:
  zex_test::Scratch scratch;
  zex_test::ScopedVariable tmpdir{"TMPDIR", scratch.folder().c_str()};
  WatchingHost host{scratch};
  ustring output = u"old", errors = u"old";
};

TEST_F(ShellCommand, ScriptHasItsLayout) {
  runShellCommand(u"echo é", output, errors, true);
  const std::string file = "\"" + scratch.folder().string() + "/zex_[0-9]+_[0-9]+\"";
  EXPECT_THAT(host.script, MatchesRegex("#!/bin/sh\necho é > " + file + " 2> " + file + "\n"));
  EXPECT_THAT(host.shellLines, ElementsAre(MatchesRegex("sh " + file)));
  EXPECT_TRUE(host.wasCalledFromHost);
  EXPECT_EQ(to_string(output), "from the host\né\n");
}

TEST_F(ShellCommand, TakesBothStreamsLineByLineAndTheStatus) {
  EXPECT_EQ(runShellCommand(u"{ printf 'a\\n\\n b'; printf '\\nbad\\n\\n' >&2; exit 7; }", output, errors, false),
            7);
  EXPECT_EQ(output, u"from the host\na\n b\n");
  EXPECT_EQ(errors, u"bad\n");
  EXPECT_THAT(scratch.names(), ElementsAre());
}

TEST_F(ShellCommand, ShellsOwnWordsLoseScriptAndLine) {
  EXPECT_EQ(runShellCommand(u"no_such_tool_of_zex", output, errors, false), 127);
  EXPECT_THAT(to_string(errors), MatchesRegex(" no_such_tool_of_zex: .*not found\n"));
}

TEST_F(ShellCommand, HalfAScriptIsNotRun) {
  rlimit former{};
  getrlimit(RLIMIT_FSIZE, &former);
  const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit tight{100, former.rlim_max};
  setrlimit(RLIMIT_FSIZE, &tight);
  const auto status = runShellCommand(u"echo " + ustring(500, u'x'), output, errors, false);
  setrlimit(RLIMIT_FSIZE, &former);
  std::signal(SIGXFSZ, formerHandler);

  EXPECT_EQ(status, EFBIG);
  EXPECT_EQ(output + errors, u"");
  EXPECT_THAT(host.shellLines, ElementsAre());
  EXPECT_THAT(scratch.names(), ElementsAre());
}

}  // namespace
}  // namespace zex_cmd
