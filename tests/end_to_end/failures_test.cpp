#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

/// A command that fails.
struct Failure {
  std::string arguments;
  std::string message;  ///< the error as shown, or its beginning where `words` follow; "@" is the working folder
  std::string words = {};     ///< of the compiler
  std::string document = {};  ///< content of the file my.xml
};

const Failure failures[] = {
    // The tools.
    {"broken.c", "TESSEL:zex:Error(\"@/broken.c:1:9: error: expected expression", "';'"},
    {"broken.f90", "TESSEL:zex:Error(\"@/broken.f90:2:", "Error: Invalid character"},
    {"caller.c", "TESSEL:zex:Error(\"", "undefined reference to `helper'"},
    {"value.c -Lno/folder -lnowhere", "TESSEL:zex:Error(\"", "cannot find -lnowhere"},

    // The command line.
    {"-g", "TESSEL:legacy_two_part:minrhs"},
    {"a.c", "TESSEL:zex:SrcNotFound(\"@/a.c\", \"@/a.c\")"},
    {"-x value.c", "TESSEL:zex:UnknownSwitch(\"-x\")"},
    {"value.c bits.f90", "TESSEL:zex:MixLang(\"C\", \"FORTRAN\")"},
    {"value.c -compatibleArrayDims -R2018a",
     "TESSEL:zex:IncompatibleSwitches(\"R2018a\", \"compatibleArrayDims\")"},
    {"-R2018a bits.f90", "TESSEL:zex:ErrorFortranR2018a"},

    // The output folder. Not even the superuser writes to /proc.
    {"-outdir /proc value.c", "TESSEL:zex:AccessDenied(\"/proc\")"},
    {"-outdir value.c value.c", "TESSEL:zex:NotADirectory(\"@/value.c\")"},

    // Option documents.
    {"-f my.xml value.c", "TESSEL:zex:InvalidXML(\"@/my.xml\")", "", "CC=gcc\n"},
    {"-f my.xml value.c", "TESSEL:zex:NoCompilerFound_Win64", "",
     gccDocument("gcc\" />", "gcc-that-is-gone\" />")},
};

}  // namespace

TEST_F(EndToEnd, FailuresAreToldOnStandardErrorAndLeaveNothingBehind) {
  for (const Failure& row : failures) {
    SCOPED_TRACE("zex " + row.arguments);
    if (!row.document.empty()) write("my.xml", row.document);

    const Outcome outcome = zex(row.arguments);

    EXPECT_EQ(outcome.status, 1);
    std::string shown = "zex: error: " + row.message;
    for (std::size_t at; (at = shown.find("@/")) != std::string::npos;) shown.replace(at, 1, work.string());
    const std::string end = " [" + row.message.substr(0, row.message.find('(')) + "]\n";
    const std::string error = outcome.err.substr(std::min(outcome.err.find("zex: error: "), outcome.err.size()));
    if (row.words.empty()) {
      EXPECT_EQ(error, shown + end);
    } else {
      using namespace testing;
      EXPECT_THAT(error, AllOf(StartsWith(shown), HasSubstr(row.words), EndsWith(end)));
    }
    EXPECT_THAT(outcome.out, testing::Not(testing::HasSubstr("Complete")));
  }
}

TEST_F(EndToEnd, WordsTakeThePlaceOfIdentifiersInEnglish) {
  const zex_test::ScopedVariable english("TESSEL_LOCALE", "en");
  EXPECT_THAT(build("value.c", {"value.zexa64"}).out, testing::StartsWith("Building with 'gcc'.\n"));
  EXPECT_EQ(zex("broken.c").err, "zex: error: " + work.string() +
                                     "/broken.c:1:9: error: expected expression before ';' token\n"
                                     "    1 | int x = ;\n      |         ^ [TESSEL:zex:Error]\n");
}

}  // namespace end_to_end
