#include "standalone/calls/host_functions.hpp"

#include <utility>

#include "fl/i18n/strings.hpp"
#include "host/values.hpp"
#include "korvane/String.hpp"
#include "standalone/ada/ada_builder.hpp"
#include "standalone/calls/HostValue.hpp"
#include "standalone/shell/interrupts.hpp"

namespace host::standalone {

namespace {

using fl::i18n::to_string;
using fl::i18n::to_ustring;

[[noreturn]] void refuseUnknown(const fl::ustring& name) {
  throw HostFunctionFailure("TESSEL:host:UnknownFunction", u"There is no function '" + name + u"' in this host.");
}

struct Tool {
  const char16_t* name;
  void (*run)(Services&, const std::vector<fl::ustring>&);
};

constexpr Tool tools[] = {
    {u"build_ada_sfcn_using_gnat", buildAda},
};

}  // namespace

HostFunctionFailure::HostFunctionFailure(std::string identifier, const fl::ustring& message)
    : std::runtime_error(to_string(message)), identifier_(std::move(identifier)) {}

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

void getfield(Services& /*services*/, const HostCall& call) {
  const fl::ustring name = call.textAt(1);
  const HostValue* const value = wrappedValue(call.inputs[0]);
  const auto* object = value == nullptr ? nullptr : std::get_if<HostValue::ExceptionObject>(&value->content);
  if (object == nullptr)
    throw HostFunctionFailure("TESSEL:host:ObjectExpected", u"Only an exception object has fields.");
  const auto field = object->fields.find(to_string(name));
  if (field == object->fields.end())
    throw HostFunctionFailure("TESSEL:host:NoSuchField", u"An exception has no field '" + name + u"'.");
  if (!call.outputs.empty()) call.outputs[0] = handedOver(*field->second);
}

void zl(Services& services, const HostCall& call) {
  const fl::ustring name = call.textAt(0);
  // The second argument stands for the tool's own name and is empty.
  std::vector<fl::ustring> arguments;
  for (std::size_t index = 2; index < call.inputs.size(); ++index) arguments.push_back(call.textAt(index));
  for (const Tool& tool : tools) {
    if (tool.name == name) return tool.run(services, arguments);
  }
  refuseUnknown(u"zl " + name);
}

zxArray* callTrapped(Services& services, const std::string& name, void (*function)(Services&, const HostCall&),
                     const HostCall& call) {
  try {
    if (function == nullptr) refuseUnknown(to_ustring(name));
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
