// Stands in for the system's shell where that is Wine's, which cannot parse a redirected group, `( TOOL ) > FILE
// 2> FILE`: the very form in which the driver hands its commands over. It takes that form alone, with a "pushd"
// ahead of it at most, opens the two files itself and gives what stands within to Wine's shell, or starts it where
// that is one program. With ZEX_TEST_SHELL_LOG set, it appends the line that it was given to that file.
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

namespace fs = std::filesystem;

constexpr int badLine = 9009;

void keep(const std::wstring& line) {
  const wchar_t* const log = _wgetenv(L"ZEX_TEST_SHELL_LOG");
  if (log == nullptr) return;
  const std::u8string bytes = fs::path(line).u8string();
  std::ofstream(fs::path(log), std::ios::binary | std::ios::app)
      << std::string(bytes.begin(), bytes.end()) << '\n';
}

/// What stands behind the last occurrence of a mark, which is cut off together with it.
std::wstring cutBehind(std::wstring& text, std::wstring_view mark) {
  const std::size_t at = text.rfind(mark);
  if (at == std::wstring::npos) throw std::invalid_argument("the line lacks a part");
  std::wstring rest = text.substr(at + mark.size());
  text.erase(at);
  if (rest.size() > 1 && rest.front() == L'"') rest = rest.substr(1, rest.size() - 2);
  return rest;
}

void redirect(DWORD stream, const std::wstring& path) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("a capture file cannot be made");
  SetStdHandle(stream, file);
}

/// Whether the text is more than a program and its words.
bool needsShell(std::wstring_view text) {
  bool quoted = false;
  for (const wchar_t unit : text) {
    if (unit == L'"') quoted = !quoted;
    if (!quoted && std::wstring_view(L"&|<>^%()").find(unit) != std::wstring_view::npos) return true;
  }
  return false;
}

bool start(std::wstring command, PROCESS_INFORMATION& process) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  return CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process) != 0;
}

int run(std::wstring line) {
  constexpr std::wstring_view enters = L"pushd ";
  if (line.starts_with(enters)) {
    const std::size_t end = line.find(L" & ");
    fs::current_path(line.substr(enters.size(), end - enters.size()));
    line.erase(0, end + 3);
  }
  redirect(STD_ERROR_HANDLE, cutBehind(line, L" 2> "));
  redirect(STD_OUTPUT_HANDLE, cutBehind(line, L" ) > "));
  if (!line.starts_with(L"( ")) throw std::invalid_argument("the line does not begin a group");

  const std::wstring text = line.substr(2);
  PROCESS_INFORMATION process{};
  if ((needsShell(text) || !start(text, process)) && !start(L"cmd.exe /s /c \"" + text + L"\"", process))
    throw std::runtime_error("the program cannot be started");
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  return static_cast<int>(code);
}

}  // namespace

int main() {
  const std::wstring whole = GetCommandLineW();
  const std::size_t at = whole.find(L" /c ");
  try {
    if (at == std::wstring::npos) throw std::invalid_argument("there is no /c");
    keep(whole.substr(at + 4));
    return run(whole.substr(at + 4));
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "stand-in shell: %s\n", failure.what());
    return badLine;
  }
}
