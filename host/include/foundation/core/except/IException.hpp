#pragma once

#include <boost/exception/exception.hpp>
#include <string>

#include "host/visibility.hpp"
#include "resource_core/BaseMsgID.hpp"

namespace foundation::core::except {

class ZEXHOST_API IException : public boost::exception_detail::clone_base, public boost::exception {
 protected:
  IException() = default;
  IException(const IException&) = default;
  IException& operator=(const IException&) = default;
  ~IException() noexcept override = default;
};

class ZEXHOST_API IUserException : public IException {};

/// A failure that carries a message of the catalogue. Catch this one to handle any failure of the driver alike.
class ZEXHOST_API IMsgIDException : public IUserException {
 public:
  /// The message: identifier, arguments, and by way of MessageCatalog the words.
  virtual const resource_core::BaseMsgID& message() const = 0;

  /// The identifier as it was when the exception was thrown, such as "TESSEL:zex:UnknownSwitch".
  virtual const std::string& error_id() const = 0;

  static std::string get_error_id(const resource_core::BaseMsgID& record) { return record.identifier(); }
};

}  // namespace foundation::core::except
