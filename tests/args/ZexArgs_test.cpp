#include "args/ZexArgs.hpp"

#include <gmock/gmock.h>

#include "platform/tokens.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using Args = ZexArgs;
using zex_test::utf8;

/// Command lines, and what each leads to.
using Cases = std::vector<std::pair<std::vector<ustring>, std::string>>;

/// A host and a folder for trying command lines. What a line leads to is told as one text: the failure, or the
/// fields of the record that differ from those of a fresh one, and the warnings. The folder itself is told as "~".
class CommandLine : public testing::Test {
 protected:
  CommandLine() {
    for (const char* name : {"a.c", "b.cpp", "k.cu", "f.f90", "q r.cc", "d/y.c", "d/x.c", "odd/a;b.c", "prog",
                             "doc.xml", "both.o", "@both.o", "@alone.o"})
      scratch.write(name, "");
  }
  /// The tokens alone, without the checks that follow them.
  void expectWalked(const Cases& cases) {
    for (const auto& [line, expected] : cases) EXPECT_EQ(after(&Args::walkTokens, line), expected);
  }
  /// Whole commands; of each the beginning or the end is told.
  void expectParsed(const Cases& cases) {
    using namespace testing;
    for (const auto& [line, expected] : cases)
      EXPECT_THAT(after(&Args::parseArguments, line), AnyOf(StartsWith(expected), EndsWith(expected)));
  }

  zex_test::RecordingServices host;
  zex_test::Scratch scratch;

 private:
  std::string after(void (Args::*step)(const std::vector<ustring>&), const std::vector<ustring>& line) {
    host.warnings.clear();
    Args args;
    const std::string failure = zex_test::failureOf([&] { (args.*step)(line); });
    const std::string text = failure == "no error" ? zex_test::told(summaryOf(args)) : failure;
    return utf8(replacedAll(zex_test::utf16(text), zex_test::utf16(scratch.told()), u"~"));
  }

  std::string summaryOf(const Args& args) const {
    std::string text, languages, changed;
    const auto tell = [&](const std::string& name, const std::string& value) {
      if (!value.empty()) text += (text.empty() ? "" : "; ") + name + "=" + value;
    };
    const std::pair<const char*, ustring Args::*> texts[] = {
        {"DEFINES", &Args::defines}, {"INCLUDE", &Args::includes},     {"EXLIBRARIES", &Args::exLibraries},
        {"output", &Args::output},   {"LIBPATH", &Args::libraryPaths}, {"optionsFile", &Args::optionsFile},
        {"outDir", &Args::outDir},   {"LIBRARIES", &Args::libraries},  {"setupArgument", &Args::setupArgument},
        {"tempDir", &Args::tempDir}};
    for (const auto& [name, value] : texts) tell(name, utf8(args.*value));
    for (const std::string& name : args.languages) languages += (languages.empty() ? "" : ",") + name;
    tell("arch", args.arch == Args().arch ? "" : args.arch);
    tell("client", args.client);
    tell("release", args.release);
    tell("languages", languages);
    tell("sources", utf8(args.sourcesText()));
    tell("objects", utf8(args.objectsText()));
    for (const auto& [name, value] : args.variables) tell(utf8(name), "<" + utf8(value) + ">");
    const std::pair<const char*, bool Args::*> flags[] = {
        {"compileOnly", &Args::compileOnly}, {"debug", &Args::debug},       {"dryRun", &Args::dryRun},
        {"optimize", &Args::optimize},       {"setup", &Args::setup},       {"silent", &Args::silent},
        {"verbose", &Args::verbose},         {"linkOnly", &Args::linkOnly}, {"word", &Args::setupLanguageGiven},
        {"host", &Args::calledFromHost},     {"check", &Args::zexCheck}};
    for (const auto& [name, flag] : flags)
      if (args.*flag != Args().*flag) changed += (changed.empty() ? "" : ",") + std::string(name);
    tell("flags", changed);
    for (const std::string& warning : host.warnings) tell("warned", warning);
    return text;
  }
};

TEST_F(CommandLine, SwitchesChangeTheRecordOrFail) {
  expectWalked({
      {{u"-r2018A"}, "release=R2018a"},
      {{u"-C", u"-Called_From_Tessel", u"-N", u"-SILENT"}, "flags=compileOnly,dryRun,silent,host"},
      {{u"-client", u"engine", u"-client", u"ZBuild_com"}, "client=ZBUILD_COM"},
      {{u"-CXX", u"-fortran", u"-FORTRAN"}, "languages=C++,FORTRAN,FORTRAN"},
      {{u"-DA", u"-DB=1 2", u"-DC=\"x y\"", u"-UD E"}, "DEFINES= A \"B=1 2\" C=\"x y\" -UD E"},
      {{u"-F", u"x/../doc.xml"}, "optionsFile=~/doc.xml"},
      {{u"-g", u"-O"}, "flags=debug,optimize"},
      {{u"-Ia b/", u"-I\"q\""}, "INCLUDE= -I\"a b\" -I\"q\""},
      {{u"-Ldir/", u"-Largearraydims"}, "LIBPATH= \"dir\" \"argearraydims\""},
      {{u"-lfoo.LIB", u"-lfoo.a", u"-lsub/foo.lib", u"-largearraydims"},
       "LIBRARIES= \"foo\" \"foo.a\" \"sub/foo\" \"argearraydims\""},
      {{u"-tessel_arch=x", u"-no_setup", u"-nosuchswitch", u"-NO_ZEXCHECK"}, "flags=check"},
      {{u"-OUTDIR", u"new/dir", u"-output", u"-g", u"-Output", u"é b"}, "output=é b; outDir=~/new/dir"},
      {{u"-Setup:doc.xml"}, "setupArgument=~/doc.xml; flags=setup"},
      {{u"-V"}, "flags=verbose"},
      {{u"-maci64", u"-WIN32"}, "arch=win32"},
      {{u"-TESSEL", u"missing.c", u"-g", u"-tessel"},
       "flags=debug; warned=TESSEL:zex:NotAnOption(\"-TESSEL\"); warned=TESSEL:zex:NotAnOption(\"-tessel\")"},
      {{u"-r2018a", u"-R2017b"}, "TESSEL:zex:IncompatibleSwitches(\"R2018a\", \"R2017b\")"},
      {{u"-Client", u"zbuilt"}, "TESSEL:zex:UnknownClient(\"zbuilt\")"},
      {{u"-g", u"-OutDir"}, "TESSEL:zex:ErrOption(\"-OutDir\")"},
  });
  EXPECT_EQ(host.output, "TESSEL:zex:Verbose\n");
  const ustring unknown =
      u"-R -R2016b -R0x -R2018az -cx -Compatiblearraydims -D -dX -fo -G -gx -I -iX -L -l -o -outdirs -s -setup: "
      u"-setupx -tesselx -U -uX -vx -x=1 -xml:list.xml -é --g -H -HELP -Inline -ADA";
  for (const ustring& token : splitTokens(unknown, u" "))
    expectWalked({{{token}, "TESSEL:zex:UnknownSwitch(\"" + utf8(token) + "\")"}});
}

TEST_F(CommandLine, FilesGoByTheirExtensions) {
  expectWalked({
      {{u"missing.LIB", u"x/é.so", u"m.maci64_a"}, "EXLIBRARIES= \"missing.LIB\" \"x/é.so\" \"m.maci64_a\""},
      {{u"x/no.obj", u"r s.RES", u"o.glnxa64_o"}, "objects=\"x/no.obj\" \"r s.RES\" \"o.glnxa64_o\""},
      {{u"d/*.c", u"*.c"}, "languages=C; sources=\"~/d/x.c\";\"~/d/y.c\";\"~/a.c\""},
      {{u"a.c", u"prog"}, "TESSEL:zex:UnknownExt(\"\")"},
      {{u"no/*.c"}, "TESSEL:zex:SrcNotFound(\"~/no/*.c\", \"~/no/*.c\")"},
      {{u"odd/*.c"}, "TESSEL:zex:Error(\"Invalid path ~/odd/a;b.c\")"},
      {{u"-"}, "TESSEL:zex:SrcNotFound(\"~/-\", \"~/-\")"},
      {{u"$x.o"},
       zex_test::platform.refusesShellSigns ? "TESSEL:zex:Error(\"Invalid path $x.o\")" : "objects=\"$x.o\""},
      // Languages mix upwards only.
      {{u"b.cpp", u"a.c"}, "languages=C++; sources=\"~/b.cpp\";\"~/a.c\""},
      {{u"k.cu", u"b.cpp", u"a.c"}, "languages=CUDA; sources=\"~/k.cu\";\"~/b.cpp\";\"~/a.c\""},
      {{u"a.c", u"-cxx"}, "languages=C++; sources=\"~/a.c\""},
      {{u"a.c", u"-fortran"}, "languages=C,FORTRAN; sources=\"~/a.c\""},
      {{u"a.c", u"f.f90"}, "TESSEL:zex:MixLang(\"C\", \"FORTRAN\")"},
      {{u"-fortran", u"-cxx"}, "TESSEL:zex:MixLang(\"FORTRAN\", \"C++\")"},
  });
}

TEST_F(CommandLine, AssignmentsSetExtendOrRun) {
  expectWalked({
      {{u"X= a=b ", u"x=2"}, "X=< a=b >; x=<2>"},
      {{u"X=a$X", u"X=$X-$X"}, "X=<a$X-a$X>"},
      {{u"x/y.c=1", u"-DN=1"}, "DEFINES= N=1; x/y.c=<1>"},  // a switch is none
      {{u"POSTLINK_CMDS=a;b", u"POSTLINK_CMDS=$POSTLINK_CMDS; strip x ;;"},
       "CMDLINE999_0=<strip x>; CMDLINE999_1=<b>"},
      {{u"TEMP=\"t/é d\""}, "tempDir=t/é d; TEMP=<t/é d>"},
      {{u"TEMP=prog/below"}, "TESSEL:zex:NotADirectory(\"prog/below\")"},
  });
  EXPECT_THAT(scratch.names("t"), testing::ElementsAre("é d"));
}

TEST_F(CommandLine, ResponseFilesStandForTheirTokens) {
  scratch.write("outer", "-g  \n\n   \n -DX \"-Ia b\" @inner\n");
  scratch.write("inner", "X=1 -output \"one  two\"");
  scratch.write("cr=lf", "-g\r\n\r\n\"-DX=1\r 2\"\r\n");
  expectWalked({
      {{u"@\"outer\"", u"X=$X;2"}, "DEFINES= X; INCLUDE= -I\"a b\"; output=one two; X=<1;2>; flags=debug"},
      {{u"@cr=lf"}, "DEFINES= \"X=1\r 2\"; flags=debug"},
      {{u"@both.o"}, ""},  // it is empty
      {{u"@alone.o"}, "objects=\"@alone.o\""},
      {{u"@missing"}, "TESSEL:zex:FileCannotOpen(\"~/missing\")"},
  });
}

TEST_F(CommandLine, TheWholeCommandGetsDefaultsAndWarnings) {
  const std::string plain = "TESSEL_DEFAULT_RELEASE=R2017b USE_ZEX_CMD;";
  expectParsed({
      {{}, "TESSEL:legacy_two_part:minrhs"},
      {{u"no*.cpp", u"l.a"}, "TESSEL:legacy_two_part:minrhs"},
      {{u"\" q r.cc\t\""}, plain + " languages=C++; sources=\"~/q r.cc\"; flags=optimize"},
      {{u"\"q", u"r.cc\"", u"-g"}, plain + " languages=C++; sources=\"~/q r.cc\"; flags=debug"},
      {{u"x.o"}, plain + " languages=C; objects=\"x.o\"; flags=optimize,linkOnly"},
      {{u"x.o", u"-f", u"d.xml"}, plain + " optionsFile=~/d.xml; objects=\"x.o\"; flags=optimize,linkOnly"},
      {{u"a.c", u"-DX", u"-compatibleArrayDims", u"-largeArrayDims"}, "DEFINES= X ZX_COMPAT_32 " + plain},
      {{u"a.c", u"-largeArrayDims"}, "DEFINES= ZX_COMPAT_64 " + plain},
      {{u"a.c", u"-R2017B"}, "DEFINES= ZX_COMPAT_64 TESSEL_ZEXCMD_RELEASE=R2017b USE_ZEX_CMD;"},
      {{u"a.c", u"-R2018a", u"-largeArrayDims"},
       "TESSEL:zex:IncompatibleSwitches(\"R2018a\", \"largeArrayDims\")"},
      {{u"a.c", u"-c", u"-output", u"name"}, "flags=compileOnly,optimize; warned=TESSEL:zex:IgnoreOutput"},
      {{u"f.f90", u"-R2017b"}, "flags=optimize; warned=TESSEL:zex:FortranLargeArrayDimsWarn"},
      {{u"f.f90", u"-largeArrayDims"}, "flags=optimize"},
      {{u"-setup", u"ANY"}, "languages=C,C++,CUDA,FORTRAN; flags=setup,word"},
      {{u"-setup", u"cpp", u"fortran"}, "TESSEL:zex:SrcNotFound(\"~/fortran\", \"~/fortran\")"},
      {{u"-setup", u"Nonsense"}, "TESSEL:zex:UnknownLanguage(\"Nonsense\")"},
  });
}

TEST_F(CommandLine, TheOutputFolderIsMadeAndTried) {
  expectParsed({
      {{u"a.c", u"-outdir", u"one/two", u"-output", u"prog/name"}, "DEFINES="},
      {{u"a.c", u"-output", u"three/four/name"}, "DEFINES="},
      {{u"a.c", u"-n", u"-outdir", u"five"}, "DEFINES="},
      {{u"a.c", u"-output", u"prog/below/name"}, "TESSEL:zex:NotADirectory(\"~/prog/below\")"},
  });
  EXPECT_THAT(scratch.names("one/two"), testing::ElementsAre());
  EXPECT_TRUE(scratch.has("three/four") && !scratch.has("five"));
}

}  // namespace
}  // namespace zex_cmd
