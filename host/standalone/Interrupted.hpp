#pragma once

#include <exception>

#include "host/visibility.hpp"

namespace host::standalone {

/// Ends the command of an interrupted program. Carries no identifier: it is no answer to anything the command
/// asked.
class ZEXHOST_API Interrupted : public std::exception {
 public:
  explicit Interrupted(int signal) : signal_(signal) {}
  const char* what() const noexcept override { return "interrupted"; }
  int signal() const { return signal_; }

 private:
  int signal_;
};

}  // namespace host::standalone
