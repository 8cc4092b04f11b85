#include <gtest/gtest.h>

#include <filesystem>

#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "support/Scratch.hpp"

namespace {

using namespace fl::filesystem;

TEST(Operations, FilesInUseOrWriteProtectedAreRefused) {
  const zex_test::Scratch scratch;
  for (const char* name : {"folder/below/file", "folder/other"}) {
    scratch.write(name, "");
    std::filesystem::permissions(name, std::filesystem::perms::owner_read);
  }
  const fl::ustring file = u"folder/other";
  EXPECT_THROW(remove(file), AccessDenied);
  permissions(file, perms_add | owner_write);
  const auto held = tmpfile(scratch.path());
  ASSERT_TRUE(held);
  EXPECT_THROW(remove(held->path), AccessDenied);
  EXPECT_THROW(rename(file, held->path), AccessDenied);
  std::fclose(held->stream);
  EXPECT_TRUE(remove(held->path) && remove(file));
  EXPECT_EQ(remove_all(u"folder"), 3U) << "a write-protected file goes with its folder";
  EXPECT_THROW(create_directories(u"a<b"), InvalidArgument);
}

}  // namespace
