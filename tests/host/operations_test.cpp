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
  fs::create_symlink("nowhere", "dangling");
  fs::create_symlink("loop", "loop");
  const auto make = [](const ustring& path) { return failureKind(path, [&] { create_directories(path); }); };
  const auto canon = [](const ustring& path) { return failureKind(path, [&] { canonical(path); }); };
  const auto list = [](const ustring& path) {
    return failureKind(path, [&] { upath_directory_iterator all(path); });
  };

  EXPECT_EQ(make(u"file"), "NotDirectoryError");
  EXPECT_EQ(make(u"file/below"), "NotDirectoryError");
  EXPECT_EQ(make(u"dangling"), "NotDirectoryError");
  EXPECT_EQ(make(longName), "FileNameTooLarge");
  EXPECT_EQ(make(halfACharacter).substr(0, 25), "FileNameConversionFailure");
  const ustring withZero{u'a', u'\0', u'b'};
  EXPECT_EQ(failureKind(u"a?b: ", [&] { create_directories(withZero); }), "InvalidArgument");
  EXPECT_EQ(canon(u"missing/x"), "PathNotFound");
  EXPECT_EQ(canon(u"dangling"), "PathNotFound");
  EXPECT_EQ(canon(u"loop"), "SystemError");
  EXPECT_EQ(list(u"missing"), "PathNotFound");
  EXPECT_EQ(list(u"file"), "NotDirectoryError");
  EXPECT_EQ(failureKind(u"to", [] { rename(u"missing", u"to"); }), "PathNotFound");
  EXPECT_EQ(failureKind(u"missing", [] { permissions(u"missing", perms_add | owner_write); }), "PathNotFound");
}

TEST(Operations, LookingNeverThrows) {
  const Scratch scratch;
  scratch.write("file", "");
  fs::create_symlink("nowhere", "dangling");
  EXPECT_TRUE(exists(u"file"));
  for (const ustring& absent : {ustring(), ustring(u"missing"), ustring(u"file/x"), ustring(u"dangling"), longName,
                                halfACharacter, ustring{u'f', u'i', u'l', u'e', u'\0'}})
    EXPECT_FALSE(exists(absent)) << fl::i18n::to_string(absent);
  EXPECT_TRUE(is_directory(status(scratch.path())) && is_regular(status(u"file")));
  EXPECT_TRUE(is_symlink(symlink_status(u"dangling")));
  EXPECT_EQ(status(u"/dev/null").type(), other_file);
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
  EXPECT_EQ(failureKind(closed, [&] { upath_directory_iterator all(closed); }), "AccessDenied");
  EXPECT_EQ(failureKind(file, [&] { remove(file); }), "AccessDenied");
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
  EXPECT_FALSE(remove_all(u"a") > 0 || remove(u"missing"));
}

TEST(Operations, PathsBecomeAbsolute) {
  const Scratch scratch;
  scratch.write("folder/file", "");
  fs::create_symlink("folder", "link");
  EXPECT_EQ(get_current_path(), scratch.path());
  EXPECT_EQ(absolute(u"x/../y"), scratch.path() + u"/x/../y");
  EXPECT_EQ(absolute(u"x", u"link/"), scratch.path("link/x"));
  EXPECT_EQ(absolute(u"/x", u"/base"), u"/x");
  EXPECT_EQ(canonical(u"link/../link/file"), scratch.path("folder/file"));
}

TEST(Operations, PermissionsLeaveALinkAlone) {
  const Scratch scratch;
  scratch.write("file", "");
  chmod("file", 0444);
  fs::create_symlink("file", "link");
  permissions(u"link", perms_add | owner_write | perms_symlink);
  EXPECT_EQ(fs::status("file").permissions(), fs::perms(0444));
  permissions(u"file", perms_add | owner_write);
  EXPECT_EQ(fs::status("file").permissions(), fs::perms(0644));
}

TEST(Operations, TemporaryFilesAndStreams) {
  const Scratch scratch;
  auto first = tmpfile(scratch.path());
  auto second = tmpfile(scratch.path());
  ASSERT_TRUE(first && second);
  EXPECT_NE(first->path, second->path);
  first->close();
  second->close();
  EXPECT_FALSE(tmpfile(u"missing") || tmpfile(u""));

  basic_ofstream(u"ü.txt") << "long text";
  basic_ofstream(u"ü.txt") << "text";
  EXPECT_EQ(scratch.read("ü.txt"), "text");
  for (const ustring& refused : {scratch.path(), ustring(u"missing/x"), longName, halfACharacter}) {
    EXPECT_FALSE(basic_ifstream(refused));
    EXPECT_FALSE(basic_ofstream(refused));
  }
}

std::vector<ustring> namesBy(const ustring& folder, const ustring& pattern) {
  std::vector<ustring> names;
  for (const auto& entry : upath_directory_iterator(folder, {pattern})) names.push_back(entry.file_name());
  return names;
}

TEST(DirectoryIterator, SelectsByPatternInOrder) {
  const Scratch scratch;
  for (const char* name : {"b.c", "a.c", "B.c", "abc.cpp", ".hidden.c", "[x].c"}) scratch.write(name, "");
  using Names = std::vector<ustring>;
  EXPECT_EQ(namesBy(u".", u"*.c"), (Names{u"B.c", u"[x].c", u"a.c", u"b.c"}));
  EXPECT_EQ(namesBy(u".", u"a*c*p"), (Names{u"abc.cpp"}));
  EXPECT_EQ(namesBy(u".", u".*.c"), (Names{u".hidden.c"}));
  EXPECT_EQ(namesBy(u".", u"[x].c"), (Names{u"[x].c"}));
  EXPECT_EQ(namesBy(u".", u"?.c"), Names{});
  for (const ustring& none : {ustring(), ustring(u"."), ustring(u".."), ustring(u"./a.c"), ustring(u"c.c")})
    EXPECT_EQ(namesBy(u".", none), Names{});
  EXPECT_THROW(namesBy(u"missing", u"a.c"), PathNotFound);
  EXPECT_THROW(namesBy(u"", u"a.c"), PathNotFound);
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
  const std::vector<std::pair<ustring, file_type>> expected = {{u"./d/file", regular_file},
                                                               {u"./d/link", regular_file},
                                                               {u"./d/void", file_not_found},
                                                               {u"./d/\uFFFD.c", file_not_found}};
  EXPECT_EQ(found, expected);
  fs::create_directory("\xFF");
  fs::current_path("\xFF");
  EXPECT_THROW(get_current_path(), FileNameConversionFailure);
}

}  // namespace
