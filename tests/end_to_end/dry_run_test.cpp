#include <regex>

#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

class DryRun : public EndToEnd {};

class LongCommands : public EndToEnd {};

/// Names of temporary folders differ from run to run.
std::string withoutTemporaryNames(const std::string& text) {
  return std::regex_replace(text, std::regex("zex_[0-9]+_[0-9]+"), "zex_N");
}

/// Letters of the first line, not bytes: the limit counts them so. None of these texts goes beyond 16 bits.
std::size_t lettersIn(const std::string& text) {
  std::size_t count = 0;
  for (std::size_t at = 0; text[at] != '\n'; ++at)
    count += (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U;
  return count;
}

std::ptrdiff_t countOf(const std::string& part, const std::string& text) {
  const std::regex expression(part);
  return std::distance(std::sregex_iterator(text.begin(), text.end(), expression), {});
}

}  // namespace

TEST_F(DryRun, PrintsWhatARealRunExecutesAndTheShellMakesTheSameProductOfIt) {
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

TEST_F(DryRun, TakesTheTemporaryFolderOfTheAssignment) {
  EXPECT_THAT(build("-n 'TEMP=he re' value.c", {"he re"}).out, testing::HasSubstr("-o \"he re/zex_"));
}

TEST_F(DryRun, TwelveSourcesRunInTextualOrderOfTheirKeys) {
  std::string arguments, sum;
  for (int index = 0; index < 12; ++index) {
    const std::string name = "f" + std::to_string(index);
    write(name + ".c", "int " + name + "(void) { return 1; }\n");
    arguments += name + ".c ";
    sum += " + " + name + "()";
  }
  arguments += "value.c '-DVALUE=0" + sum + "' 'COMPFLAGS=-Wno-implicit-function-declaration'";

  const std::string commands = build("-n " + arguments).out;
  std::string order;
  const std::regex object("([a-z0-9_]+)\\.o\n");
  for (std::sregex_iterator match(commands.begin(), commands.end(), object), none; match != none; ++match) {
    order += (*match)[1].str() + " ";
  }
  EXPECT_EQ(order, "f0 f1 f10 f11 value c_zexapi_version f2 f3 f4 f5 f6 f7 f8 f9 ");

  build(arguments, {"f0.zexa64"});
  EXPECT_EQ(answer("f0.zexa64"), 12);
}

TEST_F(LongCommands, OneOf8000LettersGoesThroughAResponseFile) {
  const std::string switches = "-c 'COMPFLAGS=-I\"é é\"' value.c -DP";
  const std::string direct = switches + std::string(7999 - lettersIn(build("-n -silent " + switches).out), 'x');
  const std::string printed = build("-n -silent " + direct).out;
  EXPECT_EQ(lettersIn(printed), 7999U);
  EXPECT_EQ(countOf("\n", printed), 1);
  EXPECT_EQ(countOf("\n", build("-n -silent " + direct + "x").out), 2);  // and the rewritten command

  const auto usesResponseFile =
      testing::HasSubstr(R"(CreateRSPFile("\"/usr/bin/gcc\"", "zex_temp.rsp", "\"/usr/bin/gcc\"")");
  EXPECT_THAT(build("-v " + direct, {"value.o"}).out, testing::Not(usesResponseFile));
  EXPECT_THAT(build("-v " + direct + "x").out, usesResponseFile);
}

TEST_F(LongCommands, WorkWhereTheTemporaryFolderHoldsABlank) {
  const zex_test::ScopedVariable odd("TMPDIR", work.c_str());
  build("-D" + std::string(8000, 'P') + " value.c", {"value.zexa64"});
}

TEST_F(LongCommands, WorkWithEachCompiler) {
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
    EXPECT_GE(countOf("TESSEL:zex:CreateRSPFile", outcome.out), 3) << row.sources;  // compiles and link
    EXPECT_EQ(answer(row.product), row.answer);
  }
}

}  // namespace end_to_end
