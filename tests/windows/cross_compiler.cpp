// A compiler for Windows that runs under Wine: under the name "gcc.exe" it hands its arguments over to the cross
// compiler x86_64-w64-mingw32-gcc of the system below Wine, and so on for other names, with paths in that system's
// form. Its status is the compiler's.
#include <windows.h>
// The system's header above declares what the next one uses.
#include <shellapi.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string utf8(std::wstring_view text) {
  return fs::path(text).string();
}

/// Wine's own call; the text is its heap's.
std::string unixPath(const std::wstring& path) {
  using Translate = char* CDECL (*)(const wchar_t*);
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name");
  if (found == nullptr) throw std::runtime_error("this is not Wine");
  char* const told = reinterpret_cast<Translate>(reinterpret_cast<void*>(found))(path.c_str());
  if (told == nullptr) return utf8(path);
  std::string result = told;
  HeapFree(GetProcessHeap(), 0, told);
  return result;
}

bool looksLikePath(std::wstring_view text) {
  const bool drive = text.size() > 2 && text[1] == L':' && (text[2] == L'\\' || text[2] == L'/');
  return drive || text.find(L'\\') != std::wstring_view::npos;
}

std::string translated(const std::wstring& argument) {
  for (const std::wstring_view option : {L"-I", L"-L", L"-J", L"-specs="}) {
    if (!argument.starts_with(option)) continue;
    const std::wstring rest = argument.substr(option.size());
    return utf8(option) + (looksLikePath(rest) ? unixPath(rest) : utf8(rest));
  }
  return argument.starts_with(L"-") || !looksLikePath(argument) ? utf8(argument) : unixPath(argument);
}

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// The arguments in a response file: blanks part them, double quotes hold them together, a backslash keeps the
/// next character.
std::vector<std::wstring> argumentsIn(const fs::path& file) {
  const std::string bytes = contentOf(file);
  std::wstring text(bytes.size(), L'\0');
  text.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()),
                                                           text.data(), static_cast<int>(text.size()))));
  std::vector<std::wstring> arguments;
  bool quoted = false;
  bool within = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const wchar_t unit = text[at];
    if (unit == L'"') {
      quoted = !quoted;
    } else if (!quoted && std::wstring_view(L" \t\r\n").find(unit) != std::wstring_view::npos) {
      within = false;
      continue;
    }
    if (!within) arguments.emplace_back();
    within = true;
    if (unit != L'"') arguments.back() += unit == L'\\' && at + 1 < text.size() ? text[++at] : unit;
  }
  return arguments;
}

std::string quotedForShell(const std::string& word) {
  std::string quoted = "'";
  for (const char byte : word) quoted += byte == '\'' ? std::string("'\\''") : std::string(1, byte);
  return quoted + "'";
}

/// A program of the system below cannot be waited for: its end shows by a file.
int statusIn(const fs::path& file) {
  for (;;) {
    std::ifstream stream(file);
    int status = -1;
    if (stream >> status && !stream.eof()) return status;
    Sleep(10);
  }
}

int run(const std::vector<std::wstring>& words) {
  const fs::path folder = fs::temp_directory_path() / ("cross_" + std::to_string(GetCurrentProcessId()));
  fs::create_directories(folder);
  std::string script = "x86_64-w64-mingw32-" + fs::path(words.front()).stem().string();
  for (auto word = words.begin() + 1; word != words.end(); ++word) {
    if (!word->starts_with(L"@")) {
      script += " " + quotedForShell(translated(*word));
      continue;
    }
    for (const std::wstring& inner : argumentsIn(word->substr(1)))
      script += " " + quotedForShell(translated(inner));
  }
  const fs::path status = folder / "status";
  // Wine gives its standard error to such a program, and not that of this one.
  const fs::path errors = folder / "errors";
  script += " 2> " + quotedForShell(unixPath(errors.native()));
  script += "\necho $? > " + quotedForShell(unixPath(status.native())) + "\n";
  const fs::path file = folder / "script";
  std::ofstream(file, std::ios::binary) << script;

  std::wstring line = L"sh " + fs::path(unixPath(file.native())).native();
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION process{};
  if (CreateProcessW(L"Z:\\bin\\sh", line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                     &process) == 0)
    throw std::runtime_error("the shell below cannot be started");
  const int result = statusIn(status);
  std::fputs(contentOf(errors).c_str(), stderr);
  fs::remove_all(folder);
  return result;
}

}  // namespace

int main() {
  int count = 0;
  wchar_t** const values = CommandLineToArgvW(GetCommandLineW(), &count);
  try {
    return run({values, values + count});
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "cross compiler: %s\n", failure.what());
    return 120;
  }
}
