#include "cmd/ada.hpp"

#include <gtest/gtest.h>

#include "cmd/Zex.hpp"
#include "korvane/TException.hpp"
#include "support/RecordingServices.hpp"

namespace zex_cmd {
namespace {

using fl::ustring;
using host::standalone::HostValue;

std::shared_ptr<const HostValue> characters(ustring text) {
  return std::make_shared<const HostValue>(HostValue{HostValue::CharacterVector{std::move(text)}});
}

std::shared_ptr<const HostValue> scalar(std::optional<ustring> text) {
  return std::make_shared<const HostValue>(HostValue{HostValue::StringScalar{std::move(text)}});
}

std::shared_ptr<const HostValue> noText() {
  return std::make_shared<const HostValue>(HostValue{HostValue::ExceptionObject{}});
}

class AdaRoute : public testing::Test {
 protected:
  std::string run() {
    return zex_test::failureOf([] { runAdaRoute({u"-ada"}); });
  }

  zex_test::RecordingServices host;
};

TEST_F(AdaRoute, PassesTheWholeCommandUnparsed) {
  Zex().run({u"a b.adb", u"-ada", u"@rsp", u"", u"\"x", u"-bad", u"né=ü"});
  const std::vector<std::vector<std::string>> expected = {
      {"zl", "build_ada_sfcn_using_gnat", "", "a b.adb", "-ada", "@rsp", "", "\"x", "-bad", "né=ü"}};
  EXPECT_EQ(host.calls, expected);
  EXPECT_EQ(host.output, "");
}

TEST_F(AdaRoute, RethrowsTheHostsErrorUnchanged) {
  host.failure = {{"message", scalar(u"Zeile 1:\n\"ü\" {0} %s")}, {"identifier", characters(u"TESSEL:ada:x:Tag")}};
  try {
    runAdaRoute({u"-ada"});
    FAIL() << "the failure was swallowed";
  } catch (const Korvane::TException::HostError& error) {
    EXPECT_EQ(error.text(), u"Zeile 1:\n\"ü\" {0} %s");
    EXPECT_EQ(error.error_id(), "TESSEL:ada:x:Tag");
  }
  const std::vector<std::vector<std::string>> expected = {{"zl", "build_ada_sfcn_using_gnat", "", "-ada"},
                                                          {"getfield", "?", "message"},
                                                          {"getfield", "?", "identifier"}};
  EXPECT_EQ(host.calls, expected);
}

TEST_F(AdaRoute, AFailureThatLacksATextIsDropped) {
  const HostValue::Fields cases[] = {{},
                                     {{"identifier", characters(u"a:b")}},
                                     {{"message", characters(u"")}, {"identifier", characters(u"a:b")}},
                                     {{"message", characters(u"m")}, {"identifier", scalar(u"")}}};
  for (const HostValue::Fields& fields : cases) {
    host.failure = fields;
    EXPECT_EQ(run(), "no error");
  }
}

TEST_F(AdaRoute, FieldsThatAreNoTextFailWithoutTellingTheHost) {
  const std::string notText = "TESSEL:string:MustBeStringScalarOrCharacterVector";
  const std::string missing = "TESSEL:string:MissingNotSupported";
  host.failure = {{"message", noText()}, {"identifier", characters(u"a:b")}};
  EXPECT_EQ(run(), notText);
  host.failure = {{"message", scalar(std::nullopt)}};
  EXPECT_EQ(run(), missing);
  host.failure = {{"message", characters(u"")}, {"identifier", noText()}};
  EXPECT_EQ(run(), notText) << "an empty message does not spare the identifier";
  EXPECT_TRUE(host.errors.empty());
}

}  // namespace
}  // namespace zex_cmd
