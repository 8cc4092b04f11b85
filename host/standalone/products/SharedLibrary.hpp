#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "fl/ustring.hpp"

namespace host::standalone {

/// A library that is loaded into this process while the object lives, with its symbols its own.
class SharedLibrary {
 public:
  /// `path` is absolute. Raises std::runtime_error with the system's words.
  explicit SharedLibrary(const fl::ustring& path);
  ~SharedLibrary();
  SharedLibrary(const SharedLibrary&) = delete;
  SharedLibrary& operator=(const SharedLibrary&) = delete;

  /// Null where there is none of this name.
  void* symbol(const char* name) const;

  /// Whether the code of a path is in this process, also after its last object went away: some libraries stay.
  static bool isResident(const fl::ustring& path);

 private:
  void* handle_;
};

/// What tells one file from another that took its path.
struct FileIdentity {
  std::uint64_t device;
  std::uint64_t number;
  std::int64_t changedSeconds;
  std::int64_t changedNanoseconds;

  bool operator==(const FileIdentity&) const = default;
};

/// Nothing where there is no plain file.
std::optional<FileIdentity> identityOf(const fl::ustring& path);

}  // namespace host::standalone
