#include "build/user_libraries.hpp"

#include "args/ZexArgs.hpp"
#include "build/BuildTest.hpp"
#include "vars/ZexVarResolver.hpp"

namespace zex_cmd {
namespace {

class UserLibraries : public BuildTest {
 protected:
  /// What becomes of a link command with the library "1", or the failure.
  std::string resolved(const ustring& searchPath) {
    option->setValue(u"config.Details.<xmlattr>.LibrarySearchPath", searchPath);
    option->setValue(u"config.Details.<xmlattr>.LinkerLibrarySwitchFormatter", u"lib%s.a;lib%s.b");
    option->setVariable(u"CMDLINE200", u"ld lib1.a lib1.b  -o x");
    args->libraries = u" \"1\"";
    const std::string failure =
        zex_test::failureOf([&] { resolveLibraries(*option, ZexVarResolver(args, nullptr), *args); });
    return failure == "no error" ? zex_test::utf8(*option->variable(u"CMDLINE200")) : failure;
  }

  boost::shared_ptr<ZexArgs> args = boost::make_shared<ZexArgs>();
  boost::shared_ptr<ZexOpt> option = loaded();
};

TEST_F(UserLibraries, AreFoundInEachFolderOfASearchPathOrWhatWasTriedIsToldInReversedOrder) {
  const zex_test::ScopedVariable variable("ZEX_TEST_LIBS", "theirs;$$ZEX_TEST_LIBS");  // names itself again
  args->libraryPaths = u" \"with blank\"";
  EXPECT_EQ(resolved(u"libs;$$ZEX_TEST_LIBS"), "TESSEL:zex:LibNotFound(\"1\", \"lib1.b\", \"lib1.a\")");
  for (const std::string folder : {"libs/", "theirs/", "with blank/", ""}) {
    tree.scratch.write(folder + "lib1.b", "");
    EXPECT_EQ(resolved(u"libs;$$ZEX_TEST_LIBS"), "ld lib1.b -o x") << folder;
    EXPECT_EQ(resolved(u""), "ld lib1.a lib1.b  -o x");
    std::filesystem::remove(folder + "lib1.b");
  }
}

}  // namespace
}  // namespace zex_cmd
