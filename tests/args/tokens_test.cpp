#include "args/CommandLine.hpp"

namespace zex_test {
namespace {

using Tokens = CommandLine;

TEST_F(Tokens, QuotedPiecesAreOneToken) {
  scratch.write("a b.c", "");
  // An odd quote swallows the rest, and the token no longer begins and ends with one.
  const std::string odd = platform.refusesShellSigns ? "TESSEL:zex:Error(\"Invalid path \\\"a b.c\")"
                                                     : "TESSEL:zex:SrcNotFound(\"~/\\\"a b.c\", \"~/\\\"a b.c\")";
  expectParsed({
      {{u"-n", u"\" a b.c\t\""}, "; sources=\"~/a b.c\"; flags=dryRun,optimize"},
      {{u"-n", u"\"a", u"b.c\""}, "; sources=\"~/a b.c\"; flags=dryRun,optimize"},
      {{u"\"a", u"b.c"}, odd},
      {{}, "TESSEL:legacy_two_part:minrhs"},
  });
}

TEST_F(Tokens, Assignments) {
  scratch.write("file", "");
  expectWalked({
      {{u"X= a=b ", u"x=2"}, "X=< a=b >; x=<2>"},
      {{u"X=a$X", u"X=$X-$X"}, "X=<a$X-a$X>"},
      {{u"x/y.c=1", u"-DN=1"}, "DEFINES= N=1; x/y.c=<1>"},  // a switch is none
      {{u"POSTLINK_CMDS=a;b", u"POSTLINK_CMDS=$POSTLINK_CMDS; strip x ;;"},
       "CMDLINE999_0=<strip x>; CMDLINE999_1=<b>"},
      {{u"TEMP=\"t/é d\""}, "tempDir=t/é d; TEMP=<t/é d>"},
      {{u"TEMP=file/below"}, "TESSEL:zex:NotADirectory(\"file/below\")"},
  });
  EXPECT_THAT(scratch.names("t"), testing::ElementsAre("é d"));
}

TEST_F(Tokens, ResponseFiles) {
  const std::pair<const char*, const char*> files[] = {
      {"switches", "-g  \n\n   \n -DX \"-Ia b\" @inner\n"},
      {"crlf", "-g\r\n\r\n\"-DX=1\r 2\"\r\n"},
      {"inner", "X=1 -output \"one  two\""},
      {"value", "-output"},
      {"empty", ""},
      {"a=b", "-O"},
      {"both.o", "-g"},
      {"@both.o", ""},
      {"@alone.o", ""},
  };
  for (const auto& [name, content] : files) scratch.write(name, content);
  expectWalked({
      {{u"@switches", u"X=$X;2"}, "DEFINES= X; INCLUDE= -I\"a b\"; output=one two; X=<1;2>; flags=debug"},
      {{u"@crlf"}, "DEFINES= \"X=1\r 2\"; flags=debug"},
      {{u"@\"empty\"", u"@both.o", u"@a=b"}, "flags=debug,optimize"},
      {{u"@alone.o"}, "objects=\"@alone.o\""},
      {{u"@value", u"name"}, "TESSEL:zex:ErrOption(\"-output\")"},
      {{u"@missing"}, "TESSEL:zex:FileCannotOpen(\"~/missing\")"},
  });
}

}  // namespace
}  // namespace zex_test
