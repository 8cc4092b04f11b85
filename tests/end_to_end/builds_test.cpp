#include "end_to_end/Targets.hpp"

namespace end_to_end {

namespace {

using testing::HasSubstr;

enum class On { All, Linux, Windows };

/// One command that gives one loadable product.
struct Build {
  On targets;
  std::string name;
  std::string arguments;
  std::string product;  ///< without its extension
  std::string answer;
  std::string before = "true";  ///< line of the shell that prepares the folder
  std::string alsoNeeds = {};   ///< a library beside those of every Windows machine, with a blank behind it
};

const std::string odd =
    "mkdir 'o (1)&é'; for f in value.c value.cpp bits.f90 kernel.cu; do "
    "cp $f 'o (1)&é'; cp $f \"o (1)&é.${f#*.}\"; done; echo '#define VALUE 5' > 'o (1)&é/value.h'";
const std::string threads =
    "printf '#include <thread>\\nextern \"C\" void zexFunction(long long* n)"
    " { std::thread([n] { *n = 4; }).join(); }\\n' > threads.cpp";
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
    {On::All, "FortranModules", "-largeArrayDims base.f90 modules.f90", "base", "44"},
    {On::All, "CWithFortranObject", "caller.c helper.$OBJ -fortran 'FLIBS=-lgfortran -lquadmath'", "caller",
     "1234", "\"$ZEX\" $FOR -c helper.f90"},

    // Names and places.
    {On::All, "OddC", "'o (1)&é/v*.c' '-Io (1)&é' -outdir 'o (1)&é/new' -output 'p(2)&ü'", "o (1)&é/new/p(2)&ü",
     "5", odd},
    {On::All, "OddCpp", "'o (1)&é.cpp'", "o (1)&é", "43", odd},
    {On::All, "OddFortran", "'o (1)&é.f90'", "o (1)&é", "64", odd},
    {On::Linux, "OddCuda", "'o (1)&é.cu' caller.c", "o (1)&é", "8", odd},

    // Switches.
    {On::Linux, "Optimized", "optimized.c", "optimized", "11"},
    {On::All, "DebugWinsOverOptimized", "-g -O optimized.c", "optimized", "0"},
    {On::Linux, "DefineForTheShell", R"("-DVALUE='\"a text\"[2]'" value.c)", "value", "116"},
    {On::All, "Objects", "-cxx caller.$OBJ helper.$OBJ", "caller", "7", "\"$ZEX\" $FOR -c caller.c helper.cpp"},

    // Libraries: static ones, and a DLL by its import library or itself.
    {On::Windows, "StaticLibrary", "caller.c 'l é/helper.lib'", "caller", "6", lib},
    {On::Windows, "ImportLibrary", "caller.c '-Ll é' -lhelper", "caller", "6", dll, "helper.dll "},
    {On::Windows, "DllByName", "caller.c -L. -lhelper", "caller", "6", dll, "helper.dll "},

    // Commands that are longer than the shell takes.
    {On::All, "LongC", "'-Io (1)&é' value.c", "value", "5", odd},
    {On::All, "LongCpp", "value.cpp", "value", "43"},
    {On::All, "LongFortran", "-largeArrayDims base.f90 modules.f90", "base", "44"},
    {On::Linux, "LongCuda", "kernel.cu caller.c", "kernel", "8"},

    // Calls of zex.h, and errors that end a call by unwinding it.
    {On::Windows, "CError", "raise.c", "raise", "thrown: raise:it", raising, "libzx.dll "},
    {On::Windows, "CppError", "raise.cpp", "raise", "thrown: raise:it", raising, "libzx.dll "},
    {On::Windows, "FortranError", "raise.f90", "raise", "thrown: from Fortran", raising, "libzx.dll "},
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
  void SetUp() override {
    use(GetParam().first);
    std::filesystem::create_directory_symlink(ZEX_TREE, tree);
    set("TESSEL_ROOT", tree.string() + "//");
  }

  /// Products for Windows show their entry point alone, and need no more than they have to.
  void expectHeaders(const std::string& product, const Build& row) const {
    const bool fortran = row.arguments.find(".f90") != std::string::npos;
    const bool fortranRecord = fortran || row.arguments.find("-fortran") != std::string::npos;
    const std::string record = fortranRecord ? "zexapi_version_record_ " : "zexapi_version_record ";
    EXPECT_EQ(exportsOf(product), fortran ? record + "zexfunction_ " : "zexFunction " + record);
    EXPECT_EQ(librariesOf(product), "KERNEL32.dll " + row.alsoNeeds + "msvcrt.dll ");
  }

  /// The shell makes the same of what a dry run prints.
  void expectSameByTheCommandsOf(const std::string& arguments, const std::string& product) const {
    ASSERT_EQ(shell("mv '" + product + "' ../built").status, 0);
    const std::string printed = build("-n -silent " + arguments).out;
    EXPECT_THAT(printed, HasSubstr(tree.string() + "/extern/version/"));
    write("../printed.sh", printed);
    // Products for Windows hold the time, and those of nvcc a random name.
    const bool isFixed = !target.isWindows() && arguments.find(".cu") == std::string::npos;
    const std::string compare = isFixed ? "cmp ../built '" + product + "'" : "true";
    const Outcome outcome =
        shell("sh ../printed.sh && " + compare + "; status=$?\nrm -rf \"$TMPDIR\"/*; exit $status");
    EXPECT_EQ(outcome.status, 0) << outcome.out << outcome.err;
  }

  const std::filesystem::path tree = scratch.folder() / "tree (1)&é";
};

TEST_P(Builds, GiveALoadableProductAndNothingElse) {
  const Build& row = GetParam().second;
  if (needsMissingTool(row.arguments)) GTEST_SKIP() << "nvcc is not installed";
  ASSERT_EQ(shell(row.before).status, 0);
  const bool isLong = row.name.starts_with("Long");
  std::string arguments = target.option + " " + row.arguments;
  if (isLong) {
    const std::string folders = R"($(seq -s ' ' -f '-L"/no folder (1)&é/%g"' 400))";
    arguments += " -D" + std::string(8000, 'P') + " \"LINKLIBS=" + folders + "\"";
  }
  // Response files are named without quotes: the program must not put them into a folder with a blank.
  const zex_test::ScopedVariable folder("TMPDIR", isLong ? work : temporary);
  const std::string product = row.product + target.product;

  const std::string out = build(arguments, {product}).out;

  EXPECT_THAT(out, testing::Not(HasSubstr("arning")));
  const std::string bits = row.arguments.find("-compatible") == std::string::npos ? "64" : "32";
  const std::string content = contentOf(product);
  EXPECT_THAT(content, HasSubstr("kind=driver release=R2017b dims=" + bits + " cmd=1;"));
  if (row.arguments.starts_with("-g")) {
    EXPECT_THAT(content, HasSubstr(work.string())) << "debug lines";
  }
  if (target.isWindows()) expectHeaders(product, row);
  if (!isLong) expectSameByTheCommandsOf(arguments, product);
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
  build(target.option + " -client ENGINE main.c", {"main" + target.program});
  if (!target.isWindows()) {
    // It finds the library of the tree by itself. The options serve a sanitizer build alone, whose run-time
    // library the program does not begin with; it leaves its array to the end of the process.
    EXPECT_EQ(shell("ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 ./main").status, 9);
  }
  const std::string library = "plain" + target.library;
  build(target.option + " -client zbuild caller.c helper.cpp -output plain", {library});
  EXPECT_THAT(contentOf(library), testing::Not(HasSubstr("@(#)zex-record")));
  if (target.isWindows()) {
    EXPECT_EQ(exportsOf(library), "helper zexFunction ");
  }
  if (canCall()) {
    EXPECT_EQ(answer(library), "7");
  }
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
    bool again;  ///< the record is compiled anew
  } const rows[] = {
      {"-g " + one, "release=R2018a dims=64", true},
      {two, "release=R2017b dims=32", true},
      {"-no_zexcheck " + one + " " + two, "release=R2017b dims=64", false},
  };
  const std::string product = "product" + target.product;
  for (const auto& row : rows) {
    const std::string out = build(option + "-v -output product " + row.arguments, {product}).out;
    EXPECT_EQ(out.find("TESSEL:zex:RecompileVer(") != std::string::npos, row.again) << row.arguments;
    EXPECT_THAT(contentOf(product), HasSubstr("kind=driver " + row.told + " cmd=1;")) << row.arguments;
    std::filesystem::remove(product);
  }
  // The product stays: its records tell what is wrong with it.
  const Outcome mixed = zex(option + one + " " + two, {"one" + target.product});
  EXPECT_THAT(mixed.err, HasSubstr("TESSEL:zex:Error(\"Contradicting interfaces: "));
  if (canCallWithTree()) {
    EXPECT_THAT(zexrun("one" + target.product).err, HasSubstr("[TESSEL:host:InterfaceMismatch]"));
  }
}

}  // namespace end_to_end
