#include <windows.h>

#include <bit>
#include <csignal>

#include "end_to_end/EndToEnd.hpp"
#include "support/Documents.hpp"
#include "support/FakeTool.hpp"
#include "support/texts.hpp"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using zex_test::utf16;

/// The staged programs, with the stand-in tool and the document my.xml that names it.
class Windows : public EndToEnd {
 protected:
  Windows() { write("my.xml", document); }

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
    EXPECT_EQ(WaitForSingleObject(process.hProcess, 20'000), WAIT_OBJECT_0);  // the tool takes longer
    TerminateProcess(process.hProcess, 0);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(code);
  }

  const std::string document = zex_test::Document().xml();
  const std::string finder = "<dirExists name=\".\" diagnostic=\"Install Fake C.\"/>";
  const zex_test::FakeTool tool;
};

TEST_F(Windows, PathsOfEveryFormAreTaken) {
  const std::string drive = work.root_name().string();
  const fs::path share = L"\\\\zex\\share";  // made ahead of the tests under Wine
  fs::create_directories(share / utf16("ä b"));
  write(share / utf16("ä b/net.c"), "");
  const std::pair<std::string, fs::path> rows[] = {
      {drive + "value.c -output " + drive + "out\\näme", utf16("out/näme.zexa64")},
      {"value.c -outdir \"\\out (2) & more\"", "\\out (2) & more\\value.zexa64"},
      {"\"\\\\zex\\share\\ä b\\n*.c\" -outdir \\\\zex\\share\\out", share / "out" / "net.zexa64"},
      // The tool finds the response file, whose folder has a blank in its long name.
      {"value.c -D" + std::string(9000, 'N'), "value.zexa64"},
  };
  for (const auto& [arguments, product] : rows) {
    const Outcome outcome = run("zex", "-f my.xml " + arguments);
    EXPECT_EQ(outcome.status, 0) << arguments << outcome.out << outcome.err;
    EXPECT_TRUE(fs::remove(product)) << product;
    expectNoTemporaryFiles();
  }
  for (const fs::path& folder : {fs::path("\\out (2) & more"), share / utf16("ä b"), share / "out"})
    fs::remove_all(folder);
}

TEST_F(Windows, CaptureFilesThatCannotBeMadeAreAFailedCommand) {
  set("TMPDIR", "Z:\\proc");  // not even an administrator makes a file here
  EXPECT_THAT(run("zex", "-f my.xml -c value.c TEMP=here").err, HasSubstr("TESSEL:zex:ZexErrorCode("));
  EXPECT_TRUE(fs::is_empty("here"));
}

TEST_F(Windows, FindersAskTheRegistry) {
  for (const std::string root : {"HKCU", "HKLM"}) {
    const std::string key = "reg.exe add \"" + root + "\\Software\\zex tests\" /f /v place /d ";
    ASSERT_EQ(shell(key + "\"" + root + ":\\Ü (x86) & co\"").status, 0);
    const std::string test = root == "HKCU" ? "<hkcuExists" : "<hklmExists";
    write("my.xml", replaced(document, finder, test + " path='Software\\zex tests' name='place'/>"));
    EXPECT_THAT(run("zex", "-f my.xml -v -n value.c").out, HasSubstr(root + ":\\Ü (x86) & co\n"));
  }
}

TEST_F(Windows, ASelectionReplacesAProtectedOne) {
  const fs::path selected = preferences / "zex_C_win64.xml";
  write(selected, document);
  fs::permissions(selected, fs::perms::owner_read);
  EXPECT_EQ(run("zex", "-setup:my.xml C").status, 0);
  EXPECT_TRUE(fs::exists(preferences / "zex_C_win64_backup.xml"));
}

TEST_F(Windows, InterruptsEndTheToolAndTheCommand) {
  write("my.xml", replaced(document, "CMDLINE100=\"$COMPILER", "CMDLINE100=\"tool --wait"));
  EXPECT_EQ(statusAfterBreak(L"value.c -f my.xml"), 128 + SIGBREAK);
  expectNoTemporaryFiles();
  EXPECT_FALSE(fs::exists("value.zexa64"));
}

TEST_F(Windows, InterruptsOfASearchSelectNothing) {
  // Without the first compiler the second would be taken.
  const fs::path catalogue = scratch.folder() / "root/bin/win64/zexopts";
  fs::create_directories(catalogue);
  set("TESSEL_ROOT", scratch.folder() / "root");
  write(catalogue / "b.xml", document);
  const std::string first = replaced(document, "Priority=\"B\"", "Priority=\"A\"");
  write(catalogue / "a.xml", replaced(first, "<dirExists name=\".\"", "<cmdReturns name=\"tool --wait\""));
  EXPECT_EQ(statusAfterBreak(L"-setup C"), 128 + SIGBREAK);
  EXPECT_TRUE(fs::is_empty(preferences));
}

}  // namespace
}  // namespace end_to_end
