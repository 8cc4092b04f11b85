#include "end_to_end/Targets.hpp"

namespace end_to_end {

namespace {

class Cross : public TargetTest {
 protected:
  void SetUp() override { use(forWindows); }
};

TEST_F(Cross, TheNamesForTheLinkerAreThoseOfTheLibraryForWindows) {
  if (!canCallWithTree()) GTEST_SKIP() << "there is no Wine, or no tree for Windows at " ZEX_WINDOWS_TREE;
  const std::string names = "tail -n +3 " ZEX_TREE "/extern/lib/win64/libzx.def | sort | tr -s ' \\n' ' '";
  EXPECT_EQ(shell(names).out, " " + exportsOf(ZEX_WINDOWS_TREE "/bin/win64/libzx.dll"));
}

}  // namespace

TEST_F(EndToEnd, TheLibraryExportsItsFaceAlone) {
  const std::string symbols =
      "nm -DC --defined-only \"$OPTS/../libzexcmd.so\" | cut -d ' ' -f 2- | grep -v ' __' | sort";
  EXPECT_EQ(shell(symbols + " | grep -v '^V '").out,
            "R libzexcmd_build_date\nR libzexcmd_relative_path\nR libzexcmd_version\n"
            "T zex_cmd::ZexCmdFactory::createZex()\n");
  // Beside the face, what exceptions are told by; nothing of the libraries below.
  const std::string typeInfo =
      "^V typeinfo (name )?for (zex_cmd::ZexCmdI$|foundation::core::except::|fl::filesystem::)";
  EXPECT_EQ(shell(symbols + " | grep '^V ' | grep -vE '" + typeInfo + "'").out, "");
}

}  // namespace end_to_end
