#include <gtest/gtest.h>

#include "fl/filesystem/exceptions.hpp"
#include "settings/core/preferences.hpp"
#include "standalone/StandaloneServices.hpp"
#include "support/Scratch.hpp"

namespace {

using settings::core::getPreferencesDirectoryUStr;
using zex_test::ScopedVariable;

TEST(Standalone, PreferencesLieInTheUsersApplicationData) {
  const zex_test::Scratch scratch;
  const ScopedVariable data("APPDATA", scratch.folder() / "data");
  for (const bool made : {false, true}) {
    EXPECT_EQ(getPreferencesDirectoryUStr(made), scratch.path("data/TESSEL/R2018a"));
    EXPECT_EQ(scratch.has("data/TESSEL/R2018a"), made);
  }
  const ScopedVariable none("APPDATA", nullptr);
  EXPECT_THROW(getPreferencesDirectoryUStr(false), fl::filesystem::PathNotFound);
}

TEST(Standalone, AShellLineGivesItsTextAndStatus) {
  // The system's own shell, whatever else the tests run in its place.
  const ScopedVariable shell("COMSPEC", "C:\\windows\\system32\\cmd.exe");
  const auto result = host::standalone::StandaloneServices().runShellLine(u"echo one& echo two& exit 3", false);
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.text, u"one\ntwo\n");
}

}  // namespace
