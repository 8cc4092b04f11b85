#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "standalone/products/FileWindow.hpp"
#include "standalone/products/LoadedParts.hpp"

namespace host::standalone {

/// Place of a number in an entry of a table, and its bytes.
struct Field {
  std::size_t at;
  std::size_t width;
};

/// One entry of a table of an object file. What a broken file lacks of it reads as zero.
class Entry {
 public:
  static constexpr std::size_t longest = 80;

  Entry(std::string_view bytes, std::endian order) : order_(order) { bytes.copy(bytes_.data(), longest); }

  std::uint64_t operator[](Field field) const {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < field.width; ++i) {
      const std::size_t next = order_ == std::endian::big ? i : field.width - 1 - i;
      number = number << 8 | static_cast<unsigned char>(bytes_[field.at + next]);
    }
    return number;
  }

 private:
  std::array<char, longest> bytes_{};
  std::endian order_;
};

/// An object in a file: the whole file, or the part of it for one processor.
class ObjectImage {
 public:
  ObjectImage(FileWindow& file, ByteRange extent) : file_(&file), extent_(extent) {}

  std::uint64_t size() const { return extent_.size(); }

  bool startsWith(std::string_view magic) const { return file_->at(extent_.begin, magic.size()) == magic; }

  Entry entry(std::uint64_t offset, std::endian order) const {
    const std::uint64_t length = offset < size() ? std::min<std::uint64_t>(Entry::longest, size() - offset) : 0;
    return {length == 0 ? std::string_view() : file_->at(extent_.begin + offset, length), order};
  }

  /// The part of the file that a table speaks of, cut off where the object ends.
  ByteRange range(std::uint64_t offset, std::uint64_t length) const {
    const std::uint64_t begin = std::min(offset, size());
    return {extent_.begin + begin, extent_.begin + begin + std::min(length, size() - begin)};
  }

  ObjectImage part(std::uint64_t offset, std::uint64_t length) const { return {*file_, range(offset, length)}; }

 private:
  FileWindow* file_;
  ByteRange extent_;
};

/// Add what is loaded of an object, or nothing where it is of another format. Debug information, comments and the
/// like, which stay on the disk, are left out.
void addLoadedOfElf(const ObjectImage& image, LoadedParts& loaded);
void addLoadedOfPe(const ObjectImage& image, LoadedParts& loaded);
void addLoadedOfMachO(const ObjectImage& image, LoadedParts& loaded);

/// Whether the file ends ahead of what its tables say is loaded of it. The system's loader does not look, and the
/// process dies of it.
bool isElfCutOff(const ObjectImage& image);

}  // namespace host::standalone
