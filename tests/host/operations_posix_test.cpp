#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "fl/filesystem/directory_iterator.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/streams.hpp"
#include "host/failure_kind.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace {

using namespace fl::filesystem;
using fl::ustring;
using zex_test::failureKind;
using zex_test::Scratch;
namespace fs = std::filesystem;

TEST(Operations, NamesThatCannotBe) {
  const Scratch scratch;
  const ustring longName(300, u'x');
  EXPECT_EQ(failureKind(longName, [&] { create_directories(longName); }), "FileNameTooLarge");
  const ustring half{u'a', 0xD83D};
  EXPECT_EQ(failureKind(half, [&] { create_directories(half); }).substr(0, 25), "FileNameConversionFailure");
  EXPECT_FALSE(exists(half) || basic_ifstream(half) || basic_ofstream(half));
  EXPECT_FALSE(basic_ifstream(scratch.path())) << "a folder was opened";
}

TEST(Operations, LinksAreSeenAndNotRemovedThrough) {
  const Scratch scratch;
  fs::create_symlink("nowhere", "dangling");
  EXPECT_FALSE(exists(u"dangling"));
  EXPECT_TRUE(is_symlink(symlink_status(u"dangling")));

  scratch.write("kept/file", "");
  fs::create_directory("a");
  fs::create_directory_symlink("../kept", "a/link");
  EXPECT_EQ(remove_all(u"a"), 2U);
  EXPECT_TRUE(scratch.has("kept/file"));
}

TEST(Operations, AFolderThatRefuses) {
  const Scratch scratch;
  scratch.write("closed/file", "");
  const ustring closed = scratch.path("closed");
  const ustring file = scratch.path("closed/file");
  chmod("closed", 0);
  // Nothing is refused to the super-user, whose rights are put aside meanwhile.
  const uid_t former = geteuid();
  ASSERT_EQ(former == 0 ? seteuid(65534) : 0, 0);
  EXPECT_FALSE(exists(file) || tmpfile(closed).has_value() || basic_ifstream(file).is_open());
  EXPECT_EQ(failureKind(closed, [&] { create_directories(closed + u"/new"); }), "AccessDenied");
  ASSERT_EQ(former == 0 ? seteuid(former) : 0, 0);
  chmod("closed", 0700);
}

TEST(DirectoryIterator, EntriesKeepTheFolderAsGivenAndFollowLinks) {
  const Scratch scratch;
  scratch.write("d/file", "");
  fs::create_symlink("file", "d/link");
  fs::create_symlink("nowhere", "d/void");
  fs::create_symlink("file", "d/\xFF.c");
  std::string found;
  for (const auto& entry : upath_directory_iterator(u"./d/"))
    found += zex_test::utf8(entry.full_pathname()) + (entry.type() == regular_file ? " is a file, " : ", ");
  EXPECT_EQ(found, "./d/file is a file, ./d/link is a file, ./d/void, ./d/\uFFFD.c, ");
}

}  // namespace
