#pragma once

#include "host/Services.hpp"

namespace host::standalone {

/// The services of a shell with no environment around it: standard output and standard error, folders from the
/// library's own place and the environment, no dispatcher.
class ZEXHOST_API StandaloneServices : public Services {
 public:
  /// The program's name stands ahead of a warning.
  explicit StandaloneServices(std::string programName = "zex");

  /// A closed or full output is not this class's to report: nothing throws, and the stream keeps its error state.
  void write(std::string_view text) override;
  bool outputIsHot() const override { return false; }
  void showWarning(const resource_core::BaseMsgID& record) override;
  void noteError(const foundation::core::except::IUserException&) override {}
  fl::ustring installFolder() const override;
  fl::ustring preferencesFolder(bool create) const override;
  std::string locale() const override;
  Tdispatcher* dispatcher() override { return nullptr; }

  /// One line at a time in a process: another thread that comes meanwhile waits. While the line runs, SIGINT,
  /// SIGTERM, SIGHUP and SIGQUIT that reach this process go to the line's process group. A handler that was there
  /// before is called when the line has ended; a default action is not taken, so that the caller unwinds. A signal
  /// that was ignored stays so, for the line too. Every other signal has its default action in the line.
  ShellResult runShellLine(const fl::ustring& line, bool calledFromHost) override;

 private:
  std::string programName_;
};

}  // namespace host::standalone
