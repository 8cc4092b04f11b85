#include <gtest/gtest.h>

#include "services/io/uout.hpp"
#include "settings/core/preferences.hpp"
#include "standalone/StandaloneServices.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"

namespace {

using settings::core::getPreferencesDirectoryUStr;
using zex_test::ScopedVariable;

TEST(Services, TakeOutputOfAnyLength) {
  const zex_test::RecordingServices host;
  const std::string longText(100'000, 'x');
  utPrintf("%s%d", longText.c_str(), 42);
  EXPECT_EQ(host.output, longText + "42");
}

TEST(Standalone, FoldersFollowTheEnvironmentAndEndInNoSeparator) {
  const zex_test::Scratch scratch;
  const bool isWindows = !zex_test::platform.drive.empty();
  const std::string folder = isWindows ? "c f/TESSEL/R2018a" : "c f/tessel/R2018a";
  const ScopedVariable data(isWindows ? "APPDATA" : "XDG_CONFIG_HOME", scratch.folder() / "c f/");
  for (const bool made : {false, true}) {
    EXPECT_EQ(getPreferencesDirectoryUStr(made), scratch.path(folder));
    EXPECT_EQ(scratch.has(folder), made);
  }
  const ScopedVariable root("TESSEL_ROOT", "root//");
  EXPECT_EQ(host::standalone::StandaloneServices().installFolder(), scratch.path("root"));
  const ScopedVariable relative("XDG_CONFIG_HOME", "is/ignored"), home("HOME", scratch.folder());
  if (!isWindows) {
    EXPECT_EQ(getPreferencesDirectoryUStr(false), scratch.path(".config/tessel/R2018a"));
  }
}

}  // namespace
