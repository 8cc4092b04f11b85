#include "windows/WindowsTree.hpp"

#include <windows.h>

#include <bit>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "fl/i18n/environment.hpp"

namespace windows_tests {

namespace fs = std::filesystem;

namespace {

std::wstring fromUtf8(const std::string& text) {
  const std::u8string units(text.begin(), text.end());
  return fs::path(units).native();
}

std::string toUtf8(const std::wstring& text) {
  const std::u8string units = fs::path(text).u8string();
  return {units.begin(), units.end()};
}

/// Texts of programs come in the code page.
std::string fromCodePage(const std::string& text) {
  std::wstring units(text.size(), L'\0');
  units.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                                            units.data(), static_cast<int>(units.size()))));
  std::erase(units, L'\r');
  return toUtf8(units);
}

fs::path place() {
  return fs::temp_directory_path() / (L"zex é (" + std::to_wstring(GetCurrentProcessId()) + L") & co");
}

HANDLE openedFor(DWORD access, DWORD how, const fs::path& file) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  return CreateFileW(file.c_str(), access, FILE_SHARE_READ, &inherited, how, FILE_ATTRIBUTE_NORMAL, nullptr);
}

int statusOf(std::wstring line, const fs::path& out, const fs::path& err) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = openedFor(GENERIC_READ, OPEN_EXISTING, L"NUL");
  startup.hStdOutput = openedFor(GENERIC_WRITE, CREATE_ALWAYS, out);
  startup.hStdError = openedFor(GENERIC_WRITE, CREATE_ALWAYS, err);
  PROCESS_INFORMATION process{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process) == 0)
    throw std::runtime_error("the program cannot be started");
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  for (const HANDLE handle :
       {process.hProcess, process.hThread, startup.hStdInput, startup.hStdOutput, startup.hStdError}) {
    CloseHandle(handle);
  }
  return static_cast<int>(code);
}

}  // namespace

fs::path WindowsTree::tree() {
  return place() / L"install ü";
}

fs::path WindowsTree::mingw() {
  return place() / L"mingw (64)";
}

void WindowsTree::set(const std::string& variable, const fs::path& value) {
  fl::i18n::setenv(variable, value.u16string());
}

void WindowsTree::SetUpTestSuite() {
  fs::create_directories(place());
  fs::copy(ZEX_TREE, tree(), fs::copy_options::recursive);
  // By this folder a finder tells for which machines a compiler is.
  fs::create_directories(mingw() / "lib" / "gcc" / "x86_64-w64-mingw32");
  fs::create_directories(mingw() / "bin");
  for (const wchar_t* name : {L"gcc.exe", L"g++.exe", L"gfortran.exe"}) {
    fs::copy_file(ZEX_CROSS_COMPILER, mingw() / "bin" / name);
  }
}

void WindowsTree::TearDownTestSuite() {
  fs::current_path(fs::temp_directory_path());
  removeSoon(place());
}

WindowsTree::WindowsTree() : work(place() / L"wörk & play"), temporary(place() / "temp") {
  for (const fs::path& folder : {work, temporary, place() / "prefs"}) fs::create_directories(folder);
  fs::current_path(work);
  set("COMSPEC", fs::absolute(ZEX_STAND_IN_SHELL));
  set("TMPDIR", temporary);
  set("TESSEL_PREFDIR", place() / "prefs");
  set("TESSEL_LOCALE", "id");
  for (const char* name : {"TESSEL_ROOT", "ZEX_TEST_SHELL_LOG", "MINGW64_HOME"}) set(name, {});
}

WindowsTree::~WindowsTree() {
  fs::current_path(place());
  for (const fs::path& folder : {work, temporary, place() / "prefs"}) removeSoon(folder);
}

Outcome WindowsTree::run(const std::string& program, const std::string& arguments) const {
  const fs::path executable = tree() / "bin" / "win64" / (program + ".exe");
  const fs::path out = place() / "out";
  const fs::path err = place() / "err";
  const int status = statusOf(L"\"" + executable.native() + L"\" " + fromUtf8(arguments), out, err);
  return {status, fromCodePage(contentOf(out)), fromCodePage(contentOf(err))};
}

Outcome WindowsTree::zex(const std::string& arguments) const {
  const Outcome outcome = run("zex", arguments);
  EXPECT_TRUE(fs::is_empty(temporary)) << arguments;
  return outcome;
}

void removeSoon(const fs::path& folder) {
  constexpr int tries = 100;
  std::error_code stays;
  for (int count = 0; count < tries; ++count, Sleep(20)) {
    fs::remove_all(folder, stays);
    if (!stays) return;
  }
  ADD_FAILURE() << "cannot remove " << folder << ": " << stays.message();
}

void write(const fs::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void writeOddDocument(const std::string& commands, const std::string& finder) {
  write("odd.xml",
        "<?xml version='1.0' encoding='utf-8'?>\n<config Name='odd' ShortName='odd' Manufacturer='GNU' Version=''"
        " Language='C' Location='$PLACE' Priority='A'><Details CompilerDefines='$DEFINES'"
        " CompilerDefineFormatter='-D%s' IncludeFlags='$INCLUDES' OptimizationFlags='$NONE' DebugFlags='$NONE'"
        " LinkerLibraries='$USERLIBS' LinkerPathFormatter='-L%s' LinkerLibrarySwitchFormatter='-l%s'"
        " LinkerOptimizationFlags='$NONE' LinkerDebugFlags='$NONE'/><vars TOOL='\"" +
            fs::absolute(ZEX_ODD_TOOL).string() +
            "\"' COMPILER='$TOOL' LINKER='$TOOL' NONE='' DEFINES='' INCLUDES='' USERLIBS='' OBJEXT='.obj'"
            " LDEXT='.zexw64' " +
            commands + "/><env/><client/><locationFinder><PLACE>" + finder +
            "</PLACE></locationFinder></config>\n");
}

long long answer(const fs::path& product) {
  const HMODULE library = LoadLibraryW(fs::absolute(product).c_str());
  if (library == nullptr)
    throw std::runtime_error("the product cannot be loaded: " + std::to_string(GetLastError()));
  FARPROC entry = GetProcAddress(library, "zexFunction");
  if (entry == nullptr) entry = GetProcAddress(library, "zexfunction_");  // as Fortran compilers write the name
  if (entry == nullptr) throw std::runtime_error("the product has no entry point");
  long long stored = -1;
  std::bit_cast<void (*)(long long*)>(entry)(&stored);
  FreeLibrary(library);
  return stored;
}

}  // namespace windows_tests
