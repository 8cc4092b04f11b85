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

TEST_F(EndToEnd, LongCommandsGoThroughResponseFilesWithEachCompiler) {
  const zex_test::ScopedVariable odd("TMPDIR", work.c_str());  // its name holds a blank
  std::string folders;
  for (int index = 0; index < 400; ++index) folders += " -L\"/usr/no folder (1)&é\"";
  ASSERT_EQ(shell("mkdir 'i (é)' && echo '#define VALUE 64' > 'i (é)/value.h'").status, 0);
  struct {
    std::string sources, product;
    long long answer;
  } const rows[] = {
      {"value.c", "value.zexa64", 64},   {"-f \"$OPTS/clang.xml\" value.c", "value.zexa64", 64},
      {"value.cpp", "value.zexa64", 43}, {"-f \"$OPTS/clang++.xml\" value.cpp", "value.zexa64", 43},
      {"bits.f90", "bits.zexa64", 64},   {"kernel.cu caller.c", "kernel.zexa64", 8},
  };
  for (const auto& row : rows) {
    if (needsMissingTool(row.sources)) continue;
    std::filesystem::remove(row.product);
    const Outcome outcome = build(
        "-v '-Ii (é)' -D" + std::string(8000, 'P') + " 'LINKLIBS=" + folders + "' " + row.sources, {row.product});
    EXPECT_GE(timesIn(outcome.out, "TESSEL:zex:CreateRSPFile"), 3U) << row.sources;  // compiles and link
    EXPECT_EQ(answer(row.product), row.answer);
  }
}

}  // namespace end_to_end
