#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>

#include "standalone/shell/SignalForwarding.hpp"

namespace host::standalone {

namespace {

std::atomic<pid_t> target = 0;
std::atomic<unsigned> received = 0;  // one bit for each signal number
std::atomic<bool> graceIsOver = false;
std::atomic<bool> killed = false;
static_assert(std::atomic<pid_t>::is_always_lock_free && std::atomic<unsigned>::is_always_lock_free &&
                  std::atomic<bool>::is_always_lock_free,
              "a signal handler may take no lock");

// The alarm of the process, which measures the grace period from the first signal on.
unsigned formerAlarmSeconds = 0;
struct sigaction formerAlarmAction {};

constexpr unsigned bitOf(int signal) {
  return 1U << static_cast<unsigned>(signal);
}

struct sigaction actionOf(void (*handler)(int), unsigned flags) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = static_cast<int>(flags);
  sigemptyset(&action.sa_mask);
  return action;
}

void send(int signal) {
  const pid_t group = target;
  if (group <= 0) return;
  kill(-group, signal);
  // A tool that reads the terminal was stopped for it, and takes no signal until it goes on.
  kill(-group, SIGCONT);
}

void endGrace(int /*signal*/) {
  const int savedError = errno;
  graceIsOver = true;
  if (const pid_t group = target; group > 0) killed = kill(-group, SIGKILL) == 0 || killed;
  errno = savedError;
}

void beginGrace() {
  const struct sigaction ending = actionOf(endGrace, SA_RESTART);
  sigaction(SIGALRM, &ending, &formerAlarmAction);
  formerAlarmSeconds = alarm(SignalForwarding::graceSeconds);
}

void forward(int signal) {
  const int savedError = errno;
  if (received.fetch_or(bitOf(signal)) == 0) beginGrace();
  send(signal);
  errno = savedError;
}

/// Stops the tools and then this process, until somebody lets it go on.
void stopTogether(int signal) {
  const int savedError = errno;
  if (const pid_t group = target; group > 0) kill(-group, signal);
  // For the default action, to which SA_RESETHAND went back.
  raise(signal);
  const struct sigaction stopping = actionOf(stopTogether, SA_RESTART | SA_NODEFER | SA_RESETHAND);
  sigaction(signal, &stopping, nullptr);
  if (const pid_t group = target; group > 0) kill(-group, SIGCONT);
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
  graceIsOver = false;
  const struct sigaction forwarding = actionOf(forward, SA_RESTART);
  for (std::size_t index = 0; index < signals.size(); ++index) {
    sigaction(signals[index], nullptr, &former_[index]);
    if (!isIgnoring(former_[index])) sigaction(signals[index], &forwarding, nullptr);
  }

  const struct sigaction stopping = actionOf(stopTogether, SA_RESTART | SA_NODEFER | SA_RESETHAND);
  sigaction(SIGTSTP, nullptr, &formerStopAction_);
  if (isDefault(formerStopAction_)) sigaction(SIGTSTP, &stopping, nullptr);

  // With SIGCHLD ignored, as some parents leave it, the system would throw the line's exit status away.
  const struct sigaction keeping = actionOf(SIG_DFL, 0);
  sigaction(SIGCHLD, nullptr, &formerChildAction_);
  if (isIgnoring(formerChildAction_)) sigaction(SIGCHLD, &keeping, nullptr);
}

SignalForwarding::~SignalForwarding() {
  stop();
  if (isIgnoring(formerChildAction_)) sigaction(SIGCHLD, &formerChildAction_, nullptr);
  if (isDefault(formerStopAction_)) sigaction(SIGTSTP, &formerStopAction_, nullptr);
  for (std::size_t index = 0; index < signals.size(); ++index) {
    if (!isIgnoring(former_[index])) sigaction(signals[index], &former_[index], nullptr);
  }
  if (isInterrupted()) {
    const unsigned used = graceSeconds - alarm(0);
    sigaction(SIGALRM, &formerAlarmAction, nullptr);
    if (formerAlarmSeconds > 0) alarm(formerAlarmSeconds > used ? formerAlarmSeconds - used : 1);
  }
  for (std::size_t index = 0; index < signals.size(); ++index) {
    const bool came = (received & bitOf(signals[index])) != 0;
    if (came && !isDefault(former_[index])) raise(signals[index]);
  }
}

void SignalForwarding::to(pid_t group) {
  target = group;
  for (const int signal : signals) {
    if ((received & bitOf(signal)) != 0) send(signal);
  }
  if (graceIsOver) endGrace(SIGALRM);
}

void SignalForwarding::stop() {
  target = 0;
}

bool SignalForwarding::isInterrupted() const {
  return received != 0;
}

bool SignalForwarding::isIgnored(int signal) const {
  const auto found = std::find(signals.begin(), signals.end(), signal);
  return found != signals.end() && isIgnoring(former_[static_cast<std::size_t>(found - signals.begin())]);
}

bool SignalForwarding::hasKilled() {
  return killed;
}

}  // namespace host::standalone
