#pragma once

#include <exception>
#include <string>
#include <utility>

namespace zx {

/// How a call of an extension ends early. It is thrown and caught in this library alone, across the frames of the
/// extension.
class Failure : public std::exception {
 public:
  Failure(std::string identifier, std::string message)
      : identifier_(std::move(identifier)), message_(std::move(message)) {}
  const char* what() const noexcept override { return message_.c_str(); }
  const std::string& identifier() const { return identifier_; }
  const std::string& message() const { return message_; }

 private:
  std::string identifier_;
  std::string message_;
};

}  // namespace zx
