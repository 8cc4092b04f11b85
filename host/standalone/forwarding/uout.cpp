#include "services/io/uout.hpp"

#include <cstdarg>
#include <cstdio>
#include <string>

#include "fl/i18n/strings.hpp"
#include "host/Services.hpp"

services::io::uout& services::io::uout::operator<<(const fl::ustring& text) {
  host::services().write(fl::i18n::to_string(text));
  return *this;
}

void utPrintf(const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  const int length = std::vsnprintf(nullptr, 0, format, values);
  va_end(values);
  if (length <= 0) return;

  std::string text(static_cast<std::size_t>(length), '\0');
  va_start(values, format);
  std::vsnprintf(text.data(), text.size() + 1, format, values);
  va_end(values);
  host::services().write(text);
}

bool utPrintfIsHot() {
  return host::services().outputIsHot();
}
