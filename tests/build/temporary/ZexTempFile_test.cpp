#include "build/temporary/ZexTempFile.hpp"

#include <gmock/gmock.h>

#include <regex>

#include "build/temporary/unique_numbers.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;

std::string name(const ZexTempFile& file) {
  return std::filesystem::path(file.path()).filename().string();
}

TEST(SystemTempDirectory, IsTheFirstVariableThatSaysSomething) {
  const struct {
    const char *tmpdir, *tmp, *temp, *expected;
  } cases[] = {
      {"one", "two", "three", "one"},
      {"", "two", "three", "two"},
      {nullptr, "", "three", "three"},
      {nullptr, nullptr, nullptr, "C:\\Temp"},
  };
  for (const auto& row : cases) {
    const zex_test::Scratch scratch;
    const zex_test::ScopedVariable tmpdir("TMPDIR", row.tmpdir), tmp("TMP", row.tmp), temp("TEMP", row.temp);
    EXPECT_EQ(zex_test::utf8(systemTempDirectory()), row.expected);
    EXPECT_TRUE(scratch.has(row.expected));
    EXPECT_THAT(scratch.names(), testing::Each(row.expected));
    std::filesystem::remove(row.expected);
    scratch.write(row.expected, "a file in its place");
    EXPECT_THROW(systemTempDirectory(), fl::filesystem::FsysExceptionBase);
    std::filesystem::remove(row.expected);  // one of them may lie elsewhere
  }
}

TEST(ZexTempFile, GoesWithWhatIsInIt) {
  const zex_test::Scratch scratch;
  {
    const ZexTempFile folder(false, scratch.path("a/b")), file(true, scratch.path("a/b"));
    EXPECT_TRUE(std::regex_match(name(folder), std::regex("zex_[0-9]+_" + std::to_string(processNumber()))));
    EXPECT_THAT(scratch.names("a/b"), ElementsAre(name(folder)));
    scratch.write("a/b/" + name(folder) + "/below/object.o", "x");
    scratch.write("a/b/" + name(file), "x");
    EXPECT_EQ(scratch.names("a/b").size(), 2U);
  }
  EXPECT_THAT(scratch.names("a/b"), ElementsAre());
}

TEST(ZexTempFile, FailedRemovalIsToldOnlyToWhoAsksForDetails) {
  for (const bool verbose : {false, true}) {
    const zex_test::RecordingServices host;
    ZexConfigPerTVM::current().verboseEnabled = ZexConfigPerTVM::current().verboseEcho = verbose;
    const zex_test::Scratch scratch;
    {
      const ZexTempFile file(true, scratch.path());
      // A folder that is not empty cannot be removed as a file, not even by root.
      scratch.write(name(file) + "/inner", "x");
    }
    EXPECT_EQ(host.output.starts_with("TESSEL:zex:DeleteTmpFile(\"" + scratch.told("zex_")), verbose)
        << host.output;
  }
}

}  // namespace
}  // namespace zex_cmd
