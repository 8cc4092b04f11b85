#pragma once

#include "host/Services.hpp"

namespace host::standalone {

/// The services of a shell with no environment around it: standard output and standard error, folders from the
/// library's own place and the environment, a dispatcher only if it is given one.
class ZEXHOST_API StandaloneServices : public Services {
 public:
  /// The program's name stands ahead of a warning. A process that loads what it builds gives its table of loaded
  /// products, which outlives this object.
  explicit StandaloneServices(std::string programName = "zex", Tdispatcher* dispatcher = nullptr);

  /// A closed or full output is not this class's to report: nothing throws, and the stream keeps its error state.
  void write(std::string_view text) override;
  bool outputIsHot() const override { return false; }
  void showWarning(const resource_core::BaseMsgID& record) override;
  void noteError(const foundation::core::except::IUserException&) override {}
  /// A relative TESSEL_ROOT stays as it is where there is no current folder.
  fl::ustring installFolder() const override;
  /// Gives the path also where the folder cannot be made: who looks into it finds out, and can say what for.
  /// Raises PathNotFound where the user has no home.
  fl::ustring preferencesFolder(bool create) const override;
  std::string locale() const override;
  Tdispatcher* dispatcher() override { return dispatcher_; }

  /// One line at a time in a process: another thread that comes meanwhile waits. While the line runs, SIGINT,
  /// SIGTERM, SIGHUP and SIGQUIT that reach this process go to the line's process group, which is then waited for
  /// and, after three seconds, killed; SIGTSTP stops that group together with this process. A handler that was
  /// there before is called when the line has ended; a default action is not taken, so that the caller unwinds. A
  /// signal that was ignored stays so, for the line too. Every other signal but SIGXFSZ has its default action in
  /// the line. Raises Interrupted where installInterruptHandlers was called and a signal was noted before or
  /// during the line.
  ShellResult runShellLine(const fl::ustring& line, bool calledFromHost) override;

  /// Raises Interrupted where installInterruptHandlers was called and an interrupt was noted.
  void stopIfInterrupted() override;

  /// Knows "getfield" and "zl", by which an Ada source is built.
  zxArray* callFunction(const std::string& name, int outputCount, zxArray* outputs[], int inputCount,
                        zxArray* inputs[]) override;

 private:
  std::string programName_;
  Tdispatcher* dispatcher_;
};

}  // namespace host::standalone
