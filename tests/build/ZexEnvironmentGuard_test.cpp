#include "build/ZexEnvironmentGuard.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"

namespace zex_cmd {
namespace {

using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;
using zex_test::ScopedVariable;

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
    EXPECT_STREQ(std::getenv("ZEX_TEST_SET"), "new:old");
    EXPECT_STREQ(std::getenv("ZEX_TEST_UNSET"), "alone");  // no empty entry, which would mean the current folder
  }
  EXPECT_STREQ(std::getenv("ZEX_TEST_SET"), "old");
  EXPECT_STREQ(std::getenv("ZEX_TEST_TWICE"), "0");
  EXPECT_STREQ(std::getenv("ZEX_TEST_UNSET"), "");  // set to the empty text, not removed
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
  EXPECT_STREQ(std::getenv("ZEX_TEST_SET"), "old");
}

TEST(EnvironmentGuard, WarnsOfALongValue) {
  InstalledTree tree;
  const ScopedVariable set("ZEX_TEST_SET", nullptr);
  Document document;
  tree.scratch.write("d.xml", document.xml());
  ZexOpt option(tree.scratch.path("d.xml"), "", u"", false);
  for (const std::size_t length : {7999U, 8000U}) {
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
