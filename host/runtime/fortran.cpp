// What Fortran extensions call beside the functions of zex.h: texts come with their lengths behind all arguments,
// as Fortran compilers pass them. Blanks at the end of a text are padding.
#include <string_view>

#include "Array.hpp"
#include "Failure.hpp"
#include "output.hpp"
#include "texts/utf.hpp"

namespace {

std::string_view unpadded(const char* text, std::size_t length) {
  const std::string_view whole(text, length);
  return whole.substr(0, whole.find_last_not_of(' ') + 1);
}

}  // namespace

extern "C" {

ZX_API void zex_fail_(const char* identifier, const char* message, std::size_t identifierLength,
                      std::size_t messageLength);
ZX_API void zex_print_(const char* text, std::size_t length);
ZX_API zxArray* zx_make_text_(const char* text, std::size_t length);

void zex_fail_(const char* identifier, const char* message, std::size_t identifierLength,
               std::size_t messageLength) {
  throw zx::Failure(std::string(unpadded(identifier, identifierLength)),
                    std::string(unpadded(message, messageLength)));
}

/// Prints a line.
void zex_print_(const char* text, std::size_t length) {
  zx::print(std::string(unpadded(text, length)) + "\n");
}

zxArray* zx_make_text_(const char* text, std::size_t length) {
  return zx::makeText(host::fromUtf8(unpadded(text, length)));
}
}
