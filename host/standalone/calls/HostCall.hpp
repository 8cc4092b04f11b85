#pragma once

#include <span>
#include <stdexcept>
#include <string>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"
#include "zx/zxArray.hpp"

namespace host {
class Services;
}

namespace host::standalone {

/// How a function of the host fails; it becomes an exception object.
class ZEXHOST_API HostFunctionFailure : public std::runtime_error {
 public:
  HostFunctionFailure(std::string identifier, const fl::ustring& message);
  const std::string& identifier() const { return identifier_; }

 private:
  std::string identifier_;
};

/// Fails for the name of a function that this host does not have.
[[noreturn]] void refuseUnknownFunction(const fl::ustring& name);

struct HostCall {
  std::span<zxArray* const> inputs;  ///< the caller's
  std::span<zxArray*> outputs;       ///< places to fill, null at the start

  /// The text of an input; fails where there is no such input or it is no text.
  fl::ustring textAt(std::size_t index) const;
};

/// Calls a function, null for one that the host does not have. Gives the exception object of a failure, or null.
zxArray* callTrapped(Services& services, const std::string& name, void (*function)(Services&, const HostCall&),
                     const HostCall& call);

}  // namespace host::standalone
