#include "args/CommandLine.hpp"

namespace zex_test {
namespace {

class Files : public CommandLine {
 protected:
  Files() { write({"a.c", "B.C", "b.cpp", "k.cu", "f.f90", "prog", "cc", "d/y.c", "d/x.c"}); }
};

TEST_F(Files, AreSortedByExtension) {
  const Case cases[] = {
      {{u"missing.LIB", u"x/é.so", u"m.maci64_a"}, "EXLIBRARIES= \"missing.LIB\" \"x/é.so\" \"m.maci64_a\""},
      {{u"x/no.obj", u"r s.RES", u"o.glnxa64_o"}, "objects=\"x/no.obj\" \"r s.RES\" \"o.glnxa64_o\""},
      {{u"d/../B.C"}, "languages=C; sources=\"~/B.C\""},
      {{u"d/*.c", u"*.c"}, "languages=C; sources=\"~/d/x.c\";\"~/d/y.c\";\"~/a.c\""},
      {{u"*.mm"}, "languages=C++"},
      {{u"a.c", u"prog"}, "TESSEL:zex:UnknownExt(\"\")"},
      {{u"missing.qq"}, "TESSEL:zex:SrcNotFound(\"~/missing.qq\", \"~/missing.qq\")"},
      {{u"-"}, "TESSEL:zex:SrcNotFound(\"~/-\", \"~/-\")"},
      {{u"no/*.c"}, "TESSEL:zex:SrcNotFound(\"~/no/*.c\", \"~/no/*.c\")"},
      {{u"$x.o"}, "TESSEL:zex:Error(\"Invalid path $x.o\")"},
  };
  for (const Case& row : cases) EXPECT_EQ(walked(row.line), row.expected);
  scratch.write("d/z;z.c", "");
  EXPECT_EQ(walked({u"d/*.c"}), "TESSEL:zex:Error(\"Invalid path ~/d/z;z.c\")");
}

TEST_F(Files, LanguagesMixUpwardsOnly) {
  const Case cases[] = {
      {{u"a.c", u"b.cpp"}, "C++"},
      {{u"b.cpp", u"a.c"}, "C++"},
      {{u"a.c", u"k.cu"}, "CUDA"},
      {{u"b.cpp", u"k.cu"}, "CUDA"},
      {{u"k.cu", u"b.cpp", u"a.c"}, "CUDA"},
      {{u"a.c", u"-cxx"}, "C++"},
      {{u"a.c", u"-fortran"}, "C,FORTRAN"},
      {{u"a.c", u"f.f90"}, "TESSEL:zex:MixLang(\"C\", \"FORTRAN\")"},
      {{u"f.f90", u"k.cu"}, "TESSEL:zex:MixLang(\"FORTRAN\", \"CUDA\")"},
      {{u"-fortran", u"-cxx"}, "TESSEL:zex:MixLang(\"FORTRAN\", \"C++\")"},
  };
  for (const Case& row : cases) {
    const std::string told = walked(row.line);
    EXPECT_TRUE(told == row.expected || told.starts_with("languages=" + row.expected + ";")) << told;
  }
}

TEST_F(Files, SetupTakesOneLanguageWord) {
  const std::string all = "languages=C,C++,CUDA,FORTRAN; flags=setup";
  const Case cases[] = {
      {{u"-setup"}, all},
      {{u"-setup", u"ANY"}, all + ",word"},
      {{u"-setup", u"Fortran"}, "languages=FORTRAN; flags=setup,word"},
      {{u"-setup", u"cc", u"cc"}, "TESSEL:zex:UnknownExt(\"\")"},
      {{u"-setup", u"cpp", u"fortran"}, "TESSEL:zex:SrcNotFound(\"~/fortran\", \"~/fortran\")"},
      {{u"-setup", u"Nonsense"}, "TESSEL:zex:UnknownLanguage(\"Nonsense\")"},
      {{u"-setup", u"a.c"}, "languages=C; sources=\"~/a.c\"; flags=setup"},
      {{u"cpp", u"-setup"}, "TESSEL:zex:SrcNotFound(\"~/cpp\", \"~/cpp\")"},
  };
  for (const Case& row : cases) EXPECT_EQ(parsed(row.line), row.expected);
}

TEST_F(Files, ApiVersionSourceFollowsTheLanguage) {
  host.install = scratch.path("tree");
  EXPECT_THAT(failureOf([&] { args.addApiVersionSource(""); }),
              testing::HasSubstr("/tree/extern/version/c_zexapi_version.c"));
  for (const char* name : {"c_zexapi_version.c", "cpp_zexapi_version.cpp", "fortran_zexapi_version.F"}) {
    scratch.write(std::string("tree/extern/version/") + name, "");
  }
  const struct {
    std::vector<fl::ustring> line;
    std::string documentLanguage, last;
  } cases[] = {
      {{u"k.cu"}, "", "tree/extern/version/c_zexapi_version.c"},
      {{u"b.cpp"}, "", "tree/extern/version/cpp_zexapi_version.cpp"},
      {{u"b.cpp", u"-fortran"}, "", "tree/extern/version/fortran_zexapi_version.F"},
      {{u"b.cpp"}, "FORTRAN", "tree/extern/version/fortran_zexapi_version.F"},
      {{u"f.f90"}, "ADA", "tree/extern/version/c_zexapi_version.c"},
      {{u"-c", u"a.c"}, "", "a.c"},
      {{u"-client", u"engine", u"a.c"}, "", "a.c"},
  };
  for (const auto& row : cases) {
    walked(row.line);
    args.linkOnly = true;
    args.addApiVersionSource(row.documentLanguage);
    EXPECT_EQ(args.sources.back(), scratch.path(row.last));
    EXPECT_EQ(args.apiVersionSourceAdded, row.last != "a.c");
    EXPECT_EQ(args.linkOnly, row.last == "a.c");
  }
}

}  // namespace
}  // namespace zex_test
