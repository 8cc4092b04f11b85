#include <gtest/gtest.h>

#include "platform/paths.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using zex_test::utf8;

TEST(FullPath, FoldsByTextAloneAndKnowsDrivesAndServers) {
  const zex_test::RecordingServices host;
  const zex_test::Scratch scratch;
  const ustring drive = scratch.path().substr(0, 2);
  const ustring longest = u"C:\\" + ustring(508, u'x');
  const std::pair<ustring, ustring> cases[] = {
      {u"", scratch.path()},
      {u"no/../such/./a.c", scratch.path("such/a.c")},
      {u"C:/a//b\\../c/", u"C:\\a\\c\\"},
      {u"\\a\\..\\..\\b", drive + u"\\b"},
      {drive + u"a.c", scratch.path("a.c")},
      {u"\\\\server\\share\\..\\..\\a/b", u"\\\\server\\share\\a\\b"},
      {u"$a%`b`", scratch.path("$a%`b`")},
      {longest, longest},
  };
  for (const auto& [path, expected] : cases) EXPECT_EQ(utf8(fullPath(path)), utf8(expected));
  // Lists of sources have ";" between them, and the shell looks for variables within quotes as well.
  for (const ustring& path : {u"C:/" + ustring(509, u'x'), ustring(u"a;b"), ustring(u"%a%")}) {
    EXPECT_EQ(zex_test::failureOf([&] { fullPath(path); }),
              "TESSEL:zex:Error(\"Invalid path " + utf8(path) + "\")");
  }
}

}  // namespace
}  // namespace zex_cmd
