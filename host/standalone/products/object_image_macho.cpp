#include <string>

#include "standalone/products/object_image.hpp"

namespace host::standalone {

namespace {

struct MachOLayout {
  std::string_view magic;  ///< in big-endian order
  std::uint64_t headerSize;
  std::uint64_t segmentCommand, segmentSize;
  Field sectionCount;
  std::uint64_t sectionStride;
  Field sectionSize, sectionOffset, sectionFlags;
};

constexpr MachOLayout layouts[] = {
    {"\xFE\xED\xFA\xCE", 28, 0x01, 56, {48, 4}, 68, {36, 4}, {40, 4}, {56, 4}},
    {"\xFE\xED\xFA\xCF", 32, 0x19, 72, {64, 4}, 80, {40, 8}, {48, 4}, {64, 4}},
};

constexpr Field commandCount = {16, 4}, commandKind = {0, 4}, commandSize = {4, 4};
constexpr std::uint64_t leastCommandSize = 8;

constexpr std::uint64_t kindOfSection = 0xFF, debugSection = 0x2000000;

struct FatLayout {
  std::string_view magic;
  std::uint64_t stride;
  Field offset, size;
};

constexpr FatLayout fatLayouts[] = {
    {"\xCA\xFE\xBA\xBE", 20, {8, 4}, {12, 4}},
    {"\xCA\xFE\xBA\xBF", 32, {8, 8}, {16, 8}},
};

constexpr Field sliceCount = {4, 4};
constexpr std::uint64_t fatHeaderSize = 8;
/// Compiled classes of Java begin with the same bytes and have their version, 45 or above, in place of the count.
constexpr std::uint64_t mostSlices = 30;

/// Sections of zeros take no room in the file.
bool isInFile(std::uint64_t flags) {
  constexpr std::uint64_t zeros = 0x01, hugeZeros = 0x0C, zerosOfThread = 0x12;
  const std::uint64_t kind = flags & kindOfSection;
  return kind != zeros && kind != hugeZeros && kind != zerosOfThread;
}

/// By its sections, for the last segment holds the symbols, which are no data.
void addSegment(const ObjectImage& segment, const ObjectImage& image, const MachOLayout& layout, std::endian order,
                LoadedParts& loaded) {
  const std::uint64_t count = segment.entry(0, order)[layout.sectionCount];
  for (std::uint64_t i = 0; i < count && loaded.mayTakeEntry(); ++i) {
    const Entry section = segment.entry(layout.segmentSize + i * layout.sectionStride, order);
    const std::uint64_t flags = section[layout.sectionFlags];
    if (isInFile(flags) && (flags & debugSection) == 0)
      loaded.add(image.range(section[layout.sectionOffset], section[layout.sectionSize]));
  }
}

void addCommands(const ObjectImage& image, const MachOLayout& layout, std::endian order, LoadedParts& loaded) {
  const std::uint64_t count = image.entry(0, order)[commandCount];
  std::uint64_t at = layout.headerSize;
  for (std::uint64_t i = 0; i < count && loaded.mayTakeEntry(); ++i) {
    const Entry command = image.entry(at, order);
    const std::uint64_t size = command[commandSize];
    if (size < leastCommandSize) return;
    if (command[commandKind] == layout.segmentCommand)
      addSegment(image.part(at, size), image, layout, order, loaded);
    at += size;
  }
}

void addThin(const ObjectImage& image, LoadedParts& loaded) {
  for (const MachOLayout& layout : layouts) {
    const std::string reversed(layout.magic.rbegin(), layout.magic.rend());
    if (image.startsWith(layout.magic)) addCommands(image, layout, std::endian::big, loaded);
    if (image.startsWith(reversed)) addCommands(image, layout, std::endian::little, loaded);
  }
}

}  // namespace

void addLoadedOfMachO(const ObjectImage& image, LoadedParts& loaded) {
  addThin(image, loaded);
  for (const FatLayout& layout : fatLayouts) {
    if (!image.startsWith(layout.magic)) continue;
    const std::uint64_t count = image.entry(0, std::endian::big)[sliceCount];
    for (std::uint64_t i = 0; count <= mostSlices && i < count; ++i) {
      const Entry slice = image.entry(fatHeaderSize + i * layout.stride, std::endian::big);
      addThin(image.part(slice[layout.offset], slice[layout.size]), loaded);
    }
  }
}

}  // namespace host::standalone
