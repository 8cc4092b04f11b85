#include "talk.hpp"

#include <atomic>
#include <cstdarg>
#include <cstdio>

#include "Call.hpp"
#include "zx/runtime.hpp"

namespace {

void toStandardOutput(const char* text, std::size_t length) {
  std::fwrite(text, 1, length, stdout);
}

std::atomic<zxWriter> writer = toStandardOutput;

std::string formatted(const char* format, va_list arguments) {
  zx::presentText(format);
  va_list measured;
  va_copy(measured, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, measured);
  va_end(measured);
  if (length < 0) return format;  // not to be converted in this locale: better than nothing
  std::string text(static_cast<std::size_t>(length), '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, arguments);
  return text;
}

}  // namespace

void zx::print(std::string_view text) {
  writer.load()(text.data(), text.size());
}

void zx::fail(std::string identifier, std::string message) {
  throw Failure(std::move(identifier), std::move(message));
}

void zxSetWriter(zxWriter chosen) {
  writer = chosen == nullptr ? toStandardOutput : chosen;
}

void zexPrintf(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const std::string text = formatted(format, arguments);
  va_end(arguments);
  zx::print(text);
}

void zexFail(const char* identifier, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  std::string text = formatted(format, arguments);
  va_end(arguments);
  zx::fail(zx::presentText(identifier), std::move(text));
}
