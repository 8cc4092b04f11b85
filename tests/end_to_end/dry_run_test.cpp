#include <regex>

#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

/// Names of temporary folders differ from run to run.
std::string withoutTemporaryNames(const std::string& text) {
  return std::regex_replace(text, std::regex("zex_[0-9]+_[0-9]+"), "zex_N");
}

}  // namespace

TEST_F(EndToEnd, ADryRunPrintsWhatARealRunExecutesAndTheShellMakesTheSameProductOfIt) {
  ASSERT_EQ(shell("cp caller.c 'a (1).c'").status, 0);
  struct {
    std::string arguments, product;
    Names folders = {};  // a dry run makes those too
  } const rows[] = {
      {"'a (1).c' helper.c -g", "a (1).zexa64"},
      {"helper.cpp 'a (1).c' -outdir 'o (u)&t'", "o (u)&t/helper.zexa64", {"o (u)&t"}},
      {"-largeArrayDims base.f90 raised.f90 modules.f90", "base.zexa64"},
      {"-c helper.c", "helper.o"},
  };
  for (const auto& row : rows) {
    const std::string product = "'" + row.product + "'";
    const std::string printed = build("-n -silent " + row.arguments, row.folders).out;
    const std::string verbose = shell("\"$ZEX\" -v -silent " + row.arguments).out;
    EXPECT_THAT(withoutTemporaryNames(verbose), testing::EndsWith("\n" + withoutTemporaryNames(printed)));
    ASSERT_EQ(shell("mv " + product + " ../built").status, 0);

    write("../printed.sh", printed);
    EXPECT_EQ(shell("sh ../printed.sh && cmp ../built " + product).err, "");
    shell("rm -rf \"$TMPDIR\"/*");  // the text makes the folder of its objects and leaves it
  }
}

}  // namespace end_to_end
