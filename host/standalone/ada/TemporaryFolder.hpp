#pragma once

#include "fl/ustring.hpp"

namespace host::standalone {

/// A folder of a new name in the system's temporary folder, removed with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const fl::ustring& path() const { return path_; }

 private:
  fl::ustring path_;
};

}  // namespace host::standalone
