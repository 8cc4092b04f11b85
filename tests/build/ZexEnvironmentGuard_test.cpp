#include "build/ZexEnvironmentGuard.hpp"

#include <gtest/gtest.h>

#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"

namespace zex_cmd {
namespace {

using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;
using zex_test::platform;
using zex_test::ScopedVariable;
using zex_test::variable;

TEST(EnvironmentGuard, PutsTheDocumentsTextFirstAndRestores) {
  const InstalledTree tree;
  const ScopedVariable set("ZEX_TEST_SET", "old");
  const ScopedVariable unset("ZEX_TEST_UNSET", nullptr);
  Document document;
  document.env = "ZEX_TEST_SET=\"new\" ZEX_TEST_UNSET=\"alone\" ZEX_TEST_TWICE=\"1\" ZEX_TEST_TWICE=\"2\"";
  const ScopedVariable twice("ZEX_TEST_TWICE", "0");
  tree.scratch.write("d.xml", document.xml());
  const ZexOpt option(tree.scratch.path("d.xml"), "", u"", false);
  {
    const ZexEnvironmentGuard guard(option);
    EXPECT_EQ(variable("ZEX_TEST_SET"), "new" + std::string(platform.listSeparator) + "old");
    // On POSIX an empty entry would mean the current folder.
    EXPECT_EQ(variable("ZEX_TEST_UNSET"), "alone" + std::string(platform.joinedToNone));
  }
  EXPECT_EQ(variable("ZEX_TEST_SET"), "old");
  EXPECT_EQ(variable("ZEX_TEST_TWICE"), "0");
  EXPECT_EQ(variable("ZEX_TEST_UNSET"), "");
}

TEST(EnvironmentGuard, FailureHalfWayRestoresWhatWasSet) {
  const InstalledTree tree;
  const ScopedVariable set("ZEX_TEST_SET", "old");
  Document document;
  document.env = "ZEX_TEST_SET=\"new\"";
  tree.scratch.write("d.xml", document.xml());
  ZexOpt option(tree.scratch.path("d.xml"), "", u"", false);
  option.setValue(u"config.env.<xmlattr>.BAD=NAME", u"x");  // the system takes no "=" in a name
  EXPECT_EQ(failureOf([&] { const ZexEnvironmentGuard guard(option); }), "TESSEL:zex:FailSetEnv(\"BAD=NAME\")");
  EXPECT_EQ(variable("ZEX_TEST_SET"), "old");
}

TEST(EnvironmentGuard, WarnsOfALongValue) {
  InstalledTree tree;
  const ScopedVariable set("ZEX_TEST_SET", nullptr);
  Document document;
  tree.scratch.write("d.xml", document.xml());
  ZexOpt option(tree.scratch.path("d.xml"), "", u"", false);
  const std::size_t longest = 7999 - platform.joinedToNone.size();
  for (const std::size_t length : {longest, longest + 1}) {
    option.setValue(u"config.env.<xmlattr>.ZEX_TEST_SET", ustring(length, u'x'));
    const ZexEnvironmentGuard guard(option);
  }
  tree.host.hot = true;
  { const ZexEnvironmentGuard guard(option); }
  EXPECT_EQ(tree.host.warnings, (std::vector<std::string>{"TESSEL:zex:LongEnv(\"ZEX_TEST_SET\")",
                                                          "TESSEL:zex:LongEnv_link(\"ZEX_TEST_SET\")"}));
}

}  // namespace
}  // namespace zex_cmd
