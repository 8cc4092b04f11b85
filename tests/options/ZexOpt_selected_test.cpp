#include <filesystem>

#include "fl/i18n/strings.hpp"
#include "options/DocumentTest.hpp"

namespace zex_cmd {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr char document[] =
    "<config Name='n' ShortName='s'>\n <!-- kept <as> it is & stands -->\n"
    " <vars OPT='-O'/><env PATH='p'/><Details A='say \"hi\"'/><client><ZBUILD OPT='x'/></client>\n"
    " <locationFinder><ROOT><dirExists name='.'/></ROOT></locationFinder><TESSEL release='R2017b'/>\n"
    "</config>\n";

class SelectedOptionsTest : public DocumentTest {
 protected:
  SelectedOptionsTest() {
    std::filesystem::create_directories("prefs");
    std::filesystem::create_directories("other");
    host.preferences = scratch.path("prefs");
  }

  zex_test::ScopedVariable preferences{"TESSEL_PREFDIR", nullptr};
};

TEST_F(SelectedOptionsTest, EveryValueReadsBackEqual) {
  ZexOpt opt = load(document);
  const ustring values[] = {u"\"a\" 'b' <c> & &amp; &#9;", u"tab\there", u"line\nfeed\n", u"   ", u" ends ", u"",
                            u"é ß 漢 \U0001F600",          u"$A $$B \\"};
  for (const ustring& value : values) {
    opt.setVariable(u"TRIED", value);
    opt.writeSelected(scratch.path("other/saved.xml"));
    const ZexOpt saved = reload("other/saved.xml");
    EXPECT_EQ(saved.variable(u"TRIED"), value) << fl::i18n::to_string(value);
    EXPECT_EQ(saved.variable(u"ROOT"), u".");
    EXPECT_TRUE(saved.installed);
    EXPECT_EQ(opt.attribute(u"ZEXOPT"), scratch.path("other/saved.xml"));
  }
  // No folder but that of the preferences gets a stamp, a backup or a notice.
  EXPECT_FALSE(reload("other/saved.xml").currentRelease);
  EXPECT_EQ(scratch.names("other"), std::vector<std::string>{"saved.xml"});
  EXPECT_EQ(host.output, "");
  EXPECT_THAT(scratch.read("other/saved.xml"),
              AllOf(StartsWith("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<config "),
                    HasSubstr("\n\t<!-- kept <as> it is & stands -->\n"), HasSubstr("\"say &quot;hi&quot;\""),
                    HasSubstr("\n\t\t\t<dirExists "), Not(HasSubstr("Zexopt"))));
}

TEST_F(SelectedOptionsTest, ThePreferencesFolderGetsAStampAndABackup) {
  ZexOpt opt = load(document);
  const ustring path = scratch.path("prefs/zex_C_glnxa64.xml");
  for (const char* text : {"first", "second"}) {
    scratch.write("prefs/zex_C_glnxa64.xml", text);
    host.output.clear();
    opt.writeSelected(path);
    EXPECT_EQ(scratch.read("prefs/zex_C_glnxa64_backup.xml"), text);
    const std::string folder = (scratch.folder() / "prefs").string();
    EXPECT_EQ(host.output, "TESSEL:zex:FileRenamed(\"" + folder + "/zex_C_glnxa64.xml\", \"" + folder +
                               "/zex_C_glnxa64_backup.xml\")\n");
  }
  EXPECT_TRUE(reload("prefs/zex_C_glnxa64.xml").currentRelease);
}

TEST_F(SelectedOptionsTest, AFailedWriteIsReported) {
  ZexOpt opt = load(document);
  const std::string missing = (scratch.folder() / "missing/saved.xml").string();
  EXPECT_EQ(zex_test::failureOf([&] { opt.writeSelected(scratch.path("missing/saved.xml")); }),
            "TESSEL:zex:XMLWriteFailed(\"" + missing + "\")");
  EXPECT_EQ(opt.attribute(u"ZEXOPT"), u"");

  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  EXPECT_EQ(zex_test::failureOf([&] { opt.writeSelected(u"/dev/full"); }),
            "TESSEL:zex:XMLWriteFailed(\"/dev/full\")");
  opt.setVariable(u"LONG", ustring(100'000, u'x'));
  EXPECT_THAT(zex_test::failureOf([&] { opt.writeSelected(u"/dev/full"); }),
              StartsWith("TESSEL:zex:XMLWriteFailedWithMsg(\"/dev/full\", "));
}

TEST_F(SelectedOptionsTest, TheListingLeavesOutWhatOnlyTheDriverReads) {
  const std::string listing = fl::i18n::to_string(load(document).compilerXml());
  EXPECT_THAT(listing, AllOf(StartsWith("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<config "),
                             HasSubstr("\"say &amp;quot;hi&amp;quot;\""),
                             HasSubstr("\n    <vars OPT=\"-O\" ROOT="), HasSubstr("<env "), HasSubstr("<TESSEL "),
                             Not(HasSubstr("locationFinder")), Not(HasSubstr("client")), Not(HasSubstr("<!--"))));
}

TEST_F(SelectedOptionsTest, TheBackupNameSplitsAtTheLastDot) {
  EXPECT_EQ(backupPathFor(u"/p/zex_C_glnxa64.xml"), u"/p/zex_C_glnxa64_backup.xml");
  EXPECT_EQ(backupPathFor(u"/p.q/a.b.xml"), u"/p.q/a.b_backup.xml");
  EXPECT_EQ(backupPathFor(u"/p.q/plain"), u"/p.q/plain_backup.");
}

}  // namespace
}  // namespace zex_cmd
