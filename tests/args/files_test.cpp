#include "args/CommandLine.hpp"

namespace zex_test {
namespace {

class Files : public CommandLine {
 protected:
  Files() { write({"a.c", "b.cpp", "k.cu", "f.f90", "prog", "cc", "d/y.c", "d/x.c"}); }
};

TEST_F(Files, AreSortedByExtension) {
  const Case cases[] = {
      {{u"missing.LIB", u"x/é.so", u"m.maci64_a"}, "EXLIBRARIES= \"missing.LIB\" \"x/é.so\" \"m.maci64_a\""},
      {{u"x/no.obj", u"r s.RES", u"o.glnxa64_o"}, "objects=\"x/no.obj\" \"r s.RES\" \"o.glnxa64_o\""},
      {{u"d/*.c", u"*.c"}, "languages=C; sources=\"~/d/x.c\";\"~/d/y.c\";\"~/a.c\""},
      {{u"a.c", u"prog"}, "TESSEL:zex:UnknownExt(\"\")"},
      {{u"no/*.c"}, "TESSEL:zex:SrcNotFound(\"~/no/*.c\", \"~/no/*.c\")"},
      {{u"$x.o"}, platform.refusesShellSigns ? "TESSEL:zex:Error(\"Invalid path $x.o\")" : "objects=\"$x.o\""},
  };
  for (const Case& row : cases) EXPECT_EQ(walked(row.line), row.expected);
}

TEST_F(Files, LanguagesMixUpwardsOnly) {
  const Case cases[] = {
      {{u"b.cpp", u"a.c"}, "C++"},
      {{u"k.cu", u"b.cpp", u"a.c"}, "CUDA"},
      {{u"a.c", u"-cxx"}, "C++"},
      {{u"a.c", u"-fortran"}, "C,FORTRAN"},
      {{u"a.c", u"f.f90"}, "TESSEL:zex:MixLang(\"C\", \"FORTRAN\")"},
      {{u"-fortran", u"-cxx"}, "TESSEL:zex:MixLang(\"FORTRAN\", \"C++\")"},
  };
  for (const Case& row : cases) {
    const std::string told = walked(row.line);
    EXPECT_TRUE(told == row.expected || told.starts_with("languages=" + row.expected + ";")) << told;
  }
}

TEST_F(Files, SetupTakesOneLanguageWord) {
  const Case cases[] = {
      {{u"-setup", u"ANY"}, "languages=C,C++,CUDA,FORTRAN; flags=setup,word"},
      {{u"-setup", u"Fortran"}, "languages=FORTRAN; flags=setup,word"},
      {{u"-setup", u"cpp", u"fortran"}, "TESSEL:zex:SrcNotFound(\"~/fortran\", \"~/fortran\")"},
      {{u"-setup", u"Nonsense"}, "TESSEL:zex:UnknownLanguage(\"Nonsense\")"},
  };
  for (const Case& row : cases) EXPECT_EQ(parsed(row.line), row.expected);
}

}  // namespace
}  // namespace zex_test
