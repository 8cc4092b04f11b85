#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

const std::string echo = R"(#include <zex.h>
void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
  int i;
  zexPrintf("%d inputs\n", nrhs);
  for (i = 0; i < nrhs && i < (nlhs > 1 ? nlhs : 1); ++i) plhs[i] = zxCopy(prhs[i]);
})";

std::string value(const std::string& kind, const std::string& rows, const std::string& columns,
                  const std::string& content) {
  return "[{\"name\":\"ans1\",\"kind\":\"" + kind + "\",\"rows\":" + rows + ",\"columns\":" + columns + "," +
         content + "}]\n";
}

class Runner : public EndToEnd {
 protected:
  Runner() {
    write("echo.c", echo);
    build("-silent echo.c", {"echo.zexa64"});
  }

  Outcome run(const std::string& arguments) const { return shell("\"$OPTS/../zexrun\" " + arguments); }
};

TEST_F(Runner, PassesValuesOfEveryKind) {
  struct Case {
    const char* argument;
    std::string json;
  };
  const Case cases[] = {
      {"3", value("real", "1", "1", "\"values\":[[3]]")},
      {"-2.5e-3", value("real", "1", "1", "\"values\":[[-2.5E-3]]")},
      {"+1", value("real", "1", "1", "\"values\":[[1]]")},
      {"[NaN,-Inf,-0]", value("real", "1", "3", "\"values\":[[\"NaN\",\"-Inf\",-0E0]]")},
      {"[1 2;3,4 ; 5 6]", value("real", "3", "2", "\"values\":[[1,2],[3,4],[5,6]]")},
      {"[]", value("real", "0", "0", "\"values\":[]")},
      {"[1-2i 3 4i]", value("complex", "1", "3", "\"values\":[[[1,-2],[3,0],[0,4]]]")},
      {"[true false]", value("logical", "1", "2", "\"values\":[[true,false]]")},
      {"int8([-128; 127])", value("int8", "2", "1", "\"values\":[[-128],[127]]")},
      {"uint64(18446744073709551615)", value("uint64", "1", "1", "\"values\":[[18446744073709551615]]")},
      {"int64(-9007199254740993)", value("int64", "1", "1", "\"values\":[[-9007199254740993]]")},
      {"'it''s é'", value("text", "1", "6", "\"value\":\"it's é\"")},
      {"\"\"", value("text", "1", "0", "\"value\":\"\"")},
  };
  for (const Case& row : cases) {
    const zex_test::ScopedVariable argument("ARGUMENT", row.argument);
    const Outcome outcome = run("echo.zexa64 --json \"$ARGUMENT\"");
    EXPECT_EQ(outcome.out, row.json) << row.argument << outcome.err;
    EXPECT_EQ(outcome.err, "1 inputs\n");
  }
}

TEST_F(Runner, PrintsForPeople) {
  EXPECT_EQ(run("./echo.zexa64 '[1 -2.5; 100 4]' '[1+2i -1i]' -nlhs 4 \"'a b'\" true").out,
            "4 inputs\n"
            "ans1: real, 2 by 2\n      1  -2.5\n    100     4\n"
            "ans2: complex, 1 by 2\n    1+2i  0-1i\n"
            "ans3: text, 1 by 3\n    a b\n"
            "ans4: logical, 1 by 1\n    true\n");
  EXPECT_EQ(run("echo.zexa64").out, "0 inputs\n");
}

TEST_F(Runner, RefusesWithAReason) {
  write("none.c", "int other;\n");
  write("lost.c", "void lost(void); void zexFunction(void) { lost(); }\n");
  write("odd.c", echo);
  build("-silent none.c", {"none.zexa64"});
  build("-silent LINKFLAGS= lost.c", {"lost.zexa64"});
  build("-silent -R00 odd.c", {"odd.zexa64"});

  struct Case {
    const char* arguments;
    const char* text;
  };
  const Case cases[] = {
      {"", "usage: "},
      {"missing.zexa64", "was not found, or it is not a file. [TESSEL:host:ProductNotFound]"},
      {".", "[TESSEL:host:ProductNotFound]"},
      {"echo.c", "invalid ELF header [TESSEL:host:ProductNotLoadable]"},
      {"lost.zexa64", "undefined symbol: lost [TESSEL:host:ProductNotLoadable]"},
      {"none.zexa64", "has no entry point zexFunction"},
      {"odd.zexa64", "was built for release R00 with 64-bit sizes"},
      {"echo.zexa64 -nlhs 2 1", "gave no output 2 of the 2 that were asked for. [TESSEL:zexrun:OutputMissing]"},
      {"echo.zexa64 -nlhs x", "'x' is no number of outputs"},
      {"echo.zexa64 1 -nlhs", "-nlhs needs a number behind it"},
      {"echo.zexa64 abc", "'abc' cannot be read as real"},
      {"echo.zexa64 \"'a\"", "its quotes do not match"},
      {"echo.zexa64 '[1 2; 3]'", "its rows are not equally long"},
      {"echo.zexa64 '[1,,2]'", "an element is missing at a comma"},
      {"echo.zexa64 'int8(128)'", "'128' cannot be read as int8"},
      {"echo.zexa64 '[true 2]'", "'true' cannot be read as real"},
      {"echo.zexa64 '1+i'", "'1+i' cannot be read as complex"},
  };
  for (const Case& row : cases) {
    const Outcome outcome = run(row.arguments);
    EXPECT_EQ(outcome.status, 1) << row.arguments;
    EXPECT_THAT(outcome.out, testing::Not(testing::HasSubstr("ans"))) << row.arguments;
    EXPECT_THAT(outcome.err, testing::AllOf(testing::StartsWith("zexrun: error: "), testing::HasSubstr(row.text)));
  }
}

}  // namespace

}  // namespace end_to_end
