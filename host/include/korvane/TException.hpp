#pragma once

#include <exception>
#include <string>

#include "fl/ustring.hpp"
#include "foundation/core/except/IException.hpp"
#include "host/visibility.hpp"
#include "zx/zxArray.hpp"

namespace Korvane::TException {

/// The host's own error as it reaches a caller: an identifier and a message that is words already.
class ZEXHOST_API HostError : public foundation::core::except::IMsgIDException, public std::exception {
 public:
  HostError(const std::string& identifier, fl::ustring text);

  /// The message of the host, in the user's language.
  const fl::ustring& text() const;

  const resource_core::BaseMsgID& message() const override { return record_; }
  const std::string& error_id() const override { return errorId_; }
  const boost::exception_detail::clone_base* clone() const override { return new HostError(*this); }
  void rethrow() const override { throw HostError(*this); }

 private:
  /// The identifier in its two parts, and the text as its only argument.
  class Record : public resource_core::BaseMsgID {
   public:
    Record(const std::string& identifier, fl::ustring text);
    const std::string& component() const override { return component_; }
    const std::string& tag() const override { return tag_; }
    std::size_t argumentCount() const override { return 1; }
    fl::ustring argument(std::size_t) const override { return text_; }
    const fl::ustring& text() const { return text_; }

   private:
    std::string component_;
    std::string tag_;
    fl::ustring text_;
  };

  Record record_;
  std::string errorId_;
};

/// Carries a host error to where it is thrown.
class ZEXHOST_API TExceptionEnvelope {
 public:
  /// `cause` is an array with the error's causes, or null; `captureStack` asks the host to note where it stands.
  TExceptionEnvelope(const std::string& identifier, const fl::ustring& text, zxArray* cause, bool captureStack);
  TExceptionEnvelope(const TExceptionEnvelope& other, zxArray* cause, bool captureStack);

  /// Throws a HostError.
  [[noreturn]] void DoThrow() const;

 private:
  std::string identifier_;
  fl::ustring text_;
};

}  // namespace Korvane::TException
