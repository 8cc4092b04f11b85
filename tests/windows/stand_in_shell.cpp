// Stands in for the system's shell where that is Wine's, which cannot parse a redirected group, `( TOOL ) > FILE
// 2> FILE`: the very form in which the driver hands its commands over. It takes that form alone, with a "pushd"
// ahead of it at most, opens the two files itself and gives what stands within to Wine's shell, or starts it where
// that is one program. With ZEX_TEST_SHELL_LOG set, it appends the line that it was given to that file.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

constexpr int badLine = 9009;

std::wstring variable(const wchar_t* name) {
  std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
  return value;
}

void keep(const std::wstring& line) {
  const std::wstring log = variable(L"ZEX_TEST_SHELL_LOG");
  if (log.empty()) return;
  std::string bytes(line.size() * 3, '\0');
  bytes.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()),
                                                            bytes.data(), static_cast<int>(bytes.size()), nullptr,
                                                            nullptr)));
  if (std::FILE* const file = _wfopen(log.c_str(), L"ab")) {
    std::fprintf(file, "%s\n", bytes.c_str());
    std::fclose(file);
  }
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

HANDLE opened(const std::wstring& path) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("a capture file cannot be made");
  return file;
}

/// Whether Wine's own shell has to read the text.
bool needsShell(std::wstring_view text) {
  bool quoted = false;
  for (const wchar_t unit : text) {
    if (unit == L'"') quoted = !quoted;
    if (!quoted && std::wstring_view(L"&|<>^%()").find(unit) != std::wstring_view::npos) return true;
  }
  for (const std::wstring_view word : {L"echo", L"exit", L"type", L"if ", L"set ", L"del ", L"mkdir"}) {
    if (text.starts_with(word)) return true;
  }
  return false;
}

int started(std::wstring command, const std::wstring& output, const std::wstring& errors) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = opened(output);
  startup.hStdError = opened(errors);
  PROCESS_INFORMATION process{};
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process) ==
      0) {
    const std::string words = "the program is not recognized: " + std::to_string(GetLastError()) + "\r\n";
    DWORD written = 0;
    WriteFile(startup.hStdError, words.data(), static_cast<DWORD>(words.size()), &written, nullptr);
    return badLine;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  return static_cast<int>(code);
}

int run(std::wstring line) {
  constexpr std::wstring_view enters = L"pushd ";
  if (line.starts_with(enters)) {
    const std::size_t end = line.find(L" & ");
    if (!SetCurrentDirectoryW(line.substr(enters.size(), end - enters.size()).c_str()))
      throw std::runtime_error("the folder cannot be entered");
    line.erase(0, end + 3);
  }
  const std::wstring errors = cutBehind(line, L" 2> ");
  const std::wstring output = cutBehind(line, L" ) > ");
  if (!line.starts_with(L"( ")) throw std::invalid_argument("the line does not begin a group");
  const std::wstring text = line.substr(2);
  return started(needsShell(text) ? L"cmd.exe /s /c \"" + text + L"\"" : text, output, errors);
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
