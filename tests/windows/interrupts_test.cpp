#include <windows.h>

#include <bit>
#include <csignal>

#include "end_to_end/EndToEnd.hpp"
#include "support/Documents.hpp"
#include "support/FakeTool.hpp"
#include "support/platform.hpp"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;
using zex_test::Document;

class WindowsInterrupts : public EndToEnd {
 protected:
  /// Starts `zex`, waits until it is in its tool, and has the system's routine for keys run in it. The key
  /// itself cannot be pressed without a console.
  static int statusAfterBreak(const std::wstring& arguments) {
    std::wstring line = L"\"" + program("zex").native() + L"\" " + arguments;
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

  const zex_test::FakeTool tool;
};

TEST_F(WindowsInterrupts, EndTheToolAndTheCommand) {
  write("my.xml", replaced(Document().xml(), "CMDLINE100=\"$COMPILER", "CMDLINE100=\"tool --wait"));
  EXPECT_EQ(statusAfterBreak(L"value.c -f my.xml"), 128 + SIGBREAK);
  expectNoTemporaryFiles();
  EXPECT_FALSE(fs::exists("value.zexa64"));
}

TEST_F(WindowsInterrupts, OfASearchSelectNothing) {
  // Without the first compiler the second would be taken.
  const fs::path catalogue = scratch.folder() / "root/bin/win64/zexopts";
  fs::create_directories(catalogue);
  set("TESSEL_ROOT", scratch.folder() / "root");
  const std::string second = Document().xml();
  write(catalogue / "b.xml", second);
  const std::string first = replaced(second, "Priority=\"B\"", "Priority=\"A\"");
  write(catalogue / "a.xml", replaced(first, "<dirExists name=\".\"", "<cmdReturns name=\"tool --wait\""));
  EXPECT_EQ(statusAfterBreak(L"-setup C"), 128 + SIGBREAK);
  EXPECT_TRUE(fs::is_empty(preferences));
}

}  // namespace
}  // namespace end_to_end
