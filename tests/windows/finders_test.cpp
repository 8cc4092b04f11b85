#include <windows.h>

#include <vector>

#include "windows/WindowsTree.hpp"

namespace windows_tests {
namespace {

using testing::HasSubstr;

/// A key with values of a fresh test, below both roots.
class RegistryKey {
 public:
  explicit RegistryKey(HKEY root) : root_(root) {
    RegCreateKeyExW(root, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
  }
  ~RegistryKey() {
    RegCloseKey(key_);
    RegDeleteKeyW(root_, path);
  }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  void put(const wchar_t* name, const std::wstring& text, DWORD type = REG_SZ) const {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    RegSetValueExW(key_, name, 0, type, reinterpret_cast<const BYTE*>(text.c_str()), size);
  }

 private:
  static constexpr wchar_t path[] = L"Software\\zex tests\\finder";
  HKEY root_;
  HKEY key_ = nullptr;
};

class WindowsFinders : public WindowsTree {
 protected:
  /// What a dry run tells of its search.
  std::string search(const std::string& finder) const {
    write("a.c", "");
    writeOddDocument("CMDLINE100='found $PLACE'", finder);
    const Outcome outcome = zex("-v -n a.c -f odd.xml");
    return outcome.out + outcome.err;
  }
};

TEST_F(WindowsFinders, ReadRegistryValues) {
  const RegistryKey user(HKEY_CURRENT_USER);
  const RegistryKey machine(HKEY_LOCAL_MACHINE);
  user.put(L"place", L"C:\\Übung (x86) & co");
  machine.put(L"place", L"D:\\machine", REG_EXPAND_SZ);
  user.put(L"longest", std::wstring(511, L'x'));
  user.put(L"longer", std::wstring(512, L'x'));
  const auto asking = [](const std::string& root, const std::string& name) {
    return "<" + root + " path='Software\\zex tests\\finder' name='" + name + "'/>";
  };
  EXPECT_THAT(search(asking("hkcuExists", "place")), HasSubstr("\nfound C:\\Übung (x86) & co\n"));
  EXPECT_THAT(search(asking("hklmExists", "place")), HasSubstr("\nfound D:\\machine\n"));
  EXPECT_THAT(search(asking("hkcuExists", "longest")), HasSubstr("\nfound " + std::string(511, 'x') + "\n"));
  for (const char* name : {"longer", "absent"}) {
    const std::string told = search(asking("hkcuExists", name));
    EXPECT_THAT(told, HasSubstr("TESSEL:zex:No\n")) << name;
    EXPECT_THAT(told, HasSubstr("TESSEL:zex:NotInstalledCompiler(\"odd\")")) << name;
  }
}

TEST_F(WindowsFinders, BuildOnWhatCommandsAndVariablesTell) {
  std::filesystem::create_directories(L"räum/bin");
  set("ZEX_TEST_PLACE", work / L"räum");
  write("place.txt", "  C:\\from\\a\\..\\file  \r\n");
  EXPECT_THAT(search("<envVarExists name='ZEX_TEST_PLACE'/><dirExists name='$$\\bin'/>"),
              HasSubstr("play\\räum\\bin\n"));
  EXPECT_THAT(search("<cmdReturns name='type place.txt'/>"), HasSubstr("\nfound C:\\from\\file\n"));
  EXPECT_THAT(search("<not><cmdReturns name='exit 1'/></not>"), HasSubstr("\nfound\n"));
}

}  // namespace
}  // namespace windows_tests
