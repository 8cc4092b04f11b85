#include "options/DocumentTest.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

using testing::HasSubstr;
using testing::Not;
using SelectedOptionsTest = DocumentTest;

constexpr char elements[] =
    " <!-- kept <as> it is & stands -->\n"
    " <vars OPT='-O'/><env PATH='p'/><Details A='say \"hi\"'/><client><ZBUILD OPT='x'/></client>\n"
    " <locationFinder><ROOT><dirExists name='.'/></ROOT></locationFinder><TESSEL release='R2017b'/>\n";

TEST_F(SelectedOptionsTest, EveryValueReadsBackEqual) {
  ZexOpt opt = load(elements);
  const ustring values[] = {u"\"a\" 'b' <c> & &amp; &#9;", u"tab\there", u"line\nfeed\n", u"   ", u" ends ", u"",
                            u"é ß 漢 \U0001F600",          u"$A $$B \\"};
  for (const ustring& value : values) {
    opt.setVariable(u"TRIED", value);
    opt.writeSelected(scratch.path("elsewhere/saved.xml"));
    const ZexOpt saved = reload("elsewhere/saved.xml");
    EXPECT_EQ(saved.variable(u"TRIED"), value) << zex_test::utf8(value);
    EXPECT_EQ(saved.variable(u"ROOT"), u".");
    EXPECT_TRUE(saved.installed);
  }
  // No folder but that of the preferences gets a stamp, a backup or a notice.
  EXPECT_FALSE(reload("elsewhere/saved.xml").currentRelease);
  EXPECT_THAT(scratch.names("elsewhere"), testing::ElementsAre("other", "saved.xml"));
  EXPECT_EQ(host.output, "");
  EXPECT_THAT(scratch.read("elsewhere/saved.xml"),
              AllOf(testing::StartsWith("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<config "),
                    HasSubstr("\n\t<!-- kept <as> it is & stands -->\n"), HasSubstr("\"say &quot;hi&quot;\""),
                    HasSubstr("\n\t\t\t<dirExists "), Not(HasSubstr("Zexopt"))));
  // A listing leaves out what only the driver reads.
  EXPECT_THAT(zex_test::utf8(opt.compilerXml()),
              AllOf(HasSubstr("\n    <vars OPT=\"-O\" ROOT="), HasSubstr("<TESSEL "),
                    Not(HasSubstr("locationFinder")), Not(HasSubstr("client")), Not(HasSubstr("<!--"))));
}

TEST_F(SelectedOptionsTest, ThePreferencesFolderGetsAStampAndABackup) {
  ZexOpt opt = load(elements);
  const std::string stem = scratch.told("prefs/zex_C");
  for (const char* text : {"first", "second"}) {
    scratch.write("prefs/zex_C.xml", text);
    host.output.clear();
    opt.writeSelected(scratch.path("prefs/zex_C.xml"));
    EXPECT_EQ(scratch.read("prefs/zex_C_backup.xml"), text);
    EXPECT_EQ(host.output, "TESSEL:zex:FileRenamed(\"" + stem + ".xml\", \"" + stem + "_backup.xml\")\n");
  }
  EXPECT_TRUE(reload("prefs/zex_C.xml").currentRelease);
}

}  // namespace
}  // namespace zex_cmd
