#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <mutex>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "fl/i18n/strings.hpp"
#include "host/temporary_folders.hpp"
#include "standalone/shell/SignalForwarding.hpp"
#include "standalone/shell/process_group.hpp"
#include "standalone/shell/shell_line.hpp"
#include "texts/utf.hpp"

extern char** environ;  // NOLINT(readability-redundant-declaration): not every system declares it

namespace host::standalone {

namespace {

int openUnnamedIn(const std::string& folder) {
  std::string name = folder + "/zex_XXXXXX";
  const int descriptor = mkostemp(name.data(), O_CLOEXEC);
  if (descriptor >= 0) unlink(name.c_str());
  return descriptor;
}

/// In memory, where the system can; else in the first folder that takes it, in the order of the driver's own
/// temporary files. -1: errno says why not.
int openUnnamed() {
#ifdef MFD_CLOEXEC
  if (const int descriptor = memfd_create("zex", MFD_CLOEXEC); descriptor >= 0) return descriptor;
#endif
  for (const char* variable : temporaryFolderVariables) {
    const char* const folder = std::getenv(variable);
    if (folder == nullptr || *folder == '\0') continue;
    if (const int descriptor = openUnnamedIn(folder); descriptor >= 0) return descriptor;
  }
  return openUnnamedIn(P_tmpdir);
}

/// An unnamed file that takes one output stream. A pipe would keep us waiting for a child that the line leaves in
/// the background.
class CaptureFile {
 public:
  CaptureFile() {
    const int opened = openUnnamed();
    // Above the three standard ones: in a process with one of those closed, the file could have taken its place.
    if (opened >= 0) descriptor_ = fcntl(opened, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (descriptor_ < 0) error_ = errno;
    if (opened >= 0) close(opened);
  }
  ~CaptureFile() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  CaptureFile(const CaptureFile&) = delete;
  CaptureFile& operator=(const CaptureFile&) = delete;

  int descriptor() const { return descriptor_; }
  int error() const { return error_; }  ///< why there is no file, or 0

  std::string content() const {
    std::string text;
    std::array<char, 65536> block;
    for (;;) {
      const ssize_t count = pread(descriptor_, block.data(), block.size(), static_cast<off_t>(text.size()));
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return text;
      text.append(block.data(), static_cast<std::size_t>(count));
    }
  }

 private:
  int descriptor_ = -1;
  int error_ = 0;
};

/// What the shell starts with, beside the line: its standard streams, its signals and a process group of its own.
class SpawnSettings {
 public:
  SpawnSettings(const CaptureFile& output, const CaptureFile& errors, const SignalForwarding& forwarding) {
    posix_spawn_file_actions_init(&files_);
    posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files_, output.descriptor(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files_, errors.descriptor(), STDERR_FILENO);

    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    sigfillset(&signals);
    // Where it is ignored, a tool can say what it could not write, and remove it; else it would be killed for it.
    sigdelset(&signals, SIGXFSZ);
    for (const int signal : SignalForwarding::signals) {
      if (forwarding.isIgnored(signal)) sigdelset(&signals, signal);
    }
    posix_spawnattr_setsigdefault(&attributes_, &signals);
    posix_spawnattr_setpgroup(&attributes_, 0);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }
  ~SpawnSettings() {
    posix_spawnattr_destroy(&attributes_);
    posix_spawn_file_actions_destroy(&files_);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  const posix_spawn_file_actions_t* files() const { return &files_; }
  const posix_spawnattr_t* attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t files_;
  posix_spawnattr_t attributes_;
};

/// The words of a line that is `sh` with plain words behind it, none of any other line. Such a line needs no shell
/// around it. Any other program would: a shell may be what its name stands for, and it changes the environment, as
/// the shell that is started here does by itself.
std::vector<std::string> wordsOfShellAlone(const std::string& line) {
  constexpr char plain[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_./-+,:@% ";
  if (!line.starts_with("sh ") || line.find_first_not_of(plain) != std::string::npos) return {};
  std::istringstream stream(line);
  return {std::istream_iterator<std::string>(stream), {}};
}

using Start = decltype(posix_spawn);

int startBy(Start start, const char* program, std::vector<std::string> words, const SpawnSettings& settings,
            pid_t& child) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  return start(&child, program, settings.files(), settings.attributes(), arguments.data(), environ);
}

/// Zero, or the system's error number.
int startLine(const std::string& line, const SpawnSettings& settings, pid_t& child) {
  const std::vector<std::string> words = wordsOfShellAlone(line);
  const char* const path = std::getenv("PATH");
  // Without a PATH each shell has one of its own, and what cannot be started is a shell's to tell.
  const bool isStarted = !words.empty() && path != nullptr && *path != '\0' &&
                         startBy(posix_spawnp, "sh", words, settings, child) == 0;
  // "--", or a line that begins with a dash would be taken for options.
  return isStarted ? 0 : startBy(posix_spawn, "/bin/sh", {"sh", "-c", "--", line}, settings, child);
}

ShellResult notStarted(int status) {
  return {ShellStatus::notStarted(status), {}};
}

int statusAfterDeathBy(int signal) {
  return 128 + signal;
}

/// Waits without reaping, so that the process number stays the line's own until no signal is sent to it any more.
int waitForEnd(pid_t child) {
  siginfo_t ignored;
  while (waitid(P_PID, static_cast<id_t>(child), &ignored, WEXITED | WNOWAIT) != 0) {
    if (errno != EINTR) return errno;
  }
  return 0;
}

/// Exit status of a child that has ended, as a shell tells it.
int reap(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return errno;
  }
  return WIFSIGNALED(status) ? statusAfterDeathBy(WTERMSIG(status)) : WEXITSTATUS(status);
}

/// Starts the line and sees it through; the status is the shell's, or the system's error number.
ShellResult run(Services& services, const std::string& line) {
  SignalForwarding forwarding;
  // Looked at after the handlers stand: what comes later is forwarded.
  services.stopIfInterrupted();

  const CaptureFile output;
  if (output.error() != 0) return notStarted(output.error());
  const CaptureFile errors;
  if (errors.error() != 0) return notStarted(errors.error());

  const SpawnSettings settings(output, errors, forwarding);
  pid_t child = 0;
  if (const int error = startLine(line, settings, child); error != 0) return notStarted(error);

  forwarding.to(child);
  const int waitError = waitForEnd(child);
  // Tools may outlive the shell that started them, and still write.
  if (forwarding.isInterrupted()) awaitEndOfGroup(child);
  forwarding.stop();
  const int status = waitError != 0 ? waitError : reap(child);

  std::string text = output.content();
  if (status != 0) text += errors.content();
  return {status, fl::i18n::to_ustring(text)};
}

}  // namespace

ShellResult runLineOfShell(Services& services, const fl::ustring& line) {
  // A line with a replaced or cut-off character would be another command.
  const std::optional<std::string> bytes = toUtf8Exactly(line);
  if (!bytes) return notStarted(EILSEQ);
  if (bytes->find('\0') != std::string::npos) return notStarted(EINVAL);

  static std::mutex oneAtATime;
  const std::lock_guard lock(oneAtATime);
  std::fflush(stdout);
  const ShellResult result = run(services, *bytes);
  // A line that an interrupt ended must not pass for one that failed by itself.
  services.stopIfInterrupted();
  return result;
}

}  // namespace host::standalone
