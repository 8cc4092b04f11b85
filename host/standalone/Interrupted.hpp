#pragma once

#include <exception>

#include "host/visibility.hpp"

namespace host::standalone {

/// Ends the command of an interrupted program. Carries no identifier: it is no answer to anything the command
/// asked.
class ZEXHOST_API Interrupted : public std::exception {
 public:
  explicit Interrupted(int signal) : signal_(signal) {}
  /// "interrupted", and whether tools had to be killed for it.
  const char* what() const noexcept override;
  int signal() const { return signal_; }

 private:
  int signal_;
};

}  // namespace host::standalone
