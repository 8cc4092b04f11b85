#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>

#include "standalone/Interrupted.hpp"
#include "standalone/StandaloneServices.hpp"
#include "standalone/shell/interrupts.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace {

using fl::ustring;
using host::standalone::installInterruptHandlers;
using host::standalone::pendingInterrupt;

/// How a line ends: its status and text, or the signal that it raises.
std::string told(const ustring& line) {
  try {
    const auto [status, text] = host::standalone::StandaloneServices().runShellLine(line, false);
    return std::to_string(status) + " " + zex_test::utf8(text);
  } catch (const host::standalone::Interrupted& interrupted) {
    return "interrupted by " + std::to_string(interrupted.signal());
  }
}

/// In a process of its own, for a check changes the signals of the whole process, and within ten seconds.
void expectInChild(bool (*check)()) {
  const auto runCheck = [check] {
    alarm(10);
    _exit(check() ? 0 : 1);
  };
  EXPECT_EXIT(runCheck(), testing::ExitedWithCode(0), "");
}

TEST(ShellLine, TellsStatusAndText) {
  ASSERT_NE(freopen("/proc/self/cmdline", "r", stdin), nullptr);
  EXPECT_EQ(told(u"cat; echo end"), "0 end\n") << "the line read what was typed";
  EXPECT_EQ(told(u"echo a; echo hidden >&2"), "0 a\n");
  EXPECT_EQ(told(u"echo a; echo shown >&2; exit 3"), "3 a\nshown\n");
  EXPECT_EQ(told(u"kill -SEGV $$"), "139 ");
  EXPECT_EQ(told(u"missing-program-of-zex").substr(0, 4), "127 ");
  // A cut-off character must not take the next line or quote with it.
  EXPECT_EQ(told(u"printf 'ü 😀 \\377-\\303\\n'"), "0 ü 😀 \uFFFD-\uFFFD\n");
  EXPECT_EQ(told(ustring(3 << 20, u'x')), std::to_string(E2BIG) + " ");
}

TEST(ShellLine, HoldsNeitherTheCallerNorDescriptors) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(told(u"sleep 5 & echo x"), "0 x\n");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
  const ustring count = u"ls /proc/$PPID/fd | wc -l";
  EXPECT_EQ(told(count), told(count));
  EXPECT_EQ(told(u"ls -l /proc/$$/fd | grep -c deleted"), "0 2\n") << "the line holds more than its two streams";
  expectInChild([] { return close(STDOUT_FILENO) == 0 && told(u"echo a; echo b >&2; exit 4") == "4 a\nb\n"; });
}

/// Interrupts this process, by a child once the line's tool is sure to run.
const ustring interruptedLine = u"(sleep 0.2; kill -INT $PPID) & sleep 20; echo not interrupted";

TEST(Interrupts, GoToTheLineAndEndTheCommandOfAProgram) {
  const zex_test::Scratch scratch;
  expectInChild([] {
    installInterruptHandlers();
    return pendingInterrupt() == 0 && told(interruptedLine) == "interrupted by 2" &&
           pendingInterrupt() == SIGINT && told(u"touch started") == "interrupted by 2";
  });
  EXPECT_FALSE(scratch.has("started"));
}

TEST(Interrupts, LeaveTheSignalsOfAnEmbedderAsTheyWere) {
  expectInChild([] { return told(interruptedLine) == "130 " && pendingInterrupt() == 0 && told(u":") == "0 "; });
  expectInChild([] {
    signal(SIGINT, SIG_IGN);
    installInterruptHandlers();
    return told(u"kill -INT $PPID; kill -INT $$; echo on") == "0 on\n" && pendingInterrupt() == 0;
  });
}

TEST(Interrupts, TheLineStartsWithPlainSignalsWhateverThoseOfTheProgram) {
  expectInChild([] {
    signal(SIGPIPE, SIG_IGN);
    signal(SIGCHLD, SIG_IGN);
    return told(u"kill -PIPE $$") == "141 " && told(u"exit 3") == "3 " && signal(SIGCHLD, SIG_DFL) == SIG_IGN;
  });
  expectInChild([] {
    installInterruptHandlers();
    int ends[2] = {};
    const bool isClosed = pipe(ends) == 0 && close(ends[0]) == 0;
    return isClosed && write(ends[1], "x", 1) == -1 && errno == EPIPE && told(u"kill -PIPE $$") == "141 ";
  });
}

}  // namespace
