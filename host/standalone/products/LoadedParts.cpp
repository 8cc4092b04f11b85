#include "standalone/products/LoadedParts.hpp"

#include <algorithm>
#include <utility>

namespace host::standalone {

void LoadedParts::add(ByteRange part) {
  if (part.size() > 0) parts_.push_back(part);
}

std::vector<ByteRange> LoadedParts::merged() && {
  std::sort(parts_.begin(), parts_.end(), [](ByteRange a, ByteRange b) { return a.begin < b.begin; });
  std::size_t count = 0;
  for (const ByteRange part : parts_) {
    if (count == 0 || parts_[count - 1].end < part.begin) {
      parts_[count++] = part;
    } else {
      parts_[count - 1].end = std::max(parts_[count - 1].end, part.end);
    }
  }
  parts_.resize(count, ByteRange{});
  return std::move(parts_);
}

}  // namespace host::standalone
