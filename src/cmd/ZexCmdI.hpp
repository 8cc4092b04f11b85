#pragma once

#include <map>
#include <string>
#include <vector>

#include "cmd/messages/visibility.hpp"
#include "fl/ustring.hpp"

namespace zex_cmd {

/// Describes one compiler: fixed keys such as "Name" and "Version" to texts. A key without a source is left out.
using CompilerRecord = std::map<fl::ustring, fl::ustring>;

/// The command driver as its callers see it. Made by `ZexCmdFactory::createZex`. One thread calls an object, and
/// no two commands may overlap in one process: a build changes the process environment while it runs.
class ZEXCMD_API ZexCmdI {
 public:
  ZexCmdI() = default;
  ZexCmdI(const ZexCmdI&) = default;
  ZexCmdI& operator=(const ZexCmdI&) = default;

  /// Runs one command. `arguments` is what a user typed behind the tool's own name, one entry an argument. Returns
  /// when the command has ended well. A failure leaves as
  /// `foundation::core::except::Exception<Tag, std::exception, void>` with the tag of its identifier, and an error
  /// of the host's own functions as `Korvane::TException::HostError`; catch
  /// `foundation::core::except::IMsgIDException` for any of them. A file system failure outside what the command
  /// names, such as an unusable temporary folder, passes as `fl::filesystem::FsysExceptionBase`.
  virtual void run(const std::vector<fl::ustring>& arguments) = 0;

  /// Describes compilers without printing or writing anything. `language` is "c", "c++", "cpp", "fortran" or "any"
  /// and `kind` "selected", "installed", "supported" or "default", in any letter case; `architecture` is a word
  /// such as "glnxa64". Raises "TESSEL:zex:UnknownSwitch" for a word that is none of these.
  virtual std::vector<CompilerRecord> queryCompilers(const std::string& language, const std::string& kind,
                                                     const std::string& architecture) = 0;

  virtual ~ZexCmdI() = default;
};

}  // namespace zex_cmd
