#include <gtest/gtest.h>

#include <filesystem>

#include "fl/filesystem/operations.hpp"
#include "host/failure_kind.hpp"
#include "support/Scratch.hpp"

namespace {

using namespace fl::filesystem;
using zex_test::failureKind;
using zex_test::Scratch;

TEST(Operations, AFileInUseIsRefused) {
  const Scratch scratch;
  scratch.write("other", "");
  const auto held = tmpfile(scratch.path());
  ASSERT_TRUE(held);
  EXPECT_EQ(failureKind(held->path, [&] { remove(held->path); }), "AccessDenied");
  EXPECT_EQ(failureKind(held->path, [&] { rename(u"other", held->path); }), "AccessDenied");
  EXPECT_TRUE(exists(held->path) && exists(u"other"));
  std::fclose(held->stream);
  EXPECT_TRUE(remove(held->path));
}

TEST(Operations, AWriteProtectedFileIsRemovedOnlyOnceItIsFreeOrWithItsFolder) {
  const Scratch scratch;
  for (const char* name : {"folder/below/file", "folder/other"}) {
    scratch.write(name, "");
    std::filesystem::permissions(name, std::filesystem::perms::owner_read);
  }
  const fl::ustring file = u"folder/other";
  EXPECT_EQ(failureKind(file, [&] { remove(file); }), "AccessDenied");
  permissions(file, perms_add | owner_write);
  EXPECT_TRUE(remove(file));
  EXPECT_EQ(remove_all(u"folder"), 3U);
  EXPECT_EQ(remove_all(u"folder"), 0U);
}

TEST(Operations, NamesOfDrivesThatAreNotThereAndOnesThatCannotBe) {
  EXPECT_FALSE(exists(u"Q:\\missing"));
  EXPECT_EQ(failureKind(u"Q:\\missing\\a", [] { canonical(u"Q:\\missing\\a"); }), "PathNotFound");
  EXPECT_EQ(failureKind(u"a<b", [] { create_directories(u"a<b"); }).substr(0, 15), "InvalidArgument");
}

}  // namespace
