#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

/// Starts zex with a shell script in the place of a tool, sends a signal once the script has made "ready" and
/// gives the status of zex.
const std::string interruptWhenReady =
    "rm -f ready\n"
    "setsid env --default-signal=INT sh -c 'echo $$ > zex.pid; exec \"$ZEX\" -f slow.xml value.c' & zex=$!\n"
    "until test -e ready; do sleep 0.02; done\n"
    "kill -TERM $zex; wait $zex";

}  // namespace

TEST_F(EndToEnd, InterruptedToolsAreWaitedForAndKilledOnlyWhenTheyGoOn) {
  const struct {
    const char* onSignal;
    const char* told;
  } rows[] = {
      {"sleep 1; touch cleaned; exit 1", "zex: error: interrupted\n"},
      {"touch cleaned", "zex: error: interrupted; what went on for 3 seconds after that was killed\n"},
  };
  write("slow.xml", gccDocument("COMPILER='\"$GCC_PROGRAM\"'", "COMPILER='sh ./slow.sh'"));
  for (const auto& row : rows) {
    write("slow.sh", std::string("trap '") + row.onSignal + "' TERM; touch ready; while :; do sleep 0.05; done");
    const Outcome outcome = shell(interruptWhenReady);
    EXPECT_EQ(outcome.status, 143);
    EXPECT_THAT(outcome.err, testing::EndsWith(row.told));
    EXPECT_TRUE(std::filesystem::remove("cleaned")) << "the program ended ahead of its tool";
    expectNoTemporaryFiles();
  }
}

TEST_F(EndToEnd, AnInterruptLeavesTheFormerProductWholeOrNone) {
  write("slow.sh",
        "for word; do case \"$word\" in *.zexa64) printf half > \"$word\";; esac; done\n"
        "touch ready; sleep 60");
  for (const std::string tool : {"COMPILER", "LINKER"}) {
    write("value.zexa64", "former");
    write("slow.xml", gccDocument(tool + "='\"$GCC_PROGRAM\"'", tool + "='sh ./slow.sh'"));
    EXPECT_EQ(shell(interruptWhenReady).status, 143);
    EXPECT_EQ(contentOf("value.zexa64"), tool == "COMPILER" ? "former" : "");
    EXPECT_EQ(std::filesystem::exists("value.zexa64"), tool == "COMPILER");
    expectNoTemporaryFiles();
  }
}

TEST_F(EndToEnd, AnInterruptEndsAToolThatReadsTheTerminal) {
  write("slow.sh", "touch ready; read answer < /dev/tty; sleep 60");
  write("slow.xml", gccDocument("COMPILER='\"$GCC_PROGRAM\"'", "COMPILER='sh ./slow.sh'"));
  const Outcome outcome = shell(
      "timeout 30 script -qec 'echo $$ > zex.pid; exec \"$ZEX\" -f slow.xml value.c' /dev/null & session=$!\n"
      "until test -e ready; do sleep 0.02; done\n"
      "sleep 0.2; kill -HUP $(cat zex.pid); wait $session");
  EXPECT_EQ(outcome.status, 129) << outcome.out << outcome.err;
  expectNoTemporaryFiles();
}

TEST_F(EndToEnd, APipeInThePlaceOfADocumentIsNotWaitedFor) {
  EXPECT_EQ(shell("mkfifo pipe.xml; timeout 20 \"$ZEX\" -f pipe.xml value.c").status, 1);
}

}  // namespace end_to_end
