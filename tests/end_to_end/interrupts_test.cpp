#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

TEST_F(EndToEnd, InterruptsEndTheToolAndTheProgramAndLeaveNothing) {
  struct {
    std::string signal;  ///< in the words of `kill`; "-$zex" is the whole process group, as from the keyboard
    int status;
  } const rows[] = {{"-INT -$zex", 130}, {"-INT $zex", 130}, {"-TERM $zex", 143}};
  write("slow.sh", "echo $$ > new.pid; mv new.pid tool.pid; exec sleep 600");
  write("slow.xml", gccDocument("COMPILER='\"$GCC_PROGRAM\"'", "COMPILER='sh ./slow.sh'"));
  for (const auto& row : rows) {
    // A shell in the background ignores interrupts and hands that on.
    const Outcome outcome = shell(
        "rm -f tool.pid\n"
        "setsid env --default-signal=INT \"$ZEX\" -f slow.xml value.c & zex=$!\n"
        "until test -e tool.pid; do sleep 0.02; done\n"
        "kill " +
        row.signal + "; wait $zex; status=$?\n" +
        "ends() { ! grep -qs '^State:.[RSD]' /proc/$(cat tool.pid)/status; }\n"
        "for i in $(seq 50); do ends && exit $status; sleep 0.02; done\n"
        "exit 99");

    EXPECT_EQ(outcome.status, row.status) << row.signal;  // 99: the tool lives on
    EXPECT_THAT(outcome.err, testing::EndsWith("zex: error: interrupted\n"));
    expectNoTemporaryFiles();
    EXPECT_FALSE(scratch.has("work/value.zexa64"));
  }
}

}  // namespace end_to_end
