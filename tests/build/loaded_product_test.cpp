#include "build/loaded_product.hpp"

#include <gtest/gtest.h>

#include "fl/filesystem/path_names.hpp"
#include "support/InstalledTree.hpp"
#include "support/RecordingDispatcher.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using zex_test::failureOf;
using zex_test::InstalledTree;
using zex_test::RecordedSet;
using zex_test::RecordingDispatcher;

TEST(LoadedProduct, IsUnloadedOrRefusedByTheFirstSetThatCountsAndMatches) {
  struct Case {
    const char* what;
    ustring loaded;  ///< "." stands for the current folder
    int locks;
    const char16_t* product;
    bool unloaded;
    const char* failure;
  };
  const Case cases[] = {
      {"relative product", u"./a b.zexa64>f", 0, u"\"a b.zexa64\"", true, "no error"},
      {"letter case", u"./A B.ZEXA64>f", 0, u"a b.zexa64", true, "no error"},
      {"absolute product", u"/x/a.zexa64>f>g", 0, u"/x/a.zexa64", true, "no error"},
      {"locked", u"/x/a.zexa64>f", 1, u"\"/x/a.zexa64\"", false, "TESSEL:zex:Locked(\"/x/a.zexa64\")"},
      {"another file", u"/x/b.zexa64>f", 1, u"/x/a.zexa64", false, "no error"},
      {"no file in the name", u"/x/a.zexa64", 1, u"/x/a.zexa64", false, "no error"},
  };
  InstalledTree tree;
  for (const Case& row : cases) {
    ustring name = row.loaded;
    if (name.starts_with(u"./")) name = tree.scratch.path() + name.substr(1);
    RecordedSet set(name, row.locks);
    RecordedSet later(name, 1);
    RecordingDispatcher dispatcher;
    dispatcher.table = {nullptr, &set};
    if (row.unloaded) dispatcher.table.push_back(&later);  // the walk must end at the first match
    tree.host.dispatch = &dispatcher;
    const ustring product = fl::filesystem::detail::make_native_form(row.product);
    EXPECT_EQ(failureOf([&] { releaseLoadedProduct(product); }), row.failure) << row.what;
    EXPECT_EQ(set.unloaded, row.unloaded) << row.what;
  }
}

TEST(LoadedProduct, OnlyNativeExtensionsCount) {
  InstalledTree tree;
  RecordedSet otherKind(u"/x/a>f", 1);
  otherKind.kind = 1;
  RecordedSet otherQuery(u"/x/a>f", 1);
  otherQuery.query = 3;
  RecordedSet noHandles(u"/x/a>f", 1);
  noHandles.handles.clear();
  RecordingDispatcher dispatcher;
  dispatcher.table = {&otherKind, &otherQuery, &noHandles};
  tree.host.dispatch = &dispatcher;
  EXPECT_EQ(failureOf([] { releaseLoadedProduct(u"/x/a"); }), "no error");
}

TEST(LoadedProduct, PathManagerIsToldOfTheFolder) {
  InstalledTree tree;
  RecordingDispatcher dispatcher;
  tree.host.dispatch = &dispatcher;
  notifyPathManager(u"\"/x y/a.zexa64\"");
  const std::string drive(zex_test::platform.drive);
  EXPECT_EQ(dispatcher.notices,
            std::vector<ustring>{zex_test::utf16("file://" + (drive.empty() ? "" : "/" + drive) + "/x%20y")});
  EXPECT_EQ(dispatcher.updates, std::vector<int>{0});
  notifyPathManager(u"a.zexa64");
  EXPECT_TRUE(dispatcher.notices.back().ends_with(u"/zex%20test%20%C3%A9%20" +
                                                  tree.scratch.path().substr(tree.scratch.path().size() - 6)));
}

}  // namespace
}  // namespace zex_cmd
