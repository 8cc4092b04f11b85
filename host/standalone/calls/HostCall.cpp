#include "standalone/calls/HostCall.hpp"

#include <optional>
#include <utility>

#include "fl/i18n/strings.hpp"
#include "host/values.hpp"
#include "korvane/String.hpp"
#include "standalone/Interrupted.hpp"

namespace host::standalone {

using fl::i18n::to_ustring;

HostFunctionFailure::HostFunctionFailure(std::string identifier, const fl::ustring& message)
    : std::runtime_error(fl::i18n::to_string(message)), identifier_(std::move(identifier)) {}

void refuseUnknownFunction(const fl::ustring& name) {
  throw HostFunctionFailure("TESSEL:host:UnknownFunction", u"There is no function '" + name + u"' in this host.");
}

fl::ustring HostCall::textAt(std::size_t index) const {
  if (index >= inputs.size() || !Korvane::String::isString(inputs[index]))
    throw HostFunctionFailure("TESSEL:host:TextExpected",
                              u"Argument " + to_ustring(std::to_string(index + 1)) + u" must be a text.");
  const std::optional<fl::ustring> text = Korvane::String::getString(inputs[index]);
  if (!text)
    throw HostFunctionFailure("TESSEL:host:TextExpected",
                              u"Argument " + to_ustring(std::to_string(index + 1)) + u" is a missing text.");
  return *text;
}

zxArray* callTrapped(Services& services, const std::string& name, void (*function)(Services&, const HostCall&),
                     const HostCall& call) {
  try {
    if (function == nullptr) refuseUnknownFunction(to_ustring(name));
    function(services, call);
    return nullptr;
  } catch (const HostFunctionFailure& failure) {
    return createException(failure.identifier(), to_ustring(failure.what()));
  } catch (const Interrupted&) {
    throw;  // ends the whole command, so no failure of the function
  } catch (const std::exception& failure) {
    return createException("TESSEL:host:FunctionFailed", to_ustring(name + ": " + failure.what()));
  }
}

}  // namespace host::standalone
