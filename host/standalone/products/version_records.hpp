#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host::standalone {

/// What every record of a built file begins with; its text ends with the first ';'.
inline constexpr std::string_view recordMarker = "@(#)zex-record ";
inline constexpr std::size_t longestRecord = 512;

/// In place of a release, in a part that was compiled with none.
inline constexpr std::string_view noRelease = "none";

/// The interface that a part of a product was compiled for.
struct Interface {
  std::string release;  ///< letters, digits, '_' and '.' only, so that it can stand in a command
  std::string dims;     ///< bits of array sizes, "32" or "64"

  bool operator==(const Interface&) const = default;
};

struct VersionRecord {
  enum class Writer { Source, Driver };

  std::string text;  ///< as it stands in the file, without the marker
  bool isOlder;      ///< of a form whose words nobody reads any more; what follows is empty then
  Writer writer = Writer::Source;
  Interface builtFor = {};
};

/// The record at the start of `bytes`, marker included. Nothing where it is malformed, of a newer form or of a
/// writer of no concern here.
std::optional<VersionRecord> versionRecordAt(std::string_view bytes);

}  // namespace host::standalone
