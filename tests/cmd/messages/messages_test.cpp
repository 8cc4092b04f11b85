#include <gtest/gtest.h>

#include <functional>

#include "cmd/messages/raise.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "support/RecordingServices.hpp"

namespace zex_cmd {
namespace {

namespace fs = fl::filesystem;

TEST(Raise, ThrowsItsOwnTypeThatIsOfferedToTheHostOnce) {
  const zex_test::RecordingServices host;
  using CircRef = foundation::core::except::Exception<TESSEL::zex::CircRef, std::exception, void>;
  EXPECT_THROW(raiseTyped(msg::CircRef(u"A", u"B")), CircRef);
  EXPECT_EQ(host.errors, std::vector<std::string>{"TESSEL:zex:CircRef"});
}

TEST(TranslateFilesystemError, GoesByTheExactKindOfFailure) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { throw fs::PathNotFound("x"); }, "TESSEL:zex:SrcNotFound(\"p\", \"p\")"},
      {[] { throw fs::FileNameTooLarge("x"); }, "TESSEL:zex:FileNameTooLarge"},
      {[] { throw fs::SystemError("x"); }, "TESSEL:zex:SrcNotFound(\"p\", \"p\")"},
      {[] { throw fs::FileNameConversionFailure("x"); }, "TESSEL:zex:FileNameConversionFailed"},
      {[] { throw fs::FsysExceptionBase("other"); }, "other"},
  };
  const zex_test::RecordingServices host;
  for (const auto& [fail, expected] : cases) {
    const auto translated = [&fail = fail] {
      try {
        fail();
      } catch (const std::exception&) {
        translateFilesystemError(u"p");
      }
    };
    EXPECT_EQ(zex_test::failureOf(translated), expected);
  }
}

}  // namespace
}  // namespace zex_cmd
