#include "build/ZexEnvironmentGuard.hpp"

#include "build/BuildTest.hpp"

namespace zex_cmd {
namespace {

using zex_test::failureOf;
using zex_test::platform;
using zex_test::ScopedVariable;
using zex_test::variable;

using EnvironmentGuard = BuildTest;

TEST_F(EnvironmentGuard, PutsTheDocumentsTextFirstAndRestores) {
  const ScopedVariable set("ZEX_TEST_SET", "old");
  const ScopedVariable unset("ZEX_TEST_UNSET", nullptr);
  const ScopedVariable twice("ZEX_TEST_TWICE", "0");
  document.env = "ZEX_TEST_SET=\"new\" ZEX_TEST_UNSET=\"alone\" ZEX_TEST_TWICE=\"1\" ZEX_TEST_TWICE=\"2\"";
  {
    const ZexEnvironmentGuard guard(*loaded());
    EXPECT_EQ(variable("ZEX_TEST_SET"), "new" + std::string(platform.listSeparator) + "old");
    // On POSIX an empty entry would mean the current folder.
    EXPECT_EQ(variable("ZEX_TEST_UNSET"), "alone" + std::string(platform.joinedToNone));
  }
  EXPECT_EQ(variable("ZEX_TEST_SET"), "old");
  EXPECT_EQ(variable("ZEX_TEST_TWICE"), "0");
  EXPECT_EQ(variable("ZEX_TEST_UNSET"), "");
}

TEST_F(EnvironmentGuard, FailureHalfWayRestoresWhatWasSet) {
  const ScopedVariable set("ZEX_TEST_SET", "old");
  document.env = "ZEX_TEST_SET=\"new\"";
  const auto option = loaded();
  option->setValue(u"config.env.<xmlattr>.BAD=NAME", u"x");  // the system takes no "=" in a name
  EXPECT_EQ(failureOf([&] { const ZexEnvironmentGuard guard(*option); }), "TESSEL:zex:FailSetEnv(\"BAD=NAME\")");
  EXPECT_EQ(variable("ZEX_TEST_SET"), "old");
}

TEST_F(EnvironmentGuard, WarnsOfALongValue) {
  const ScopedVariable set("ZEX_TEST_SET", nullptr);
  const auto option = loaded();
  const auto tryLength = [&](std::size_t length) {
    option->setValue(u"config.env.<xmlattr>.ZEX_TEST_SET", ustring(length - platform.joinedToNone.size(), u'x'));
    const ZexEnvironmentGuard guard(*option);
  };
  tryLength(7999);
  tryLength(8000);
  tree.host.hot = true;
  tryLength(8000);
  EXPECT_THAT(tree.host.warnings, testing::ElementsAre("TESSEL:zex:LongEnv(\"ZEX_TEST_SET\")",
                                                       "TESSEL:zex:LongEnv_link(\"ZEX_TEST_SET\")"));
}

}  // namespace
}  // namespace zex_cmd
