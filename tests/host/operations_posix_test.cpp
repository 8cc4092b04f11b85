#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/streams.hpp"
#include "support/Scratch.hpp"

namespace {

using namespace fl::filesystem;
using fl::ustring;

TEST(Operations, NothingIsRemovedThroughALink) {
  const zex_test::Scratch scratch;
  scratch.write("kept/file", "");
  scratch.write("a/file", "");
  std::filesystem::create_directory_symlink("../kept", "a/link");
  EXPECT_EQ(remove_all(u"a"), 3U);
  EXPECT_TRUE(scratch.has("kept/file"));
}

TEST(Operations, FoldersThatRefuseAndNamesThatCannotBe) {
  const zex_test::Scratch scratch;
  scratch.write("closed/file", "");
  const ustring closed = scratch.path("closed"), file = scratch.path("closed/file");
  chmod("closed", 0);
  // Nothing is refused to the super-user, whose rights are put aside meanwhile.
  const uid_t former = geteuid();
  ASSERT_EQ(former == 0 ? seteuid(65534) : 0, 0);
  EXPECT_FALSE(exists(file) || tmpfile(closed).has_value() || basic_ifstream(file).is_open());
  EXPECT_THROW(create_directories(closed + u"/new"), AccessDenied);
  ASSERT_EQ(former == 0 ? seteuid(former) : 0, 0);
  chmod("closed", 0700);
  EXPECT_THROW(create_directories(ustring(300, u'x')), FileNameTooLarge);
  EXPECT_THROW(create_directories(ustring(1, 0xD83D)), FileNameConversionFailure);
}

}  // namespace
