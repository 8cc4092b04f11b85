#include "standalone/products/record_search.hpp"

#include <algorithm>
#include <utility>

#include "standalone/products/object_image.hpp"

namespace host::standalone {

namespace {

template <class Item>
void addOnce(std::vector<Item>& items, const Item& item) {
  constexpr std::size_t most = 16;
  if (items.size() < most && std::find(items.begin(), items.end(), item) == items.end()) items.push_back(item);
}

void noteRecord(std::string_view bytes, FoundRecords& found) {
  const auto record = versionRecordAt(bytes);
  if (!record) return;
  if (record->isOlder) return addOnce(found.older, record->text);
  addOnce(record->writer == VersionRecord::Writer::Source ? found.sources : found.drivers, record->builtFor);
}

/// How much of `bytes` is done with; where more bytes follow, a record that they may complete is not.
std::size_t searchWindow(std::string_view bytes, bool moreFollow, FoundRecords& found) {
  std::size_t from = 0;
  for (;;) {
    const std::size_t hit = bytes.find(recordMarker, from);
    if (hit == std::string_view::npos) break;
    if (moreFollow && bytes.size() - hit < longestRecord) return hit;
    noteRecord(bytes.substr(hit), found);
    from = hit + recordMarker.size();
  }
  return moreFollow ? bytes.size() - (recordMarker.size() - 1) : bytes.size();
}

void searchRange(FileWindow& file, ByteRange range, FoundRecords& found) {
  while (range.size() > 0) {
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(range.size(), FileWindow::longest));
    const std::string_view bytes = file.at(range.begin, wanted);
    // A file that became shorter meanwhile ends here.
    const bool moreFollow = bytes.size() == wanted && wanted < range.size();
    range.begin += searchWindow(bytes, moreFollow, found);
    if (!moreFollow) return;
  }
}

std::vector<ByteRange> loadedRanges(FileWindow& file) {
  const ObjectImage image(file, {0, file.size()});
  LoadedParts loaded;
  addLoadedOfElf(image, loaded);
  addLoadedOfPe(image, loaded);
  addLoadedOfMachO(image, loaded);
  return std::move(loaded).merged();
}

}  // namespace

FoundRecords findVersionRecords(const fl::ustring& path) {
  FileWindow file(path);
  FoundRecords found;
  for (const ByteRange range : loadedRanges(file)) searchRange(file, range, found);
  return found;
}

}  // namespace host::standalone
