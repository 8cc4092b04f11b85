#include <filesystem>

#include "options/DocumentTest.hpp"

namespace zex_cmd {
namespace {

using LinkedTools = DocumentTest;

TEST_F(LinkedTools, TheFolderFoundSoFarIsThatBehindALink) {
  for (const char* file : {"real/cc", "real/ld"}) scratch.write(file, "");
  std::filesystem::create_symlink("real/cc", "link");
  const ZexOpt opt = load(
      "<config><locationFinder><V><fileExists name='link'/><fileExists "
      "name='$$/ld'/></V></locationFinder></config>");
  EXPECT_EQ(opt.variable(u"V"), scratch.path("real/ld"));
}

}  // namespace
}  // namespace zex_cmd
