#include "build/ZexBuilder.hpp"

#include <sstream>

#include "args/ZexArgs.hpp"
#include "build/BuildTest.hpp"
#include "compilers/ZexCompilers.hpp"
#include "support/RecordingDispatcher.hpp"

namespace zex_cmd {
namespace {

using testing::HasSubstr;

class Builder : public BuildTest {
 protected:
  Builder() {
    document.compileCommand = "$COMPILER -c $SRC -o $OBJ";
    tree.scratch.write("a.c", "");
  }

  /// One command as the command object would run it, with a temporary folder of a fixed name.
  std::string build(const std::vector<ustring>& arguments) {
    tree.host.output.clear();
    tree.offer("fake.xml", document);
    return zex_test::failureOf([&] {
      auto args = boost::make_shared<ZexArgs>();
      args->parseArguments(arguments);
      args->tempDir = u"tmp";
      auto compilers = boost::make_shared<ZexCompilers>(&args);
      args->addApiVersionSource({});
      ZexBuilder(args, compilers);
    });
  }
};

TEST_F(Builder, TellsDetailsWhereTheyAreAskedForAndWarningsOfAGoodToolAlways) {
  tree.scratch.write("a.c", "WARN");
  EXPECT_EQ(build({u"a.c", u"-v"}), "no error");
  EXPECT_THAT(tree.host.output,
              AllOf(HasSubstr("\n\tEXE : a.zexa64\n"), HasSubstr("/a.c\" -o tmp/a.o\ncareful\n\ndetail\n")));
  EXPECT_EQ(build({u"a.c", u"-silent"}), "no error");
  EXPECT_EQ(tree.host.output, "careful\n\n");
}

TEST_F(Builder, FailuresCarryTheToolsWordsOrItsCode) {
  tree.scratch.write("fails.c", "FAIL");
  EXPECT_EQ(build({u"a.c", u"fails.c"}), "TESSEL:zex:Error(\"out\\n\\nbad source\\n\")");
  EXPECT_THAT(tree.toolLog(), testing::Not(HasSubstr("-o fails"))) << "a command ran after the failed one";
  tree.scratch.write("fails.c", "SILENT");
  EXPECT_EQ(build({u"fails.c"}), "TESSEL:zex:ZexErrorCode(\"tool\", \"3\")");
  document.linkCommand = "tool --exit 0 -o $EXE";  // no product
  EXPECT_EQ(build({u"a.c"}), "TESSEL:zex:ZexErrorCode(\"tool\", \"0\")");
}

TEST_F(Builder, AdmitsOnlyWhatTheRequestIsFor) {
  document.vars = "CMDLINE050=\"before\" CMDLINE250=\"then\"";
  document.client = "<ENGINE LDEXT=\"\"/><ZBUILD/><ZBUILD_COM/>";
  const std::pair<std::vector<ustring>, const char*> cases[] = {
      {{u"-n", u"a.c"}, "TESSEL:|before|tool -c|tool -c|tool -o|then|TESSEL:|"},
      {{u"-n", u"a.c", u"-c"}, "TESSEL:|tool -c|TESSEL:|"},
      {{u"-n", u"a.c", u"POSTLINK_CMDS=p;q"}, "TESSEL:|before|tool -c|tool -c|tool -o|then|p|q|TESSEL:|"},
      {{u"-n", u"a.o"}, "TESSEL:|before|tool -c|tool -o|then|TESSEL:|"},
      // Of objects alone nothing runs ahead of the first link.
      {{u"-n", u"a.o", u"-client", u"engine"}, "TESSEL:|tool -o|then|TESSEL:|"},
      {{u"-n", u"a.c", u"-client", u"zbuild"}, "TESSEL:|before|tool -c|tool -o|then|"},
      // The response file is written and shown as well.
      {{u"-n", u"a.o", u"-client", u"zbuild", u"LINKLIBS=" + ustring(8000, u'x')},
       "TESSEL:|tool -o|tool @t|then|"},
  };
  for (const auto& [arguments, expected] : cases) {
    EXPECT_EQ(build(arguments), "no error");
    std::istringstream lines(tree.host.output);
    std::string beginnings;
    for (std::string line; std::getline(lines, line);) beginnings += line.substr(0, 7) + "|";
    EXPECT_EQ(beginnings, expected);
  }
  EXPECT_TRUE(tree.scratch.has("tmp/zex_temp.rsp"));
  EXPECT_EQ(tree.toolLog(), "");
}

TEST_F(Builder, ALoadedProductIsUnloadedOrRefusedAndTheHostHearsOfTheNewOne) {
  zex_test::RecordingDispatcher dispatcher;
  tree.host.dispatch = &dispatcher;
  const ustring name = tree.scratch.path() + u"/X Y/A.ZEXA64>f";
  zex_test::RecordedSet other(name, 1), loaded(name, 0), locked(name, 1);
  other.kind = 1;
  dispatcher.table = {nullptr, &other, &loaded, &locked};
  EXPECT_EQ(build({u"a.c"}), "no error");
  EXPECT_EQ(build({u"a.c", u"-called_from_tessel", u"-c"}), "no error");
  EXPECT_TRUE(dispatcher.updates.empty() && !loaded.unloaded);
  const std::vector<ustring> arguments = {u"a.c", u"-called_from_tessel", u"-outdir", u"x y"};
  EXPECT_EQ(build(arguments), "no error") << "the first set that matches counts";
  EXPECT_TRUE(loaded.unloaded);
  EXPECT_EQ(dispatcher.updates, std::vector<int>{0});
  EXPECT_TRUE(dispatcher.notices.at(0).starts_with(u"file:///") && dispatcher.notices.at(0).ends_with(u"/x%20y"));
  dispatcher.table = {&locked};
  tree.toolLog();
  EXPECT_EQ(build(arguments), "TESSEL:zex:Locked(\"" + tree.scratch.told("x y/a.zexa64") + "\")");
  EXPECT_EQ(tree.toolLog(), "");
}

}  // namespace
}  // namespace zex_cmd
