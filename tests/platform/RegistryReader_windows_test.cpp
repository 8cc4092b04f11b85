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

  void put(const void* bytes, std::size_t size, DWORD type = REG_SZ) {
    ASSERT_EQ(RegSetValueExW(key_, L"n ü", 0, type, static_cast<const BYTE*>(bytes), static_cast<DWORD>(size)),
              ERROR_SUCCESS);
  }

  HKEY key_ = nullptr;
  const ustring name = u"n ü";
};

TEST_F(RegistryReader, ReadsWhatIsThereUnderItsRoot) {
  const std::u16string text = u"C:\\Tools 漢\\%X%";
  put(text.c_str(), text.size() * 2 + 2, REG_EXPAND_SZ);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath, name), text);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, u"SOFTWARE\\ZEX TEST É", u"N Ü"), text);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath, u"absent"), std::nullopt);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath + u"\\absent", name), std::nullopt);
  EXPECT_EQ(readRegistry(RegistryRoot::LocalMachine, keyPath, name), std::nullopt);
}

TEST_F(RegistryReader, SizeCountsAndTypeDoesNot) {
  const std::u16string text(0x201, u'x');
  put(text.c_str(), 0x400);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath, name), text.substr(1)) << "without an end mark";
  put(text.c_str() + 2, 0x400);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath, name), text.substr(2));
  put(text.c_str() + 1, 0x402);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath, name), std::nullopt);
  const DWORD number = 0x00420041;
  put(&number, sizeof number, REG_DWORD);
  EXPECT_EQ(readRegistry(RegistryRoot::CurrentUser, keyPath, name), u"AB");
}

}  // namespace
}  // namespace zex_cmd
