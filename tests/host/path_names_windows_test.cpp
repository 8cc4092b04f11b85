#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace {

using namespace fl::filesystem::detail;
using fl::ustring;

/// A path, its parent and its name.
using Parts = std::vector<ustring>;

TEST(PathNames, BeginWithDrivesAndServers) {
  const Parts cases[] = {
      {u"C:\\a\\b.c", u"C:\\a", u"b.c"},
      {u"C:\\b.c", u"C:\\", u"b.c"},
      {u"C:/a\\b/c.d", u"C:/a\\b", u"c.d"},
      {u"C:b.c", u"C:", u"b.c"},  // of the drive's own current folder
      {u"\\b.c", u"\\", u"b.c"},
      {u"\\\\server\\share\\b.c", u"\\\\server\\share\\", u"b.c"},
      {u"\\\\server\\share", u"\\\\server\\share", u""},
      {u"//server/share/a/b.c", u"//server/share/a", u"b.c"},
  };
  for (const Parts& parts : cases) {
    const ustring& path = parts.front();
    EXPECT_EQ((Parts{path, extract_parent_path(path), extract_filename(path)}), parts) << zex_test::utf8(path);
  }
  EXPECT_EQ(concatenate_pathname(u"C:\\a/", u"\\b/c"), u"C:\\a\\b/c");
  EXPECT_EQ(concatenate_pathname(u"\\\\server\\share\\", u"b"), u"\\\\server\\share\\b");
}

TEST(PathNames, AreMadeAbsoluteFromWhatTheyLack) {
  const zex_test::Scratch scratch;
  std::filesystem::create_directory("d");
  const ustring here = scratch.path();
  const ustring drive = here.substr(0, 2);
  const std::pair<ustring, ustring> cases[] = {
      {u"a/b", here + u"\\a/b"}, {u"C:/a\\..", u"C:/a\\.."},    {u"\\\\server\\share\\a", u"\\\\server\\share\\a"},
      {u"\\a", drive + u"\\a"},  {drive + u"a", here + u"\\a"},
  };
  for (const auto& [path, expected] : cases)
    EXPECT_EQ(zex_test::utf8(fl::filesystem::absolute(path)), zex_test::utf8(expected));
  EXPECT_EQ(fl::filesystem::absolute(u"a", u"d"), scratch.path("d/a"));
}

}  // namespace
