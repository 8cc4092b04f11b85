#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

class Runner : public EndToEnd {
 protected:
  Runner() { build("-silent echo.c", {"echo.zexa64"}); }
};

TEST_F(Runner, PassesValuesOfEveryKind) {
  struct {
    const char *argument, *json;
  } const rows[] = {
      {"-2.5e-3", R"("kind":"real","rows":1,"columns":1,"values":[[-2.5E-3]])"},
      {"1e-400", R"("kind":"real","rows":1,"columns":1,"values":[[0]])"},
      {"[NaN,-Inf,-0]", R"("kind":"real","rows":1,"columns":3,"values":[["NaN","-Inf",-0E0]])"},
      {"[1 2;3,4 ; 5 6]", R"("kind":"real","rows":3,"columns":2,"values":[[1,2],[3,4],[5,6]])"},
      {"[]", R"("kind":"real","rows":0,"columns":0,"values":[])"},
      {"[1-2i 3 4i]", R"("kind":"complex","rows":1,"columns":3,"values":[[[1,-2],[3,0],[0,4]]])"},
      {"int8([-128; 127])", R"("kind":"int8","rows":2,"columns":1,"values":[[-128],[127]])"},
      {"uint8([0 7])", R"("kind":"uint8","rows":1,"columns":2,"values":[[0,7]])"},
      {"uint64(18446744073709551615)",
       R"("kind":"uint64","rows":1,"columns":1,"values":[[18446744073709551615]])"},
      {"'it''s é'", R"("kind":"text","rows":1,"columns":6,"value":"it's é")"},
  };
  for (const auto& row : rows) {
    const zex_test::ScopedVariable argument("ARGUMENT", row.argument);
    const Outcome outcome = zexrun("echo.zexa64 --json \"$ARGUMENT\"");
    EXPECT_EQ(outcome.out, "[{\"name\":\"ans1\"," + std::string(row.json) + "}]\n") << row.argument << outcome.err;
    EXPECT_EQ(outcome.err, "1 inputs (é)\n");
  }
}

TEST_F(Runner, PrintsForPeople) {
  EXPECT_EQ(zexrun("./echo.zexa64 '[1 -2.5; 1e5 4]' '[1+2i -1i]' -nlhs 4 \"'a b'\" true").out,
            "4 inputs (é)\n"
            "ans1: real, 2 by 2\n         1  -2.5\n    100000     4\n"
            "ans2: complex, 1 by 2\n    1+2i  0-1i\n"
            "ans3: text, 1 by 3\n    a b\n"
            "ans4: logical, 1 by 1\n    true\n");
  EXPECT_EQ(zexrun("echo.zexa64").out, "0 inputs (é)\n");
}

TEST_F(Runner, RefusesWithAReason) {
  write("none.c", "int other;\n");
  write("lost.c", "void lost(void); void zexFunction(void) { lost(); }\n");
  build("-silent none.c", {"none.zexa64"});
  build("-silent LINKFLAGS= lost.c", {"lost.zexa64"});

  struct {
    const char *arguments, *text;
  } const rows[] = {
      {"", "usage: "},
      {"missing.zexa64", "was not found, or it is not a file. [TESSEL:host:ProductNotFound]"},
      {"lost.zexa64", "undefined symbol: lost [TESSEL:host:ProductNotLoadable]"},
      {"none.zexa64", "has no entry point zexFunction"},
      {"echo.zexa64 -nlhs 2 1", "gave no output 2 of the 2 that were asked for. [TESSEL:zexrun:OutputMissing]"},
      {"echo.zexa64 abc", "'abc' cannot be read as real"},
      {"echo.zexa64 '[1 2; 3]'", "its rows are not equally long"},
      {"echo.zexa64 'int8(128)'", "'128' cannot be read as int8"},
  };
  for (const auto& row : rows) {
    const Outcome outcome = zexrun(row.arguments);
    EXPECT_EQ(outcome.status, 1) << row.arguments;
    EXPECT_THAT(outcome.out, testing::Not(testing::HasSubstr("ans"))) << row.arguments;
    EXPECT_THAT(outcome.err, testing::AllOf(testing::StartsWith("zexrun: error: "), testing::HasSubstr(row.text)));
  }
}

}  // namespace

}  // namespace end_to_end
