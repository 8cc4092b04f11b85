#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

/// A line of the shell with input that nobody means, and what a user has to read then.
struct Oddity {
  const char* line;
  const char* shown;  ///< part of what is said, errors or not
  int status = 1;
};

const Oddity oddities[] = {
    // Documents.
    {"{ printf '<config>'; printf '<a>%.0s' $(seq 30000); } > my.xml; \"$ZEX\" value.c -f my.xml",
     "nested too deeply"},
    {"sed 's:<env />:<env a..b=\"1\" />:' \"$OPTS/gcc.xml\" > my.xml; \"$ZEX\" -setup:my.xml C",
     "has a dot without"},
    {"sed 's:CLIBS=\"-lm\":CLIBS=\"\\&#0;\":' \"$OPTS/gcc.xml\" > my.xml; \"$ZEX\" -setup:my.xml C",
     "number zero"},
    {"\"$ZEX\" value.c -f none.xml", "there is no such file"},
    {"printf '<config>\\n<vars</config>' > my.xml; \"$ZEX\" value.c -f my.xml", "line 2: expected >"},
    {"cp \"$OPTS/gcc.xml\" my.xml; \"$ZEX\" -setup any -f my.xml -g -O", "ZEX is set up to use 'gcc'", 0},

    // Words of the command line.
    {"printf '@r2' > r1; printf '@./r1' > r2; \"$ZEX\" @r1 value.c", "could not be opened"},
    {"printf -- '-\\0x' > r1; \"$ZEX\" @r1 value.c", "is not a switch or word that can stand here"},
    {"mkdir d e; cp value.c d; cp value.c e; \"$ZEX\" -c d/value.c e/value.c", "share one object file", 0},
    {"\"$ZEX\" -n value.c '-La|touch x' '-lb>y'", "\"-La|touch x\"", 0},

    // Bytes that are no text.
    {"\"$ZEX\" value.c -outdir \"$(printf 'a\\377')\"", "[TESSEL:zex:FileNameConversionFailed]"},
    {"TMPDIR=$(printf '/tmp/zex\\377') \"$ZEX\" value.c", "[TESSEL:zex:FileNameConversionFailed]"},
    {"cp value.c \"$(printf 'z\\377.c')\"; \"$ZEX\" 'z*.c'", "[TESSEL:zex:FileNameConversionFailed]"},
    {"echo 'printf \"tool\\\\000says\" >&2; exit 1' > e; \"$ZEX\" value.c POSTLINK_CMDS='sh e'",
     "tool\xEF\xBF\xBDsays"},

    // Folders.
    {"mkdir gone; cd gone; rmdir ../gone; \"$ZEX\" value.c", "(the current folder: "},
    {"mkdir 'a$b'; cd 'a$b'; \"$ZEX\" ./value.c", "the current folder '"},
    {"TESSEL_PREFDIR=/none \"$ZEX\" -n value.c", "TESSEL_PREFDIR names no folder: '/none'", 0},
    {"TMPDIR=/dev/null \"$ZEX\" value.c", "[TESSEL:zex:FileSystemException]"},
    {"unset TESSEL_PREFDIR XDG_CONFIG_HOME; HOME=/dev/null \"$ZEX\" value.c", "Build completed.", 0},
    {"unset TESSEL_PREFDIR XDG_CONFIG_HOME; HOME=/dev/null \"$ZEX\" -setup C",
     "TESSEL_PREFDIR, XDG_CONFIG_HOME or HOME can name another place"},
    {"unset TESSEL_PREFDIR XDG_CONFIG_HOME; HOME=/dev/null \"$OPTS/../zexcompilers\" C", "gcc", 0},
    {"(ulimit -f 0; \"$ZEX\" value.c 2>&1) | cat", "File too large", 0},

    // Products.
    {"\"$ZEX\" value.c; head -c 6000 value.zexa64 > cut.zexa64; \"$OPTS/../zexrun\" cut.zexa64",
     "the file is cut off"},
};

}  // namespace

TEST_F(EndToEnd, WhateverIsPutInIsAnsweredInWords) {
  const zex_test::ScopedVariable english("TESSEL_LOCALE", "en");
  for (const Oddity& row : oddities) {
    SCOPED_TRACE(row.line);
    const Outcome outcome = shell("( " + std::string(row.line) + "\n)");
    EXPECT_EQ(outcome.status, row.status) << outcome.err;
    EXPECT_THAT(outcome.out + outcome.err, testing::HasSubstr(row.shown));
    expectNoTemporaryFiles();
    shell("rm -rf my.xml r1 r2 d e z* a* *.o *.zexa64 ../prefs/*");
  }
}

TEST_F(EndToEnd, AProductShowsItsEntryPointAndItsRecordAndCallsItsOwnFunctions) {
  // The program around the product has another function of the name.
  write("host.c",
        "#include <dlfcn.h>\n#include <stdio.h>\nlong long helper(void) { return 1; }\n"
        "int main(int n, char** names) {\n  void* product = dlopen(names[1], RTLD_NOW);\n  long long answer = 0;\n"
        "  ((void (*)(long long*))dlsym(product, names[2]))(&answer);\n  printf(\"%lld\\n\", answer);\n"
        "  return n == 0;\n}\n");
  ASSERT_EQ(shell("cc -rdynamic host.c -o host -ldl").status, 0);
  for (const std::string& arguments :
       Names{"caller.c helper.c", "caller.c helper.c -f \"$OPTS/clang.xml\"",
             "caller.c helper.c -f \"$OPTS/g++.xml\"", "caller.c helper.c -f \"$OPTS/clang++.xml\""}) {
    SCOPED_TRACE(arguments);
    shell("rm -f caller.zexa64");
    build(arguments, {"caller.zexa64"});
    EXPECT_EQ(shell("nm -D --defined-only caller.zexa64 | cut -d' ' -f3").out,
              "zexFunction\nzexapi_version_record\n");
    EXPECT_EQ(shell("./host ./caller.zexa64 zexFunction").out, "6\n");
  }
  build("caller.c helper.c EXPORTFLAGS=");
  EXPECT_THAT(shell("nm -D --defined-only caller.zexa64").out, testing::HasSubstr(" helper\n"));
  EXPECT_EQ(shell("./host ./caller.zexa64 zexFunction").out, "1\n");
}

}  // namespace end_to_end
