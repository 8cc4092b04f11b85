#include "standalone/ada_builder.hpp"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>

#include "fl/i18n/strings.hpp"
#include "standalone/StandaloneServices.hpp"
#include "standalone/host_functions.hpp"
#include "standalone/interrupts.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace {

using fl::ustring;

/// Its start-up code fills a table by way of a second unit in another folder.
void writeSums(const zex_test::Scratch& scratch) {
  scratch.write("src/sums.ads", R"(package Sums is
   function Squares (Count : Integer) return Integer;
   pragma Export (C, Squares, "sum_of_squares");
end Sums;)");
  scratch.write("src/sums.adb", R"(with Powers;
package body Sums is
   Table : array (0 .. 9) of Integer := (others => 0);
   function Squares (Count : Integer) return Integer is (Table (Count));
begin
   for I in 1 .. 9 loop Table (I) := Table (I - 1) + Powers.Square (I); end loop;
end Sums;)");
  scratch.write("it's \"q\" $x/powers.ads", R"(package Powers is
   function Square (X : Integer) return Integer is (X * X);
end Powers;)");
}

const ustring includeFolder = u"-Iit's \"q\" $x";

class AdaBuilder : public testing::Test {
 protected:
  AdaBuilder() : temporary("TMPDIR", (scratch.folder() / "tmp").c_str()) {
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
    writeSums(scratch);
  }

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

TEST_F(AdaBuilderWithGnat, ProductGoesWhereItIsTold) {
  EXPECT_EQ(build({u"src/sums.adb", u"-ada", includeFolder, u"-OUTPUT", u"named.x", u"-silent", u"-g", u"-outdir",
                   u"új it's/mappa"}),
            "built")
      << words;
  EXPECT_EQ(called("új it's/mappa/named.zexa64", 2), 5);
  EXPECT_EQ(host.output, "");
}

TEST_F(AdaBuilderWithGnat, ADryRunPrintsWhatBuilds) {
  EXPECT_EQ(build({u"src/sums.adb", u"-n", u"-ada", includeFolder, u"-outdir", u"o ut"}), "built");
  EXPECT_FALSE(scratch.has("o ut"));
  EXPECT_EQ(host.runShellLine(fl::i18n::to_ustring(host.output), true).status, 0);
  EXPECT_EQ(called("o ut/sums.zexa64", 1), 1);
  std::filesystem::remove_all(scratch.folder() / "tmp");
  std::filesystem::create_directory(scratch.folder() / "tmp");
}

TEST_F(AdaBuilderWithGnat, TheToolsOwnWordsComeOut) {
  scratch.write("wrong.adb", "procedure Wrong is begin Nothing_Of_This_Name; end Wrong;\n");
  EXPECT_EQ(build({u"-ada", u"wrong.adb"}), "TESSEL:host:AdaBuildFailed");
  EXPECT_NE(words.find("\"Nothing_Of_This_Name\" is undefined"), std::string::npos) << words;
  std::filesystem::create_directory(scratch.folder() / "taken.zexa64");
  EXPECT_EQ(build({u"-ada", u"src/sums.adb", includeFolder, u"-output", u"taken"}), "TESSEL:host:AdaBuildFailed");
  EXPECT_NE(words.find("taken.zexa64"), std::string::npos) << words;
}

TEST_F(AdaBuilder, WithoutGnatTheUserIsToldSo) {
  scratch.write("a.adb", "");
  const zex_test::ScopedVariable path("PATH", "/nowhere");
  EXPECT_EQ(build({u"-ada", u"a.adb"}), "TESSEL:host:AdaCompilerNotFound");
}

TEST_F(AdaBuilder, RefusesWhatItDoesNotKnow) {
  scratch.write("a.adb", "");
  std::filesystem::create_directory(scratch.folder() / "folder.adb");
  const std::pair<std::vector<ustring>, std::string> cases[] = {
      {{u"-ada"}, "TESSEL:host:AdaOneSource"},
      {{u"-ada", u"a.adb", u"a.ads"}, "TESSEL:host:AdaOneSource"},
      {{u"-ada", u"folder.adb"}, "TESSEL:host:AdaSourceNotFound"},
      {{u"-ada", u"a.adb", u"-G"}, "TESSEL:host:AdaUnknownArgument"},
      {{u"-ada", u"a.adb", u"b.c"}, "TESSEL:host:AdaUnknownArgument"},
      {{u"-ada", u"a.adb", u"-output"}, "TESSEL:host:AdaValueMissing"},
  };
  for (const auto& [arguments, identifier] : cases) {
    EXPECT_EQ(build(arguments), identifier) << fl::i18n::to_string(arguments.back());
  }
  EXPECT_TRUE(host.shellLines.empty());
}

/// Whether an interrupt leaves the host function as what it is and not as a failure of the build.
bool isInterrupted() {
  host::standalone::installInterruptHandlers();
  std::vector<zxArray*> inputs;
  for (const char* text : {"build_ada_sfcn_using_gnat", "", "-ada", "a.adb"})
    inputs.push_back(zxCreateString(text));
  try {
    host::standalone::StandaloneServices().callFunction("zl", 0, nullptr, 4, inputs.data());
    return false;
  } catch (const host::standalone::Interrupted&) {
    return true;
  }
}

/// In a process of its own, since a signal goes to the whole process. The slow tool stands ahead in PATH.
TEST_F(AdaBuilder, AnInterruptEndsTheBuild) {
  scratch.write("a.adb", "");
  scratch.write("bin/gnatmake", "#!/bin/sh\ntouch started\nsleep 20\n");
  std::filesystem::permissions(scratch.folder() / "bin/gnatmake", std::filesystem::perms::owner_all);
  const std::string path = (scratch.folder() / "bin").string() + ":/usr/bin:/bin";
  const zex_test::ScopedVariable variable("PATH", path.c_str());

  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) _exit(isInterrupted() ? 0 : 1);
  const auto toolRuns = [&] {
    const std::vector<std::string> folders = scratch.names("tmp");
    return !folders.empty() && scratch.has("tmp/" + folders.front() + "/started");
  };
  while (!toolRuns() && std::chrono::steady_clock::now() - start < std::chrono::seconds(10)) usleep(10000);
  kill(child, SIGINT);
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
