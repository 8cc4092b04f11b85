#include <gtest/gtest.h>

#include "platform/paths.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using zex_test::failureOf;
using zex_test::utf8;

TEST(FullPath, FoldsByTextAloneAndRefusesWhatNoCommandCanCarry) {
  const zex_test::RecordingServices host;
  const zex_test::Scratch scratch;
  const ustring longest = u"/" + ustring(510, u'x');
  const std::pair<ustring, ustring> cases[] = {
      {u"", scratch.path()},        {u"no/../such/./a.c", scratch.path("such/a.c")},
      {u"//usr///lib/..", u"/usr"}, {u"/../..", u"/"},
      {u"/..a/b..", u"/..a/b.."},   {longest, longest},
  };
  for (const auto& [path, expected] : cases) EXPECT_EQ(utf8(fullPath(path)), utf8(expected));
  const auto expectInvalid = [](const ustring& path) {
    EXPECT_EQ(failureOf([&] { fullPath(path); }), "TESSEL:zex:Error(\"Invalid path " + utf8(path) + "\")");
  };
  for (const ustring& path : {longest + u"x", ustring(u"/a$/../b.c"), ustring(u"`b`.c")}) expectInvalid(path);
  std::filesystem::create_directory("a$b");
  std::filesystem::current_path("a$b");
  expectInvalid(u"x.c");
}

}  // namespace
}  // namespace zex_cmd
