#include "given_texts.hpp"

#include <cstdio>

#include "Failure.hpp"

namespace zx {

namespace {

template <class Unit>
const Unit* checkedText(const Unit* text) {
  if (text == nullptr) throw Failure("TESSEL:zx:NoText", "There is no text where one is needed.");
  return text;
}

}  // namespace

const char* presentText(const char* text) {
  return checkedText(text);
}

const zxUnit* presentText(const zxUnit* text) {
  return checkedText(text);
}

std::string formatted(const char* format, va_list arguments) {
  presentText(format);
  va_list measured;
  va_copy(measured, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, measured);
  va_end(measured);
  if (length < 0) return format;  // not to be converted in this locale: better than nothing
  std::string text(static_cast<std::size_t>(length), '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, arguments);
  return text;
}

}  // namespace zx
