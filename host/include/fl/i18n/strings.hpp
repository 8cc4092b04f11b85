#pragma once

#include <string>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace fl::i18n {

/// To and from the native 8-bit encoding (UTF-8 on POSIX). Nothing throws: what cannot be converted is replaced.
ZEXHOST_API std::string to_string(const ustring& text);
ZEXHOST_API ustring to_ustring(const std::string& text);

/// Converters for a named encoding; an empty name, or "UTF-8", are the only ones that the stand-alone host knows
/// on POSIX. Undecodable bytes are replaced.
class ZEXHOST_API codecvt_string_to_ustring {
 public:
  explicit codecvt_string_to_ustring(std::string encoding = {});
  ustring operator()(const std::string& text) const;

 private:
  std::string encoding_;
};

class ZEXHOST_API codecvt_ustring_to_string {
 public:
  explicit codecvt_ustring_to_string(std::string encoding = {});
  std::string operator()(const ustring& text) const;

 private:
  std::string encoding_;
};

/// Takes every leading and trailing character that stands in `characters` away.
ZEXHOST_API ustring trim(const ustring& text, const ustring& characters);

enum letter_case { to_lower, to_upper };
enum comparison { case_sensitive, case_insensitive };

/// Letter case by Unicode, whatever the locale of the process.
struct ZEXHOST_API lcctype {
  static ustring transform(const ustring& text, letter_case form);
  /// Below, at or above 0, as for std::strcmp.
  static int compare(const ustring& left, const ustring& right, comparison kind);
};

}  // namespace fl::i18n
