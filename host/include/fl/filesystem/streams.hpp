#pragma once

#include <fstream>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace fl::filesystem {

/// The form of a path that the system's own calls take.
ZEXHOST_API std::string native_access_form(const ustring& path);

/// A file for reading. Nothing else opens, though the system would let it: reading a pipe or a terminal could wait
/// for ever.
class ZEXHOST_API basic_ifstream : public std::ifstream {
 public:
  explicit basic_ifstream(const ustring& path, std::ios_base::openmode mode = std::ios_base::in);
};

/// A file for writing, truncated.
class ZEXHOST_API basic_ofstream : public std::ofstream {
 public:
  explicit basic_ofstream(const ustring& path, std::ios_base::openmode mode = std::ios_base::out);
};

}  // namespace fl::filesystem
