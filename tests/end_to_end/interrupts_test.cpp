#include <chrono>

#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

struct Interrupt {
  std::string name;
  int status;
  std::string signal;  ///< in the words of `kill`; "-$zex" is the whole process group, as from the keyboard
};

void PrintTo(const Interrupt& interrupt, std::ostream* stream) {
  *stream << "kill " << interrupt.signal;
}

class Interrupts : public EndToEnd, public testing::WithParamInterface<Interrupt> {};

TEST_P(Interrupts, EndTheToolAndTheProgramAndLeaveNothing) {
  write("slow.sh", "echo $$ > new.pid; mv new.pid tool.pid; exec sleep 60");
  write("slow.xml", gccDocument("COMPILER='\"$GCC_PROGRAM\"'", "COMPILER='sh ./slow.sh'"));
  const auto start = std::chrono::steady_clock::now();

  // A shell in the background ignores interrupts and hands that on.
  const Outcome outcome = shell(
      "setsid env --default-signal=INT \"$ZEX\" -f slow.xml value.c & zex=$!\n"
      "until test -e tool.pid; do sleep 0.02; done\n"
      "kill " +
      GetParam().signal +
      "; wait $zex; status=$?\n"
      "for i in $(seq 50); do grep -qs '^State:.[RSD]' /proc/$(cat tool.pid)/status || exit $status; sleep 0.02; "
      "done\n"
      "exit 99");

  EXPECT_EQ(outcome.status, GetParam().status);  // 99: the tool lives on
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
  EXPECT_THAT(outcome.err, testing::EndsWith("zex: error: interrupted\n"));
  expectNoTemporaryFiles();
  EXPECT_FALSE(scratch.has("work/value.zexa64"));
}

INSTANTIATE_TEST_SUITE_P(EndToEnd, Interrupts,
                         testing::Values(Interrupt{"Keyboard", 130, "-INT -$zex"},
                                         Interrupt{"IntAlone", 130, "-INT $zex"},
                                         Interrupt{"Termination", 143, "-TERM $zex"}),
                         NameOfRow());

}  // namespace

}  // namespace end_to_end
