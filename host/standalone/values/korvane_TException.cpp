#include <algorithm>
#include <utility>

#include "korvane/TException.hpp"

namespace Korvane::TException {

namespace {

/// Where the tag begins: behind the last colon. An identifier without one is a tag alone.
std::size_t tagStart(const std::string& identifier) {
  const std::size_t colon = identifier.rfind(':');
  return colon == std::string::npos ? 0 : colon + 1;
}

}  // namespace

HostError::Record::Record(const std::string& identifier, fl::ustring text)
    : component_(identifier, 0, std::max<std::size_t>(tagStart(identifier), 1) - 1),
      tag_(identifier, tagStart(identifier)),
      text_(std::move(text)) {}

HostError::HostError(const std::string& identifier, fl::ustring text)
    // NOLINTNEXTLINE(bugprone-throw-keyword-missing): a part of one
    : record_(identifier, std::move(text)), errorId_(identifier) {}

const fl::ustring& HostError::text() const {
  return record_.text();
}

TExceptionEnvelope::TExceptionEnvelope(const std::string& identifier, const fl::ustring& text, zxArray* /*cause*/,
                                       bool /*captureStack*/)
    : identifier_(identifier), text_(text) {}

TExceptionEnvelope::TExceptionEnvelope(const TExceptionEnvelope& other, zxArray* cause, bool captureStack)
    : TExceptionEnvelope(other.identifier_, other.text_, cause, captureStack) {}

void TExceptionEnvelope::DoThrow() const {
  throw HostError(identifier_, text_);
}

}  // namespace Korvane::TException
