#include <memory>

#include "cmd/ZexCmdFactory.hpp"
#include "end_to_end/EndToEnd.hpp"
#include "support/RecordingServices.hpp"

extern char** environ;

namespace end_to_end {

namespace {

/// The shared library in a host's process.
class Library : public EndToEnd {
 protected:
  Library() {
    host.install = std::filesystem::path(ZEX_TREE).u16string();
    host.preferences = scratch.path("prefs");
  }

  static std::string environment() {
    std::string text;
    for (char** entry = environ; *entry != nullptr; ++entry) text += std::string(*entry) + "\n";
    return text;
  }

  std::string run(const std::vector<fl::ustring>& arguments) {
    host.output.clear();
    return zex_test::failureOf([&] { zex->run(arguments); });
  }

  zex_test::RecordingServices host;
  const std::unique_ptr<zex_cmd::ZexCmdI> zex{zex_cmd::ZexCmdFactory::createZex()};
};

}  // namespace

TEST_F(Library, BuildsInOneProcessLeaveNoTraceOfEachOther) {
  write("my.xml", gccDocument("<env />", "<env ZEX_TRACE=\"x\"/>"));
  const zex_test::ScopedVariable set("ZEX_TRACE", "before");
  const std::string before = environment();

  EXPECT_THAT(run({u"-v", u"-DVALUE=2", u"-output", u"failed", u"broken.c"}),
              testing::StartsWith("TESSEL:zex:Error("));
  EXPECT_THAT(run({u"-f", u"my.xml", u"broken.c"}), testing::StartsWith("TESSEL:zex:Error("));
  EXPECT_THAT(host.errors, testing::ElementsAre("TESSEL:zex:Error", "TESSEL:zex:Error"));
  EXPECT_EQ(environment(), before);
  expectNoTemporaryFiles();

  EXPECT_EQ(run({u"value.c"}), "no error");
  EXPECT_EQ(host.output, "TESSEL:zex:Building(\"gcc\")\nTESSEL:zex:Complete\n");
  EXPECT_EQ(answer("value.zexa64"), 42);
  EXPECT_EQ(environment(), before);
  expectNoTemporaryFiles();
}

TEST_F(Library, AnImplicitChoiceIsMadeOnceInAProcess) {
  const auto looks = testing::HasSubstr("TESSEL:zex:LookforImplicitSel");

  EXPECT_EQ(run({u"-v", u"value.c"}), "no error");
  EXPECT_THAT(host.output, looks);
  EXPECT_EQ(run({u"-v", u"value.c"}), "no error");
  EXPECT_THAT(host.output, testing::Not(looks));
}

TEST_F(Library, ExportsItsFaceAlone) {
  // Weak symbols are shared by nature: inline code of headers, and what exceptions are told by.
  const std::string symbols =
      "nm -DC --defined-only \"$OPTS/../libzexcmd.so\" | cut -d ' ' -f 2- | grep -v ' __' | sort";
  EXPECT_EQ(shell(symbols + " | grep -v '^[WVu] '").out,
            "R libzexcmd_build_date\nR libzexcmd_relative_path\nR libzexcmd_version\n"
            "T zex_cmd::ZexCmdFactory::createZex()\n");
  EXPECT_EQ(shell(symbols + " | grep '^[WVu] .*zex_cmd::' | grep -v 'zex_cmd::ZexCmdI$'").out, "");
}

}  // namespace end_to_end
