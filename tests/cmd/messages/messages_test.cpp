#include <gtest/gtest.h>

#include <exception>
#include <functional>

#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "cmd/messages/show.hpp"
#include "cmd/messages/verbose_lines.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "support/RecordingServices.hpp"

namespace zex_cmd {
namespace {

namespace except = foundation::core::except;
using zex_test::failureOf;
using zex_test::RecordingServices;

TEST(Raise, OffersTheFailureToTheHostOnceAndThrowsItsOwnType) {
  RecordingServices host;
  using CircRef = except::Exception<TESSEL::zex::CircRef, std::exception, void>;
  EXPECT_THROW(raiseTyped(msg::CircRef(u"A", u"B")), CircRef);
  EXPECT_EQ(host.errors, std::vector<std::string>{"TESSEL:zex:CircRef"});
  EXPECT_EQ(failureOf([] { raiseTyped(msg::CircRef(u"A", u"B")); }), "TESSEL:zex:CircRef(\"A\", \"B\")");
  EXPECT_THROW(raiseTyped(msg::minrhs()), except::IUserException);
  EXPECT_THROW(raiseTyped(msg::minrhs()), boost::exception);
}

TEST(TranslateFilesystemError, GoesByTheExactKindOfFailure) {
  namespace fs = fl::filesystem;
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { throw fs::PathNotFound("x"); }, "TESSEL:zex:SrcNotFound(\"p\", \"p\")"},
      {[] { throw fs::FileNameTooLarge("x"); }, "TESSEL:zex:FileNameTooLarge"},
      {[] { throw fs::SystemError("x"); }, "TESSEL:zex:SrcNotFound(\"p\", \"p\")"},
      {[] { throw fs::FileNameConversionFailure("x"); }, "TESSEL:zex:FileNameConversionFailed"},
      {[] { throw fs::FsysExceptionBase("other"); }, "other"},
  };
  const RecordingServices host;
  for (const auto& [fail, expected] : cases) {
    const auto translated = [&fail = fail] {
      try {
        fail();
      } catch (const std::exception&) {
        translateFilesystemError(u"p");
      }
    };
    EXPECT_EQ(failureOf(translated), expected);
  }
}

TEST(VerboseText, IsDroppedBufferedOrPrintedAsTheFlagsSay) {
  const RecordingServices host;
  ZexConfigPerTVM& config = ZexConfigPerTVM::current();
  logVerbose(u"off", true);
  config.verboseEnabled = true;
  logVerbose(u"a", false);
  logMessage(msg::LookingEnv(u"NAME"), true);
  EXPECT_EQ(config.verboseText, u"aTESSEL:zex:LookingEnv(\"NAME\")\n");
  config.verboseEcho = true;
  logVerbose(u"now", true);
  logVerbose(u"", true);
  EXPECT_EQ(host.output, "now\n");

  config.locationTrace = "trace";
  resetReportBuffers();
  EXPECT_EQ(config.verboseText, u"");
  EXPECT_EQ(config.locationTrace, "");
  EXPECT_TRUE(config.verboseEnabled);
  const RecordingServices other;
  EXPECT_FALSE(ZexConfigPerTVM::current().verboseEnabled) << "what is kept belongs to the machine in force";
}

}  // namespace
}  // namespace zex_cmd
