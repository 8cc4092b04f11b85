#include <filesystem>

#include "options/DocumentTest.hpp"
#include "platform/full_disk_posix.hpp"

namespace zex_cmd {
namespace {

using Posix = DocumentTest;

TEST_F(Posix, TheFolderFoundSoFarIsThatBehindALink) {
  std::filesystem::create_symlink("real/cc", "link");
  const std::string tests = "<fileExists name='link'/><fileExists name='$$/ld'/>";
  EXPECT_EQ(load("<locationFinder><V>" + tests + "</V></locationFinder>").variable(u"V"), scratch.path("real/ld"));
}

TEST_F(Posix, AFailedWriteIsReportedAndLeavesTheFormerFile) {
  ZexOpt opt = load("<vars OPT='-O'/>");
  const auto failure = [&] {
    return zex_test::failureOf([&] { opt.writeSelected(scratch.path("prefs/saved.xml")); });
  };
  // A short text fails when the stream is flushed, a long one while it is written.
  for (const std::string identifier : {"XMLWriteFailed", "XMLWriteFailedWithMsg"}) {
    scratch.write("prefs/saved.xml", identifier);
    EXPECT_THAT(zex_test::onFullDisk(failure),
                testing::StartsWith("TESSEL:zex:" + identifier + "(\"" + scratch.told("prefs/saved.xml") + "\""));
    EXPECT_THAT(scratch.names("prefs"), testing::ElementsAre("other", "saved.xml"));
    EXPECT_EQ(scratch.read("prefs/saved.xml"), identifier);
    opt.setVariable(u"LONG", ustring(100'000, u'x'));
  }
}

}  // namespace
}  // namespace zex_cmd
