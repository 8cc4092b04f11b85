#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

/// One command that gives one loadable product.
struct Build {
  std::string name;
  std::string arguments;
  std::string product;  ///< without its extension
  long long answer;
  std::string before = "true";  ///< line of the shell that prepares the folder
  Names alsoMade = {};
};

void PrintTo(const Build& build, std::ostream* stream) {
  *stream << "zex " << build.arguments;
}

class Builds : public EndToEnd, public testing::WithParamInterface<Build> {};

TEST_P(Builds, GiveALoadableProductAndNothingElse) {
  const Build& row = GetParam();
  if (needsMissingTool(row.arguments)) GTEST_SKIP() << "nvcc is not installed";
  ASSERT_EQ(shell(row.before).status, 0);

  Names made = row.alsoMade;
  made.push_back(row.product + ".zexa64");
  build(row.arguments, made);

  EXPECT_EQ(answer(row.product + ".zexa64"), row.answer);
}

const std::string oddly = "o (1)&é";
const std::string oddCopies =
    "mkdir 'o (1)&é'; for f in value.c value.cpp bits.f90 kernel.cu; do "
    "cp $f 'o (1)&é'; cp $f \"o (1)&é.${f#*.}\"; done; echo '#define VALUE 5' > 'o (1)&é/value.h'";
const std::string archive = "gcc -fPIC -c helper.c && mkdir 'l é' && ar rc 'l é/libhelper.a' helper.o";
const std::string responses =
    "printf 'value.c\\n\\n  @\"in ner\"   -output\\n\"na me\"' > outer; echo -DVALUE=9 > 'in ner'";

const Build builds[] = {
    // Languages.
    {"C", "value.c", "value", 42},
    {"Cpp", "value.cpp", "value", 43},
    {"CAndCpp", "caller.c helper.cpp", "caller", 7},
    {"Wildcard", "'*r.c'", "caller", 6},
    {"Fortran", "bits.f90", "bits", 64},
    {"FortranModules", "-largeArrayDims base.f90 raised.f90 modules.f90", "base", 44},
    {"Cuda", "kernel.cu caller.c", "kernel", 8},
    {"CWithFortranObject", "caller.c helper.o -fortran FLIBS=-lgfortran", "caller", 1234,
     "\"$ZEX\" -c helper.f90"},
    {"Clang", "-f \"$OPTS/clang.xml\" -DVALUE=__clang__ value.c", "value", 1},
    {"ClangCpp", "-f \"$OPTS/clang++.xml\" value.cpp", "value", 43},

    // Names and places.
    {"OddC", "'o (1)&é/value.c' '-Io (1)&é' -outdir 'o (1)&é/new' -output 'p(2)&ü'", "o (1)&é/new/p(2)&ü", 5,
     oddCopies},
    {"OddCpp", "'o (1)&é.cpp'", oddly, 43, oddCopies},
    {"OddFortran", "'o (1)&é.f90'", oddly, 64, oddCopies},
    {"OddCuda", "'o (1)&é.cu' caller.c", oddly, 8, oddCopies},
    {"OutputFolderAndName", "-output lost/name -outdir new value.c", "new/name", 42},

    // Switches.
    {"Optimized", "optimized.c", "optimized", 11},
    {"DebugWinsOverOptimized", "-g -O optimized.c", "optimized", 0},
    {"Define", "-DVALUE=7 value.c", "value", 7},
    {"DefineForTheShell", R"("-DVALUE='\"a text\"[2]'" value.c)", "value", 't'},
    {"LibraryByName", "caller.c '-Ll é' -lhelper", "caller", 6, archive},
    {"SharedLibrary", "caller.c libhelper.so", "caller", 6,
     "gcc -shared -fPIC helper.c -o libhelper.so -Wl,-soname,\"$PWD/libhelper.so\""},
    {"ResponseFiles", "@outer", "na me", 9, responses},

    // Assignments.
    {"FlagsExtended", "'COMPFLAGS=$COMPFLAGS -DV=3' 'COMPFLAGS=$COMPFLAGS -DVALUE=V+5' value.c", "value", 8},
    {"FlagsKeepIncludes", "COMPFLAGS=-O3 '-Io (1)&é' value.c", "value", 5, oddCopies},
    {"PostlinkCommands", "value.c 'POSTLINK_CMDS=cp value.zexa64 one;mv one two'", "value", 42, "true", {"two"}},

    // Default integers of Fortran.
    {"Integers32ByFlags", "FFLAGS=-fno-default-integer-8 bits.f90", "bits", 32},
    {"Integers64ByFlags", "-compatibleArrayDims 'FFLAGS=$FFLAGS -fdefault-integer-8' bits.f90", "bits", 64},
};

INSTANTIATE_TEST_SUITE_P(EndToEnd, Builds, testing::ValuesIn(builds),
                         [](const auto& row) { return row.param.name; });

}  // namespace

TEST_F(EndToEnd, ObjectsAreLeftBesideTheUserAndLinkedLater) {
  build("-c caller.c helper.cpp", {"caller.o", "helper.o"});
  build("-c -outdir objects caller.c", {"objects/caller.o"});
  build("-cxx caller.o helper.o -output linked", {"linked.zexa64"});
  EXPECT_EQ(answer("linked.zexa64"), 7);
}

TEST_F(EndToEnd, ClientsGetAProgramOrAPlainSharedLibrary) {
  write("main.c", "#define ZX_HOST\n#include <zex.h>\nint main(void) { return (int)zxNumber(zxMakeReal(9)); }\n");
  build("-client ENGINE main.c", {"main"});
  // The options serve a sanitizer build alone: the program itself is not instrumented, its run-time library is,
  // and it leaves its array to the end of the process.
  EXPECT_EQ(shell("ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 ./main").status, 9);
  EXPECT_THAT(shell("ldd ./main").out, testing::HasSubstr("libzx.so.1 => " ZEX_TREE))
      << "finds the library by itself";
  // The closing line stays out for the other two.
  EXPECT_EQ(build("-client zbuild value.c", {"value.so"}).out, "TESSEL:zex:Building(\"gcc\")\n");
  EXPECT_EQ(answer("value.so"), 42);
  build("-client ZBUILD_COM -output com value.cpp", {"com.so"});
  EXPECT_EQ(answer("com.so"), 43);
  EXPECT_EQ(record("value.so") + record("com.so"), "");
}

TEST_F(EndToEnd, DebugProductsHoldTheirLines) {
  build("-g value.c", {"value.zexa64"});
  EXPECT_THAT(shell("readelf --debug-dump=decodedline value.zexa64").out, testing::HasSubstr("value.c"));
}

TEST_F(EndToEnd, TheTreeMayStandInAnOddlyNamedFolder) {
  const std::filesystem::path tree = scratch.folder() / "tree (1)&é";
  std::filesystem::create_directory_symlink(ZEX_TREE, tree);
  const zex_test::ScopedVariable root("TESSEL_ROOT", tree.c_str());
  for (const Build& row : builds) {
    if (row.name.rfind("Odd", 0) != 0 || needsMissingTool(row.arguments)) continue;
    shell(row.before + "; rm -rf *.zexa64 */new");
    build(row.arguments, {row.product + ".zexa64"});
    EXPECT_EQ(answer(row.product + ".zexa64"), row.answer);
    EXPECT_THAT(record(row.product + ".zexa64"), testing::HasSubstr("dims=64"));
  }
  EXPECT_THAT(build("-n value.c").out, testing::HasSubstr(tree.string() + "/extern/version/c_zexapi_version.c"));
}

}  // namespace end_to_end
