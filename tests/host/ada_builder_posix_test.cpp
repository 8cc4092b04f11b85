#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/ada/ada_builder.hpp"
#include "standalone/calls/HostCall.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace {

using fl::ustring;

class AdaBuilder : public testing::Test {
 protected:
  AdaBuilder() : temporary("TMPDIR", scratch.folder() / "tmp") {
    std::filesystem::create_directory(scratch.folder() / "tmp");
  }
  ~AdaBuilder() override { EXPECT_TRUE(scratch.names("tmp").empty()) << "a temporary folder stays"; }

  /// "built", or the failure's identifier; its words go to `words`.
  std::string build(const std::vector<ustring>& arguments) {
    try {
      host::standalone::buildAda(host, arguments);
      return "built";
    } catch (const host::standalone::HostFunctionFailure& failure) {
      words = failure.what();
      return failure.identifier();
    }
  }

  zex_test::Scratch scratch;
  zex_test::ScopedVariable temporary;
  zex_test::RecordingServices host;
  std::string words;
};

class AdaBuilderWithGnat : public AdaBuilder {
 protected:
  void SetUp() override {
    if (host.runShellLine(u"command -v gnatmake && command -v gnatbind && command -v gnatlink", true).status != 0)
      GTEST_SKIP() << "GNAT is not installed on this machine";
    // Its start-up code fills a table by way of a second unit in another folder.
    scratch.write("src/sums.ads",
                  "package Sums is function Squares (Count : Integer) return Integer;\n"
                  "pragma Export (C, Squares, \"sum_of_squares\"); end Sums;");
    scratch.write(
        "src/sums.adb",
        "with Powers; package body Sums is\n"
        "Table : array (0 .. 9) of Integer := (others => 0);\n"
        "function Squares (Count : Integer) return Integer is (Table (Count));\n"
        "begin for I in 1 .. 9 loop Table (I) := Table (I - 1) + Powers.Square (I); end loop; end Sums;");
    scratch.write("it's \"q\" $x/powers.ads",
                  "package Powers is function Square (X : Integer) return Integer is (X * X); end Powers;");
  }

  const ustring includeFolder = u"-Iit's \"q\" $x";

  int called(const std::string& product, int argument) {
    void* library = dlopen((scratch.folder() / product).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) throw std::runtime_error(dlerror());
    const auto function = reinterpret_cast<int (*)(int)>(dlsym(library, "sum_of_squares"));
    const int result = function == nullptr ? -1 : function(argument);
    dlclose(library);
    return result;
  }
};

TEST_F(AdaBuilderWithGnat, TheProductLoadsStartsItselfAndAnswers) {
  std::vector<std::string> before = scratch.names();
  EXPECT_EQ(build({u"-ada", u"src/sums.ads", includeFolder}), "built") << words;
  EXPECT_EQ(called("sums.zexa64", 3), 1 + 4 + 9);
  before.push_back("sums.zexa64");
  EXPECT_THAT(scratch.names(), testing::UnorderedElementsAreArray(before));
  EXPECT_EQ(scratch.names("src").size(), 2U);
  EXPECT_NE(host.output.find("sums.zexa64' with GNAT.\n"), std::string::npos);
}

TEST_F(AdaBuilderWithGnat, ADryRunPrintsWhatBuildsWhereItIsTold) {
  EXPECT_EQ(
      build({u"src/sums.adb", u"-n", u"-ada", includeFolder, u"-OUTPUT", u"named.x", u"-outdir", u"új it's"}),
      "built");
  EXPECT_FALSE(scratch.has("új it's"));
  EXPECT_EQ(host.runShellLine(zex_test::utf16(host.output), true).status, 0);
  EXPECT_EQ(called("új it's/named.zexa64", 2), 5);
  std::filesystem::remove_all(scratch.folder() / "tmp");
  std::filesystem::create_directory(scratch.folder() / "tmp");
}

TEST_F(AdaBuilderWithGnat, TheToolsOwnWordsComeOut) {
  scratch.write("wrong.adb", "procedure Wrong is begin Nothing_Of_This_Name; end Wrong;\n");
  EXPECT_EQ(build({u"-ada", u"wrong.adb"}), "TESSEL:host:AdaBuildFailed");
  EXPECT_NE(words.find("\"Nothing_Of_This_Name\" is undefined"), std::string::npos) << words;
}

TEST_F(AdaBuilder, RefusesWhatItDoesNotKnowAndTellsThatGnatIsMissing) {
  scratch.write("a.adb", "");
  std::filesystem::create_directory(scratch.folder() / "folder.adb");
  const std::pair<std::vector<ustring>, std::string> cases[] = {
      {{u"-ada", u"a.adb", u"a.ads"}, "TESSEL:host:AdaOneSource"},
      {{u"-ada", u"folder.adb"}, "TESSEL:host:AdaSourceNotFound"},
      {{u"-ada", u"a.adb", u"-G"}, "TESSEL:host:AdaUnknownArgument"},
      {{u"-ada", u"a.adb", u"-output"}, "TESSEL:host:AdaValueMissing"},
  };
  for (const auto& [arguments, identifier] : cases) {
    EXPECT_EQ(build(arguments), identifier) << zex_test::utf8(arguments.back());
  }
  EXPECT_TRUE(host.shellLines.empty());
  const zex_test::ScopedVariable path("PATH", "/nowhere");
  EXPECT_EQ(build({u"-ada", u"a.adb"}), "TESSEL:host:AdaCompilerNotFound");
}

}  // namespace
