#include <gtest/gtest.h>
#include <unistd.h>

#include "services/io/uout.hpp"
#include "settings/core/preferences.hpp"
#include "standalone/StandaloneServices.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace {

using host::standalone::StandaloneServices;
using settings::core::getPreferencesDirectoryUStr;
using zex_test::ScopedVariable;

const std::string longText(100'000, 'x');

TEST(Services, TakeOutputOfAnyLength) {
  zex_test::RecordingServices host;
  utPrintf("%s%d", longText.c_str(), 42);
  EXPECT_EQ(host.output, longText + "42");
}

TEST(Standalone, SurvivesAClosedOutput) {
  const auto writes = [] {
    close(STDOUT_FILENO);
    StandaloneServices services;
    services.write(longText);
    const auto result = services.runShellLine(u"echo text; echo more >&2; exit 4", false);
    _exit(result.status == 4 && result.text == u"text\nmore\n" ? 0 : 1);
  };
  EXPECT_EXIT(writes(), testing::ExitedWithCode(0), "");
}

TEST(Standalone, PreferencesFollowTheDesktopConvention) {
  const zex_test::Scratch scratch;
  const ScopedVariable home("HOME", scratch.folder()), xdg("XDG_CONFIG_HOME", "relative/is/ignored");
  EXPECT_EQ(getPreferencesDirectoryUStr(false), scratch.path(".config/tessel/R2018a"));
  EXPECT_FALSE(scratch.has(".config"));
  const ScopedVariable absolute("XDG_CONFIG_HOME", scratch.folder() / "c f/");
  EXPECT_EQ(getPreferencesDirectoryUStr(true), scratch.path("c f/tessel/R2018a"));
  EXPECT_TRUE(scratch.has("c f/tessel/R2018a"));
}

}  // namespace
