#include <atomic>
#include <csignal>

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
  noting.sa_flags = SA_RESTART;
  sigemptyset(&noting.sa_mask);
  for (const int signal : SignalForwarding::signals) {
    struct sigaction former {};
    sigaction(signal, nullptr, &former);
    if (former.sa_handler != SIG_IGN) sigaction(signal, &noting, nullptr);
  }
  // Dying of a closed pipe would leave the temporary folder behind.
  std::signal(SIGPIPE, SIG_IGN);
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

}  // namespace host::standalone
