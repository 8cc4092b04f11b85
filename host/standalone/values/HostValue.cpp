#include "standalone/values/HostValue.hpp"

#include <utility>

#include "zx/runtime.hpp"

namespace host::standalone {

zxArray* handedOver(HostValue value) {
  if (const auto* characters = std::get_if<HostValue::CharacterVector>(&value.content)) {
    return zxCreateString_UTF16(characters->text.c_str());
  }
  auto owned = std::make_unique<HostValue>(std::move(value));
  zxArray* const array = zxWrapObject(
      owned.get(), [](void* object) { const std::unique_ptr<HostValue> end(static_cast<HostValue*>(object)); });
  static_cast<void>(owned.release());
  return array;
}

const HostValue* wrappedValue(const zxArray* array) {
  return static_cast<const HostValue*>(zxWrappedObject(array));
}

}  // namespace host::standalone
