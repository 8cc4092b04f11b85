#include <regex>

#include "windows/WindowsTree.hpp"

namespace windows_tests {
namespace {

namespace fs = std::filesystem;
using testing::StartsWith;

class WindowsShell : public WindowsTree {
 protected:
  /// The line that the shell is given for a compile in the current folder.
  std::string lineOfACompile() const {
    const fs::path log = temporary.parent_path() / "log";
    set("ZEX_TEST_SHELL_LOG", log);
    write("a.c", "");
    writeOddDocument("CMDLINE100='$TOOL make a.obj -c $SRC -o $OBJ'");
    EXPECT_EQ(zex("a.c -c -f odd.xml").err, "");
    EXPECT_TRUE(fs::exists("a.obj"));
    std::string line = contentOf(log);
    fs::remove(log);
    return line;
  }
};

TEST_F(WindowsShell, TakesAGroupAndTwoFiles) {
  const std::regex form(
      R"re(\( ".*" make a\.obj -c "C:\\.* & play\\a\.c" -o a\.obj \) > (C:\\\S*\\temp\\zex_\d+_\d+) 2> (C:\\\S*)\n)re");
  std::smatch found;
  const std::string line = lineOfACompile();
  ASSERT_TRUE(std::regex_match(line, found, form)) << line;
  EXPECT_NE(found[1], found[2]);
}

TEST_F(WindowsShell, EntersANetworkFolderWithoutQuotes) {
  // Wine takes what lies below this folder of its own for what servers share.
  const fs::path shared = fs::path(ZEX_WINE_PREFIX) / "dosdevices" / "unc" / "server" / "share" / L"wörk";
  fs::create_directories(shared);
  fs::current_path(L"\\\\server\\share\\wörk");
  EXPECT_THAT(lineOfACompile(), StartsWith("pushd \\\\server\\share\\wörk & ( \""));
  fs::current_path(work);
  removeSoon(shared.parent_path().parent_path());
}

TEST_F(WindowsShell, WithoutAVariableIsTheSystemsByName) {
  // A program is looked for beside the one that starts it first.
  const fs::path found = tree() / "bin" / "win64" / "CMD.EXE";
  fs::copy_file(ZEX_STAND_IN_SHELL, found);
  set("COMSPEC", {});
  lineOfACompile();
  fs::remove(found);
}

}  // namespace
}  // namespace windows_tests
