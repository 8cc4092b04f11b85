#include "host/values.hpp"

#include <utility>

#include "fl/i18n/strings.hpp"
#include "standalone/values/HostValue.hpp"

zxArray* host::createException(const std::string& identifier, const fl::ustring& message) {
  using standalone::HostValue;
  const auto text = [](fl::ustring words) {
    return std::make_shared<const HostValue>(HostValue{HostValue::CharacterVector{std::move(words)}});
  };
  return standalone::handedOver({HostValue::ExceptionObject{
      {{"identifier", text(fl::i18n::to_ustring(identifier))}, {"message", text(message)}}}});
}
