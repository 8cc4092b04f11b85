#include <atomic>
#include <csignal>

#include "standalone/Interrupted.hpp"
#include "standalone/shell/SignalForwarding.hpp"
#include "standalone/shell/interrupts.hpp"

namespace host::standalone {

namespace {

std::atomic<int> firstNoted = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may take no lock");

void note(int signal) {
  int none = 0;
  firstNoted.compare_exchange_strong(none, signal);
}

}  // namespace

void installInterruptHandlers() {
  struct sigaction noting {};
  noting.sa_handler = note;
  // No SA_RESTART: opening a pipe may wait for ever.
  noting.sa_flags = 0;
  sigemptyset(&noting.sa_mask);
  for (const int signal : SignalForwarding::signals) {
    struct sigaction former {};
    sigaction(signal, nullptr, &former);
    if (former.sa_handler != SIG_IGN) sigaction(signal, &noting, nullptr);
  }
  // Dying of a closed pipe, or at the limit of file sizes, would leave the temporary folder behind.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

void letInterruptsEndTheProgram() {
  for (const int signal : {SIGINT, SIGTERM}) {
    if (std::signal(signal, SIG_DFL) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
}

void awaitEndOfTools() {}

int pendingInterrupt() {
  return firstNoted;
}

const char* Interrupted::what() const noexcept {
  static_assert(SignalForwarding::graceSeconds == 3);
  return SignalForwarding::hasKilled() ? "interrupted; what went on for 3 seconds after that was killed"
                                       : "interrupted";
}

}  // namespace host::standalone
