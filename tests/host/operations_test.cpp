#include "fl/filesystem/operations.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <boost/core/demangle.hpp>
#include <filesystem>
#include <fstream>
#include <typeinfo>

#include "fl/filesystem/directory_iterator.hpp"
#include "fl/filesystem/streams.hpp"
#include "fl/i18n/strings.hpp"
#include "support/Scratch.hpp"

namespace {

using namespace fl::filesystem;
using fl::ustring;
using zex_test::Scratch;
namespace fs = std::filesystem;

/// Which member of the family an action throws; its text must name the path.
template <class Action>
std::string failureKind(const ustring& path, Action action) {
  try {
    action();
  } catch (const FsysExceptionBase& failure) {
    const std::string kind =
        boost::core::demangle(typeid(failure).name()).substr(std::string("fl::filesystem::").size());
    const bool named = std::string(failure.what()).find(fl::i18n::to_string(path)) != std::string::npos;
    return named ? kind : kind + " without the path";
  }
  return "none";
}

const ustring longName(300, u'x');
const ustring halfACharacter{u'a', 0xD83D};

TEST(Operations, FailuresAreToldApart) {
  const Scratch scratch;
  scratch.write("file", "");
  const auto make = [](const ustring& path) { return failureKind(path, [&] { create_directories(path); }); };
  EXPECT_EQ(make(u"file/below"), "NotDirectoryError");
  EXPECT_EQ(make(longName), "FileNameTooLarge");
  EXPECT_EQ(make(halfACharacter).substr(0, 25), "FileNameConversionFailure");
  EXPECT_EQ(failureKind(u"missing/x", [] { canonical(u"missing/x"); }), "PathNotFound");
  EXPECT_EQ(failureKind(u"file", [] { upath_directory_iterator all(u"file"); }), "NotDirectoryError");
  EXPECT_EQ(failureKind(u"to", [] { rename(u"missing", u"to"); }), "PathNotFound");
  EXPECT_EQ(failureKind(u"gone", [] { upath_directory_iterator all(u"gone", {u"a.c"}); }), "PathNotFound");
}

TEST(Operations, LookingNeverThrows) {
  const Scratch scratch;
  scratch.write("file", "");
  fs::create_symlink("nowhere", "dangling");
  EXPECT_TRUE(exists(u"file") && is_directory(status(scratch.path())));
  for (const ustring& absent : {ustring(), ustring(u"missing"), ustring(u"file/x"), ustring(u"dangling"), longName,
                                halfACharacter, ustring{u'f', u'i', u'l', u'e', u'\0'}})
    EXPECT_FALSE(exists(absent)) << fl::i18n::to_string(absent);
  EXPECT_TRUE(is_symlink(symlink_status(u"dangling")));
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

TEST(Operations, FoldersAreMadeAndRemovedWithoutFollowingLinks) {
  const Scratch scratch;
  scratch.write("kept/file", "");
  EXPECT_TRUE(create_directories(u"a/é b/c"));
  EXPECT_FALSE(create_directories(u"a/é b/c/"));
  fs::create_directory_symlink("../kept", "a/link");
  EXPECT_EQ(remove_all(u"a"), 4U);
  EXPECT_TRUE(scratch.has("kept/file"));
}

TEST(Operations, TemporaryFilesAndStreams) {
  const Scratch scratch;
  auto first = tmpfile(scratch.path());
  auto second = tmpfile(scratch.path());
  ASSERT_TRUE(first && second);
  EXPECT_NE(first->path, second->path);
  EXPECT_FALSE(tmpfile(u"missing"));
  basic_ofstream(u"ü.txt") << "long text";
  basic_ofstream(u"ü.txt") << "text";
  EXPECT_EQ(scratch.read("ü.txt"), "text");
  for (const ustring& refused : {scratch.path(), ustring(u"missing/x"), halfACharacter})
    EXPECT_FALSE(basic_ifstream(refused) || basic_ofstream(refused)) << fl::i18n::to_string(refused);
}

TEST(DirectoryIterator, SelectsByPatternInOrder) {
  const Scratch scratch;
  for (const char* name : {"b.c", "a.c", "B.c", "abc.cpp", ".hidden.c", "[x].c"}) scratch.write(name, "");
  const auto namesBy = [](const ustring& pattern) {
    ustring names;
    for (const auto& entry : upath_directory_iterator(u".", {pattern})) names += entry.file_name() + u" ";
    return names;
  };
  EXPECT_EQ(namesBy(u"*.c"), u"B.c [x].c a.c b.c ");
  EXPECT_EQ(namesBy(u"[x].c"), u"[x].c ");
  EXPECT_EQ(namesBy(u"c.c"), u"");
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
                                    {u"./d/\uFFFD.c", file_not_found}};
  EXPECT_EQ(found, expected);
}

}  // namespace
