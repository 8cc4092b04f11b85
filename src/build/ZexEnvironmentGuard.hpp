#pragma once

#include <map>
#include <string>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

class ZexOpt;

/// Puts the `env` block of a document ahead of the values in the process environment, and restores those when it
/// goes away. A variable that did not exist before ends up empty, not removed.
class ZexEnvironmentGuard {
 public:
  /// Raises "TESSEL:zex:ErrXMLAttr" and "TESSEL:zex:FailSetEnv"; what was set until then is restored.
  explicit ZexEnvironmentGuard(const ZexOpt& option);
  ~ZexEnvironmentGuard();
  ZexEnvironmentGuard(const ZexEnvironmentGuard&) = delete;
  ZexEnvironmentGuard& operator=(const ZexEnvironmentGuard&) = delete;

 private:
  void apply(const ZexOpt& option, const ustring& key);
  void restore() const;

  std::map<std::string, ustring> former_;
};

}  // namespace zex_cmd
