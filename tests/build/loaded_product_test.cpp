#include "build/loaded_product.hpp"

#include "build/BuildTest.hpp"
#include "fl/filesystem/path_names.hpp"
#include "support/RecordingDispatcher.hpp"

namespace zex_cmd {
namespace {

using zex_test::RecordedSet;

class LoadedProduct : public BuildTest {
 protected:
  LoadedProduct() { tree.host.dispatch = &dispatcher; }

  std::string released(const ustring& product) const {
    return zex_test::failureOf([&] { releaseLoadedProduct(fl::filesystem::detail::make_native_form(product)); });
  }

  zex_test::RecordingDispatcher dispatcher;
};

TEST_F(LoadedProduct, IsUnloadedOrRefusedByTheFirstSetThatMatches) {
  struct Case {
    ustring loaded;  ///< "." stands for the current folder
    int locks;
    const char16_t* product;
    bool unloaded;
    const char* failure;
  };
  const Case cases[] = {
      {u"./A B.ZEXA64>f", 0, u"\"a b.zexa64\"", true, "no error"},
      {u"/x/a.zexa64>f>g", 0, u"/x/a.zexa64", true, "no error"},
      {u"/x/a.zexa64>f", 1, u"\"/x/a.zexa64\"", false, "TESSEL:zex:Locked(\"/x/a.zexa64\")"},
      {u"/x/b.zexa64>f", 1, u"/x/a.zexa64", false, "no error"},
      {u"/x/a.zexa64", 1, u"/x/a.zexa64", false, "no error"},  // names no file
  };
  for (const Case& row : cases) {
    const bool here = row.loaded.starts_with(u".");
    const ustring name = here ? tree.scratch.path() + row.loaded.substr(1) : row.loaded;
    RecordedSet set(name, row.locks), later(name, 1);
    dispatcher.table = {nullptr, &set};
    if (row.unloaded) dispatcher.table.push_back(&later);  // the walk must end at the first match
    EXPECT_EQ(released(row.product), row.failure) << zex_test::utf8(row.loaded);
    EXPECT_EQ(set.unloaded, row.unloaded) << zex_test::utf8(row.loaded);
  }
}

TEST_F(LoadedProduct, OnlyNativeExtensionsCount) {
  RecordedSet otherKind(u"/x/a>f", 1), otherQuery(u"/x/a>f", 1), noHandles(u"/x/a>f", 1);
  otherKind.kind = 1;
  otherQuery.query = 3;
  noHandles.handles.clear();
  dispatcher.table = {&otherKind, &otherQuery, &noHandles};
  EXPECT_EQ(released(u"/x/a"), "no error");
}

TEST_F(LoadedProduct, PathManagerIsToldOfTheFolder) {
  const std::string drive(zex_test::platform.drive);
  const std::string end = tree.scratch.told().substr(tree.scratch.told().size() - 6);
  notifyPathManager(u"\"/x y/a.zexa64\"");
  notifyPathManager(u"a.zexa64");
  ASSERT_EQ(dispatcher.updates, (std::vector<int>{0, 0}));
  EXPECT_EQ(dispatcher.notices[0], zex_test::utf16("file://" + (drive.empty() ? "" : "/" + drive) + "/x%20y"));
  EXPECT_TRUE(dispatcher.notices[1].ends_with(zex_test::utf16("/zex%20test%20%C3%A9%20" + end)));
}

}  // namespace
}  // namespace zex_cmd
