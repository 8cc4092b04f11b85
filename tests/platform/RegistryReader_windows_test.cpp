#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/RegistryReader.hpp"

namespace zex_cmd {
namespace {

constexpr wchar_t keyName[] = L"Software\\zex test é";
const ustring keyPath = u"Software\\zex test é";

class RegistryReader : public testing::Test {
 protected:
  RegistryReader() { RegCreateKeyW(HKEY_CURRENT_USER, keyName, &key_); }
  ~RegistryReader() override {
    RegCloseKey(key_);
    RegDeleteTreeW(HKEY_CURRENT_USER, keyName);
  }

  HKEY key_ = nullptr;
};

TEST_F(RegistryReader, SizeCountsAndTypeDoesNot) {
  const struct {
    ustring units;
    DWORD type;
    std::optional<ustring> read;
  } cases[] = {
      {ustring(511, u'x') + u'\0', REG_SZ, ustring(511, u'x')},
      {ustring(512, u'x'), REG_SZ, ustring(512, u'x')},  // without an end mark
      {ustring(512, u'x') + u'\0', REG_SZ, std::nullopt},
      {u"AB", REG_DWORD, u"AB"},
      {ustring(u"C:\\Tools 漢\\%X%") + u'\0', REG_EXPAND_SZ, u"C:\\Tools 漢\\%X%"},
  };
  for (const auto& row : cases) {
    const auto* const bytes = reinterpret_cast<const BYTE*>(row.units.data());
    RegSetValueExW(key_, L"n ü", 0, row.type, bytes, static_cast<DWORD>(row.units.size() * 2));
    EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath, u"n ü"), row.read) << row.units.size();
  }
  EXPECT_NE(readRegistry(RegistryRoot::CurrentUser, u"SOFTWARE\\ZEX TEST É", u"N Ü"), std::nullopt);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath, u"absent"), std::nullopt);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath + u"\\absent", u"n ü"), std::nullopt);
  EXPECT_EQ(readRegistry(RegistryRoot::LocalMachine, keyPath, u"n ü"), std::nullopt);
}

}  // namespace
}  // namespace zex_cmd
