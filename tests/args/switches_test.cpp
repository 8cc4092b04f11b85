#include "args/CommandLine.hpp"

namespace zex_test {
namespace {

using Switches = CommandLine;

TEST_F(Switches, ChangeTheRecord) {
  scratch.write("doc.xml", "");
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
      {{u"-TESSEL", u"missing.c", u"-g", u"-tessel"}, "flags=debug"},
  });
  EXPECT_EQ(host.output, "TESSEL:zex:Verbose\n");
  EXPECT_THAT(host.warnings,
              testing::ElementsAre("TESSEL:zex:NotAnOption(\"-TESSEL\")", "TESSEL:zex:NotAnOption(\"-tessel\")"));
}

TEST_F(Switches, UnknownOnesFail) {
  const fl::ustring all =
      u"-R -R2016b -R0x -R2018az -cx -Compatiblearraydims -D -dX -fo -G -gx -I -iX -L -l -o -outdirs -s -setup: "
      u"-setupx -tesselx -U -uX -vx -x=1 -xml:list.xml -é --g -H -HELP -Inline -ADA";
  for (const fl::ustring& token : zex_cmd::splitTokens(all, u" "))
    expectWalked({{{token}, "TESSEL:zex:UnknownSwitch(\"" + zex_test::utf8(token) + "\")"}});
}

TEST_F(Switches, FailuresNameTheirCauseAndAreAnnouncedOnce) {
  expectWalked({
      {{u"-r2018a", u"-R2017b"}, "TESSEL:zex:IncompatibleSwitches(\"R2018a\", \"R2017b\")"},
      {{u"-Client", u"zbuilt"}, "TESSEL:zex:UnknownClient(\"zbuilt\")"},
      {{u"-g", u"-OutDir"}, "TESSEL:zex:ErrOption(\"-OutDir\")"},
  });
  EXPECT_EQ(host.errors.size(), 3U);
}

}  // namespace
}  // namespace zex_test
