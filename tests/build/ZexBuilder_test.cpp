#include "build/ZexBuilder.hpp"

#include <sstream>

#include "args/ZexArgs.hpp"
#include "build/BuildTest.hpp"
#include "build/temporary/ZexTempFile.hpp"
#include "compilers/ZexCompilers.hpp"
#include "support/RecordingDispatcher.hpp"

namespace zex_cmd {
namespace {

using testing::HasSubstr;

class Builder : public BuildTest {
 protected:
  Builder() {
    document.env = "ZEX_TEST_ENV=\"value\"";
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

TEST_F(Builder, CompilesInKeyOrderLinksAndReports) {
  document.compileCommand = zex_test::Document().compileCommand;
  EXPECT_EQ(build({u"a.c"}), "no error");
  EXPECT_EQ(tree.host.output, "TESSEL:zex:Building(\"Fake C\")\nTESSEL:zex:Complete\n");
  const std::string flags = "-DTESSEL_DEFAULT_RELEASE=R2017b -DUSE_ZEX_CMD -O -c " + tree.scratch.told();
  EXPECT_EQ(tree.toolLog(), flags + "/a.c -o tmp/a.o\n" + flags +
                                "/root/extern/version/c_zexapi_version.c -o tmp/c_zexapi_version.o\n"
                                "-o a.zexa64 tmp/a.o tmp/c_zexapi_version.o\n");
}

TEST_F(Builder, VerboseTextComesInOrderAndWarningsOfAGoodToolAlways) {
  tree.scratch.write("a.c", "WARN");
  EXPECT_EQ(build({u"a.c", u"-v"}), "no error");
  const std::string joined = "value" + std::string(zex_test::platform.joinedToNone);
  const std::string pieces[] = {"TESSEL:zex:Verbose\n",
                                "TESSEL:zex:SetEnv(\"ZEX_TEST_ENV\", \"" + joined + "\")\n",
                                "Options file details\n-----",
                                "\tCompiler location: .\n",
                                "\tOptions file: ",
                                "\tCOMPILER : tool\n",
                                "\tEXE : a.zexa64\n",
                                "-----\nTESSEL:zex:Building(\"Fake C\")\n",
                                "/a.c\" -o tmp/a.o\ncareful\n\ndetail\n",
                                "tool -o a.zexa64",
                                "TESSEL:zex:Complete\n"};
  std::size_t position = 0;
  for (const std::string& piece : pieces) {
    position = tree.host.output.find(piece, position);
    ASSERT_NE(position, std::string::npos) << piece << " in\n" << tree.host.output;
  }
  EXPECT_EQ(build({u"a.c", u"-silent"}), "no error");
  EXPECT_EQ(tree.host.output, "careful\n\n");
}

TEST_F(Builder, FailuresCarryTheToolsWordsOrItsCode) {
  tree.scratch.write("fails.c", "FAIL");
  EXPECT_EQ(build({u"a.c", u"fails.c"}), "TESSEL:zex:Error(\"out\\n\\nbad source\\n\")");
  EXPECT_THAT(tree.toolLog(), testing::Not(HasSubstr("-o fails"))) << "a command ran after the failed one";
  EXPECT_EQ(zex_test::variable("ZEX_TEST_ENV"), "");

  tree.scratch.write("fails.c", "SILENT");
  EXPECT_EQ(build({u"fails.c"}), "TESSEL:zex:ZexErrorCode(\"tool\", \"3\")");

  document.linkCommand = "tool --exit 0 -o $EXE";  // no product
  EXPECT_EQ(build({u"a.c"}), "TESSEL:zex:ZexErrorCode(\"tool\", \"0\")");
}

TEST_F(Builder, AdmitsOnlyWhatTheRequestIsFor) {
  document.vars = "CMDLINE050=\"before\" CMDLINE250=\"then\"";
  document.client = "<ENGINE LDEXT=\"\"/><ZBUILD/><ZBUILD_COM/>";
  const std::pair<std::vector<ustring>, const char*> cases[] = {
      {{u"a.c"}, "Building before compile compile link then Complete "},
      {{u"a.c", u"-c"}, "Building compile Complete "},
      {{u"a.c", u"POSTLINK_CMDS=p;q"}, "Building before compile compile link then p q Complete "},
      {{u"a.o"}, "Building before compile link then Complete "},
      // Of objects alone nothing runs ahead of the first link.
      {{u"a.o", u"-client", u"engine"}, "Building link then Complete "},
      {{u"a.c", u"-client", u"zbuild"}, "Building before compile link then "},
      {{u"a.c", u"-client", u"zbuild_com"}, "Building before compile link then "},
      // The response file is written and shown as well.
      {{u"a.o", u"-client", u"zbuild", u"LINKLIBS=" + ustring(8000, u'x')}, "Building link response then "},
  };
  for (const auto& [request, expected] : cases) {
    std::vector<ustring> arguments = request;
    arguments.push_back(u"-n");
    EXPECT_EQ(build(arguments), "no error");
    std::istringstream lines(tree.host.output);
    std::string shown;
    for (std::string line; std::getline(lines, line);) {
      line = line.substr(0, line.find('('));
      shown += line.starts_with("tool -c")   ? "compile"
               : line.starts_with("tool -o") ? "link"
               : line.starts_with("tool @")  ? "response"
                                             : line.substr(line.rfind(':') + 1);
      shown += " ";
    }
    EXPECT_EQ(shown, expected);
  }
  EXPECT_TRUE(tree.scratch.has("tmp/zex_temp.rsp"));
  EXPECT_EQ(tree.toolLog(), "");
}

TEST_F(Builder, HeaderOrderMistakesAreTriedOnceMoreInCompilesAlone) {
  document.compileCommand = "tool --order -c $SRC";
  document.linkCommand = "tool --order -o $EXE";
  EXPECT_EQ(build({u"a.c", u"-v"}), "TESSEL:zex:Error(\"tzwtypesbeforezimstrucdetected\\n\\n\")");
  const std::string compile = "--order -c " + tree.scratch.told("a.c");
  const std::string log = tree.toolLog();
  EXPECT_THAT(log, testing::StartsWith(compile + "\n" + compile + " -DZX_COMPAT_32\n"));
  EXPECT_THAT(log, testing::EndsWith(" -DZX_COMPAT_32\n--order -o a.zexa64\n"));
  EXPECT_THAT(tree.host.output, HasSubstr("TESSEL:zex:SFunctionMsg\n"));
}

TEST_F(Builder, RenewsTheSelectionAndFindsLibrariesAndLocksAheadOfItsCommands) {
  document.release = "R2017a";
  document.details = "LibrarySearchPath=\"libs\"";
  tree.scratch.write("prefs/" + zex_test::selection, document.xml());
  document.release.clear();
  EXPECT_THAT(build({u"a.c", u"-lmissing"}), testing::StartsWith("TESSEL:zex:LibNotFound("));
  EXPECT_THAT(tree.scratch.names("prefs"), testing::ElementsAre(zex_test::selection, zex_test::selectionBackup));
  zex_test::RecordedSet loaded(tree.scratch.path("a.zexa64") + u">zexFunction", 1);
  zex_test::RecordingDispatcher dispatcher;
  dispatcher.table = {&loaded};
  tree.host.dispatch = &dispatcher;
  EXPECT_EQ(build({u"a.c"}), "TESSEL:zex:Locked(\"a.zexa64\")");
  EXPECT_EQ(tree.toolLog(), "");
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

}  // namespace
}  // namespace zex_cmd
