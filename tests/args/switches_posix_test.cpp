#include "args/CommandLine.hpp"

namespace zex_test {
namespace {

using FolderThatIsGone = CommandLine;

TEST_F(FolderThatIsGone, FailsLikeAMissingFile) {
  std::filesystem::create_directory("gone");
  std::filesystem::current_path("gone");
  std::filesystem::remove("../gone");
  EXPECT_EQ(walked({u"-outdir", u"new"}), "TESSEL:zex:SrcNotFound(\"new\", \"new\")");
}

}  // namespace
}  // namespace zex_test
