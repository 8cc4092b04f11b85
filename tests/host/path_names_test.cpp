#include "fl/filesystem/path_names.hpp"

#include <gtest/gtest.h>

#include <vector>

#include "support/texts.hpp"

namespace {

using namespace fl::filesystem::detail;
using fl::ustring;

/// A path, its parent, its name, its stem and its extension.
using Parts = std::vector<ustring>;

TEST(PathNames, AreTakenApartAsText) {
  const Parts cases[] = {
      {u"a/b/", u"a/b", u"", u"", u""},
      {u"/hello.c", u"/", u"hello.c", u"hello", u"c"},
      {u"a//b.tar.gz", u"a", u"b.tar.gz", u"b.tar", u"gz"},
      {u"dir.d/.profile", u"dir.d", u".profile", u".profile", u""},
      {u"x/..", u"x", u"..", u"..", u""},
      {u"name.", u"", u"name.", u"name", u""},
  };
  for (const Parts& parts : cases) {
    const ustring& path = parts.front();
    const Parts found = {path, extract_parent_path(path), extract_filename(path), extract_stem(path),
                         extract_extension(path)};
    EXPECT_EQ(found, parts) << zex_test::utf8(path);
  }
}

TEST(PathNames, AreJoinedWithOneSeparator) {
  for (const auto& [folder, name] : {std::pair{u"a", u"b"}, {u"a/", u"b"}, {u"a", u"/b"}, {u"a//", u"//b"}})
    EXPECT_EQ(concatenate_pathname(folder, name), make_native_form(u"a/b"));
  EXPECT_EQ(concatenate_pathname(u"/", u"b"), make_native_form(u"/b"));
  EXPECT_EQ(concatenate_pathname(u"", u"/b"), u"/b");
}

}  // namespace
