// A tool that behaves as its first argument says: "silent" and "chatty" fail without a word and with many,
// "unicode" fails with words outside the code page, "crash" dies, "wait" makes the file "waiting"
// and takes its time, "make" writes the file
// that its second argument names.
#include <windows.h>
// The system's header above declares what the next one uses.
#include <shellapi.h>

#include <cstdio>
#include <string>
#include <string_view>

namespace {

constexpr int silentStatus = 3;

int fail(const std::string& text) {
  std::fputs(text.c_str(), stderr);
  return 1;
}

std::string manyLines() {
  std::string text;
  for (int number = 0; number < 20000; ++number) text += "line " + std::to_string(number) + "\n\n";
  return text;
}

}  // namespace

int main() {
  int count = 0;
  wchar_t** const values = CommandLineToArgvW(GetCommandLineW(), &count);
  const std::wstring_view mode = count > 1 ? values[1] : L"";
  if (mode == L"silent") return silentStatus;
  if (mode == L"chatty") return fail(manyLines());
  if (mode == L"unicode") return fail("caf\xE9 \x81\x8D\n");
  if (mode == L"wait") {
    std::fclose(std::fopen("waiting", "wb"));
    Sleep(60'000);
  }
  if (mode == L"crash") TerminateProcess(GetCurrentProcess(), STATUS_ACCESS_VIOLATION);
  if (mode != L"make" || count < 3) return fail("no such mode\n");
  std::FILE* const file = _wfopen(values[2], L"wb");
  if (file == nullptr) return fail("no file\n");
  std::fclose(file);
  return 0;
}
