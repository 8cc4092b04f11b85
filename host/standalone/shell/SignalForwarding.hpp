#pragma once

#include <sys/types.h>

#include <array>
#include <csignal>

namespace host::standalone {

/// While an object of this class lives, the signals that end a program are held back from this process and sent to
/// a process group. At most one object at a time.
class SignalForwarding {
 public:
  /// Those that end a program on a user's or the system's word.
  static constexpr std::array<int, 4> signals = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

  SignalForwarding();
  ~SignalForwarding();
  SignalForwarding(const SignalForwarding&) = delete;
  SignalForwarding& operator=(const SignalForwarding&) = delete;

  /// Names the group. What came since construction is sent at once.
  void to(pid_t group);
  /// Ends the forwarding; the group's number may be given to others from now on.
  void stop();

  /// Whether this process was told to ignore the signal.
  bool isIgnored(int signal) const;

 private:
  std::array<struct sigaction, signals.size()> former_{};
  struct sigaction formerChildAction_ {};
};

}  // namespace host::standalone
