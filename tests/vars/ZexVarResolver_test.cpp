#include "vars/ZexVarResolver.hpp"

#include <gmock/gmock.h>

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "options/ZexOpt.hpp"
#include "platform/quoting.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

/// What a document needs so that every argument and mode finds its variable.
constexpr char details[] =
    "<Details IncludeFlags='$INCLUDES' CompilerDefines='$DEFINES' CompilerDefineFormatter='-D%s'"
    " LinkerLibraries='$USERLIBS' LinkerPathFormatter='-L%1%' LinkerLibrarySwitchFormatter='-l%s;--as=%s'"
    " DebugFlags='$DEBUGFLAGS' OptimizationFlags='$OPTFLAGS' LinkerDebugFlags='$LINKDEBUG'"
    " LinkerOptimizationFlags='$LINKOPT'/>";

class ZexVarResolverTest : public testing::Test {
 protected:
  ZexVarResolverTest() {
    host.install = u"/install";
    args->arch = "glnxa64";
    args->tempDir = u"/tmp/t";
    args->sources = {u"/s/a.c"};
  }
  void resolve(const std::string& content) {
    scratch.write("doc.xml", "<config>" + content + "</config>");
    opt = boost::make_shared<ZexOpt>(scratch.path("doc.xml"), "", u"", false);
    failure = zex_test::failureOf([&] { ZexVarResolver(args, nullptr).resolve(opt); });
  }
  void resolveWith(const std::string& variables, const std::string& rest = {}) {
    resolve(details + ("<vars OBJEXT='.o' LDEXT='.zexa64' " + variables + "/>") + rest);
  }
  /// Each is a variable, "=" and its value; "-" stands for no variable of that name.
  void expect(const std::vector<std::string>& values) const {
    EXPECT_EQ(failure, "no error");
    for (const std::string& expected : values) {
      const std::string name = expected.substr(0, expected.find('='));
      const ustring value = opt->variable(zex_test::utf16(name)).value_or(u"-");
      EXPECT_EQ(name + "=" + zex_test::told(zex_test::utf8(value)), expected);
    }
  }

  zex_test::Scratch scratch;
  zex_test::RecordingServices host;
  boost::shared_ptr<ZexArgs> args = boost::make_shared<ZexArgs>();
  boost::shared_ptr<ZexOpt> opt;
  std::string failure;
};

TEST_F(ZexVarResolverTest, FilesFollowSourcesAndObjects) {
  args->sources = {u"/s/sub/it's b.c"};
  resolveWith("");
  expect({"SRC=\"/s/sub/it's b.c\"", "OBJ=\"/tmp/t/it's b.o\"", "OBJS=\"/tmp/t/it's b.o\" ",
          "DEF=\"/tmp/t/it's b.def\"", "EXE=\"it's b.zexa64\"", "MANIFEST=\"it's b.zexa64.manifest\"",
          "SRCROOT=/s/sub/it's b", "TEMPNAME=it's b", "EXEDIR=", "TESSELROOT=/install", "ARCH=glnxa64"});

  args->sources = {u"/s/x.y|.c", u"/install/v.c"};
  args->objects = {u"sub/o.o", u"p q.o"};
  args->apiVersionSourceAdded = true;
  resolveWith("");
  expect({"SRC=\"/s/x.y|.c\";\"/install/v.c\"", "OBJ=\"/tmp/t/x.y|.o\";/tmp/t/v.o", "EXENAME=x.y|",
          "OBJS=\"/tmp/t/x.y|.o\" /tmp/t/v.o \"sub/o.o\" \"p q.o\""});

  args->sources.erase(args->sources.begin());
  resolveWith("");
  expect({"EXENAME=o", "SRCROOT=sub/o", "OBJ=/tmp/t/v.o"});

  // Moves the product but no object.
  args->compileOnly = true;
  args->output = u"made/out/name.ext";
  resolveWith("");
  expect({"OBJ=v.o", "EXE=\"" + scratch.told("made/out/name.zexa64") + "\""});
}

TEST_F(ZexVarResolverTest, ArgumentsGoInFrontOfTheDocumentsText) {
  args->includes = u" -I\"/a\" -I\"/b c\"";
  args->defines = u" ONE MSG=\"a b\" -UTWO É\U0001F600";
  args->libraryPaths = u" \"/l 1\"";
  args->libraries = u" \"m\"";
  args->exLibraries = u" \"x.a\" \"y z.a\" \"it's.a\"";
  resolveWith("INCLUDES='-I.' USERLIBS='-lc'");
  const std::string odd = zex_test::utf8(quoteInCommand(u"it's.a"));
  expect({"INCLUDES=-I\"/a\" -I\"/b c\"  -I.", "DEFINES=-DONE  -DMSG=\"a b\"  -UTWO  -DÉ\U0001F600   ",
          "USERLIBS=x.a \"y z.a\" " + odd + "  -lm --as=m   \"-L/l 1\"   -lc"});

  resolve("<Details IncludeFlags='$I' CompilerDefines='$D' LinkerLibraries='$L'/>");
  EXPECT_THAT(failure, testing::HasSubstr("config.Details.<xmlattr>.CompilerDefineFormatter"));
}

TEST_F(ZexVarResolverTest, AssignmentsExtendTheEnvironmentBlockOrElseAVariable) {
  args->includes = u" -I\"/a\"";
  args->optimize = true;
  args->variables = {{u"COMPFLAGS", u"\"$COMPFLAGS -Wall\""},
                     {u"INCLUDES", u"-Iz $INCLUDES"},
                     {u"LIBPATH", u"x;$LIBPATH"},
                     {u"NEW", u"$NEW$NEW."},
                     {u"OPTFLAGS", u"-O3"}};
  resolveWith("COMPFLAGS='-fPIC' INCLUDES='-I.' OPTFLAGS='-O'", "<env LIBPATH='/l'/>");
  // What the command's switches gave is there by then, and what they choose follows.
  expect({"COMPFLAGS=-fPIC -Wall", "INCLUDES=-Iz -I\"/a\"  -I.", "LIBPATH=-", "NEW=.", "OPTIM=-O3"});
  EXPECT_EQ(opt->value(u"config.env.<xmlattr>.LIBPATH"), u"x;/l");
}

TEST_F(ZexVarResolverTest, ClientsOverrideVariables) {
  args->client = "ENGINE";
  resolveWith("CFLAGS='-O $CFLAGS'",
              "<client><engine CFLAGS='$CFLAGS -main' EXENAME='x' EXTRA='$NONE'/></client>");
  expect({"CFLAGS=-O $CFLAGS -main", "EXENAME=a", "EXTRA=$NONE"});
}

TEST_F(ZexVarResolverTest, ExpansionMakesEveryValueFinal) {
  resolveWith(
      "COMPILER='gcc' ALL='é\U0001F600$CC1 $CLIBS$CXXLIBS$FLIBS$NONE $$CC1 $A $1A' CC1='$COMPILER -x'"
      " SELF='[$SELF]' CMDLINE100='$CC1 $SRC -o $OBJ' AA='$PATH' PATH='$CC1'",
      "<env PATH='$CC1:$PATH'/>");
  expect({"ALL=é\U0001F600gcc -x $NONE $$CC1 $A $1A", "SELF=[$SELF]", "CMDLINE100=gcc -x \"/s/a.c\" -o /tmp/t/a.o",
          "AA=gcc -x"});
  EXPECT_EQ(opt->value(u"config.env.<xmlattr>.PATH"), u"gcc -x:$PATH");

  args->sources.push_back(u"/s/b.c");
  resolveWith("CMDLINE100='cc $SRC -o $OBJ' CMDLINE200='ld $OBJS'");
  expect({"CMDLINE100=-", "CMDLINE100_0=cc \"/s/a.c\" -o /tmp/t/a.o", "CMDLINE100_1=cc \"/s/b.c\" -o /tmp/t/b.o",
          "CMDLINE100_2=-", "CMDLINE200=ld /tmp/t/a.o /tmp/t/b.o "});
}

TEST_F(ZexVarResolverTest, ReportsTheEdgeThatClosesACircle) {
  // Not the edge at which one search over everything would meet the circle.
  resolveWith("AA='$CC' BB='$AA' CC='$BB' EE='$FF' FF='$EE'");
  EXPECT_EQ(failure, "TESSEL:zex:CircRef(\"config.vars.<xmlattr>.CC\", \"config.vars.<xmlattr>.BB\")");
}

TEST_F(ZexVarResolverTest, FortranAsksForWideIntegers) {
  args->languages = {"FORTRAN", "C"};
  for (const bool compatible : {false, true}) {
    args->compatibleArrayDims = compatible;
    resolveWith("FLAGS='-x' COMPFLAGS='$FLAGS'");
    expect({compatible ? "COMPFLAGS=-x" : "COMPFLAGS=-x /integer-size:64"});
  }
}

TEST_F(ZexVarResolverTest, DebugWinsAndKeepsTheObjectsOfOneArchitecture) {
  args->debug = args->optimize = true;
  resolveWith("OPTFLAGS='-O' DEBUGFLAGS='-g' LINKOPT='-s' CMDLINE100=' rm $OBJ'");
  expect({"OPTIM=-g", "LINKOPTIM=", "CMDLINE100= rm /tmp/t/a.o"});
  args->arch = "maci64";
  resolveWith("CMDLINE100=' rm -f $OBJ x a.o '");
  expect({"CMDLINE100=rm -f  x a.o", "OBJ=a.o"});
}

}  // namespace
}  // namespace zex_cmd
