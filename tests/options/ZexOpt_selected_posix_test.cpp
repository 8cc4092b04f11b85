#include "options/DocumentTest.hpp"
#include "platform/full_disk_posix.hpp"

namespace zex_cmd {
namespace {

using FullDisk = DocumentTest;

TEST_F(FullDisk, AFailedWriteIsReportedAndDoesNotStay) {
  const zex_test::ScopedVariable preferences("TESSEL_PREFDIR", nullptr);
  host.preferences = scratch.path("prefs");
  ZexOpt opt = load("<config Name='n'><vars OPT='-O'/></config>");
  const ustring path = scratch.path("prefs/saved.xml");
  const auto failure = [&] { return zex_test::failureOf([&] { opt.writeSelected(path); }); };
  // A short text fails when the stream is flushed, a long one while it is written.
  for (const std::string identifier : {"XMLWriteFailed", "XMLWriteFailedWithMsg"}) {
    scratch.write("prefs/saved.xml", identifier);
    EXPECT_THAT(zex_test::onFullDisk(failure),
                testing::StartsWith("TESSEL:zex:" + identifier + "(\"" + scratch.told("prefs/saved.xml") + "\""));
    EXPECT_THAT(scratch.names("prefs"), testing::ElementsAre("saved.xml"));
    EXPECT_EQ(scratch.read("prefs/saved.xml"), identifier);
    opt.setVariable(u"LONG", ustring(100'000, u'x'));
  }
}

}  // namespace
}  // namespace zex_cmd
