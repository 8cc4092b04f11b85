#include <filesystem>

#include "options/DocumentTest.hpp"
#include "support/texts.hpp"

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
    EXPECT_EQ(saved.variable(u"TRIED"), value) << zex_test::utf8(value);
    EXPECT_EQ(saved.variable(u"ROOT"), u".");
    EXPECT_TRUE(saved.installed);
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
  const std::string stem = scratch.told("prefs/zex_C_glnxa64");
  for (const char* text : {"first", "second"}) {
    scratch.write("prefs/zex_C_glnxa64.xml", text);
    host.output.clear();
    opt.writeSelected(path);
    EXPECT_EQ(scratch.read("prefs/zex_C_glnxa64_backup.xml"), text);
    EXPECT_EQ(host.output, "TESSEL:zex:FileRenamed(\"" + stem + ".xml\", \"" + stem + "_backup.xml\")\n");
  }
  EXPECT_TRUE(reload("prefs/zex_C_glnxa64.xml").currentRelease);
  EXPECT_EQ(zex_test::failureOf([&] { opt.writeSelected(scratch.path("missing/saved.xml")); }),
            "TESSEL:zex:XMLWriteFailed(\"" + scratch.told("missing/saved.xml") + "\")");
}

TEST_F(SelectedOptionsTest, TheListingLeavesOutWhatOnlyTheDriverReads) {
  const std::string listing = zex_test::utf8(load(document).compilerXml());
  EXPECT_THAT(listing, AllOf(StartsWith("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<config "),
                             HasSubstr("\"say &amp;quot;hi&amp;quot;\""),
                             HasSubstr("\n    <vars OPT=\"-O\" ROOT="), HasSubstr("<env "), HasSubstr("<TESSEL "),
                             Not(HasSubstr("locationFinder")), Not(HasSubstr("client")), Not(HasSubstr("<!--"))));
}

}  // namespace
}  // namespace zex_cmd
