#include <regex>

#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

TEST_F(EndToEnd, FailuresAreToldOnStandardErrorAndLeaveNothingBehind) {
  struct {
    std::string arguments, message;  ///< "@" is the working folder
    std::string document = {};       ///< content of the file my.xml
  } const rows[] = {
      // The command line.
      {"-g", "TESSEL:legacy_two_part:minrhs"},
      {"a.c", "TESSEL:zex:SrcNotFound(\"@/a.c\", \"@/a.c\")"},
      {"'no*.c'", "TESSEL:legacy_two_part:minrhs"},
      {"'two*.c'", "TESSEL:zex:Error(\"Invalid path @/two;names.c\")"},
      {"-x value.c", "TESSEL:zex:UnknownSwitch(\"-x\")"},
      {"value.c bits.f90", "TESSEL:zex:MixLang(\"C\", \"FORTRAN\")"},
      {"value.c -compatibleArrayDims -R2018a",
       "TESSEL:zex:IncompatibleSwitches(\"R2018a\", \"compatibleArrayDims\")"},
      {"-R2018a bits.f90", "TESSEL:zex:ErrorFortranR2018a"},

      // The output folder. Not even the superuser writes to /proc.
      {"-outdir /proc value.c", "TESSEL:zex:AccessDenied(\"/proc\")"},
      {"-outdir value.c value.c", "TESSEL:zex:NotADirectory(\"@/value.c\")"},

      // Option documents.
      {"-f my.xml value.c", "TESSEL:zex:InvalidXML(\"@/my.xml\")", "CC=gcc\n"},
      {"-f my.xml value.c", "TESSEL:zex:NoCompilerFound_Win64", gccDocument("gcc\" />", "gcc-that-is-gone\" />")},
  };
  write("two;names.c", "");
  for (const auto& row : rows) {
    SCOPED_TRACE("zex " + row.arguments);
    if (!row.document.empty()) write("my.xml", row.document);

    const Outcome outcome = zex(row.arguments);

    EXPECT_EQ(outcome.status, 1);
    const std::string shown = std::regex_replace(row.message, std::regex("@"), work.string());
    const std::string identifier = row.message.substr(0, row.message.find('('));
    EXPECT_THAT(outcome.err, testing::EndsWith("zex: error: " + shown + " [" + identifier + "]\n"));
    EXPECT_THAT(outcome.out, testing::Not(testing::HasSubstr("Complete")));
  }
}

TEST_F(EndToEnd, WordsTakeThePlaceOfIdentifiersInEnglish) {
  set("TESSEL_LOCALE", "en");
  EXPECT_THAT(build("value.c", {"value.zexa64"}).out, testing::StartsWith("Building with 'gcc'.\n"));
  EXPECT_EQ(zex("broken.c").err, "zex: error: " + work.string() +
                                     "/broken.c:1:9: error: expected expression before ';' token\n"
                                     "    1 | int x = ;\n      |         ^ [TESSEL:zex:Error]\n");
}

TEST_F(EndToEnd, EachProgramTellsByItsStatusHowItEnded) {
  write("throws.cpp",
        "#include <stdexcept>\nextern \"C\" void zexFunction() { throw std::logic_error(\"odd\"); }\n");
  build("-silent throws.cpp", {"throws.zexa64"});
  struct {
    std::string program, arguments;
    int status;
    std::string error, output = "";  ///< beginnings
  } const rows[] = {
      {"zex", "--version", 0, "", "zex "},
      {"zex", "--help", 0, ""},
      {"zex", "-help > /dev/full", 1, "zex: error: cannot write to standard output\n"},
      {"zex", "-silent -n bits.f90", 0, "zex: warning: "},
      {"zexcompilers", "c", 0, "", "NAME "},
      {"zexcompilers", "c supported glnxa64 --json", 0, "", "[{"},
      {"zexcompilers", "klingon", 1, "zexcompilers: error: TESSEL:"},
      {"zexcompilers", "c installed glnxa64 more", 1, "zexcompilers: error: usage: "},
      {"zexrun", "--version", 0, "", "zexrun "},
      {"zexrun", "throws.zexa64", 1, "zexrun: error: The extension let an exception out: odd [TESSEL:zx:"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.program + " " + row.arguments);
    const Outcome outcome = run(row.program, row.arguments);
    EXPECT_EQ(outcome.status, row.status);
    EXPECT_THAT(outcome.out, testing::StartsWith(row.output));
    EXPECT_EQ(outcome.err.empty(), row.error.empty()) << outcome.err;
    EXPECT_THAT(outcome.err, testing::StartsWith(row.error));
  }
}

}  // namespace end_to_end
