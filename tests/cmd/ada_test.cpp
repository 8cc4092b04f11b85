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

TEST_F(AdaRoute, AFailureNeedsTwoTextsAndWhatIsNoneFailsWithoutTellingTheHost) {
  const std::string notText = "TESSEL:string:MustBeStringScalarOrCharacterVector";
  const std::pair<HostValue::Fields, std::string> cases[] = {
      {{}, "no error"},
      {{{"identifier", characters(u"a:b")}}, "no error"},
      {{{"message", characters(u"m")}, {"identifier", scalar(u"")}}, "no error"},
      {{{"message", noText()}, {"identifier", characters(u"a:b")}}, notText},
      {{{"message", scalar(std::nullopt)}}, "TESSEL:string:MissingNotSupported"},
      // An empty message does not spare the identifier.
      {{{"message", characters(u"")}, {"identifier", noText()}}, notText},
  };
  for (const auto& [fields, expected] : cases) {
    host.failure = fields;
    EXPECT_EQ(zex_test::failureOf([] { runAdaRoute({u"-ada"}); }), expected);
  }
  EXPECT_TRUE(host.errors.empty());
}

}  // namespace
}  // namespace zex_cmd
