#include <fstream>

#include "windows/WindowsTree.hpp"

namespace windows_tests {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

class WindowsBuilds : public WindowsTree {
 protected:
  WindowsBuilds() { set("MINGW64_HOME", mingw()); }

  /// Builds, and gives what the product's entry point stores.
  long long built(const std::string& arguments, const fs::path& product) const {
    const Outcome outcome = zex(arguments);
    EXPECT_EQ(outcome.status, 0) << arguments << "\n" << outcome.out << outcome.err;
    const long long stored = answer(product);
    fs::remove(product);
    return stored;
  }

  static void bring(const std::string& name, const fs::path& as) {
    fs::create_directories(fs::absolute(as).parent_path());
    fs::copy_file(fs::path(ZEX_TEST_SOURCES) / name, as, fs::copy_options::overwrite_existing);
  }
};

TEST_F(WindowsBuilds, ProductsOfRealCompilersAreLoaded) {
  bring("value.c", L"sub dir/é & (b) c.c");
  bring("value.cpp", "value.cpp");
  bring("bits.f90", "bits.f90");
  EXPECT_EQ(built("-DVALUE=7 \"sub dir\\é & (b) c.c\"", L"é & (b) c.zexw64"), 7);
  EXPECT_EQ(built("value.cpp -g", "value.zexw64"), 43);
  EXPECT_EQ(built("bits.f90", "bits.zexw64"), 64);
  EXPECT_EQ(built("bits.f90 -compatibleArrayDims", "bits.zexw64"), 32);
  EXPECT_EQ(zex("-c value.cpp").status, 0);
  EXPECT_EQ(built("value.o -cxx", "value.zexw64"), 43);
}

TEST_F(WindowsBuilds, FailuresOfACompilerAreItsOwnWords) {
  bring("broken.c", "broken.c");
  bring("value.c", "value.c");
  EXPECT_THAT(zex("broken.c").err, HasSubstr("broken.c:1:9: error: "));
  EXPECT_THAT(zex("value.c -lmissing").err, HasSubstr("cannot find -lmissing"));
  EXPECT_FALSE(fs::exists("value.zexw64"));
}

TEST_F(WindowsBuilds, PathsOfEveryForm) {
  bring("value.c", "value.c");
  const std::string drive = work.root_name().string();
  EXPECT_EQ(built(drive + "value.c -output " + drive + "out\\näme", L"out/näme.zexw64"), 42);
  EXPECT_EQ(built("value.c -outdir \"\\out (2) & more\"", L"\\out (2) & more\\value.zexw64"), 42);
  fs::remove_all(L"\\out (2) & more");

  const fs::path shared = fs::path(ZEX_WINE_PREFIX) / "dosdevices" / "unc" / "server" / "share";
  bring("value.c", shared / L"ä b" / "net.c");
  EXPECT_EQ(
      built("\"\\\\server\\share\\ä b\\net.c\" -outdir \\\\server\\share\\out", shared / "out" / "net.zexw64"),
      42);
  removeSoon(shared.parent_path());
}

TEST_F(WindowsBuilds, LongCommandsGoThroughAFile) {
  bring("value.c", L"välue.c");
  std::ofstream list("arguments.txt");
  for (int number = 0; number < 700; ++number) list << "-DA_LONG_NAME" << number << "=1\n";
  list.close();
  EXPECT_EQ(built("@arguments.txt välue.c", L"välue.zexw64"), 42);
}

TEST_F(WindowsBuilds, TheExampleRunsAndItsRecordFollowsTheSwitches) {
  fs::copy_file(tree() / "extern" / "examples" / "filter.c", "filter.c");
  for (const std::string switches : {"", "-compatibleArrayDims", "-R2018a"}) {
    ASSERT_EQ(zex("filter.c " + switches).status, 0) << switches;
    const Outcome outcome = run("zexrun", "filter.zexw64 \"[0.5 0.5]\" \"[1; 2; 4; 8]\"");
    EXPECT_EQ(outcome.out, "ans1: real, 4 by 1\n    0.5\n    1.5\n      3\n      6\n") << switches << outcome.err;
  }
  const Outcome failed = run("zexrun", "filter.zexw64 1");
  EXPECT_EQ(failed.status, 1);
  EXPECT_THAT(failed.err, HasSubstr("[filter:"));
}

TEST_F(WindowsBuilds, TextsOfExtensionsKeepTheirLetters) {
  write("echo.c",
        "#include <zex.h>\nvoid zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {\n"
        "  if (nrhs != 1) zexFail(\"echo:inputs\", \"n\xC3\xB6 %s\", \"\xC3\xA9\");\n"
        "  zexPrintf(\"%s\\n\", zxReadText(prhs[0]));\n  plhs[0] = zxCopy(prhs[0]);\n}\n");
  const fs::path shared = fs::path(ZEX_WINE_PREFIX) / "dosdevices" / "unc" / "server" / "share";
  fs::create_directories(shared);
  ASSERT_EQ(zex("echo.c -outdir \\\\server\\share").status, 0);
  const Outcome said = run("zexrun", "\\\\server\\share\\echo.zexw64 'gr\xC3\xBC\xC3\x9F'");
  EXPECT_EQ(said.out, "gr\xC3\xBC\xC3\x9F\nans1: text, 1 by 4\n    gr\xC3\xBC\xC3\x9F\n") << said.err;
  EXPECT_THAT(run("zexrun", "\\\\server\\share\\echo.zexw64").err,
              HasSubstr("error: n\xC3\xB6 \xC3\xA9 [echo:inputs]"));
  // JSON is in UTF-8 whatever the code page; here that is taken for it once more.
  EXPECT_THAT(run("zexrun", "--json \\\\server\\share\\echo.zexw64 '\xC3\xBC'").out,
              HasSubstr("\xC3\x83\xC2\xBC"));
  removeSoon(shared.parent_path());
}

TEST_F(WindowsBuilds, ASelectionReplacesAProtectedOne) {
  const fs::path selected = work.parent_path() / "prefs" / "zex_C_win64.xml";
  ASSERT_EQ(zex("-setup:mingw-gcc C").status, 0);
  fs::permissions(selected, fs::perms::owner_read);
  fs::copy_file(tree() / "bin" / "win64" / "zexopts" / "mingw_gcc.xml", L"eigénes.xml");
  const Outcome again = zex("-setup:eigénes.xml C");
  EXPECT_EQ(again.status, 0) << again.err;
  EXPECT_TRUE(fs::exists(selected.parent_path() / "zex_C_win64_backup.xml"));
  EXPECT_THAT(run("zexcompilers", "c selected --json").out, HasSubstr("\"ShortName\":\"mingw-gcc\""));
}

}  // namespace
}  // namespace windows_tests
