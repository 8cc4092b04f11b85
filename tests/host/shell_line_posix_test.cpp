#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>

#include "standalone/Interrupted.hpp"
#include "standalone/StandaloneServices.hpp"
#include "standalone/shell/interrupts.hpp"
#include "support/Scratch.hpp"

namespace {

using fl::ustring;
using host::standalone::installInterruptHandlers;
using host::standalone::pendingInterrupt;

host::ShellResult run(const ustring& line) {
  return host::standalone::StandaloneServices().runShellLine(line, false);
}

std::string told(const ustring& line) {
  const auto [status, text] = run(line);
  return std::to_string(status) + " " + std::string(text.begin(), text.end());
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
  EXPECT_EQ(told(u"echo a; echo hidden >&2"), "0 a\n");
  EXPECT_EQ(told(u"echo a; echo shown >&2; exit 3"), "3 a\nshown\n");
  EXPECT_EQ(told(u"kill -SEGV $$"), "139 ");
  EXPECT_EQ(told(u"cat; echo end"), "0 end\n");
  EXPECT_EQ(run(u"missing-program-of-zex").status, 127);
  EXPECT_EQ(run(u"printf 'ü\\377'").text, u"ü\uFFFD");
  EXPECT_EQ(told(ustring(3 << 20, u'x')), std::to_string(E2BIG) + " ");
}

TEST(ShellLine, ABackgroundChildDoesNotHoldTheCaller) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(told(u"sleep 5 & echo x"), "0 x\n");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
}

TEST(ShellLine, LeavesNoDescriptorBehind) {
  const ustring count = u"ls /proc/$PPID/fd | wc -l";
  EXPECT_EQ(told(count), told(count));
  EXPECT_EQ(told(u"ls -l /proc/$$/fd | grep -c deleted"), "0 2\n") << "the line holds more than its two streams";
}

/// Interrupts this process, by a child once the line's tool is sure to run.
const ustring interruptedLine = u"(sleep 0.2; kill -INT $PPID) & sleep 20; echo not interrupted";

/// The signal with which a line raises Interrupted; 0 where it does not.
int signalRaisedBy(const ustring& line) {
  try {
    run(line);
  } catch (const host::standalone::Interrupted& interrupted) {
    return interrupted.signal();
  }
  return 0;
}

TEST(Interrupts, GoToTheLineAndEndTheCommandOfAProgram) {
  const zex_test::Scratch scratch;
  expectInChild([] {
    installInterruptHandlers();
    return pendingInterrupt() == 0 && signalRaisedBy(interruptedLine) == SIGINT && pendingInterrupt() == SIGINT &&
           signalRaisedBy(u"touch started") == SIGINT;
  });
  EXPECT_FALSE(scratch.has("started"));
}

TEST(Interrupts, AClosedPipeIsAFailedWriteForTheProgramAlone) {
  expectInChild([] {
    installInterruptHandlers();
    int ends[2] = {};
    if (pipe(ends) != 0) return false;
    close(ends[0]);
    return write(ends[1], "x", 1) == -1 && errno == EPIPE && run(u"kill -PIPE $$").status == 128 + SIGPIPE;
  });
}

TEST(Interrupts, LeaveTheSignalsOfAnEmbedderAsTheyWere) {
  expectInChild(
      [] { return told(interruptedLine) == "130 " && pendingInterrupt() == 0 && run(u"true").status == 0; });
  expectInChild([] {
    signal(SIGINT, SIG_IGN);
    installInterruptHandlers();
    return run(u"kill -INT $PPID; kill -INT $$; echo on").text == u"on\n" && pendingInterrupt() == 0;
  });
}

TEST(Interrupts, TheLineStartsWithPlainSignals) {
  expectInChild([] {
    signal(SIGPIPE, SIG_IGN);
    signal(SIGCHLD, SIG_IGN);
    return run(u"kill -PIPE $$").status == 128 + SIGPIPE && run(u"exit 3").status == 3 &&
           signal(SIGCHLD, SIG_DFL) == SIG_IGN;
  });
}

}  // namespace
