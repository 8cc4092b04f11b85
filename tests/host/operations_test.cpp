#include "fl/filesystem/operations.hpp"

#include <gtest/gtest.h>

#include "fl/filesystem/directory_iterator.hpp"
#include "host/failure_kind.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace {

using namespace fl::filesystem;
using fl::ustring;
using zex_test::failureKind;
using zex_test::Scratch;

TEST(Operations, FailuresAreToldApart) {
  const Scratch scratch;
  scratch.write("file", "");
  const auto make = [](const ustring& path) { return failureKind(path, [&] { create_directories(path); }); };
  EXPECT_EQ(make(u"file/below"), "NotDirectoryError");
  EXPECT_EQ(make(u"file"), "NotDirectoryError");
  EXPECT_EQ(failureKind(u"missing/x", [] { canonical(u"missing/x"); }), "PathNotFound");
  EXPECT_EQ(failureKind(u"file", [] { upath_directory_iterator all(u"file"); }), "NotDirectoryError");
  EXPECT_EQ(failureKind(u"to", [] { rename(u"missing", u"to"); }), "PathNotFound");
  EXPECT_EQ(failureKind(u"gone", [] { upath_directory_iterator all(u"gone", {u"a.c"}); }), "PathNotFound");
}

TEST(Operations, LookingNeverThrows) {
  const Scratch scratch;
  scratch.write("file", "");
  EXPECT_TRUE(exists(u"file") && is_directory(status(scratch.path())));
  const ustring longName(300, u'x');
  for (const ustring& absent :
       {ustring(), ustring(u"missing"), ustring(u"file/x"), longName, ustring(u"file\0", 5)})
    EXPECT_FALSE(exists(absent)) << zex_test::utf8(absent);
}

TEST(DirectoryIterator, SelectsByPatternInOrder) {
  const Scratch scratch;
  for (const char* name : {"b.c", "a.c", "D.c", "abc.cpp", ".hidden.c", "[x].c"}) scratch.write(name, "");
  const auto namesBy = [](const ustring& pattern) {
    ustring names;
    for (const auto& entry : upath_directory_iterator(u".", {pattern})) names += entry.file_name() + u" ";
    return names;
  };
  EXPECT_EQ(namesBy(u"*.c"), u"D.c [x].c a.c b.c ");
  EXPECT_EQ(namesBy(u"*.C"), u"");
  EXPECT_EQ(namesBy(u"[x].c"), u"[x].c ");
  EXPECT_EQ(namesBy(u"c.c"), u"");
}

}  // namespace
