#include "vars/ZexVarResolver.hpp"

#include <gmock/gmock.h>

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace zex_cmd {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

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
      const ustring value = opt->variable(fl::i18n::to_ustring(name)).value_or(u"-");
      EXPECT_EQ(name + "=" + fl::i18n::to_string(value), expected);
    }
  }

  zex_test::Scratch scratch;
  zex_test::RecordingServices host;
  boost::shared_ptr<ZexArgs> args = boost::make_shared<ZexArgs>();
  boost::shared_ptr<ZexOpt> opt;
  std::string failure;
};

TEST_F(ZexVarResolverTest, FilesFollowSourcesAndObjects) {
  args->sources = {u"/s/sub/a b.c"};
  resolveWith("");
  expect({"SRC=\"/s/sub/a b.c\"", "OBJ=\"/tmp/t/a b.o\"", "OBJS=\"/tmp/t/a b.o\" ", "SRCROOT=/s/sub/a b",
          "DEF=\"/tmp/t/a b.def\"", "EXE=\"a b.zexa64\"", "EXP=\"a b.exp\"", "LIB=\"a b.lib\"", "ILK=\"a b.ilk\"",
          "MANIFEST=\"a b.zexa64.manifest\"", "TEMPNAME=a b", "EXEDIR=", "EXENAME=a b", "TESSELROOT=/install",
          "ARCH=glnxa64"});

  args->sources = {u"/s/x.y.c", u"/install/v.c"};
  args->objects = {u"sub/o.o", u"p q.o"};
  args->apiVersionSourceAdded = true;
  resolveWith("");
  expect({"SRC=\"/s/x.y.c\";\"/install/v.c\"", "OBJ=/tmp/t/x.y.o;/tmp/t/v.o", "EXENAME=x.y",
          "OBJS=/tmp/t/x.y.o /tmp/t/v.o \"sub/o.o\" \"p q.o\""});

  args->sources.erase(args->sources.begin());
  resolveWith("");
  expect({"EXENAME=o", "SRCROOT=sub/o", "OBJ=/tmp/t/v.o"});

  args->sources = {u"/s/it's.c"};
  args->objects.clear();
  args->apiVersionSourceAdded = false;
  resolveWith("");
  expect({"OBJ=\"/tmp/t/it's.o\"", "DEF=\"/tmp/t/it's.def\"", "EXE=\"it's.zexa64\""});

  args->sources.clear();
  resolveWith("");
  expect({"SRC=", "OBJ=", "OBJS=", "EXENAME="});
}

TEST_F(ZexVarResolverTest, OutputSwitchesMoveTheProduct) {
  const std::string here = scratch.folder().string();
  args->compileOnly = true;
  args->output = u"made/out/name.ext";
  resolveWith("");
  expect({"OBJ=a.o", "EXEDIR=" + here + "/made/out/", "EXE=\"" + here + "/made/out/name.zexa64\""});

  args->output = u"elsewhere/name";
  args->outDir = scratch.path("new/dir");
  resolveWith("");
  expect({"EXEDIR=" + here + "/new/dir/", "EXENAME=name", "OBJ=\"" + here + "/new/dir/a.o\""});
  EXPECT_TRUE(scratch.has("made/out"));
  EXPECT_TRUE(scratch.has("new/dir"));
  EXPECT_FALSE(scratch.has("elsewhere"));
}

TEST_F(ZexVarResolverTest, ArgumentsGoInFrontOfTheDocumentsText) {
  args->includes = u" -I\"/a\" -I\"/b c\"";
  args->defines = u" ONE MSG=\"a b\" -UTWO É\U0001F600";
  args->libraryPaths = u" \"/l 1\"";
  args->libraries = u" \"m\"";
  args->exLibraries = u" \"x.a\" \"y z.a\" \"it's.a\"";
  resolveWith("INCLUDES='-I.' USERLIBS='-lc'");
  expect({"INCLUDES=-I\"/a\" -I\"/b c\"  -I.", "DEFINES=-DONE  -DMSG=\"a b\"  -UTWO  -DÉ\U0001F600   ",
          "USERLIBS=x.a \"y z.a\" \"it's.a\"  -lm --as=m   \"-L/l 1\"   -lc"});

  // Without arguments the target needs neither a formatter nor a variable.
  *args = ZexArgs();
  resolve("<Details IncludeFlags='' CompilerDefines='$D' LinkerLibraries='$'/><vars/>");
  expect({"D=-"});

  args->defines = u" ONE";
  const std::pair<std::string, std::string> failures[] = {
      {"LinkerLibraries='$L'", "config.Details.<xmlattr>.CompilerDefineFormatter"},
      {"CompilerDefineFormatter='-D%s'", "config.Details.<xmlattr>.LinkerLibraries"},
      {"CompilerDefineFormatter='-D%s;'", "format"},
  };
  for (const auto& [attribute, text] : failures) {
    resolve("<Details IncludeFlags='$I' CompilerDefines='$D' " + attribute + "/>");
    EXPECT_THAT(failure, HasSubstr(text));
  }
}

TEST_F(ZexVarResolverTest, AssignmentsExtendTheEnvironmentBlockOrElseAVariable) {
  args->variables = {{u"COMPFLAGS", u"\"$COMPFLAGS -Wall\""}, {u"NEW", u"$NEW$NEW."}, {u"LIBPATH", u"x;$LIBPATH"}};
  resolveWith("COMPFLAGS='-fPIC'", "<env LIBPATH='/l'/>");
  expect({"COMPFLAGS=-fPIC -Wall", "NEW=.", "LIBPATH=-"});
  EXPECT_EQ(opt->value(u"config.env.<xmlattr>.LIBPATH"), u"x;/l");
}

TEST_F(ZexVarResolverTest, ClientsOverrideVariables) {
  const auto resolveFor = [&](const char* client, bool setup) {
    args->client = client;
    args->setup = setup;
    resolveWith("CFLAGS='-O $CFLAGS'", "<client><engine CFLAGS='$CFLAGS -main' EXTRA='$NONE'/></client>");
  };
  resolveFor("ENGINE", false);
  expect({"CFLAGS=-O $CFLAGS -main", "EXTRA=$NONE"});
  resolveFor("engine", false);
  EXPECT_EQ(failure, "TESSEL:zex:UnknownClient(\"engine\")");
  resolveFor("ENGINE", true);
  // Client elements have no part in the expansion, where this one would close a circle.
  expect({"CFLAGS=-O $CFLAGS", "EXTRA=-"});
}

TEST_F(ZexVarResolverTest, DebugWinsOverOptimization) {
  const std::string flags = "OPTFLAGS='-O' DEBUGFLAGS='-g' LINKOPT='-s'";
  args->optimize = true;
  resolveWith(flags);
  expect({"OPTIM=-O", "LINKOPTIM=-s"});
  args->debug = true;
  resolveWith(flags);
  expect({"OPTIM=-g", "LINKOPTIM="});

  const std::string rest = "<Details IncludeFlags='' CompilerDefines='' LinkerLibraries='' DebugFlags=";
  resolve(rest + "'-O'/>");
  EXPECT_THAT(failure, StartsWith("TESSEL:zex:ErrXMLAttr(\"config.Details.<xmlattr>.DebugFlags\", "));
  resolve(rest + "''/>");
  EXPECT_THAT(failure, HasSubstr("substr"));
}

TEST_F(ZexVarResolverTest, ExpansionMakesEveryValueFinal) {
  resolveWith(
      "COMPILER='gcc' ALL='$CC1 $CLIBS$FLIBS$NONE $$CC1 $A' CC1='$COMPILER -x' SELF='[$SELF]'"
      " CMDLINE100='$CC1 $SRC -o $OBJ'",
      "<env PATH='$CC1:$PATH'/>");
  expect({"ALL=gcc -x $NONE $$CC1 $A", "SELF=[$SELF]", "CMDLINE100=gcc -x \"/s/a.c\" -o /tmp/t/a.o"});
  EXPECT_EQ(opt->value(u"config.env.<xmlattr>.PATH"), u"gcc -x:$PATH");

  args->sources.push_back(u"/s/b.c");
  resolveWith("CMDLINE100='cc $SRC -o $OBJ' CMDLINE200='ld $OBJS' LATE='see $CMDLINE100'");
  expect({"CMDLINE100=-", "CMDLINE100_0=cc \"/s/a.c\" -o /tmp/t/a.o", "CMDLINE100_1=cc \"/s/b.c\" -o /tmp/t/b.o",
          "CMDLINE100_2=-", "CMDLINE200=ld /tmp/t/a.o /tmp/t/b.o ", "LATE=see $CMDLINE100"});

  // A list that is itself split up is no list any more.
  args->variables = {{u"OBJ", u"$SRC.o"}};
  resolveWith("CMDLINE100='cc $SRC>$OBJ'");
  expect({"OBJ=-", "OBJ_1=\"/s/b.c\".o", "CMDLINE100_0=cc \"/s/a.c\">"});

  resolveWith("AA='$BB' BB='$AA'");
  EXPECT_THAT(failure, StartsWith("TESSEL:zex:CircRef(\"config.vars.<xmlattr>.BB\""));
}

TEST_F(ZexVarResolverTest, FortranAsksForWideIntegers) {
  const auto flags = [&](const std::vector<std::string>& languages, bool compatible) {
    args->languages = languages;
    args->compatibleArrayDims = compatible;
    resolveWith("FLAGS='-x' COMPFLAGS='$FLAGS'");
    return opt->variable(u"COMPFLAGS");
  };
  EXPECT_EQ(flags({"FORTRAN", "C"}, false), u"-x /integer-size:64");
  EXPECT_EQ(flags({"FORTRAN"}, true), u"-x");
  EXPECT_EQ(flags({"C", "FORTRAN"}, false), u"-x");
}

TEST_F(ZexVarResolverTest, DebugBuildsOfOneArchitectureKeepTheirObject) {
  args->debug = true;
  resolveWith("CMDLINE100=' rm $OBJ'");
  expect({"CMDLINE100= rm /tmp/t/a.o"});
  args->arch = "maci64";
  resolveWith("CMDLINE100=' rm -f $OBJ x a.o ' CMDLINE200='rmdir $OBJ'");
  expect({"CMDLINE100=rm -f  x a.o", "CMDLINE200=rmdir a.o", "OBJ=a.o"});
}

}  // namespace
}  // namespace zex_cmd
