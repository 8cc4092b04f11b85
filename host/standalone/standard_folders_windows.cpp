#include <windows.h>

#include <filesystem>

#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/environment.hpp"
#include "standalone/files/native_path.hpp"
#include "standalone/standard_folders.hpp"

namespace host::standalone {

namespace {

fl::ustring treeOfModule() {
  constexpr DWORD byAddress =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  HMODULE module = nullptr;
  const auto* const here = reinterpret_cast<const wchar_t*>(&folderTreeOfThisLibrary);
  if (GetModuleHandleExW(byAddress, here, &module) == 0) return {};
  constexpr DWORD longestPath = 32768;
  std::wstring library(longestPath, L'\0');
  library.resize(GetModuleFileNameW(module, library.data(), longestPath));
  // <root>\bin\<arch>\<library>
  return pathText(std::filesystem::path(library).parent_path().parent_path().parent_path());
}

}  // namespace

fl::ustring folderTreeOfThisLibrary() {
  static const fl::ustring tree = treeOfModule();
  return tree;
}

fl::ustring userPreferencesFolder() {
  const fl::ustring home = fl::i18n::getenv("APPDATA");
  if (home.empty())
    throw fl::filesystem::PathNotFound("no folder for the preferences: set TESSEL_PREFDIR or APPDATA");
  return fl::filesystem::detail::concatenate_pathname(home, u"TESSEL\\R2018a");
}

}  // namespace host::standalone
