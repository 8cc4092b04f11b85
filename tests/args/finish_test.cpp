#include "args/CommandLine.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"

namespace zex_test {
namespace {

using testing::ElementsAre;

class Finish : public CommandLine {
 protected:
  Finish() {
    for (const char* name : {"a.c", "f.f", "file"}) scratch.write(name, "");
  }
};

TEST_F(Finish, InputsAndReleaseGiveTheDefaults) {
  const std::string plain = "TESSEL_DEFAULT_RELEASE=R2017b USE_ZEX_CMD;";
  expectParsed({
      {{u"a.c", u"-DX", u"-compatibleArrayDims", u"-largeArrayDims"}, "DEFINES= X ZX_COMPAT_32 " + plain},
      {{u"a.c", u"-largeArrayDims"}, "DEFINES= ZX_COMPAT_64 " + plain},
      {{u"a.c", u"-R2017B"}, "DEFINES= ZX_COMPAT_64 TESSEL_ZEXCMD_RELEASE=R2017b USE_ZEX_CMD;"},
      {{u"a.c", u"-R2018a", u"-largeArrayDims"},
       "TESSEL:zex:IncompatibleSwitches(\"R2018a\", \"largeArrayDims\")"},
      {{u"f.f", u"-R2018a"}, "TESSEL:zex:ErrorFortranR2018a"},
      {{u"a.c", u"-g"}, plain + " languages=C; sources=\"~/a.c\"; flags=debug"},
      {{u"x.o"}, plain + " languages=C; objects=\"x.o\"; flags=optimize,linkOnly"},
      {{u"x.o", u"-f", u"d.xml"}, plain + " objects=\"x.o\"; optionsFile=~/d.xml; flags=optimize,linkOnly"},
      {{u"*.cpp", u"l.a"}, "TESSEL:legacy_two_part:minrhs"},
  });
}

TEST_F(Finish, Warnings) {
  parsed({u"f.f", u"-R2017b"});
  host.hot = true;
  parsed({u"a.c", u"-fortran", u"-c", u"-output", u"name"});
  parsed({u"f.f", u"-largeArrayDims"});
  EXPECT_THAT(host.warnings, ElementsAre("TESSEL:zex:FortranLargeArrayDimsWarn",
                                         "TESSEL:zex:FortranLargeArrayDimsWarn_link", "TESSEL:zex:IgnoreOutput"));
}

TEST_F(Finish, OutputFolderIsMadeAndTried) {
  const std::string closed(platform.closedFolder);
  expectParsed({
      {{u"a.c", u"-outdir", u"one/two", u"-output", u"file/name"}, "DEFINES="},
      {{u"a.c", u"-output", u"three/four/name"}, "DEFINES="},
      {{u"a.c", u"-n", u"-outdir", u"five"}, "DEFINES="},
      {{u"a.c", u"-output", u"file/below/name"}, "TESSEL:zex:NotADirectory(\"~/file/below\")"},
      {{u"a.c", u"-outdir", utf16(closed)}, "TESSEL:zex:AccessDenied(\"" + closed + "\")"},
  });
  EXPECT_THAT(scratch.names(), ElementsAre("a.c", "f.f", "file", "one", "three"));
  EXPECT_THAT(scratch.names("one/two"), ElementsAre());
}

TEST_F(Finish, VerboseFlagsChangeOnlyAfterTheWalk) {
  const auto& config = zex_cmd::ZexConfigPerTVM::current();
  parsed({u"a.c", u"-v"});
  parsed({u"missing.c"});
  EXPECT_TRUE(config.verboseEnabled && config.verboseEcho);
  parsed({u"-setup"});
  EXPECT_FALSE(config.verboseEnabled || config.verboseEcho);
}

}  // namespace
}  // namespace zex_test
