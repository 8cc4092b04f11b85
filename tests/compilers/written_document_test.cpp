#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "compilers/ZexSetup.hpp"
#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"

namespace zex_cmd {
namespace {

using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;
using zex_test::selection;

class WrittenDocument : public testing::Test {
 protected:
  std::string setup(const std::vector<ustring>& arguments) {
    return failureOf([&] {
      auto args = boost::make_shared<ZexArgs>();
      args->parseArguments(arguments);
      ZexSetup(args, boost::make_shared<ZexCompilers>(&args), {});
    });
  }

  InstalledTree tree;
};

TEST_F(WrittenDocument, IsNeverTheResolvedOneWhereTheCompilerIsKept) {
  Document document;
  document.shortName = "lcc64";
  tree.offer("a.xml", document);
  EXPECT_EQ(setup({u"-setup"}), "no error");
  const ZexOpt saved(tree.scratch.path("prefs/" + selection), "", u"", false);
  EXPECT_EQ(saved.detail(u"OptimizationFlags"), u"$OPTFLAGS");
  EXPECT_FALSE(saved.variable(u"OBJ"));
}

TEST_F(WrittenDocument, OneThatWouldNotReadBackTakesNoOtherOnesPlace) {
  Document document;
  tree.offer("a.xml", document);
  EXPECT_EQ(setup({u"-setup"}), "no error");
  const std::string former = tree.scratch.read("prefs/" + selection);
  ZexOpt broken(tree.scratch.path("prefs/" + selection), "", u"", false);
  broken.setVariable(u"BROKEN", ustring(1, u'\0'));
  EXPECT_TRUE(failureOf([&] {
                broken.writeSelected(tree.scratch.path("prefs/" + selection));
              }).starts_with("TESSEL:zex:XMLWriteFailedWithMsg("));
  EXPECT_EQ(tree.scratch.read("prefs/" + selection), former);
  EXPECT_EQ(tree.scratch.names("prefs"), std::vector<std::string>{selection});
}

}  // namespace
}  // namespace zex_cmd
