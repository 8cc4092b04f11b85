#pragma once

#include <exception>
#include <string>
#include <utility>

#include "cmd/messages/MessageRecord.hpp"
#include "cmd/messages/visibility.hpp"
#include "foundation/core/except/IException.hpp"

namespace foundation::core::except {

template <class Tag, class Standard, class Detail>
class Exception;

/// The failure of one message identifier; `Tag` is the empty class named after it, as in TESSEL::zex::CircRef.
template <class Tag>
class ZEXCMD_TYPE Exception<Tag, std::exception, void> : public IMsgIDException, public std::exception {
 public:
  explicit Exception(zex_cmd::MessageRecord record) : record_(std::move(record)) {}
  Exception(const Exception&) = default;
  Exception(const Exception& other, std::string errorId) : Exception(other) { errorId_ = std::move(errorId); }

  const resource_core::BaseMsgID& message() const override { return record_; }
  const std::string& error_id() const override { return errorId_; }

  const boost::exception_detail::clone_base* clone() const override { return new Exception(*this); }
  void rethrow() const override { throw Exception(*this); }

 private:
  zex_cmd::MessageRecord record_;
  std::string errorId_;
};

}  // namespace foundation::core::except
