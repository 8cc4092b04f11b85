#include <gtest/gtest.h>

#include <filesystem>

#include "fl/filesystem/operations.hpp"
#include "host/failure_kind.hpp"
#include "support/Scratch.hpp"

namespace {

using namespace fl::filesystem;
using zex_test::failureKind;
using zex_test::Scratch;

constexpr auto ownerRead = std::filesystem::perms::owner_read;

TEST(Operations, AFileInUseIsRefused) {
  const Scratch scratch;
  scratch.write("kept/open", "");
  scratch.write("other", "");
  const auto held = tmpfile(scratch.path("kept"));
  ASSERT_TRUE(held);
  EXPECT_EQ(failureKind(held->path, [&] { remove(held->path); }), "AccessDenied");
  EXPECT_EQ(failureKind(held->path, [&] { rename(u"other", held->path); }), "AccessDenied");
  EXPECT_TRUE(exists(held->path) && exists(u"other"));
  std::fclose(held->stream);
  EXPECT_TRUE(remove(held->path));
}

TEST(Operations, AWriteProtectedFileIsRemovedOnlyOnceItIsFree) {
  const Scratch scratch;
  scratch.write("file", "old");
  std::filesystem::permissions("file", ownerRead, std::filesystem::perm_options::replace);
  EXPECT_EQ(failureKind(u"file", [] { remove(u"file"); }), "AccessDenied");
  permissions(u"file", perms_add | owner_write);
  EXPECT_TRUE(remove(u"file"));
}

TEST(Operations, AFolderGoesWithItsWriteProtectedFiles) {
  const Scratch scratch;
  for (const char* name : {"folder/below/file", "folder/other"}) {
    scratch.write(name, "");
    std::filesystem::permissions(name, ownerRead, std::filesystem::perm_options::replace);
  }
  EXPECT_EQ(remove_all(u"folder"), 4U);
  EXPECT_FALSE(exists(u"folder"));
  EXPECT_EQ(remove_all(u"folder"), 0U);
}

TEST(Operations, LetterCaseOfNamesDoesNotCount) {
  const Scratch scratch;
  scratch.write("Name.TXT", "text");
  EXPECT_TRUE(exists(u"nAME.txt"));
  rename(u"NAME.TXT", u"other");
  EXPECT_EQ(scratch.names(), std::vector<std::string>{"other"});
}

TEST(Operations, NamesOfDevicesAndDrivesAreNoFolders) {
  const Scratch scratch;
  EXPECT_FALSE(exists(u"Q:\\missing"));
  EXPECT_EQ(failureKind(u"Q:\\missing\\a", [] { canonical(u"Q:\\missing\\a"); }), "PathNotFound");
  EXPECT_EQ(failureKind(u"a<b", [] { create_directories(u"a<b"); }).substr(0, 15), "InvalidArgument");
}

}  // namespace
