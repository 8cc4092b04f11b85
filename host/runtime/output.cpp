#include "output.hpp"

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <string>

#include "given_texts.hpp"
#include "zx/runtime.hpp"

namespace {

void toStandardOutput(const char* text, std::size_t length) {
  std::fwrite(text, 1, length, stdout);
}

std::atomic<zxWriter> writer = toStandardOutput;

}  // namespace

void zx::print(std::string_view text) {
  writer.load()(text.data(), text.size());
}

void zxSetWriter(zxWriter chosen) {
  writer = chosen == nullptr ? toStandardOutput : chosen;
}

void zexPrintf(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const std::string text = zx::formatted(format, arguments);
  va_end(arguments);
  zx::print(text);
}
