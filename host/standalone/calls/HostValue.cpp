#include "standalone/calls/HostValue.hpp"

#include <utility>

#include "fl/i18n/strings.hpp"
#include "host/values.hpp"
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

zxArray* host::createException(const std::string& identifier, const fl::ustring& message) {
  using standalone::HostValue;
  const auto text = [](fl::ustring words) {
    return std::make_shared<const HostValue>(HostValue{HostValue::CharacterVector{std::move(words)}});
  };
  return standalone::handedOver({HostValue::ExceptionObject{
      {{"identifier", text(fl::i18n::to_ustring(identifier))}, {"message", text(message)}}}});
}
