#include <gmock/gmock.h>

#include "platform/ShellCommand.hpp"
#include "platform/full_disk_posix.hpp"
#include "platform/paths.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;
using zex_test::utf8;

/// What differs from system to system: how a command is run, and what a path is made to.
class Posix : public testing::Test {
 protected:
  zex_test::Scratch scratch;
  zex_test::ScopedVariable tmpdir{"TMPDIR", scratch.folder()};
  zex_test::RecordingServices host;
  ustring output = u"old", errors = u"old";
};

TEST_F(Posix, CommandsGiveBothStreamsLineByLineAndTheStatus) {
  EXPECT_EQ(runShellCommand(u"{ printf 'é\\n\\n b'; printf '\\nbad\\n\\n' >&2; exit 7; }", output, errors, true),
            7);
  EXPECT_EQ(output, u"é\n b\n");
  EXPECT_EQ(errors, u"bad\n");
  EXPECT_THAT(host.shellFlags, ElementsAre(true));
  EXPECT_THAT(scratch.names(), ElementsAre());
  // The shell's own words lose the script and its line.
  EXPECT_EQ(runShellCommand(u"no_such_tool_of_zex", output, errors, false), 127);
  EXPECT_THAT(utf8(errors), testing::MatchesRegex(" no_such_tool_of_zex: .*not found\n"));
}

TEST_F(Posix, HalfAScriptIsNotRun) {
  const ustring text = u"echo " + ustring(500, u'x');
  EXPECT_EQ(zex_test::onFullDisk([&] { return runShellCommand(text, output, errors, false); }), EFBIG);
  EXPECT_EQ(output + errors, u"");
  EXPECT_THAT(host.shellLines, ElementsAre());
  EXPECT_THAT(scratch.names(), ElementsAre());
}

TEST_F(Posix, FullPathsFoldByTextAloneAndRefuseWhatNoCommandCanCarry) {
  const ustring longest = u"/" + ustring(510, u'x');
  const std::pair<ustring, ustring> cases[] = {
      {u"", scratch.path()},        {u"no/../such/./a.c", scratch.path("such/a.c")},
      {u"//usr///lib/..", u"/usr"}, {u"/../..", u"/"},
      {u"/..a/b..", u"/..a/b.."},   {longest, longest},
  };
  for (const auto& [path, expected] : cases) EXPECT_EQ(utf8(fullPath(path)), utf8(expected));
  std::filesystem::create_directory("a$b");
  std::filesystem::current_path("a$b");
  for (const ustring& path : {longest + u"x", ustring(u"/$/../b.c"), ustring(u"/`b`.c"), ustring(u"/a;b.c"),
                              ustring(u"/\".c"), ustring(u"/\n"), ustring(u"x.c")})
    EXPECT_THAT(zex_test::failureOf([&] { fullPath(path); }), testing::StartsWith("TESSEL:zex:Error(\"Invalid "));
}

}  // namespace
}  // namespace zex_cmd
