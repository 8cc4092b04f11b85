#include "build/ZexBuilder.hpp"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <initializer_list>

#include "args/ZexArgs.hpp"
#include "build/temporary/ZexTempFile.hpp"
#include "compilers/ZexCompilers.hpp"
#include "fl/i18n/strings.hpp"
#include "support/InstalledTree.hpp"
#include "support/RecordingDispatcher.hpp"

namespace zex_cmd {
namespace {

using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;
using zex_test::selection;
using zex_test::selectionBackup;

class Builder : public testing::Test {
 protected:
  Builder() {
    document.env = "ZEX_TEST_ENV=\"value\"";
    tree.scratch.write("a.c", "");
  }

  /// One command as the command object would run it, with a temporary folder of a fixed name.
  std::string build(const std::vector<ustring>& arguments) {
    tree.offer("fake.xml", document);
    return failureOf([&] {
      auto args = boost::make_shared<ZexArgs>();
      args->parseArguments(arguments);
      args->tempDir = u"tmp";
      auto compilers = boost::make_shared<ZexCompilers>(&args);
      args->addApiVersionSource({});
      ZexBuilder(args, compilers);
    });
  }

  InstalledTree tree;
  Document document;
};

const std::string versionSource = "/root/extern/version/c_zexapi_version.c";

TEST_F(Builder, CompilesInKeyOrderLinksAndReports) {
  EXPECT_EQ(build({u"a.c"}), "no error");
  EXPECT_EQ(tree.host.output, "TESSEL:zex:Building(\"Fake C\")\nTESSEL:zex:Complete\n");
  const std::string folder = tree.scratch.told();
  const std::string flags = "-DTESSEL_DEFAULT_RELEASE=R2017b -DUSE_ZEX_CMD -O -c ";
  EXPECT_EQ(tree.toolLog(), flags + folder + "/a.c -o tmp/a.o\n" + flags + folder + versionSource +
                                " -o tmp/c_zexapi_version.o\n-o a.zexa64 tmp/a.o tmp/c_zexapi_version.o\n");
}

TEST_F(Builder, VerboseTextComesInOrder) {
  tree.scratch.write("a.c", "WARN");
  EXPECT_EQ(build({u"a.c", u"-v"}), "no error");
  const std::string& text = tree.host.output;
  const std::string joined = "value" + std::string(zex_test::platform.joinedToNone);
  const std::string setting = "TESSEL:zex:SetEnv(\"ZEX_TEST_ENV\", \"" + joined + "\")\n";
  std::size_t position = 0;
  for (const char* piece :
       {"TESSEL:zex:Verbose\n", setting.c_str(), "Options file details\n-----", "\tCompiler location: .\n",
        "\tOptions file: ", "\tCOMPILER : tool\n", "\tEXE : a.zexa64\n",
        "-----\nTESSEL:zex:Building(\"Fake C\")\n", "/a.c\" -o tmp/a.o\ncareful\n\ndetail\n", "tool -o a.zexa64",
        "TESSEL:zex:Complete\n"}) {
    position = text.find(piece, position);
    ASSERT_NE(position, std::string::npos) << piece << " in\n" << text;
  }
}

TEST_F(Builder, WarningsOfAGoodToolShowEvenWhenSilent) {
  tree.scratch.write("a.c", "WARN");
  EXPECT_EQ(build({u"a.c", u"-silent"}), "no error");
  EXPECT_EQ(tree.host.output, "careful\n\n");
}

TEST_F(Builder, FailuresCarryTheToolsWordsOrItsCode) {
  document.compileCommand = "$COMPILER -c $SRC -o $OBJ";
  tree.scratch.write("fails.c", "FAIL");
  EXPECT_EQ(build({u"a.c", u"fails.c"}), "TESSEL:zex:Error(\"out\\n\\nbad source\\n\")");
  EXPECT_EQ(tree.toolLog().find("-o fails"), std::string::npos) << "a command ran after the failed one";
  EXPECT_EQ(zex_test::variable("ZEX_TEST_ENV"), "");

  tree.scratch.write("fails.c", "SILENT");
  EXPECT_EQ(build({u"fails.c"}), "TESSEL:zex:ZexErrorCode(\"tool\", \"3\")");

  document.linkCommand = "tool --exit 0 -o $EXE";  // no product
  EXPECT_EQ(build({u"a.c"}), "TESSEL:zex:ZexErrorCode(\"tool\", \"0\")");
}

TEST_F(Builder, DryRunPrintsTheCommandsThatARealRunExecutes) {
  document.compileCommand = "$COMPILER -c $SRC -o $OBJ";
  EXPECT_EQ(build({u"a.c", u"-n", u"-silent"}), "no error");
  const std::string folder = tree.scratch.told();
  EXPECT_EQ(tree.host.output, "tool -c \"" + folder + "/a.c\" -o tmp/a.o\ntool -c \"" + folder + versionSource +
                                  "\" -o tmp/c_zexapi_version.o\ntool -o a.zexa64 tmp/a.o "
                                  "tmp/c_zexapi_version.o\n");
  EXPECT_EQ(tree.toolLog(), "");

  tree.host.output.clear();
  EXPECT_EQ(build({u"a.c", u"-n", u"-silent", u"LINKLIBS=" + ustring(8000, u'x')}), "no error");
  EXPECT_TRUE(tree.host.output.ends_with("tool @tmp/zex_temp.rsp\n"));
  EXPECT_TRUE(tree.scratch.has("tmp/zex_temp.rsp"));
}

TEST_F(Builder, AdmitsOnlyWhatTheRequestIsFor) {
  document.compileCommand = "$COMPILER -c $SRC -o $OBJ";
  document.vars = "CMDLINE050=\"echo before\" CMDLINE250=\"echo after\"";
  document.client = "<ENGINE LDEXT=\"\"/><ZBUILD/>";
  struct Case {
    std::vector<ustring> arguments;
    std::string commands;  ///< "b" before, "c" compile, "l" link, "a" after, "p" post-link
  };
  const Case cases[] = {
      {{u"a.c", u"-n"}, "bccla"},
      {{u"a.c", u"-n", u"-c"}, "c"},
      {{u"a.c", u"-n", u"POSTLINK_CMDS=true;true"}, "bcclapp"},
      {{u"a.o", u"-n"}, "bcla"},
      {{u"a.o", u"-n", u"-client", u"engine"}, "la"},  // link-only: nothing ahead of the first link
  };
  for (const Case& row : cases) {
    tree.host.output.clear();
    std::vector<ustring> arguments = row.arguments;
    arguments.push_back(u"-silent");
    EXPECT_EQ(build(arguments), "no error");
    std::string commands;
    std::size_t start = 0;
    while (start < tree.host.output.size()) {
      const std::size_t end = tree.host.output.find('\n', start);
      const std::string line = tree.host.output.substr(start, end - start);
      start = end + 1;
      const bool links = line.find("tool -o") == 0;
      const bool compiles = line.find("tool -c") == 0;
      commands += links ? "l" : compiles ? "c" : line == "echo before" ? "b" : line == "echo after" ? "a" : "p";
    }
    EXPECT_EQ(commands, row.commands);
  }
}

TEST_F(Builder, TheZbuildClientsGetNoClosingNotice) {
  document.client = "<ZBUILD/>";
  EXPECT_EQ(build({u"a.c", u"-client", u"zbuild"}), "no error");
  EXPECT_EQ(tree.host.output, "TESSEL:zex:Building(\"Fake C\")\n");
}

TEST_F(Builder, HeaderOrderMistakeInACompileIsTriedOnceMore) {
  document.compileCommand = "tool --order -c $SRC -o $OBJ";
  document.linkCommand = "tool --order -o $EXE";
  EXPECT_EQ(build({u"a.c", u"-v"}), "TESSEL:zex:Error(\"tzwtypesbeforezimstrucdetected\\n\\n\")");
  const std::string compile = "--order -c " + tree.scratch.told("a.c") + " -o tmp/a.o";
  const std::string version = "--order -c " + tree.scratch.told() + versionSource + " -o tmp/c_zexapi_version.o";
  // Both compiles are repeated; the link, which makes the same mistake, is not.
  EXPECT_EQ(tree.toolLog(), compile + "\n" + compile + " -DZX_COMPAT_32\n" + version + "\n" + version +
                                " -DZX_COMPAT_32\n--order -o a.zexa64\n");
  EXPECT_NE(tree.host.output.find("TESSEL:zex:SFunctionMsg\n"), std::string::npos);
}

TEST_F(Builder, PathManagerHearsOfProductsOfTheHostOnly) {
  zex_test::RecordingDispatcher dispatcher;
  tree.host.dispatch = &dispatcher;
  EXPECT_EQ(build({u"a.c"}), "no error");
  EXPECT_EQ(build({u"a.c", u"-called_from_tessel", u"-c"}), "no error");
  EXPECT_TRUE(dispatcher.updates.empty());
  EXPECT_EQ(build({u"a.c", u"-called_from_tessel"}), "no error");
  EXPECT_EQ(dispatcher.updates.size(), 1U);
}

TEST_F(Builder, ALockedProductCostsNoCompile) {
  zex_test::RecordedSet loaded(tree.scratch.path("a.zexa64") + u">zexFunction", 1);
  zex_test::RecordingDispatcher dispatcher;
  dispatcher.table = {&loaded};
  tree.host.dispatch = &dispatcher;
  EXPECT_EQ(build({u"a.c"}), "TESSEL:zex:Locked(\"a.zexa64\")");
  EXPECT_EQ(tree.toolLog(), "");
}

TEST_F(Builder, OutdatedSelectionIsRewrittenWithItsBackup) {
  document.release = "R2017a";
  tree.scratch.write("prefs/" + selection, document.xml());
  document.release.clear();
  EXPECT_EQ(build({u"a.c", u"-silent"}), "no error");
  EXPECT_NE(tree.host.output.find("TESSEL:zex:FileRenamed("), std::string::npos);
  EXPECT_EQ(tree.scratch.names("prefs"), (std::vector<std::string>{selection, selectionBackup}));
  EXPECT_NE(tree.scratch.read("prefs/" + selection).find("release=\"R2018a\""), std::string::npos);
  tree.host.output.clear();
  EXPECT_EQ(build({u"a.c", u"-silent"}), "no error");
  EXPECT_EQ(tree.host.output, "");  // the second build leaves it alone
}

}  // namespace
}  // namespace zex_cmd
