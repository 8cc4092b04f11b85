#include "standalone/products/object_image.hpp"

namespace host::standalone {

namespace {

struct ElfLayout {
  Field segmentTable, segmentStride, segmentCount;
  Field segmentType, segmentOffset, segmentSize;
  Field sectionTable, sectionStride, sectionCount;
  Field sectionType, sectionFlags, sectionOffset, sectionSize;
};

constexpr ElfLayout narrow = {
    .segmentTable = {28, 4},
    .segmentStride = {42, 2},
    .segmentCount = {44, 2},
    .segmentType = {0, 4},
    .segmentOffset = {4, 4},
    .segmentSize = {16, 4},
    .sectionTable = {32, 4},
    .sectionStride = {46, 2},
    .sectionCount = {48, 2},
    .sectionType = {4, 4},
    .sectionFlags = {8, 4},
    .sectionOffset = {16, 4},
    .sectionSize = {20, 4},
};

constexpr ElfLayout wide = {
    .segmentTable = {32, 8},
    .segmentStride = {54, 2},
    .segmentCount = {56, 2},
    .segmentType = {0, 4},
    .segmentOffset = {8, 8},
    .segmentSize = {32, 8},
    .sectionTable = {40, 8},
    .sectionStride = {58, 2},
    .sectionCount = {60, 2},
    .sectionType = {4, 4},
    .sectionFlags = {8, 8},
    .sectionOffset = {24, 8},
    .sectionSize = {32, 8},
};

constexpr char magic[] = {0x7F, 'E', 'L', 'F', 0};
constexpr Field widthOfWords = {4, 1}, byteOrder = {5, 1};
constexpr std::uint64_t loadedSegment = 1, emptySection = 8, loadedSection = 2;

/// One of the two tables of the file.
struct Table {
  std::uint64_t start, stride, count;

  Entry entry(const ObjectImage& image, std::uint64_t index, std::endian order) const {
    return image.entry(start + index * stride, order);
  }
};

void addSegments(const ObjectImage& image, const ElfLayout& layout, const Table& table, std::endian order,
                 LoadedParts& loaded) {
  for (std::uint64_t i = 0; i < table.count && loaded.mayTakeEntry(); ++i) {
    const Entry segment = table.entry(image, i, order);
    if (segment[layout.segmentType] == loadedSegment)
      loaded.add(image.range(segment[layout.segmentOffset], segment[layout.segmentSize]));
  }
}

void addSections(const ObjectImage& image, const ElfLayout& layout, const Table& table, std::endian order,
                 LoadedParts& loaded) {
  for (std::uint64_t i = 0; i < table.count && loaded.mayTakeEntry(); ++i) {
    const Entry section = table.entry(image, i, order);
    if ((section[layout.sectionFlags] & loadedSection) != 0 && section[layout.sectionType] != emptySection)
      loaded.add(image.range(section[layout.sectionOffset], section[layout.sectionSize]));
  }
}

struct Header {
  const ElfLayout& layout;
  std::endian order;
  Table segments, sections;
};

Header headerOf(const ObjectImage& image) {
  const Entry identification = image.entry(0, std::endian::little);
  const ElfLayout& layout = identification[widthOfWords] == 1 ? narrow : wide;
  const std::endian order = identification[byteOrder] == 2 ? std::endian::big : std::endian::little;
  const Entry header = image.entry(0, order);
  return {layout,
          order,
          {header[layout.segmentTable], header[layout.segmentStride], header[layout.segmentCount]},
          {header[layout.sectionTable], header[layout.sectionStride], header[layout.sectionCount]}};
}

}  // namespace

void addLoadedOfElf(const ObjectImage& image, LoadedParts& loaded) {
  if (!image.startsWith(magic)) return;
  const Header header = headerOf(image);
  addSegments(image, header.layout, header.segments, header.order, loaded);
  // An object that is not linked yet has sections only.
  if (loaded.empty()) addSections(image, header.layout, header.sections, header.order, loaded);
}

bool isElfCutOff(const ObjectImage& image) {
  if (!image.startsWith(magic)) return false;
  const Header header = headerOf(image);
  for (std::uint64_t i = 0; i < header.segments.count; ++i) {
    const Entry segment = header.segments.entry(image, i, header.order);
    const std::uint64_t offset = segment[header.layout.segmentOffset], size = segment[header.layout.segmentSize];
    const bool isWhole = offset <= image.size() && size <= image.size() - offset;
    if (segment[header.layout.segmentType] == loadedSegment && !isWhole) return true;
  }
  return false;
}

}  // namespace host::standalone
