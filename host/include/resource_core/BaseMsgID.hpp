#pragma once

#include <cstddef>
#include <string>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace resource_core {

/// A message as the catalogue sees it: an identifier and the values of its placeholders, in order.
class ZEXHOST_API BaseMsgID {
 public:
  virtual ~BaseMsgID() = default;

  virtual const std::string& component() const = 0;  ///< such as "TESSEL:zex"
  virtual const std::string& tag() const = 0;        ///< such as "UnknownSwitch"
  virtual std::size_t argumentCount() const = 0;
  virtual fl::ustring argument(std::size_t index) const = 0;

  /// What the arguments have no room for, such as the reason of a failure, in words; mostly empty. The catalogue
  /// puts it into the text; the pseudo-locale, which is for scripts, leaves it out.
  virtual fl::ustring note() const { return {}; }

  /// Component, a colon and the tag.
  std::string identifier() const { return component() + ":" + tag(); }

 protected:
  BaseMsgID() = default;
  BaseMsgID(const BaseMsgID&) = default;
  BaseMsgID& operator=(const BaseMsgID&) = default;
};

}  // namespace resource_core
