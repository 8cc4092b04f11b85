#include <cstdarg>
#include <utility>

#include "Failure.hpp"
#include "given_texts.hpp"
#include "zex.h"

void zexFail(const char* identifier, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  std::string text = zx::formatted(format, arguments);
  va_end(arguments);
  throw zx::Failure(zx::presentText(identifier), std::move(text));
}
