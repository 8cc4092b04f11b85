#include <io.h>

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "fl/i18n/strings.hpp"
#include "output.hpp"

namespace tool {

KeptOutput::KeptOutput() : kept_(_dup(_fileno(stdout))) {
  // At once, so that the order with what goes to standard error directly is kept: there is no buffering by line.
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  // Without a standard error what is printed is lost, as it would have been there.
  if (_dup2(_fileno(stderr), _fileno(stdout)) < 0) _close(_fileno(stdout));
}

KeptOutput::~KeptOutput() {
  if (kept_ >= 0) _close(kept_);
}

bool KeptOutput::write(const std::string& text) const {
  constexpr std::size_t longestWrite = 1U << 20U;
  std::string_view rest = text;
  while (!rest.empty()) {
    const int count = _write(kept_, rest.data(), static_cast<unsigned>(std::min(rest.size(), longestWrite)));
    if (count <= 0) return false;
    rest.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

std::string outputText(std::string utf8) {
  return fl::i18n::to_string(fl::i18n::codecvt_string_to_ustring("UTF-8")(utf8));
}

}  // namespace tool
