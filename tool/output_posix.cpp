#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string_view>

#include "output.hpp"

namespace tool {

// Closed when another program is started, which would hold a pipe open.
KeptOutput::KeptOutput() : kept_(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1)) {
  // Line by line, so that the order with what goes to standard error directly is kept.
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  // Without a standard error what is printed is lost, as it would have been there.
  if (dup2(STDERR_FILENO, STDOUT_FILENO) < 0) close(STDOUT_FILENO);
}

KeptOutput::~KeptOutput() {
  if (kept_ >= 0) close(kept_);
}

bool KeptOutput::write(const std::string& text) const {
  std::string_view rest = text;
  while (!rest.empty()) {
    const ssize_t count = ::write(kept_, rest.data(), rest.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    rest.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

std::string outputText(std::string utf8) {
  return utf8;
}

}  // namespace tool
