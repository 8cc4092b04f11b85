#include "korvane/String.hpp"
#include "standalone/values/HostValue.hpp"
#include "zex.h"

namespace Korvane {

using host::standalone::HostValue;

bool String::isString(const zxArray* array) {
  if (array == nullptr) return false;
  const HostValue* const value = host::standalone::wrappedValue(array);
  return value == nullptr ? zxKindOf(array) == ZX_TEXT
                          : std::holds_alternative<HostValue::StringScalar>(value->content);
}

std::optional<fl::ustring> String::getString(const zxArray* array) {
  const HostValue* const value = host::standalone::wrappedValue(array);
  if (value == nullptr) return zxReadText_UTF16(array);
  return std::get<HostValue::StringScalar>(value->content).text;
}

}  // namespace Korvane
