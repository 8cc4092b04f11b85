#pragma once

#include <sys/types.h>

#include <array>
#include <csignal>

namespace host::standalone {

/// While an object of this class lives, the signals that end a program are held back from this process and sent to
/// a process group, and a stop from the keyboard stops that group too. At most one object at a time.
class SignalForwarding {
 public:
  /// Those that end a program on a user's or the system's word.
  static constexpr std::array<int, 4> signals = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

  /// So long the group may go on after the first of them; then it is killed.
  static constexpr unsigned graceSeconds = 3;

  SignalForwarding();
  ~SignalForwarding();
  SignalForwarding(const SignalForwarding&) = delete;
  SignalForwarding& operator=(const SignalForwarding&) = delete;

  /// Names the group. What came since construction is sent at once.
  void to(pid_t group);
  /// Ends the forwarding; the group's number may be given to others from now on.
  void stop();

  /// Whether a signal came since construction.
  bool isInterrupted() const;
  /// Whether this process was told to ignore the signal.
  bool isIgnored(int signal) const;

  /// Whether any group had to be killed.
  static bool hasKilled();

 private:
  std::array<struct sigaction, signals.size()> former_{};
  struct sigaction formerChildAction_ {};
  struct sigaction formerStopAction_ {};
};

}  // namespace host::standalone
