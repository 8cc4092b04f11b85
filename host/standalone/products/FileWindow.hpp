#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string_view>

#include "fl/ustring.hpp"

namespace host::standalone {

/// A file of any size, read through one buffer. What is no plain file, or cannot be read, has the size 0.
class FileWindow {
 public:
  static constexpr std::size_t longest = std::size_t{1} << 20;  ///< bytes that one look gives at most

  explicit FileWindow(const fl::ustring& path);

  std::uint64_t size() const { return size_; }

  /// The bytes from `offset` on, fewer than `length` only at the end of the file; valid until the next call.
  std::string_view at(std::uint64_t offset, std::size_t length);

 private:
  /// Read at once where less is asked for: entries of tables mostly stand side by side.
  static constexpr std::size_t least = std::size_t{1} << 14;

  void load(std::uint64_t offset, std::size_t length);

  std::ifstream stream_;
  std::uint64_t size_ = 0;
  std::unique_ptr<char[]> buffer_;
  std::uint64_t start_ = 0;
  std::size_t filled_ = 0;
};

}  // namespace host::standalone
