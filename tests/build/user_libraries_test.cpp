#include "build/user_libraries.hpp"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"
#include "vars/ZexVarResolver.hpp"

namespace zex_cmd {
namespace {

using zex_test::failureOf;
using zex_test::InstalledTree;
using zex_test::ScopedVariable;

class UserLibraries : public testing::Test {
 protected:
  UserLibraries() {
    tree.scratch.write("d.xml", zex_test::Document().xml());
    option = boost::make_shared<ZexOpt>(tree.scratch.path("d.xml"), "", u"", false);
    option->setVariable(u"CMDLINE200", u"ld lib1.a lib1.b  -o x");
    option->setVariable(u"LINKLIBS", u"lib1.a lib1.b ");
    option->setVariable(u"OTHER", u"lib1.a lib1.b ");
    option->setValue(u"config.Details.<xmlattr>.LinkerLibrarySwitchFormatter", u"lib%s.a;lib%s.b");
    args->libraries = u" \"1\"";
  }

  void searchIn(const ustring& folders) {
    option->setValue(u"config.Details.<xmlattr>.LibrarySearchPath", folders);
  }
  void resolve() { resolveLibraries(*option, ZexVarResolver(args, nullptr), *args); }

  const InstalledTree tree;
  boost::shared_ptr<ZexArgs> args = boost::make_shared<ZexArgs>();
  boost::shared_ptr<ZexOpt> option;
};

TEST_F(UserLibraries, TheCandidateThatIsThereReplacesTheSwitchText) {
  tree.scratch.write("libs/lib1.b", "");
  searchIn(u"nowhere;libs");
  resolve();
  EXPECT_EQ(option->variable(u"CMDLINE200"), u"ld lib1.b -o x");
  EXPECT_EQ(option->variable(u"LINKLIBS"), u"lib1.b");
  EXPECT_EQ(option->variable(u"OTHER"), u"lib1.a lib1.b ");
}

TEST_F(UserLibraries, AMissingOneNamesWhatWasTriedInReversedOrder) {
  searchIn(u"libs");
  EXPECT_EQ(failureOf([&] { resolve(); }), "TESSEL:zex:LibNotFound(\"1\", \"lib1.b\", \"lib1.a\")");
  option->setValue(u"config.Details.<xmlattr>.LinkerLibrarySwitchFormatter", u"-l%s");
  // What a candidate's file is called follows the machine of the build, whatever it builds for.
  const std::string tried = zex_test::architecture == "glnxa64" ? "-l1" : "1.lib";
  for (const char* architecture : {"glnxa64", "win64"}) {
    args->arch = architecture;
    EXPECT_EQ(failureOf([&] { resolve(); }), "TESSEL:zex:LibNotFound(\"1\", \"\", \"" + tried + "\")");
  }
}

TEST_F(UserLibraries, WithoutASearchPathTheTextStays) {
  resolve();
  EXPECT_EQ(option->variable(u"CMDLINE200"), u"ld lib1.a lib1.b  -o x");
}

TEST_F(UserLibraries, SearchPathTakesVariablesThenSwitchesThenTheCurrentFolder) {
  const ScopedVariable folders("ZEX_TEST_LIBS", "one;$$ZEX_TEST_LIBS;two");  // names itself again
  const ScopedVariable unset("ZEX_TEST_NONE", nullptr);
  args->libraryPaths = u" \"with blank\" \"three\"";
  searchIn(u"zero;$$ZEX_TEST_LIBS;$$ZEX_TEST_NONE");
  const std::vector<ustring> expected = {
      u"zero",       u"$$ZEX_TEST_LIBS", u"$$ZEX_TEST_NONE", u"one", u"$$ZEX_TEST_LIBS", u"two", u"",
      u"with blank", u"three",           tree.scratch.path()};
  EXPECT_EQ(librarySearchPath(*option, *args), expected);
}

}  // namespace
}  // namespace zex_cmd
