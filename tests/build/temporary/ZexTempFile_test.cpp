#include "build/temporary/ZexTempFile.hpp"

#include <gmock/gmock.h>

#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;
using zex_test::ScopedVariable;

std::string name(const ZexTempFile& file) {
  return std::filesystem::path(file.path()).filename().string();
}

TEST(SystemTempDirectory, IsTheFirstVariableThatSaysSomethingAndIsMade) {
  const zex_test::Scratch scratch;
  const ScopedVariable none("TMPDIR", ""), tmp("TMP", "two"), temp("TEMP", "three");
  EXPECT_EQ(systemTempDirectory(), u"two");
  EXPECT_THAT(scratch.names(), ElementsAre("two"));
}

TEST(ZexTempFile, GoesWithWhatIsInItOrTellsWhoAsksForDetails) {
  const zex_test::RecordingServices host;
  const zex_test::Scratch scratch;
  ZexConfigPerTVM::current().verboseEnabled = ZexConfigPerTVM::current().verboseEcho = true;
  {
    const ZexTempFile folder(false, scratch.path("a/b")), file(true, scratch.path());
    scratch.write("a/b/" + name(folder) + "/below/object.o", "x");
    // A folder that is not empty cannot be removed as a file, not even by root.
    scratch.write(name(file) + "/inner", "x");
  }
  EXPECT_THAT(scratch.names("a/b"), ElementsAre());
  EXPECT_THAT(host.output, testing::StartsWith("TESSEL:zex:DeleteTmpFile(\"" + scratch.told("zex_")));
}

}  // namespace
}  // namespace zex_cmd
