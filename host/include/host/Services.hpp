#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "fl/ustring.hpp"
#include "foundation/core/except/IException.hpp"
#include "host/visibility.hpp"
#include "resource_core/BaseMsgID.hpp"
#include "zx/zxArray.hpp"

class Tdispatcher;

namespace foundation::usm {
class KeyedStore;
}

namespace host {

/// Exit status of what was run, 128 + n for death by signal n; or, where nothing could be, the system's error
/// number.
class ShellStatus {
 public:
  ShellStatus(std::int32_t exitStatus) : number_(exitStatus) {}  // NOLINT(google-explicit-constructor)
  static ShellStatus notStarted(std::int32_t systemError) { return {systemError, false}; }

  operator std::int32_t() const { return number_; }  // NOLINT(google-explicit-constructor)
  bool started() const { return started_; }

 private:
  ShellStatus(std::int32_t number, bool started) : number_(number), started_(started) {}

  std::int32_t number_;
  bool started_ = true;
};

/// How a shell line ended.
struct ShellResult {
  ShellStatus status = -1;
  fl::ustring text;  ///< what the line itself printed
};

/// All that depends on who hosts the driver. A program that embeds the driver derives its own and installs it;
/// without one the stand-alone services for a shell are in force.
class ZEXHOST_API Services {
 public:
  Services();
  virtual ~Services();
  Services(const Services&) = delete;
  Services& operator=(const Services&) = delete;

  /// Text for the user's output channel, in the native 8-bit encoding.
  virtual void write(std::string_view text) = 0;
  /// Whether that channel can show links and bold text.
  virtual bool outputIsHot() const = 0;
  virtual void showWarning(const resource_core::BaseMsgID& record) = 0;
  /// Told of every error just before it is thrown.
  virtual void noteError(const foundation::core::except::IUserException& error) = 0;

  /// Root of the installed tree.
  virtual fl::ustring installFolder() const = 0;
  virtual fl::ustring preferencesFolder(bool create) const = 0;
  /// Name of the locale for messages, such as "en".
  virtual std::string locale() const = 0;

  /// The dispatcher of loaded functions, or null.
  virtual Tdispatcher* dispatcher() = 0;

  /// Runs one line through the system's shell and waits for its end, without a time limit. Standard input is
  /// empty. `calledFromHost` says that the host asked for the command on its own behalf.
  virtual ShellResult runShellLine(const fl::ustring& line, bool calledFromHost) = 0;

  /// Called ahead of and behind every command that the driver starts without `runShellLine`, as it does on
  /// Windows, and where much reading may lie ahead. A host that was interrupted meanwhile throws, which ends the
  /// driver's command.
  virtual void stopIfInterrupted() {}

  /// Calls a function of the host by name. The inputs stay the caller's. `outputs` has `outputCount` places, null
  /// at the start; what the function puts there becomes the caller's. Gives null where all went well, else an
  /// exception object (see host/values.hpp), which becomes the caller's too. The default knows "getfield" of an
  /// exception object, without which no failure can be read, and fails for every other name.
  virtual zxArray* callFunction(const std::string& name, int outputCount, zxArray* outputs[], int inputCount,
                                zxArray* inputs[]);

  /// The keyed store of the virtual machine that these services stand for. It lives as long as they do.
  foundation::usm::KeyedStore& store() { return *store_; }

 private:
  std::unique_ptr<foundation::usm::KeyedStore> store_;
};

/// The services in force.
ZEXHOST_API Services& services();

/// Puts services in force and gives those that were there before; null stands for the stand-alone ones. The caller
/// keeps ownership and must outlive the use.
ZEXHOST_API Services* installServices(Services* services);

}  // namespace host
