#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>

#include "standalone/shell/SignalForwarding.hpp"
#include "standalone/shell/process_group.hpp"

namespace host::standalone {

namespace {

namespace fs = std::filesystem;

/// Whether the entry of /proc is a process of the group that has not ended.
bool isLivingMember(const fs::path& entry, pid_t group) {
  std::ifstream stream(entry / "stat");
  std::string line;
  std::getline(stream, line);
  // Behind the program's name, which may hold anything: the state, the parent and the group.
  std::istringstream fields(line.substr(line.rfind(')') + 1));
  char state = 'X';
  pid_t parent = 0, itsGroup = 0;
  return fields >> state >> parent >> itsGroup && itsGroup == group && state != 'Z' && state != 'X';
}

/// A signal would also reach processes that have ended and that nobody reaps, as happens in containers. Where
/// there is no /proc it does not.
bool hasLivingMember(pid_t group) {
  std::error_code noProcesses;
  const fs::directory_iterator processes("/proc", noProcesses);
  if (noProcesses) return kill(-group, 0) == 0;
  return std::any_of(begin(processes), end(processes),
                     [group](const fs::directory_entry& entry) { return isLivingMember(entry.path(), group); });
}

}  // namespace

void awaitEndOfGroup(pid_t group) {
  using namespace std::chrono;
  const auto latest = steady_clock::now() + seconds(2 * SignalForwarding::graceSeconds);
  while (hasLivingMember(group) && steady_clock::now() < latest) std::this_thread::sleep_for(milliseconds(10));
}

}  // namespace host::standalone
