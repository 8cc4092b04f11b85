#include "fl/filesystem/operations.hpp"

#include <gtest/gtest.h>

#include "fl/filesystem/directory_iterator.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace {

using namespace fl::filesystem;
using fl::ustring;

TEST(Operations, FailuresAreToldApartAndLookingNeverFails) {
  const zex_test::Scratch scratch;
  scratch.write("file", "");
  for (const ustring& path : {ustring(u"file/below"), ustring(u"file")})
    EXPECT_THROW(create_directories(path), NotDirectoryError);
  EXPECT_THROW(canonical(u"missing/x"), PathNotFound);
  EXPECT_THROW(upath_directory_iterator(u"file"), NotDirectoryError);
  EXPECT_THROW(rename(u"missing", u"to"), PathNotFound);
  EXPECT_THROW(upath_directory_iterator(u"gone", {u"a.c"}), PathNotFound);
  for (const ustring& absent : {ustring(), ustring(u"file/x"), ustring(300, u'x'), ustring(u"file\0", 5)})
    EXPECT_FALSE(exists(absent)) << zex_test::utf8(absent);
}

TEST(DirectoryIterator, SelectsByPatternInOrder) {
  const zex_test::Scratch scratch;
  for (const char* name : {"b.c", "a.c", "D.c", "abc.cpp", ".hidden.c", "[x].c"}) scratch.write(name, "");
  const std::pair<ustring, ustring> rows[] = {
      {u"*.c", u"D.c [x].c a.c b.c "}, {u"*.C", u""},      {u"[x].c", u"[x].c "},
      {u"a*.c*", u"a.c abc.cpp "},     {u"a.c*", u"a.c "}, {u"c.c", u""},
  };
  for (const auto& [pattern, names] : rows) {
    ustring found;
    for (const auto& entry : upath_directory_iterator(u".", {pattern})) found += entry.file_name() + u" ";
    EXPECT_EQ(found, names);
  }
}

}  // namespace
