#include <windows.h>

#include <array>

#include "platform/RegistryReader.hpp"

namespace zex_cmd {

namespace {

/// Bytes that the query may fill. The buffer is twice as large, so a text without an end mark still has one.
constexpr DWORD longestValue = 0x400;

const wchar_t* wide(const ustring& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

}  // namespace

std::optional<ustring> readRegistry(RegistryRoot root, const ustring& keyPath, const ustring& valueName) {
  const HKEY rootKey = root == RegistryRoot::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
  HKEY key = nullptr;
  if (RegOpenKeyExW(rootKey, wide(keyPath), 0, KEY_READ, &key) != ERROR_SUCCESS) return std::nullopt;

  std::array<char16_t, longestValue> buffer{};
  DWORD size = longestValue;
  auto* bytes = reinterpret_cast<BYTE*>(buffer.data());
  // The key stays open where only the query fails; kept so.
  if (RegQueryValueExW(key, wide(valueName), nullptr, nullptr, bytes, &size) != ERROR_SUCCESS) return std::nullopt;
  RegCloseKey(key);
  return ustring(buffer.data());
}

}  // namespace zex_cmd
