#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/Services.hpp"
#include "standalone/values/HostValue.hpp"
#include "support/platform.hpp"

namespace zex_test {

/// A host that records what the driver tells it. In force from construction to destruction, with a keyed store of
/// its own, so that no test sees what another left behind. Messages are rendered in the pseudo-locale "id".
class RecordingServices : public host::Services {
 public:
  RecordingServices() : previous_(host::installServices(this)) {}
  ~RecordingServices() override { host::installServices(previous_); }

  std::string output;                 ///< all that was written, with paths as tests write them
  std::vector<std::string> warnings;  ///< rendered in the pseudo-locale
  std::vector<std::string> errors;    ///< identifiers of the errors that were announced
  bool hot = false;
  fl::ustring install;      ///< install folder that the host tells
  fl::ustring preferences;  ///< preferences folder that the host tells
  Tdispatcher* dispatch = nullptr;
  std::vector<std::string> shellLines;  ///< lines given to the shell; they really run
  std::vector<bool> shellFlags;         ///< and whether each came as called from the host
  /// Calls of host functions: the name and the inputs, "?" for one that is no text.
  std::vector<std::vector<std::string>> calls;
  /// Fields of the exception object that every function but "getfield" answers with; nothing: all goes well.
  std::optional<host::standalone::HostValue::Fields> failure;

  void write(std::string_view text) override { output += told(fromNative(text)); }
  bool outputIsHot() const override { return hot; }
  void showWarning(const resource_core::BaseMsgID& record) override;
  void noteError(const foundation::core::except::IUserException& error) override;
  fl::ustring installFolder() const override { return install; }
  fl::ustring preferencesFolder(bool) const override { return preferences; }
  std::string locale() const override { return "id"; }
  Tdispatcher* dispatcher() override { return dispatch; }
  host::ShellResult runShellLine(const fl::ustring& line, bool calledFromHost) override;
  zxArray* callFunction(const std::string& name, int outputCount, zxArray* outputs[], int inputCount,
                        zxArray* inputs[]) override;

 private:
  host::Services* previous_;
};

/// What an action throws, rendered in the pseudo-locale, as in `TESSEL:zex:UnknownSwitch("-x")`; "no error" where
/// it throws nothing. An exception without an identifier gives its text.
std::string failureOf(const std::function<void()>& action);

}  // namespace zex_test
