#include "build/user_libraries.hpp"

#include "args/ZexArgs.hpp"
#include "build/BuildTest.hpp"
#include "fl/i18n/strings.hpp"
#include "vars/ZexVarResolver.hpp"

namespace zex_cmd {
namespace {

class UserLibraries : public BuildTest {
 protected:
  UserLibraries() {
    for (const char16_t* name : {u"CMDLINE200", u"LINKLIBS", u"OTHER"})
      option->setVariable(name, u"ld lib1.a lib1.b  -o x");
    formatBy(u"lib%s.a;lib%s.b");
    args->libraries = u" \"1\"";
  }

  void formatBy(const ustring& formatter) {
    option->setValue(u"config.Details.<xmlattr>.LinkerLibrarySwitchFormatter", formatter);
  }
  void searchIn(const ustring& folders) {
    option->setValue(u"config.Details.<xmlattr>.LibrarySearchPath", folders);
  }
  std::string resolved() {
    return zex_test::failureOf([&] { resolveLibraries(*option, ZexVarResolver(args, nullptr), *args); });
  }

  boost::shared_ptr<ZexArgs> args = boost::make_shared<ZexArgs>();
  boost::shared_ptr<ZexOpt> option = loaded();
};

TEST_F(UserLibraries, TheCandidateThatIsThereReplacesTheSwitchText) {
  tree.scratch.write("libs/lib1.b", "");
  EXPECT_EQ(resolved(), "no error");  // without a search path nothing changes
  EXPECT_EQ(option->variable(u"CMDLINE200"), u"ld lib1.a lib1.b  -o x");
  searchIn(u"nowhere;libs");
  EXPECT_EQ(resolved(), "no error");
  EXPECT_EQ(option->variable(u"CMDLINE200"), u"ld lib1.b -o x");
  EXPECT_EQ(option->variable(u"LINKLIBS"), u"ld lib1.b -o x");
  EXPECT_EQ(option->variable(u"OTHER"), u"ld lib1.a lib1.b  -o x");
}

TEST_F(UserLibraries, AMissingOneNamesWhatWasTriedInReversedOrder) {
  searchIn(u"libs");
  EXPECT_EQ(resolved(), "TESSEL:zex:LibNotFound(\"1\", \"lib1.b\", \"lib1.a\")");
  // What a candidate's file is called follows the machine of the build, whatever it builds for.
  formatBy(u"-l%s");
  args->arch = zex_test::architecture == "glnxa64" ? "win64" : "glnxa64";
  const std::string tried = zex_test::architecture == "glnxa64" ? "-l1" : "1.lib";
  EXPECT_EQ(resolved(), "TESSEL:zex:LibNotFound(\"1\", \"\", \"" + tried + "\")");
}

TEST_F(UserLibraries, SearchPathTakesVariablesThenSwitchesThenTheCurrentFolder) {
  const zex_test::ScopedVariable folders("ZEX_TEST_LIBS", "one;$$ZEX_TEST_LIBS;two");  // names itself again
  args->libraryPaths = u" \"with blank\" \"three\"";
  searchIn(u"zero;$$ZEX_TEST_LIBS;$$ZEX_TEST_NONE");
  EXPECT_THAT(librarySearchPath(*option, *args),
              testing::ElementsAre(u"zero", u"$$ZEX_TEST_LIBS", u"$$ZEX_TEST_NONE", u"one", u"$$ZEX_TEST_LIBS",
                                   u"two", u"", u"with blank", u"three", tree.scratch.path()));
}

}  // namespace
}  // namespace zex_cmd
