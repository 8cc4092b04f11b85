#include "args/CommandLine.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"

namespace zex_test {
namespace {

class Finish : public CommandLine {
 protected:
  Finish() { write({"a.c", "f.f", "file"}); }
};

TEST_F(Finish, DefinesFollowFromReleaseAndArraySwitches) {
  const Case cases[] = {
      {{u"a.c", u"-DX", u"-compatibleArrayDims", u"-largeArrayDims"},
       "DEFINES= X ZX_COMPAT_32 TESSEL_DEFAULT_RELEASE=R2017b USE_ZEX_CMD;"},
      {{u"a.c", u"-largeArrayDims"}, "DEFINES= ZX_COMPAT_64 TESSEL_DEFAULT_RELEASE=R2017b USE_ZEX_CMD;"},
      {{u"a.c", u"-R2017B"}, "DEFINES= ZX_COMPAT_64 TESSEL_ZEXCMD_RELEASE=R2017b USE_ZEX_CMD;"},
      {{u"a.c", u"-R2018a", u"-largeArrayDims"},
       "TESSEL:zex:IncompatibleSwitches(\"R2018a\", \"largeArrayDims\")"},
      {{u"f.f", u"-R2018a"}, "TESSEL:zex:ErrorFortranR2018a"},
  };
  for (const Case& row : cases) EXPECT_THAT(parsed(row.line), testing::StartsWith(row.expected));
}

TEST_F(Finish, Warnings) {
  parsed({u"f.f", u"-R2017b"});
  host.hot = true;
  parsed({u"a.c", u"-fortran", u"-c", u"-output", u"name"});
  parsed({u"f.f", u"-largeArrayDims"});
  EXPECT_THAT(host.warnings,
              testing::ElementsAre("TESSEL:zex:FortranLargeArrayDimsWarn",
                                   "TESSEL:zex:FortranLargeArrayDimsWarn_link", "TESSEL:zex:IgnoreOutput"));
}

TEST_F(Finish, InputsAndDefaults) {
  const Case cases[] = {
      {{u"x.o"}, "; languages=C; objects=\"x.o\"; flags=optimize,linkOnly"},
      {{u"x.o", u"-f", u"d.xml"}, "; objects=\"x.o\"; optionsFile=~/d.xml; flags=optimize,linkOnly"},
      {{u"a.c", u"-g"}, "DEFAULT_RELEASE=R2017b USE_ZEX_CMD; languages=C; sources=\"~/a.c\"; flags=debug"},
      {{u"*.cpp", u"l.a"}, "TESSEL:legacy_two_part:minrhs"},
  };
  for (const Case& row : cases) EXPECT_THAT(parsed(row.line), testing::EndsWith(row.expected));
}

TEST_F(Finish, OutputFolderIsMadeAndTried) {
  const std::string closed(platform.closedFolder);
  const Case cases[] = {
      {{u"a.c", u"-outdir", u"one/two", u"-output", u"file/name"}, "DEFINES="},
      {{u"a.c", u"-output", u"three/four/name"}, "DEFINES="},
      {{u"a.c", u"-n", u"-outdir", u"five"}, "DEFINES="},
      {{u"a.c", u"-outdir", u"file"}, "TESSEL:zex:NotADirectory(\"~/file\")"},
      {{u"a.c", u"-output", u"file/below/name"}, "TESSEL:zex:NotADirectory(\"~/file/below\")"},
      {{u"a.c", u"-outdir", utf16(closed)}, "TESSEL:zex:AccessDenied(\"" + closed + "\")"},
  };
  for (const Case& row : cases) EXPECT_THAT(parsed(row.line), testing::StartsWith(row.expected));
  EXPECT_THAT(scratch.names(), testing::ElementsAre("a.c", "f.f", "file", "one", "three"));
  EXPECT_THAT(scratch.names("one/two"), testing::ElementsAre());
}

TEST_F(Finish, VerboseFlagsChangeOnlyAfterTheWalk) {
  parsed({u"a.c", u"-v"});
  parsed({u"missing.c"});
  const auto& config = zex_cmd::ZexConfigPerTVM::current();
  EXPECT_TRUE(config.verboseEnabled && config.verboseEcho);
  parsed({u"-setup"});
  EXPECT_FALSE(config.verboseEnabled || config.verboseEcho);
}

}  // namespace
}  // namespace zex_test
