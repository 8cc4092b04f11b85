#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

/// A command that fails.
struct Failure {
  std::string name;
  std::string arguments;
  std::string message;  ///< the error as shown, or its beginning where `words` follow; "@" is the working folder
  std::string words = {};     ///< of the compiler
  std::string document = {};  ///< content of the file my.xml
};

void PrintTo(const Failure& failure, std::ostream* stream) {
  *stream << "zex " << failure.arguments;
}

class Failures : public EndToEnd, public testing::WithParamInterface<Failure> {
 protected:
  std::string shown(std::string message) const {
    for (std::size_t at; (at = message.find("@/")) != std::string::npos;) message.replace(at, 1, work.string());
    return "zex: error: " + message;
  }
};

TEST_P(Failures, AreToldOnStandardErrorAndLeaveNothingBehind) {
  const Failure& row = GetParam();
  if (!row.document.empty()) write("my.xml", row.document);

  const Outcome outcome = zex(row.arguments);

  EXPECT_EQ(outcome.status, 1);
  const std::string end = " [" + row.message.substr(0, row.message.find('(')) + "]\n";
  const std::string error = outcome.err.substr(std::min(outcome.err.find("zex: error: "), outcome.err.size()));
  if (row.words.empty()) {
    EXPECT_EQ(error, shown(row.message) + end);
  } else {
    EXPECT_THAT(error, testing::StartsWith(shown(row.message)));
    EXPECT_THAT(error, testing::HasSubstr(row.words));
    EXPECT_THAT(error, testing::EndsWith(end));
  }
  EXPECT_THAT(outcome.out, testing::Not(testing::HasSubstr("Complete")));
}

const std::string incompatible = "TESSEL:zex:IncompatibleSwitches(\"R2018a\", ";
const std::string circle =
    "TESSEL:zex:CircRef(\"config.vars.<xmlattr>.OPTIMFLAGS\", \"config.vars.<xmlattr>.COMPFLAGS\")";
const std::string circular = gccDocument("COMPFLAGS=\"-fexceptions\"\n      OPTIMFLAGS=\"-O2 -DNDEBUG\"",
                                         "COMPFLAGS=\"$OPTIMFLAGS\" OPTIMFLAGS=\"$COMPFLAGS\"");
const std::string gone = gccDocument("gcc\" />", "gcc-that-is-gone\" />");

const Failure failures[] = {
    // The tools.
    {"C", "broken.c", "TESSEL:zex:Error(\"@/broken.c:1:9: error: expected expression", "';'"},
    {"CInSecond", "value.c broken.c", "TESSEL:zex:Error(\"@/broken.c:1:9", "';'"},
    {"Cpp", "broken.cpp", "TESSEL:zex:Error(\"@/broken.cpp:1:9: error: ", "';'"},
    {"Fortran", "broken.f90", "TESSEL:zex:Error(\"@/broken.f90:2:", "Error: Invalid character"},
    {"Unlinked", "caller.c", "TESSEL:zex:Error(\"", "undefined reference to `helper'"},
    {"Library", "value.c -Lno/folder -lnowhere", "TESSEL:zex:Error(\"", "cannot find -lnowhere"},
    {"Object", "lost.o", "TESSEL:zex:Error(\"", "lost.o: No such file"},

    // The command line.
    {"Nothing", "-g", "TESSEL:legacy_two_part:minrhs"},
    {"Source", "a.c", "TESSEL:zex:SrcNotFound(\"@/a.c\", \"@/a.c\")"},
    {"Switch", "-x value.c", "TESSEL:zex:UnknownSwitch(\"-x\")"},
    {"ResponseFile", "@lost", "TESSEL:zex:FileCannotOpen(\"@/lost\")"},
    {"Client", "-client other value.c", "TESSEL:zex:UnknownClient(\"other\")"},
    {"Languages", "value.c bits.f90", "TESSEL:zex:MixLang(\"C\", \"FORTRAN\")"},
    {"LargeWithRelease", "-R2018a -largeArrayDims value.c", incompatible + "\"largeArrayDims\")"},
    {"CompatibleWithRelease", "value.c -compatibleArrayDims -R2018a", incompatible + "\"compatibleArrayDims\")"},
    {"TwoReleases", "-R2018a -R2017b value.c", incompatible + "\"R2017b\")"},
    {"FortranRelease", "-R2018a bits.f90", "TESSEL:zex:ErrorFortranR2018a"},

    // The output folder. Not even the superuser writes to /proc.
    {"ReadOnlyFolder", "-outdir /proc value.c", "TESSEL:zex:AccessDenied(\"/proc\")"},
    {"NoNewFolder", "-output /proc/new/a value.c", "TESSEL:zex:SrcNotFound(\"/proc/new\", \"/proc/new\")"},
    {"FileForFolder", "-outdir value.c value.c", "TESSEL:zex:NotADirectory(\"@/value.c\")"},

    // Option documents.
    {"NoDocument", "-f my.xml value.c", "TESSEL:zex:InvalidXML(\"@/my.xml\")"},
    {"NoXml", "-f my.xml value.c", "TESSEL:zex:InvalidXML(\"@/my.xml\")", "", "CC=gcc\n"},
    {"Circle", "-f my.xml value.c", circle, "", circular},
    {"CompilerGone", "-f my.xml value.c", "TESSEL:zex:NoCompilerFound_Win64", "", gone},
};

INSTANTIATE_TEST_SUITE_P(EndToEnd, Failures, testing::ValuesIn(failures), NameOfRow());

}  // namespace

TEST_F(EndToEnd, WordsTakeThePlaceOfIdentifiersInEnglish) {
  const zex_test::ScopedVariable english("TESSEL_LOCALE", "en");
  EXPECT_THAT(build("value.c", {"value.zexa64"}).out, testing::StartsWith("Building with 'gcc'.\n"));
  EXPECT_EQ(zex("broken.c").err, "zex: error: " + work.string() +
                                     "/broken.c:1:9: error: expected expression before ';' token\n"
                                     "    1 | int x = ;\n      |         ^ [TESSEL:zex:Error]\n");
}

TEST_F(EndToEnd, AFortranCommandWithoutArraySwitchIsWarnedAbout) {
  const std::string warning = "TESSEL:zex:FortranLargeArrayDimsWarn";
  EXPECT_EQ(build("bits.f90", {"bits.zexa64"}).err, "zex: warning: " + warning + " [" + warning + "]\n");
  EXPECT_EQ(build("-largeArrayDims bits.f90").err, "");
}

TEST_F(EndToEnd, OutputThatCannotBeWrittenIsAFailure) {
  const Outcome outcome = zex("value.c > /dev/full", {"value.zexa64"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, testing::StartsWith("zex: error: "));
}

}  // namespace end_to_end
