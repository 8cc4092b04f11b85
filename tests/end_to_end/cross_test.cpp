#include <set>

#include "end_to_end/Targets.hpp"

namespace end_to_end {

namespace {

using testing::HasSubstr;

class Cross : public TargetTest {
 protected:
  void SetUp() override { use(forWindows); }
};

TEST_F(Cross, TheNamesForTheLinkerAreThoseOfTheLibraryForWindows) {
  if (!canCallWithTree()) GTEST_SKIP() << "there is no Wine, or no tree for Windows at " ZEX_WINDOWS_TREE;
  const Names shown = exportsOf(ZEX_WINDOWS_TREE "/bin/win64/libzx.dll");
  std::string expected = "LIBRARY libzx.dll\nEXPORTS\n";
  for (const std::string& name : std::set<std::string>(shown.begin(), shown.end())) expected += "  " + name + "\n";
  EXPECT_EQ(contentOf(ZEX_TREE "/extern/lib/win64/libzx.def"), expected);
}

TEST_F(Cross, SetupAndQueriesAreForTheArchitecture) {
  const std::string listed = run("zexcompilers", "any installed win64").out;
  for (const char* name : {"\ngcc", "\ng++", "\ngfortran"})
    EXPECT_THAT(listed, HasSubstr(name + std::string(" for win64  ")));
  EXPECT_THAT(listed, testing::Not(HasSubstr("clang")));

  const std::filesystem::path selected = preferences / "zex_C_win64.xml";
  EXPECT_THAT(build("-win64 -setup C").out, HasSubstr("\"gcc for win64\""));
  build("-win64 -setup:gcc-win64 C");
  write(selected, replaced(contentOf(selected), "gcc for win64", "my choice"));
  EXPECT_THAT(build("-win64 value.c", {"value.zexw64"}).out, HasSubstr("Building(\"my choice\")"));
  EXPECT_THAT(build("value.c", {"value.zexa64"}).out, HasSubstr("Building(\"gcc\")"));
}

TEST_F(TargetTest, DebugBuildsForMacKeepTheirObjectsBesideTheProduct) {
  write("mac.xml", gccDocument(".zexa64", ".zexmaci64"));
  const std::string arguments = "-maci64 -f mac.xml -outdir out ZXLIBS= value.c ";
  build(arguments, {"out/value.zexmaci64"});
  EXPECT_EQ(answer("out/value.zexmaci64"), "42");
  build(arguments + "-g -output other", {"out/other.zexmaci64", "out/value.o", "out/c_zexapi_version.o"});
}

}  // namespace

TEST_F(EndToEnd, TheLibraryExportsItsFaceAlone) {
  const std::string symbols =
      "nm -DC --defined-only \"$OPTS/../libzexcmd.so\" | cut -d ' ' -f 2- | grep -v ' __' | sort";
  EXPECT_EQ(shell(symbols + " | grep -v '^V '").out,
            "R libzexcmd_build_date\nR libzexcmd_relative_path\nR libzexcmd_version\n"
            "T zex_cmd::ZexCmdFactory::createZex()\n");
  // Beside the face, what exceptions are told by; nothing of the libraries below.
  EXPECT_EQ(shell(symbols + " | grep '^V ' | grep -vE '^V typeinfo (name )?for " +
                  "(zex_cmd::ZexCmdI$|foundation::core::except::|fl::filesystem::)'")
                .out,
            "");
}

}  // namespace end_to_end
