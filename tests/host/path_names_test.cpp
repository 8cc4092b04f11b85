#include "fl/filesystem/path_names.hpp"

#include <gtest/gtest.h>

#include "fl/i18n/strings.hpp"

namespace {

using namespace fl::filesystem::detail;
using fl::ustring;

struct Parts {
  ustring path, parent, name, stem, extension;
};

TEST(PathNames, AreTakenApartAsText) {
  const Parts cases[] = {
      {u"", u"", u"", u"", u""},
      {u"/", u"/", u"", u"", u""},
      {u"hello.c", u"", u"hello.c", u"hello", u"c"},
      {u"a/b/", u"a/b", u"", u"", u""},
      {u"/hello.c", u"/", u"hello.c", u"hello", u"c"},
      {u"//a", u"/", u"a", u"a", u""},
      {u"a//b.tar.gz", u"a", u"b.tar.gz", u"b.tar", u"gz"},
      {u"dir.d/.profile", u"dir.d", u".profile", u".profile", u""},
      {u"x/..", u"x", u"..", u"..", u""},
      {u"x/.", u"x", u".", u".", u""},
      {u"name.", u"", u"name.", u"name", u""},
      {u"é/ü ö.C", u"é", u"ü ö.C", u"ü ö", u"C"},
  };
  for (const Parts& expected : cases) {
    SCOPED_TRACE(fl::i18n::to_string(expected.path));
    EXPECT_EQ(extract_parent_path(expected.path), expected.parent);
    EXPECT_EQ(remove_filename(expected.path), expected.parent);
    EXPECT_EQ(extract_filename(expected.path), expected.name);
    EXPECT_EQ(extract_stem(expected.path), expected.stem);
    EXPECT_EQ(extract_extension(expected.path), expected.extension);
  }
}

TEST(PathNames, AreJoinedWithOneSeparator) {
  for (const auto& [folder, name] : {std::pair{u"a", u"b"}, {u"a/", u"b"}, {u"a", u"/b"}, {u"a//", u"//b"}})
    EXPECT_EQ(concatenate_pathname(folder, name), u"a/b");
  EXPECT_EQ(concatenate_pathname(u"/", u"b"), u"/b");
  EXPECT_EQ(concatenate_pathname(u"", u"/b"), u"/b");
  EXPECT_EQ(concatenate_pathname(u"a/", u""), u"a/");
  EXPECT_EQ(make_native_form(u"a\\b/c"), u"a\\b/c");
}

}  // namespace
