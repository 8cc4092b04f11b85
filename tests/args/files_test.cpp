#include "args/CommandLine.hpp"

namespace zex_test {
namespace {

class Files : public CommandLine {
 protected:
  Files() {
    for (const char* name : {"a.c", "b.cpp", "k.cu", "f.f90", "prog", "d/y.c", "d/x.c", "odd/a;b.c"})
      scratch.write(name, "");
  }
};

TEST_F(Files, AreSortedByExtension) {
  expectWalked({
      {{u"missing.LIB", u"x/é.so", u"m.maci64_a"}, "EXLIBRARIES= \"missing.LIB\" \"x/é.so\" \"m.maci64_a\""},
      {{u"x/no.obj", u"r s.RES", u"o.glnxa64_o"}, "objects=\"x/no.obj\" \"r s.RES\" \"o.glnxa64_o\""},
      {{u"d/*.c", u"*.c"}, "languages=C; sources=\"~/d/x.c\";\"~/d/y.c\";\"~/a.c\""},
      {{u"a.c", u"prog"}, "TESSEL:zex:UnknownExt(\"\")"},
      {{u"no/*.c"}, "TESSEL:zex:SrcNotFound(\"~/no/*.c\", \"~/no/*.c\")"},
      {{u"odd/*.c"}, "TESSEL:zex:Error(\"Invalid path ~/odd/a;b.c\")"},
      {{u"-"}, "TESSEL:zex:SrcNotFound(\"~/-\", \"~/-\")"},
      {{u"$x.o"}, platform.refusesShellSigns ? "TESSEL:zex:Error(\"Invalid path $x.o\")" : "objects=\"$x.o\""},
  });
}

TEST_F(Files, LanguagesMixUpwardsOnly) {
  expectWalked({
      {{u"b.cpp", u"a.c"}, "languages=C++; sources=\"~/b.cpp\";\"~/a.c\""},
      {{u"k.cu", u"b.cpp", u"a.c"}, "languages=CUDA; sources=\"~/k.cu\";\"~/b.cpp\";\"~/a.c\""},
      {{u"a.c", u"-cxx"}, "languages=C++; sources=\"~/a.c\""},
      {{u"a.c", u"-fortran"}, "languages=C,FORTRAN; sources=\"~/a.c\""},
      {{u"a.c", u"f.f90"}, "TESSEL:zex:MixLang(\"C\", \"FORTRAN\")"},
      {{u"-fortran", u"-cxx"}, "TESSEL:zex:MixLang(\"FORTRAN\", \"C++\")"},
  });
}

TEST_F(Files, SetupTakesOneLanguageWord) {
  expectParsed({
      {{u"-setup", u"ANY"}, "languages=C,C++,CUDA,FORTRAN; flags=setup,word"},
      {{u"-setup", u"Fortran"}, "languages=FORTRAN; flags=setup,word"},
      {{u"-setup", u"cpp", u"fortran"}, "TESSEL:zex:SrcNotFound(\"~/fortran\", \"~/fortran\")"},
      {{u"-setup", u"Nonsense"}, "TESSEL:zex:UnknownLanguage(\"Nonsense\")"},
  });
}

}  // namespace
}  // namespace zex_test
