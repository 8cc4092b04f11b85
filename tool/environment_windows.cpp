#include <windows.h>

#include <cstdlib>
#include <system_error>

#include "environment.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "host/temporary_folders.hpp"
#include "texts/wide.hpp"

namespace tool {

namespace {

using fl::ustring;
using host::wide;

void setVariable(const char* name, const ustring& value) {
  if (!fl::i18n::setenv(name, value))
    throw std::system_error(std::make_error_code(std::errc::not_enough_memory), std::string("cannot set ") + name);
}

/// The text that a call of the system puts into a buffer; empty where it fails.
template <class Call>
ustring textFrom(Call call) {
  constexpr DWORD longestPath = 32768;
  std::wstring buffer(longestPath, L'\0');
  const DWORD length = call(buffer.data(), longestPath);
  return length < longestPath ? host::fromWide(buffer.substr(0, length)) : ustring();
}

/// Folders are compared as text: with the system's separators, and none behind.
ustring nativeFolder(const ustring& folder) {
  constexpr std::size_t longestRoot = 3;  // "C:\\"
  ustring native = fl::filesystem::detail::make_native_form(folder);
  while (native.size() > 1 && native.ends_with(u'\\') && !(native.size() == longestRoot && native[1] == u':'))
    native.pop_back();
  return native;
}

/// The folder that the library would take, in its own order, else the system's.
ustring temporaryFolder() {
  for (const char* name : host::temporaryFolderVariables) {
    if (ustring value = fl::i18n::getenv(name); !value.empty()) return value;
  }
  return textFrom([](wchar_t* buffer, DWORD room) { return GetTempPathW(room, buffer); });
}

/// A command names the response file below the folder, and without quotes: a blank would cut the name in two, and
/// a character that the shell acts upon would change the command.
bool fitForCommands(const ustring& folder) {
  // A tool that takes its arguments in the code page cannot open what has no name there.
  const bool named = fl::i18n::to_ustring(fl::i18n::to_string(folder)) == folder;
  return named && folder.find_first_of(u" ()&^|<>%!;,=\"'`\t") == ustring::npos;
}

/// The old form of a name has none of these characters; not every disk keeps one.
ustring shortForm(const ustring& folder) {
  return textFrom([&](wchar_t* buffer, DWORD room) { return GetShortPathNameW(wide(folder), buffer, room); });
}

UINT formerOutputCodePage = 0;

void restoreOutputCodePage() {
  SetConsoleOutputCP(formerOutputCodePage);
}

/// Whatever else an interrupt does: the console is the user's.
BOOL WINAPI restoreOnInterrupt(DWORD /*event*/) {
  restoreOutputCodePage();
  return FALSE;
}

/// Texts are written in the code page of the system, and a console takes them to be in one of its own.
void matchConsoleToTexts() {
  formerOutputCodePage = GetConsoleOutputCP();
  if (formerOutputCodePage == 0 || formerOutputCodePage == GetACP() || SetConsoleOutputCP(GetACP()) == 0) return;
  std::atexit(restoreOutputCodePage);
  SetConsoleCtrlHandler(restoreOnInterrupt, TRUE);
}

}  // namespace

void prepareEnvironment() {
  matchConsoleToTexts();

  const ustring temporary = nativeFolder(temporaryFolder());
  const ustring fit = fitForCommands(temporary) ? temporary : shortForm(temporary);
  setVariable("TMPDIR", !fit.empty() && fitForCommands(fit) ? fit : temporary);

  const ustring preferences = fl::i18n::getenv("TESSEL_PREFDIR");
  const ustring folder = nativeFolder(preferences);
  if (folder != preferences) setVariable("TESSEL_PREFDIR", folder);

  // A box on the screen would wait for a user whom nobody calls; tools inherit this.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
}

}  // namespace tool
