#include <gtest/gtest.h>

#include <exception>
#include <functional>
#include <new>

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
  try {
    raiseTyped(msg::CircRef(u"config.vars.A", u"config.vars.B"));
    FAIL() << "returned";
  } catch (const except::Exception<TESSEL::zex::CircRef, std::exception, void>& failure) {
    EXPECT_EQ(failure.error_id(), "TESSEL:zex:CircRef");
    EXPECT_EQ(zex_test::renderedFailure(failure), "TESSEL:zex:CircRef(\"config.vars.A\", \"config.vars.B\")");
  }
  EXPECT_EQ(host.errors, std::vector<std::string>{"TESSEL:zex:CircRef"});
}

TEST(Raise, FailureIsCaughtByEachOfItsBases) {
  const RecordingServices host;
  EXPECT_THROW(raiseTyped(msg::minrhs()), except::IMsgIDException);
  EXPECT_THROW(raiseTyped(msg::minrhs()), except::IUserException);
  EXPECT_THROW(raiseTyped(msg::minrhs()), std::exception);
  EXPECT_THROW(raiseTyped(msg::minrhs()), boost::exception);
}

TEST(TranslateFilesystemError, GoesByTheExactKindOfFailure) {
  namespace fs = fl::filesystem;
  struct Case {
    std::function<void()> fail;
    const char* expected;
  };
  const Case cases[] = {
      {[] { throw fs::AccessDenied("x"); }, "TESSEL:zex:AccessDenied(\"p\")"},
      {[] { throw fs::PathNotFound("x"); }, "TESSEL:zex:SrcNotFound(\"p\", \"p\")"},
      {[] { throw fs::FileNameTooLarge("x"); }, "TESSEL:zex:FileNameTooLarge"},
      {[] { throw fs::NotDirectoryError("x"); }, "TESSEL:zex:NotADirectory(\"p\")"},
      {[] { throw fs::InvalidArgument("x"); }, "TESSEL:zex:SrcNotFound(\"p\", \"p\")"},
      {[] { throw fs::SystemError("x"); }, "TESSEL:zex:SrcNotFound(\"p\", \"p\")"},
      {[] { throw fs::FileNameConversionFailure("x"); }, "TESSEL:zex:FileNameConversionFailed"},
      {[] { throw std::bad_alloc(); }, "TESSEL:zex:OutOfMemory"},
      {[] { throw fs::FsysExceptionBase("other"); }, "other"},
  };
  const RecordingServices host;
  for (const Case& row : cases) {
    EXPECT_EQ(failureOf([&] {
                try {
                  row.fail();
                } catch (const std::exception&) {
                  translateFilesystemError(u"p");
                }
              }),
              row.expected);
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
}

TEST(PerMachineStore, BelongsToTheMachineInForce) {
  const RecordingServices first;
  ZexConfigPerTVM::current().reportText = u"first";
  {
    const RecordingServices second;
    EXPECT_EQ(ZexConfigPerTVM::current().reportText, u"");
  }
  EXPECT_EQ(ZexConfigPerTVM::current().reportText, u"first");
}

}  // namespace
}  // namespace zex_cmd
