#pragma once

#include <string>
#include <utility>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace resource_core {
class BaseMsgID;
}

namespace fl::i18n {

/// Names a locale of the message catalogue, such as "en" or "de_CH".
class ZEXHOST_API ZwLocale {
 public:
  explicit ZwLocale(std::string name) : name_(std::move(name)) {}
  const std::string& name() const { return name_; }

  /// The locale that the host works in.
  static ZwLocale global();

 private:
  std::string name_;
};

struct ZEXHOST_API MessageCatalog {
  /// The words for a record. A locale or an entry that is missing falls back to "en", a missing "en" entry to the
  /// identifier and the arguments. The pseudo-locale "id" gives the identifier and the quoted arguments.
  static ustring get_message(const resource_core::BaseMsgID& record, const ZwLocale& locale);
};

}  // namespace fl::i18n
