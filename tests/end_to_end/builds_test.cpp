#include "end_to_end/Targets.hpp"

namespace end_to_end {

namespace {

using testing::HasSubstr;
using testing::UnorderedElementsAreArray;

enum class On { All, Linux, Windows };

/// One command that gives one loadable product.
struct Build {
  On targets;
  std::string name;
  std::string arguments;
  std::string product;  ///< without its extension
  std::string answer;
  std::string before = "true";  ///< line of the shell that prepares the folder
  Names alsoNeeds = {};         ///< libraries beside those of every Windows machine
};

void PrintTo(const Build& build, std::ostream* stream) {
  *stream << "zex " << build.arguments;
}

const std::string odd =
    "mkdir 'o (1)&é'; for f in value.c value.cpp bits.f90 kernel.cu; do "
    "cp $f 'o (1)&é'; cp $f \"o (1)&é.${f#*.}\"; done; echo '#define VALUE 5' > 'o (1)&é/value.h'";
const std::string threads =
    "printf '#include <thread>\\nextern \"C\" void zexFunction(long long* n)"
    " { std::thread([n] { *n = 4; }).join(); }\\n' > threads.cpp";
const std::string archive = "gcc -fPIC -c helper.c && mkdir 'l é' && ar rc 'l é/libhelper.a' helper.o";
const std::string shared = "gcc -shared -fPIC helper.c -o libhelper.so -Wl,-soname,\"$PWD/libhelper.so\"";
const std::string responses =
    "printf 'value.c\\n\\n  @\"in ner\"   -output\\n\"na me\"' > outer; echo -DVALUE=9 > 'in ner'";
const std::string dll =
    "mkdir 'l é' && x86_64-w64-mingw32-gcc -shared helper.c -o helper.dll -Wl,--out-implib,'l é/libhelper.dll.a'";
const std::string lib =
    "mkdir 'l é'; x86_64-w64-mingw32-gcc -c helper.c && x86_64-w64-mingw32-ar rc 'l é/helper.lib' helper.o";
const std::string raising =
    "printf '#include <zex.h>\\nvoid zexFunction(int l, zxArray* p[], int r, const zxArray* q[])"
    " { zexFail(\"raise:it\", \"\"); }\\n' > raise.c; cp raise.c raise.cpp; "
    "printf 'subroutine zexfunction\\n call zex_fail(\"a\", \"b\")\\nend\\n' > raise.f90";

const Build builds[] = {
    // Languages.
    {On::All, "C", "value.c", "value", "42"},
    {On::All, "Cpp", "value.cpp", "value", "43"},
    {On::All, "CAndCpp", "caller.c helper.cpp", "caller", "7"},
    {On::Linux, "Wildcard", "'*r.c'", "caller", "6"},
    {On::Windows, "CppThreads", "threads.cpp", "threads", "4", threads},
    {On::All, "Fortran", "bits.f90", "bits", "64"},
    {On::All, "FortranCompatible", "-compatibleArrayDims bits.f90", "bits", "32"},
    {On::All, "FortranModules", "-largeArrayDims base.f90 raised.f90 modules.f90", "base", "44"},
    {On::All, "CWithFortranObject", "caller.c helper.$OBJ -fortran 'FLIBS=-lgfortran -lquadmath'", "caller",
     "1234", "\"$ZEX\" $FOR -c helper.f90"},

    // Names and places.
    {On::All, "OddC", "'o (1)&é/v*.c' '-Io (1)&é' -outdir 'o (1)&é/new' -output 'p(2)&ü'", "o (1)&é/new/p(2)&ü",
     "5", odd},
    {On::All, "OddCpp", "'o (1)&é.cpp'", "o (1)&é", "43", odd},
    {On::All, "OddFortran", "'o (1)&é.f90'", "o (1)&é", "64", odd},
    {On::Linux, "OddCuda", "'o (1)&é.cu' caller.c", "o (1)&é", "8", odd},
    {On::Linux, "OutputFolderAndName", "-output lost/name -outdir new value.c", "new/name", "42"},

    // Switches.
    {On::Linux, "Optimized", "optimized.c", "optimized", "11"},
    {On::All, "DebugWinsOverOptimized", "-g -O optimized.c", "optimized", "0"},
    {On::Linux, "DefineForTheShell", R"("-DVALUE='\"a text\"[2]'" value.c)", "value", "116"},
    {On::Linux, "ResponseFiles", "@outer", "na me", "9", responses},
    {On::All, "Objects", "-cxx caller.$OBJ helper.$OBJ", "caller", "7", "\"$ZEX\" $FOR -c caller.c helper.cpp"},

    // Libraries: static ones, shared ones, and a DLL by its import library or itself.
    {On::Linux, "LibraryByName", "caller.c '-Ll é' -lhelper", "caller", "6", archive},
    {On::Linux, "SharedLibrary", "caller.c libhelper.so", "caller", "6", shared},
    {On::Windows, "StaticLibrary", "caller.c 'l é/helper.lib'", "caller", "6", lib},
    {On::Windows, "ImportLibrary", "caller.c '-Ll é' -lhelper", "caller", "6", dll, {"helper.dll"}},
    {On::Windows, "DllByName", "caller.c -L. -lhelper", "caller", "6", dll, {"helper.dll"}},

    // Assignments.
    {On::Linux, "FlagsExtended", "'COMPFLAGS=$COMPFLAGS -DV=3' 'COMPFLAGS=$COMPFLAGS -DVALUE=V+5' value.c",
     "value", "8"},
    {On::Linux, "FlagsKeepIncludes", "COMPFLAGS=-O3 '-Io (1)&é' value.c", "value", "5", odd},
    {On::Linux, "PostlinkCommands", "value.c 'POSTLINK_CMDS=mv value.zexa64 one;mv one two.zexa64'", "two", "42"},
    {On::Linux, "Integers32ByFlags", "FFLAGS=-fno-default-integer-8 bits.f90", "bits", "32"},
    {On::Linux, "Integers64ByFlags", "-compatibleArrayDims 'FFLAGS=$FFLAGS -fdefault-integer-8' bits.f90", "bits",
     "64"},

    // Calls of zex.h, and errors that end a call by unwinding it.
    {On::Windows, "CError", "raise.c", "raise", "thrown: raise:it", raising, {"libzx.dll"}},
    {On::Windows, "CppError", "raise.cpp", "raise", "thrown: raise:it", raising, {"libzx.dll"}},
    {On::Windows, "FortranError", "raise.f90", "raise", "thrown: from Fortran", raising, {"libzx.dll"}},
};

std::vector<std::pair<Target, Build>> buildsForEveryTarget() {
  std::vector<std::pair<Target, Build>> all;
  for (const Build& row : builds) {
    if (row.targets != On::Windows) all.emplace_back(forThisSystem, row);
    if (row.targets != On::Linux) all.emplace_back(forWindows, row);
  }
  return all;
}

class Builds : public TargetTest, public testing::WithParamInterface<std::pair<Target, Build>> {
 protected:
  void SetUp() override { use(GetParam().first); }

  void useOddTree() {
    const std::filesystem::path tree = scratch.folder() / "tree (1)&é";
    std::filesystem::create_directory_symlink(ZEX_TREE, tree);
    set("TESSEL_ROOT", tree);
    EXPECT_THAT(build("-n value.c").out, HasSubstr(tree.string() + "/extern/version/c_zexapi_version.c"));
  }

  /// Products for Windows show their entry point alone, and need no more than they have to.
  void expectHeaders(const std::string& product, const Build& row) const {
    const bool fortran = row.arguments.find(".f90") != std::string::npos;
    const bool fortranRecord = fortran || row.arguments.find("-fortran") != std::string::npos;
    EXPECT_THAT(exportsOf(product),
                testing::UnorderedElementsAre(fortran ? "zexfunction_" : "zexFunction",
                                              fortranRecord ? "zexapi_version_record_" : "zexapi_version_record"));
    Names libraries = {"KERNEL32.dll", "msvcrt.dll"};
    libraries.insert(libraries.end(), row.alsoNeeds.begin(), row.alsoNeeds.end());
    EXPECT_THAT(librariesOf(product), UnorderedElementsAreArray(libraries));
  }
};

TEST_P(Builds, GiveALoadableProductAndNothingElse) {
  const Build& row = GetParam().second;
  if (needsMissingTool(row.arguments)) GTEST_SKIP() << "nvcc is not installed";
  ASSERT_EQ(shell(row.before).status, 0);

  const std::string product = row.product + target.product;
  if (row.name.starts_with("Odd")) useOddTree();
  const std::string out = build(target.option + " " + row.arguments, {product}).out;

  EXPECT_THAT(out, testing::Not(HasSubstr("arning")));
  const std::string bits = row.arguments.find("-compatible") == std::string::npos ? "64" : "32";
  EXPECT_THAT(contentOf(product), HasSubstr("kind=driver release=R2017b dims=" + bits + " cmd=1;"));
  if (target.isWindows()) expectHeaders(product, row);
  if (!canCall()) GTEST_SKIP() << "no Wine, or no compiler when the build was configured: nothing was called";
  EXPECT_EQ(answer(product), row.answer);
}

INSTANTIATE_TEST_SUITE_P(EndToEnd, Builds, testing::ValuesIn(buildsForEveryTarget()),
                         [](const auto& row) { return row.param.second.name + "For" + row.param.first.name; });
INSTANTIATE_TEST_SUITE_P(EndToEnd, EachTarget, testing::Values(forThisSystem, forWindows),
                         [](const auto& row) { return row.param.name; });

}  // namespace

TEST_P(EachTarget, ClientsGetAProgramOrAPlainSharedLibrary) {
  write("main.c", "#define ZX_HOST\n#include <zex.h>\nint main(void) { return (int)zxNumber(zxMakeReal(9)); }\n");
  const std::string main = "main" + target.program;
  build(target.option + " -client ENGINE main.c", {main});
  if (target.isWindows()) {
    EXPECT_THAT(librariesOf(main), testing::Contains("libzx.dll"));
  } else {
    // The options serve a sanitizer build alone: the program itself is not instrumented, its run-time library is,
    // and it leaves its array to the end of the process.
    EXPECT_EQ(shell("ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 ./main").status, 9);
    EXPECT_THAT(shell("ldd ./main").out, HasSubstr("libzx.so.1 => " ZEX_TREE)) << "finds the library by itself";
  }
  for (const std::string client : {"zbuild", "ZBUILD_COM"}) {
    const std::string library = client + target.library;
    // No closing line.
    EXPECT_THAT(
        build(target.option + " -client " + client + " caller.c helper.cpp -output " + client, {library}).out,
        testing::MatchesRegex("TESSEL:zex:Building\\(\"g\\+\\+.*\"\\)\n"));
    EXPECT_EQ(record(library), "");
    if (canCall()) {
      EXPECT_EQ(answer(library), "7");
    }
    if (!target.isWindows()) continue;
    EXPECT_THAT(exportsOf(library), testing::UnorderedElementsAre("zexFunction", "helper"));
    EXPECT_EQ(librariesOf(library).size(), 2U) << "a run-time library";
  }
}

TEST_P(EachTarget, DebugProductsHoldTheirLines) {
  build(target.option + " -g value.c", {"value" + target.product});
  const std::string tool = target.isWindows() ? "x86_64-w64-mingw32-objdump" : "objdump";
  EXPECT_THAT(shell(tool + " --dwarf=decodedline value" + target.product).out, HasSubstr("value.c"));
}

TEST_P(EachTarget, ObjectsAreLeftBesideTheUserAndTheProductsRecordFollowsThem) {
  write("one.c", "#include <zex.h>\nvoid zexFunction(int l, zxArray* p[], int r, const zxArray* q[]) {}\n");
  write("two.c", "#include <zex.h>\nint two = 2;\n");
  const std::string one = "objects/one" + target.object;
  const std::string two = "two" + target.object;
  const std::string option = target.option + " -silent ";
  build(option + "-R2018a -c -outdir objects one.c", {one});
  build(option + "-compatibleArrayDims -c two.c", {two});

  struct {
    std::string arguments, told;
    std::size_t repeated;
  } const rows[] = {
      {"-R2018a one.c", "release=R2018a dims=64", 0},
      {"-g " + one, "release=R2018a dims=64", 1},
      {two, "release=R2017b dims=32", 1},
      {"-no_zexcheck " + one + " " + two, "release=R2017b dims=64", 0},
  };
  const std::string product = "product" + target.product;
  for (const auto& row : rows) {
    const std::string out = build(option + "-v -output product " + row.arguments, {product}).out;
    EXPECT_EQ(timesIn(out, "TESSEL:zex:RecompileVer("), row.repeated) << row.arguments;
    EXPECT_THAT(contentOf(product), HasSubstr("kind=driver " + row.told + " cmd=1;")) << row.arguments;
    std::filesystem::remove(product);
  }
  // The product stays: its records tell what is wrong with it.
  const Outcome mixed = zex(option + one + " " + two, {"one" + target.product});
  EXPECT_EQ(mixed.status, 1);
  EXPECT_THAT(mixed.err, testing::AllOf(HasSubstr("TESSEL:zex:Error(\"Contradicting interfaces: "),
                                        HasSubstr("R2018a"), HasSubstr("R2017b")));
  if (canCallWithTree()) {
    EXPECT_THAT(zexrun("one" + target.product).err, HasSubstr("[TESSEL:host:InterfaceMismatch]"));
  }
}

TEST_P(EachTarget, LongCommandsGoThroughResponseFiles) {
  const zex_test::ScopedVariable blank("TMPDIR", work.c_str());
  std::string folders;
  for (int index = 0; index < 400; ++index) folders += " -L\"/usr/no folder (1)&é\"";
  ASSERT_EQ(shell("mkdir 'i (é)' && echo '#define VALUE 64' > 'i (é)/value.h'").status, 0);
  struct {
    std::string sources, product, answer;
  } const rows[] = {
      {"value.c", "value", "64"},
      {"value.cpp", "value", "43"},
      {"-largeArrayDims base.f90 raised.f90 modules.f90", "base", "44"},
      // For this system alone.
      {"-f \"$OPTS/clang.xml\" value.c", "value", "64"},
      {"-f \"$OPTS/clang++.xml\" value.cpp", "value", "43"},
      {"kernel.cu caller.c", "kernel", "8"},
  };
  for (const auto& row : rows) {
    if (needsMissingTool(row.sources) || (target.isWindows() && &row - rows > 2)) continue;
    const std::string product = row.product + target.product;
    const Outcome outcome = build(
        target.option + " -v '-Ii (é)' -D" + std::string(8000, 'P') + " 'LINKLIBS=" + folders + "' " + row.sources,
        {product});
    EXPECT_GE(timesIn(outcome.out, "TESSEL:zex:CreateRSPFile"), 3U) << row.sources;  // compiles and link
    if (target.isWindows()) {
      EXPECT_EQ(exportsOf(product).size(), 2U) << row.sources;
    }
    if (canCall()) {
      EXPECT_EQ(answer(product), row.answer) << row.sources;
    }
    std::filesystem::remove(product);
  }
}

TEST_P(EachTarget, FailuresOfToolsAreTheirOwnWordsAndLeaveNothing) {
  struct {
    std::string arguments, words;
  } const rows[] = {
      {"broken.c", "/broken.c:1:9: error: expected expression before ';'"},
      {"broken.f90", "/broken.f90:2:"},
      {"caller.c", "undefined reference to `helper'"},
      {"value.c -Lno/folder -lnowhere", "cannot find -lnowhere"},
  };
  for (const auto& row : rows) {
    const Outcome outcome = zex(target.option + " " + row.arguments);
    EXPECT_EQ(outcome.status, 1) << row.arguments;
    EXPECT_THAT(outcome.err, testing::AllOf(HasSubstr("zex: error: TESSEL:zex:Error(\""), HasSubstr(row.words),
                                            testing::EndsWith(" [TESSEL:zex:Error]\n")));
  }
}

}  // namespace end_to_end
