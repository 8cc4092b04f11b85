#include "build/ZexEnvironmentGuard.hpp"

#include "build/BuildTest.hpp"

namespace zex_cmd {
namespace {

using zex_test::platform;
using zex_test::ScopedVariable;
using zex_test::variable;

using EnvironmentGuard = BuildTest;

TEST_F(EnvironmentGuard, PutsTheDocumentsTextFirstAndRestoresAfterASuccessOrAFailureHalfWay) {
  const ScopedVariable set("ZEX_TEST_SET", "old"), unset("ZEX_TEST_UNSET", nullptr), twice("ZEX_TEST_TWICE", "0");
  document.env = "ZEX_TEST_SET=\"new\" ZEX_TEST_UNSET=\"alone\" ZEX_TEST_TWICE=\"1\" ZEX_TEST_TWICE=\"2\"";
  const auto option = loaded();
  for (const char* failure : {"no error", "TESSEL:zex:FailSetEnv(\"BAD=NAME\")"}) {
    EXPECT_EQ(zex_test::failureOf([&] {
                const ZexEnvironmentGuard guard(*option);
                EXPECT_EQ(variable("ZEX_TEST_SET"), "new" + std::string(platform.listSeparator) + "old");
                // On POSIX an empty entry would mean the current folder.
                EXPECT_EQ(variable("ZEX_TEST_UNSET"), "alone" + std::string(platform.joinedToNone));
              }),
              failure);
    EXPECT_EQ(variable("ZEX_TEST_SET"), "old");
    EXPECT_EQ(variable("ZEX_TEST_TWICE"), "0");
    EXPECT_EQ(variable("ZEX_TEST_UNSET"), "");
    option->setValue(u"config.env.<xmlattr>.BAD=NAME", u"x");  // the system takes no "=" in a name
  }
}

TEST_F(EnvironmentGuard, WarnsOfALongValue) {
  const ScopedVariable set("ZEX_TEST_SET", nullptr);
  const auto option = loaded();
  for (const std::size_t length : {7999U, 8000U}) {
    option->setValue(u"config.env.<xmlattr>.ZEX_TEST_SET", ustring(length - platform.joinedToNone.size(), u'x'));
    const ZexEnvironmentGuard guard(*option);
    EXPECT_EQ(tree.host.warnings.size(), length - 7999);
  }
}

}  // namespace
}  // namespace zex_cmd
