#include <gtest/gtest.h>

#include "build/ZexEnvironmentGuard.hpp"
#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"

namespace zex_cmd {
namespace {

TEST(OddBytes, StayInTheEnvironmentDuringABuildAndBehindIt) {
  const zex_test::InstalledTree tree;
  const std::string odd = "a\xFF\xED\xB2\x80\xC3\xA9\xE2\x82";
  const zex_test::ScopedVariable set("ZEX_TEST_SET", odd.c_str());
  zex_test::Document document;
  document.env = "ZEX_TEST_SET=\"new\"";
  tree.scratch.write("d.xml", document.xml());
  const ZexOpt option(tree.scratch.path("d.xml"), "", u"", false);
  {
    const ZexEnvironmentGuard guard(option);
    EXPECT_EQ(zex_test::variable("ZEX_TEST_SET"), "new:" + odd);
  }
  EXPECT_EQ(zex_test::variable("ZEX_TEST_SET"), odd);
}

}  // namespace
}  // namespace zex_cmd
