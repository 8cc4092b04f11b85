#include <regex>
#include <set>

#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

bool succeeds(const std::string& line) {
  return std::system(("{ " + line + "; } > /dev/null 2>&1").c_str()) == 0;
}

/// Builds for Windows on Linux. Products are called by a program under Wine, whose folders all tests share: making
/// them takes as long as many calls.
class Cross : public EndToEnd {
 protected:
  void SetUp() override {
    static const bool hasTools =
        succeeds("x86_64-w64-mingw32-gcc -v && x86_64-w64-mingw32-g++ -v && x86_64-w64-mingw32-gfortran -v");
    if (!hasTools) GTEST_SKIP() << "the MinGW-w64 compilers are not all installed";
  }

  static bool hasWine() {
    static const bool has = *ZEX_WINDOWS_LOADER != '\0' && succeeds("wine --version");
    return has;
  }

  /// One call at a time, since the first makes the folders. Wine's server stays for a minute: a program that
  /// starts while it ends would fail. What stays must keep neither the lock nor the output.
  Outcome underWine(const std::string& program, const std::string& arguments) const {
    fs::create_directories(ZEX_WINE_FOLDER);
    const std::string environment = "export WINEPREFIX='" ZEX_WINE_FOLDER
                                    "' WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='"
                                    " LC_ALL=C.UTF-8 TMPDIR=/tmp; ";
    const std::string made = "'" ZEX_WINE_FOLDER "/made'";
    write("../begin.sh",
          "wineserver --persistent=60\ntest -e " + made + " || wineboot --init && touch " + made + "\n");
    const std::string underLock = "flock -o '" ZEX_WINE_FOLDER ".lock' ";
    return shell(environment + underLock + "sh ../begin.sh > /dev/null 2>&1; " + underLock + "wine '" + program +
                 "' " + arguments);
  }

  /// What the entry point of a product of the current folder stores or throws.
  std::string answer(const std::string& product) const {
    return underWine(ZEX_WINDOWS_LOADER, "'" + product + "'").out;
  }

  /// The programs of the tree for Windows, which another preset builds; empty where it was not.
  static fs::path windowsPrograms() {
    const fs::path folder = ZEX_WINDOWS_TREE "/bin/win64";
    return hasWine() && fs::exists(folder / "zexrun.exe") ? folder : fs::path();
  }

  /// All that a pattern with one group finds in the headers of a product.
  Names inHeaders(const std::string& product, const std::string& pattern) const {
    const std::string text = shell("x86_64-w64-mingw32-objdump -f -p '" + product + "'").out;
    EXPECT_THAT(text, HasSubstr("file format pei-x86-64")) << product;
    const std::regex expression(pattern);
    Names found;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
      found.push_back((*match)[1]);
    return found;
  }
  Names exportsOf(const std::string& product) const {
    return inHeaders(product, "\t\\[ *[0-9]+\\] ([A-Za-z_]\\w*)");
  }
  Names librariesOf(const std::string& product) const { return inHeaders(product, "DLL Name: (\\S+)"); }
};

struct Build {
  std::string name;
  std::string arguments;
  std::string product;  ///< without its extension
  std::string answer;
  std::string before = "true";  ///< line of the shell that prepares the folder
  Names alsoNeeds = {};         ///< libraries beside those of every Windows machine
  Names exports = {"zexFunction", "zexapi_version_record"};
};

void PrintTo(const Build& build, std::ostream* stream) {
  *stream << "zex -win64 " << build.arguments;
}

class CrossBuilds : public Cross, public testing::WithParamInterface<Build> {};

TEST_P(CrossBuilds, GiveAProductThatLoadsAnywhereAndShowsItsEntryPointAlone) {
  const Build& row = GetParam();
  ASSERT_EQ(shell(row.before).status, 0);
  const std::string product = row.product + ".zexw64";
  build("-win64 " + row.arguments, {product});

  EXPECT_THAT(exportsOf(product), UnorderedElementsAreArray(row.exports));
  Names libraries = {"KERNEL32.dll", "msvcrt.dll"};
  libraries.insert(libraries.end(), row.alsoNeeds.begin(), row.alsoNeeds.end());
  EXPECT_THAT(librariesOf(product), UnorderedElementsAreArray(libraries));

  if (!hasWine())
    GTEST_SKIP() << "no Wine, or no compiler when the build was configured: the product was not called";
  EXPECT_EQ(answer(product), row.answer);
}

const std::string oddCopies =
    "mkdir 'o (1)&é'; for f in value.c value.cpp bits.f90; do cp $f \"o (1)&é.${f#*.}\"; done";
const std::string dll = "mkdir 'l é' && x86_64-w64-mingw32-gcc -shared helper.c -o helper.dll ";
const std::string raising =
    "printf '#include <zex.h>\\nvoid zexFunction(int l, zxArray* p[], int r, const zxArray* q[])"
    " { zexFail(\"raise:it\", \"\"); }\\n' > raise.c; cp raise.c raise.cpp; "
    "printf 'subroutine zexfunction\\n call zex_fail(\"a\", \"b\")\\nend\\n' > raise.f90";
const Names fortran = {"zexfunction_", "zexapi_version_record_"};

const Build builds[] = {
    // Languages.
    {"C", "value.c", "value", "42"},
    {"Cpp", "value.cpp", "value", "43"},
    {"CAndCpp", "caller.c helper.cpp", "caller", "7"},
    {"CppThreads", "threads.cpp", "threads", "4",
     "printf '#include <thread>\\nextern \"C\" void zexFunction(long long* n)"
     " { std::thread([n] { *n = 4; }).join(); }\\n' > threads.cpp"},
    {"Fortran", "bits.f90", "bits", "64", "true", {}, fortran},
    {"FortranCompatible", "-compatibleArrayDims bits.f90", "bits", "32", "true", {}, fortran},
    {"FortranModules", "-largeArrayDims base.f90 raised.f90 modules.f90", "base", "44", "true", {}, fortran},
    {"CWithFortranObject",
     "caller.c helper.obj -fortran FLIBS='-lgfortran -lquadmath'",
     "caller",
     "1234",
     "\"$ZEX\" -win64 -c helper.f90",
     {},
     {"zexFunction", "zexapi_version_record_"}},

    // Names, places and switches.
    {"OddC", "'o (1)&é.c' -outdir 'o (1)&é/new' -output 'p(2)&ü'", "o (1)&é/new/p(2)&ü", "42", oddCopies},
    {"OddCpp", "'o (1)&é.cpp'", "o (1)&é", "43", oddCopies},
    {"OddFortran", "'o (1)&é.f90'", "o (1)&é", "64", oddCopies, {}, fortran},
    {"Debug", "-g -O optimized.c", "optimized", "0"},
    {"Objects", "-cxx caller.obj helper.obj", "caller", "7", "\"$ZEX\" -win64 -c caller.c helper.cpp"},

    // Libraries: of a DLL by its import library or itself, and a static one.
    {"ImportLibrary",
     "caller.c '-Ll é' -lhelper",
     "caller",
     "6",
     dll + "-Wl,--out-implib,'l é/libhelper.dll.a'",
     {"helper.dll"}},
    {"DllByName", "caller.c -L. -lhelper", "caller", "6", dll, {"helper.dll"}},
    {"StaticLibrary", "caller.c 'l é/helper.lib'", "caller", "6",
     "mkdir 'l é'; x86_64-w64-mingw32-gcc -c helper.c && x86_64-w64-mingw32-ar rc 'l é/helper.lib' helper.o"},

    // Calls of zex.h, and errors that end a call by unwinding it.
    {"CError", "raise.c", "raise", "thrown: raise:it", raising, {"libzx.dll"}},
    {"CppError", "raise.cpp", "raise", "thrown: raise:it", raising, {"libzx.dll"}},
    {"FortranError", "raise.f90", "raise", "thrown: from Fortran", raising, {"libzx.dll"}, fortran},
};

INSTANTIATE_TEST_SUITE_P(EndToEnd, CrossBuilds, testing::ValuesIn(builds),
                         [](const auto& row) { return row.param.name; });

TEST_F(Cross, LongCommandsGoThroughResponseFiles) {
  const zex_test::ScopedVariable odd("TMPDIR", work.c_str());  // its name holds a blank
  ASSERT_EQ(shell("mkdir 'i (é)' && echo '#define VALUE 64' > 'i (é)/value.h'").status, 0);
  struct {
    std::string sources, product, answer;
  } const rows[] = {
      {"value.c", "value.zexw64", "64"},
      {"value.cpp", "value.zexw64", "43"},
      {"-largeArrayDims base.f90 raised.f90 modules.f90", "base.zexw64", "44"},
  };
  for (const auto& row : rows) {
    fs::remove(row.product);
    const std::string flags = "-v '-Ii (é)' -D" + std::string(8000, 'P') + " LINKLIBS='-L\"no folder (" +
                              std::string(8000, 'l') + ")\"' ";
    const Outcome outcome = build("-win64 " + flags + row.sources, {row.product});
    EXPECT_GE(timesIn(outcome.out, "TESSEL:zex:CreateRSPFile"), 3U) << row.sources;  // compiles and link
    EXPECT_EQ(exportsOf(row.product).size(), 2U);
    if (hasWine()) {
      EXPECT_EQ(answer(row.product), row.answer);
    }
  }
}

TEST_F(Cross, ProductsRunInTheTreeForWindowsAsInThisOne) {
  if (windowsPrograms().empty()) GTEST_SKIP() << "there is no Wine, or no tree for Windows at " ZEX_WINDOWS_TREE;
  const fs::path examples = ZEX_TREE "/extern/examples";
  fs::copy(examples / "filter.c", work);
  fs::copy(examples / "product.cpp", work);
  write("halve.f90",
        "include 'zex_fortran.f90'\n"
        "subroutine zexfunction(nlhs, plhs, nrhs, prhs)\n use zex\n implicit none\n"
        " integer(zx_index), intent(in) :: nlhs, nrhs\n type(zx_array), intent(inout) :: plhs(*)\n"
        " type(zx_array), intent(in) :: prhs(nrhs)\n"
        " if (nrhs /= 1) call zex_fail('halve:inputs', 'é')\n call zex_print('halving')\n"
        " plhs(1) = zx_make_real(zx_number(prhs(1)) / 2)\nend subroutine\n");
  struct {
    std::string source, arguments;
  } const rows[] = {
      {"filter.c", "\"[0.5 0.5]\" \"[1; 2; 4; 8]\""},
      {"filter.c -R2018a", "\"[0.5 0.5]\" \"[1; 2; 4; 8]\""},
      {"filter.c -compatibleArrayDims", "1"},  // fails
      {"product.cpp", "\"[1 2; 3 4]\" \"[5; 6]\""},
      {"halve.f90", "3"},
      {"halve.f90", ""},  // fails
  };
  for (const auto& row : rows) {
    build(row.source + " -output here", {"here.zexa64"});
    build("-win64 " + row.source + " -output there", {"there.zexw64"});
    const Outcome here = zexrun("here.zexa64 " + row.arguments);
    const Outcome there = underWine(windowsPrograms() / "zexrun.exe", "there.zexw64 " + row.arguments);
    EXPECT_EQ(here.status, there.status) << row.source;
    EXPECT_EQ(here.out, std::regex_replace(there.out, std::regex("\r"), "")) << row.source << there.err;
    EXPECT_EQ(here.err.empty(), there.err.empty()) << row.source << there.err;
    fs::remove("here.zexa64");
    fs::remove("there.zexw64");
  }
}

TEST_F(Cross, TheNamesForTheLinkerAreThoseOfTheLibraryForWindows) {
  if (windowsPrograms().empty()) GTEST_SKIP() << "there is no Wine, or no tree for Windows at " ZEX_WINDOWS_TREE;
  const Names shown = exportsOf(windowsPrograms() / "libzx.dll");
  const std::string told = contentOf(ZEX_TREE "/extern/lib/win64/libzx.def");
  std::string expected = "LIBRARY libzx.dll\nEXPORTS\n";
  for (const std::string& name : std::set<std::string>(shown.begin(), shown.end())) expected += "  " + name + "\n";
  EXPECT_EQ(told, expected);
}

TEST_F(Cross, ClientsGetAProgramOrAPlainLibrary) {
  write("main.c", "#define ZX_HOST\n#include <zex.h>\nint main(void) { return (int)zxNumber(zxMakeReal(9)); }\n");
  build("-win64 -c main.c", {"main.obj"});
  build("-win64 -client ENGINE main.obj", {"main.exe"});
  EXPECT_THAT(librariesOf("main.exe"), testing::Contains("libzx.dll"));
  for (const std::string client : {"ZBUILD", "ZBUILD_COM"}) {
    build("-win64 -client " + client + " caller.c helper.cpp -output " + client, {client + ".dll"});
    EXPECT_THAT(exportsOf(client + ".dll"),
                UnorderedElementsAre("zexFunction", "helper"));  // and no run-time library
    EXPECT_EQ(librariesOf(client + ".dll").size(), 2U);
    EXPECT_EQ(record(client + ".dll"), "");
  }
}

TEST_F(Cross, DebugProductsHoldTheirLines) {
  build("-win64 -g value.c", {"value.zexw64"});
  EXPECT_THAT(shell("x86_64-w64-mingw32-objdump --dwarf=decodedline value.zexw64").out, HasSubstr("value.c:"));
}

TEST_F(Cross, TheProductsRecordFollowsItsObjects) {
  write("one.c", "#include <zex.h>\nvoid zexFunction(int l, zxArray* p[], int r, const zxArray* q[]) {}\n");
  write("two.c", "#include <zex.h>\nint two = 2;\n");
  build("-win64 -g -R2018a -c one.c", {"one.obj"});
  build("-win64 -compatibleArrayDims -c two.c", {"two.obj"});
  struct {
    std::string arguments, told;
    std::size_t repeated;
  } const rows[] = {
      {"-R2018a one.c", "release=R2018a dims=64", 0},
      {"-g one.obj", "release=R2018a dims=64", 1},
      {"two.obj", "release=R2017b dims=32", 1},
  };
  for (const auto& row : rows) {
    const std::string out = build("-win64 -v -output product " + row.arguments, {"product.zexw64"}).out;
    EXPECT_EQ(timesIn(out, "TESSEL:zex:RecompileVer("), row.repeated) << row.arguments;
    EXPECT_THAT(contentOf("product.zexw64"), HasSubstr("kind=driver " + row.told + " cmd=1;")) << row.arguments;
    fs::remove("product.zexw64");
  }
  const Outcome mixed = zex("-win64 one.obj two.obj", {"one.zexw64"});
  EXPECT_EQ(mixed.status, 1);
  EXPECT_THAT(mixed.err, HasSubstr("TESSEL:zex:Error(\"Contradicting interfaces: "));
}

TEST_F(Cross, FailuresLeaveNothing) {
  EXPECT_THAT(zex("-win64 broken.c").err, HasSubstr("broken.c:1:9: error: "));
  EXPECT_THAT(zex("-win64 value.c -lmissing").err, HasSubstr("cannot find -lmissing"));
}

TEST_F(Cross, SetupAndQueriesAreForTheArchitecture) {
  const std::string listed = shell("\"$OPTS/../zexcompilers\" any installed win64 | sort | cut -d ' ' -f 1-3").out;
  for (const char* name : {"gcc", "g++", "gfortran"})
    EXPECT_THAT(listed, HasSubstr(name + std::string(" for win64\n")));
  EXPECT_EQ(listed.find("clang"), std::string::npos) << listed;

  const fs::path selected = scratch.folder() / "prefs" / "zex_C_win64.xml";
  EXPECT_THAT(build("-win64 -setup C").out, HasSubstr("\"gcc for win64\""));
  build("-win64 -setup:gcc-win64 C");
  std::string text = contentOf(selected);
  ASSERT_THAT(text, HasSubstr("Name=\"gcc for win64\""));
  write(selected, std::regex_replace(text, std::regex("gcc for win64"), "my choice"));
  EXPECT_THAT(build("-win64 value.c", {"value.zexw64"}).out, HasSubstr("Building(\"my choice\")"));
  EXPECT_THAT(build("value.c", {"value.zexa64"}).out, HasSubstr("Building(\"gcc\")"));
}

}  // namespace

TEST_F(EndToEnd, DebugBuildsForMacKeepTheirObjectsBesideTheProduct) {
  write("mac.xml", gccDocument(".zexa64", ".zexmaci64"));
  const std::string arguments = "-maci64 -f mac.xml -outdir out ZXLIBS= value.c ";
  build(arguments, {"out/value.zexmaci64"});
  EXPECT_EQ(end_to_end::answer("out/value.zexmaci64"), 42);
  build(arguments + "-g -output other", {"out/other.zexmaci64", "out/value.o", "out/c_zexapi_version.o"});
}

}  // namespace end_to_end
