#pragma once

#include "host/Services.hpp"

namespace host::standalone {

/// The services of a shell with no environment around it: standard output and standard error, folders from the
/// library's own place and the environment, no dispatcher.
class ZEXHOST_API StandaloneServices : public Services {
 public:
  void write(std::string_view text) override;
  bool outputIsHot() const override { return false; }
  void showWarning(const resource_core::BaseMsgID& record) override;
  void noteError(const foundation::core::except::IUserException&) override {}
  fl::ustring installFolder() const override;
  fl::ustring preferencesFolder(bool create) const override;
  std::string locale() const override;
  Tdispatcher* dispatcher() override { return nullptr; }
  ShellResult runShellLine(const fl::ustring& line, bool calledFromHost) override;
};

}  // namespace host::standalone
