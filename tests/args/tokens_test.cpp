#include "args/CommandLine.hpp"

namespace zex_test {
namespace {

class Tokens : public CommandLine {};

TEST_F(Tokens, QuotedPiecesAreOneToken) {
  scratch.write("a b.c", "");
  for (const std::vector<fl::ustring>& line :
       {std::vector<fl::ustring>{u"-n", u"\" a b.c\t\""}, {u"-n", u"\"a", u"b.c\""}}) {
    EXPECT_THAT(parsed(line), testing::EndsWith("; sources=\"~/a b.c\"; flags=dryRun,optimize"));
  }
  EXPECT_EQ(parsed({}), "TESSEL:legacy_two_part:minrhs");
  // An odd quote swallows the rest, and the token no longer begins and ends with one.
  EXPECT_EQ(parsed({u"\"a", u"b.c"}), platform.refusesShellSigns
                                          ? "TESSEL:zex:Error(\"Invalid path \\\"a b.c\")"
                                          : "TESSEL:zex:SrcNotFound(\"~/\\\"a b.c\", \"~/\\\"a b.c\")");
}

TEST_F(Tokens, Assignments) {
  const Case cases[] = {
      {{u"X= a=b ", u"x=2"}, "X=< a=b >; x=<2>"},
      {{u"X=a$X", u"X=$X-$X"}, "X=<a$X-a$X>"},
      {{u"POSTLINK_CMDS=a;b", u"POSTLINK_CMDS=$POSTLINK_CMDS; strip x ;;"},
       "CMDLINE999_0=<strip x>; CMDLINE999_1=<b>"},
      {{u"TEMP=\"t/é d\""}, "tempDir=t/é d; TEMP=<t/é d>"},
  };
  for (const Case& row : cases) EXPECT_EQ(walked(row.line), row.expected);
  EXPECT_THAT(scratch.names("t"), testing::ElementsAre("é d"));
  scratch.write("file", "");
  EXPECT_EQ(walked({u"TEMP=file/below"}), "TESSEL:zex:NotADirectory(\"file/below\")");
}

TEST_F(Tokens, ResponseFiles) {
  const std::pair<const char*, const char*> files[] = {
      {"switches", "-g  \n\n   \n -DX \"-Ia b\" @inner\n"},
      {"crlf", "-g\r\n\r\n\"-DX=1\r 2\"\r\n"},
      {"inner", "X=1 -output \"one  two\""},
      {"value", "-output"},
      {"empty", ""},
      {"both.o", "-g"},
      {"@both.o", ""},
  };
  for (const auto& [name, content] : files) scratch.write(name, content);
  const Case cases[] = {
      {{u"@switches", u"X=$X;2"}, "DEFINES= X; INCLUDE= -I\"a b\"; output=one two; X=<1;2>; flags=debug"},
      {{u"@crlf"}, "DEFINES= \"X=1\r 2\"; flags=debug"},
      {{u"@\"empty\"", u"@both.o"}, "flags=debug"},
      {{u"@value", u"name"}, "TESSEL:zex:ErrOption(\"-output\")"},
      {{u"@missing"}, "TESSEL:zex:FileCannotOpen(\"~/missing\")"},
  };
  for (const Case& row : cases) EXPECT_EQ(walked(row.line), row.expected);
}

}  // namespace
}  // namespace zex_test
