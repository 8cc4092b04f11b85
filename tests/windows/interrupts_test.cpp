#include <windows.h>

#include <bit>
#include <csignal>

#include "windows/WindowsTree.hpp"

namespace windows_tests {
namespace {

namespace fs = std::filesystem;

class WindowsInterrupts : public WindowsTree {
 protected:
  /// Starts `zex`, waits until it is in its tool, and has the system's routine for keys run in it. The key
  /// itself cannot be pressed without a console.
  static int statusAfterBreak(const std::wstring& arguments) {
    std::wstring line = L"\"" + (tree() / "bin" / "win64" / "zex.exe").native() + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process);
    while (!fs::exists("waiting")) Sleep(20);
    // At the same place in every process.
    const FARPROC routine = GetProcAddress(GetModuleHandleW(L"kernelbase.dll"), "CtrlRoutine");
    CloseHandle(CreateRemoteThread(process.hProcess, nullptr, 0, std::bit_cast<LPTHREAD_START_ROUTINE>(routine),
                                   std::bit_cast<void*>(std::uintptr_t{CTRL_BREAK_EVENT}), 0, nullptr));
    constexpr DWORD farLessThanTheTool = 20'000;
    EXPECT_EQ(WaitForSingleObject(process.hProcess, farLessThanTheTool), WAIT_OBJECT_0);
    TerminateProcess(process.hProcess, 0);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(code);
  }
};

TEST_F(WindowsInterrupts, EndTheToolAndTheCommand) {
  write("a.c", "");
  writeOddDocument("CMDLINE100='$TOOL wait -c $SRC -o $OBJ' CMDLINE200='$TOOL make a.zexw64'");
  EXPECT_EQ(statusAfterBreak(L"a.c -f odd.xml"), 128 + SIGBREAK);
  EXPECT_TRUE(fs::is_empty(temporary));
  EXPECT_FALSE(fs::exists("a.zexw64"));
}

TEST_F(WindowsInterrupts, OfASearchSelectNothing) {
  // Without the first compiler the second would be taken.
  const std::string tool = std::filesystem::absolute(ZEX_ODD_TOOL).string();
  writeOddDocument("", "<cmdReturns name='\"" + tool + "\" wait'/>");
  fs::rename("odd.xml", tree() / "bin/win64/zexopts/aa_odd.xml");
  set("MINGW64_HOME", mingw());
  EXPECT_EQ(statusAfterBreak(L"-setup C"), 128 + SIGBREAK);
  EXPECT_TRUE(fs::is_empty(work.parent_path() / "prefs"));
  fs::remove(tree() / "bin/win64/zexopts/aa_odd.xml");
}

}  // namespace
}  // namespace windows_tests
