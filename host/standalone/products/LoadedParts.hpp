#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host::standalone {

struct ByteRange {
  std::uint64_t begin;
  std::uint64_t end;

  std::uint64_t size() const { return end - begin; }
};

/// Gathers the parts of a file that hold what is loaded of it.
class LoadedParts {
 public:
  /// To be asked ahead of every entry of a table. No after more entries than any real file has: the tables of a
  /// hostile one may overlap, and would cost time and memory without bounds.
  bool mayTakeEntry() { return entries_++ < mostEntries; }

  void add(ByteRange part);
  bool empty() const { return parts_.empty(); }

  /// In order and apart from each other, whatever the tables say.
  std::vector<ByteRange> merged() &&;

 private:
  static constexpr std::size_t mostEntries = std::size_t{1} << 18;

  std::size_t entries_ = 0;
  std::vector<ByteRange> parts_;
};

}  // namespace host::standalone
