#include <algorithm>
#include <atomic>
#include <cerrno>

#include "standalone/shell/SignalForwarding.hpp"

namespace host::standalone {

namespace {

std::atomic<pid_t> target = 0;
std::atomic<unsigned> received = 0;  // one bit for each signal number
static_assert(std::atomic<pid_t>::is_always_lock_free && std::atomic<unsigned>::is_always_lock_free,
              "a signal handler may take no lock");

constexpr unsigned bitOf(int signal) {
  return 1U << static_cast<unsigned>(signal);
}

void forward(int signal) {
  const int savedError = errno;
  received.fetch_or(bitOf(signal));
  if (const pid_t group = target; group > 0) kill(-group, signal);
  errno = savedError;
}

bool isIgnoring(const struct sigaction& action) {
  return (action.sa_flags & SA_SIGINFO) == 0 && action.sa_handler == SIG_IGN;
}

bool isDefault(const struct sigaction& action) {
  return (action.sa_flags & SA_SIGINFO) == 0 && action.sa_handler == SIG_DFL;
}

}  // namespace

SignalForwarding::SignalForwarding() {
  received = 0;
  struct sigaction forwarding {};
  forwarding.sa_handler = forward;
  forwarding.sa_flags = SA_RESTART;
  sigemptyset(&forwarding.sa_mask);
  for (std::size_t index = 0; index < signals.size(); ++index) {
    sigaction(signals[index], nullptr, &former_[index]);
    if (!isIgnoring(former_[index])) sigaction(signals[index], &forwarding, nullptr);
  }

  // With SIGCHLD ignored, as some parents leave it, the system would throw the line's exit status away.
  struct sigaction keeping {};
  keeping.sa_handler = SIG_DFL;
  sigemptyset(&keeping.sa_mask);
  sigaction(SIGCHLD, nullptr, &formerChildAction_);
  if (isIgnoring(formerChildAction_)) sigaction(SIGCHLD, &keeping, nullptr);
}

SignalForwarding::~SignalForwarding() {
  stop();
  if (isIgnoring(formerChildAction_)) sigaction(SIGCHLD, &formerChildAction_, nullptr);
  for (std::size_t index = 0; index < signals.size(); ++index) {
    if (!isIgnoring(former_[index])) sigaction(signals[index], &former_[index], nullptr);
  }
  for (std::size_t index = 0; index < signals.size(); ++index) {
    const bool came = (received & bitOf(signals[index])) != 0;
    if (came && !isDefault(former_[index])) raise(signals[index]);
  }
}

void SignalForwarding::to(pid_t group) {
  target = group;
  for (const int signal : signals) {
    if ((received & bitOf(signal)) != 0) kill(-group, signal);
  }
}

void SignalForwarding::stop() {
  target = 0;
}

bool SignalForwarding::isIgnored(int signal) const {
  const auto found = std::find(signals.begin(), signals.end(), signal);
  return found != signals.end() && isIgnoring(former_[static_cast<std::size_t>(found - signals.begin())]);
}

}  // namespace host::standalone
