#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zex_test {

/// What the driver does differently on the platform that the tests run on.
struct Platform {
  std::string_view architecture;
  std::string_view drive;                ///< of the scratch folder, ahead of the first "/" of a path
  std::string_view listSeparator;        ///< between the folders of a search path
  std::string_view joinedToNone;         ///< what is put behind a value of the environment that was not set before
  std::u16string_view quotedInCommands;  ///< what the shell acts upon also within a path
  bool refusesShellSigns;  ///< a path with a double quote or "$", which no command can carry, is invalid
};
extern const Platform platform;

/// Paths as the tests write them: always with "/". A message that is shown as its identifier and arguments writes
/// a backslash twice, and others that are none of a path.
std::string told(std::string text);
std::string toldMessage(std::string text);

/// From the native 8-bit encoding to UTF-8; bytes that are no text stay where that is UTF-8 itself.
std::string fromNative(std::string_view bytes);

std::optional<std::string> variable(const std::string& name);

/// Null unsets it.
void setVariable(const std::string& name, const char* value);

}  // namespace zex_test
