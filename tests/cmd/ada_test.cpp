#include <gtest/gtest.h>

#include "cmd/Zex.hpp"
#include "korvane/TException.hpp"
#include "support/RecordingServices.hpp"

namespace zex_cmd {
namespace {

using host::standalone::HostValue;

std::shared_ptr<const HostValue> characters(fl::ustring text) {
  return std::make_shared<const HostValue>(HostValue{HostValue::CharacterVector{std::move(text)}});
}

TEST(AdaRoute, PassesTheWholeCommandUnparsedAndRethrowsTheHostsError) {
  zex_test::RecordingServices host;
  host.failure = {{"message", characters(u"1:\n\"ü\" {0} %s")}, {"identifier", characters(u"TESSEL:ada:x:Tag")}};
  try {
    Zex().run({u"a b.adb", u"-ada", u"@rsp", u"", u"\"x", u"-bad", u"né=ü"});
    FAIL() << "the failure was swallowed";
  } catch (const Korvane::TException::HostError& error) {
    EXPECT_EQ(error.text(), u"1:\n\"ü\" {0} %s");
    EXPECT_EQ(error.error_id(), "TESSEL:ada:x:Tag");
  }
  const std::vector<std::string> expected = {
      "zl", "build_ada_sfcn_using_gnat", "", "a b.adb", "-ada", "@rsp", "", "\"x", "-bad", "né=ü"};
  EXPECT_EQ(host.calls.front(), expected);
}

}  // namespace
}  // namespace zex_cmd
