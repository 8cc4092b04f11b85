#include "platform/folders.hpp"

#include <gmock/gmock.h>

#include "fl/filesystem/exceptions.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace zex_cmd {
namespace {

using Permissions = std::filesystem::perms;

TEST(Folders, PreferencesComeFromAVariableOnlyIfItsFolderIsThere) {
  zex_test::RecordingServices host;
  const zex_test::Scratch scratch;
  host.preferences = u"/of/the/host";
  const zex_test::ScopedVariable variable("TESSEL_PREFDIR", scratch.folder() / "prefs");
  EXPECT_EQ(preferencesFolder(), u"/of/the/host");
  scratch.write("prefs/a.xml", "");
  EXPECT_EQ(preferencesFolder(), scratch.path("prefs"));
  for (const char* name : {"prefs", "prefs/a.xml", "prefs/not_there.xml"})
    EXPECT_TRUE(isInPreferencesFolder(scratch.path(name))) << name;
  for (const char* name : {"Prefs/a.xml", "prefs/deeper/a.xml"})
    EXPECT_FALSE(isInPreferencesFolder(scratch.path(name))) << name;
}

TEST(Folders, ReplacesAFileThatIsWriteProtected) {
  const zex_test::Scratch scratch;
  scratch.write("from", "new");
  scratch.write("to", "old");
  for (const char* name : {"from", "to"}) std::filesystem::permissions(name, Permissions::owner_read);
  replaceFile(scratch.path("from"), scratch.path("to"));
  EXPECT_THAT(scratch.names(), testing::ElementsAre("to"));
  EXPECT_EQ(scratch.read("to"), "new");
  EXPECT_NE(std::filesystem::status("to").permissions() & Permissions::owner_write, Permissions::none);
}

}  // namespace
}  // namespace zex_cmd
