#include "options/DocumentTest.hpp"

namespace zex_cmd {
namespace {

using testing::ElementsAre;
using ZexOptTest = DocumentTest;

TEST_F(ZexOptTest, FiltersLetADocumentPassOrLeaveItUntried) {
  struct Case {
    std::string attributes, language;
    ustring name;
    bool passes;
  };
  const Case cases[] = {
      {"", "", u"", true},
      {"Language='c++' ShortName='GnuCpp'", "C++", u"", true},
      {"Language='c++' ShortName='GnuCpp'", "c++", u"", false},
      {"Language='C' ShortName='Éclair'", "C", u"éCLAIR", true},
      {"ShortName='gcc'", "C", u"", false},
  };
  for (const Case& test : cases) {
    const std::string finder = "<locationFinder><ROOT><dirExists name='.'/></ROOT></locationFinder>";
    const ZexOpt opt = load("<config " + test.attributes + ">" + finder + "</config>", test.language, test.name);
    EXPECT_EQ(opt.installed, test.passes) << test.attributes << test.language;
  }
}

TEST_F(ZexOptTest, WhatIsNoDocumentIsInvalidXml) {
  scratch.write("open.xml", "<config><vars>");
  scratch.write("folder/file", "");
  for (const char* name : {"missing.xml", "open.xml", "folder"}) {
    EXPECT_EQ(zex_test::failureOf([&] { reload(name); }), "TESSEL:zex:InvalidXML(\"" + scratch.told(name) + "\")");
  }
}

TEST_F(ZexOptTest, PathsComeInDocumentOrderAndBreadthFirst) {
  const ZexOpt opt = load(
      "<?xml version='1.0'?><!-- a --><config Name='n'><!-- b --><vars CMDLINE2='' XCMDLINE1=''"
      " CMDLINE='' CMDLINE10=''><!-- c --></vars>"
      "<client><ZBUILD X='1'/></client><deep><er Z='z'/></deep><env PATH='p'/></config>");
  const ustring vars = u"config.vars.<xmlattr>.";
  EXPECT_THAT(opt.allValuePaths({u"config.locationFinder", u"config.client"}),
              ElementsAre(u"config.<xmlattr>.Name", u"config.<xmlattr>.Zexopt", vars + u"CMDLINE2",
                          vars + u"XCMDLINE1", vars + u"CMDLINE", vars + u"CMDLINE10",
                          u"config.env.<xmlattr>.PATH", u"config.deep.er.<xmlattr>.Z"));
  EXPECT_THAT(opt.childPaths(u"config"),
              ElementsAre(u"config.vars", u"config.client", u"config.deep", u"config.env"));
  EXPECT_THAT(opt.commandLinePaths(), ElementsAre(vars + u"CMDLINE10", vars + u"CMDLINE2"));
}

TEST_F(ZexOptTest, WhatIsNotThereIsEmptyOrAFailure) {
  ZexOpt opt = load("<config Name=' gcc &lt;é&gt; ' Other='x'><vars OPT='-O'/></config>");
  EXPECT_EQ(opt.attribute(u"NAME"), u" gcc <é> ");
  for (const char16_t* key : {u"VERSION", u"OTHER", u"Name"}) EXPECT_EQ(opt.attribute(key), u"");
  opt.removeValue(u"config.vars.<xmlattr>.OPT");
  EXPECT_EQ(opt.variable(u"OPT"), std::nullopt);
  EXPECT_EQ(zex_test::failureOf([&] { opt.requiredValue(u"config.vars.<xmlattr>.OPT"); }),
            "TESSEL:zex:ErrXMLAttr(\"config.vars.<xmlattr>.OPT\", \"" + scratch.told("doc.xml") + "\")");
}

}  // namespace
}  // namespace zex_cmd
