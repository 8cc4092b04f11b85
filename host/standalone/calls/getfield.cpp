#include "standalone/calls/getfield.hpp"

#include "fl/i18n/strings.hpp"
#include "standalone/values/HostValue.hpp"

namespace host::standalone {

void getfield(Services& /*services*/, const HostCall& call) {
  const fl::ustring name = call.textAt(1);
  const HostValue* const value = wrappedValue(call.inputs[0]);
  const auto* object = value == nullptr ? nullptr : std::get_if<HostValue::ExceptionObject>(&value->content);
  if (object == nullptr)
    throw HostFunctionFailure("TESSEL:host:ObjectExpected", u"Only an exception object has fields.");
  const auto field = object->fields.find(fl::i18n::to_string(name));
  if (field == object->fields.end())
    throw HostFunctionFailure("TESSEL:host:NoSuchField", u"An exception has no field '" + name + u"'.");
  if (!call.outputs.empty()) call.outputs[0] = handedOver(*field->second);
}

}  // namespace host::standalone
