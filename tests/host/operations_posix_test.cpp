#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "fl/filesystem/directory_iterator.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/streams.hpp"
#include "host/failure_kind.hpp"
#include "support/Scratch.hpp"

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
  std::ofstream("d/\xFF.c") << "";
  std::vector<std::pair<ustring, file_type>> found;
  for (const auto& entry : upath_directory_iterator(u"./d/"))
    found.emplace_back(entry.full_pathname(), entry.type());
  const decltype(found) expected = {{u"./d/file", regular_file},
                                    {u"./d/link", regular_file},
                                    {u"./d/void", file_not_found},
                                    {u"./d/\xDCFF.c", status_error}};
  // The last one is no text, and so nothing can be done with it.
  EXPECT_EQ(found, expected);
}

}  // namespace
