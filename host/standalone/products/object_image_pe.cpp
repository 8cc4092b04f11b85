#include <array>

#include "standalone/products/object_image.hpp"

namespace host::standalone {

namespace {

constexpr Field headerOffset = {60, 4};
constexpr std::string_view signature("PE\0\0", 4);

constexpr std::uint64_t headerSize = 20;
constexpr Field machine = {0, 2}, sectionCount = {2, 2}, optionalSize = {16, 2};

constexpr std::uint64_t sectionStride = 40;
constexpr Field sizeInMemory = {8, 4}, sizeInFile = {16, 4}, sectionOffset = {20, 4}, sectionFlags = {36, 4};

constexpr std::uint64_t codeOrData = 0x60, commentOrRemovedOrDiscarded = 0x2000A00;

/// An object that is not linked yet has no signature: it begins with its processor.
constexpr std::array<std::uint64_t, 3> processors = {0x14C, 0x8664, 0xAA64};

/// The sections of a program or library; the debug sections of some tools are marked as discarded after loading.
void addSections(const ObjectImage& image, std::uint64_t headerAt, LoadedParts& loaded) {
  const Entry header = image.entry(headerAt, std::endian::little);
  const std::uint64_t table = headerAt + headerSize + header[optionalSize];
  for (std::uint64_t i = 0; i < header[sectionCount] && loaded.mayTakeEntry(); ++i) {
    const Entry section = image.entry(table + i * sectionStride, std::endian::little);
    const std::uint64_t flags = section[sectionFlags];
    if ((flags & codeOrData) == 0 || (flags & commentOrRemovedOrDiscarded) != 0) continue;
    // Behind the size in memory stands padding of the file; an object that is not linked yet has no such size.
    const std::uint64_t inMemory = section[sizeInMemory], inFile = section[sizeInFile];
    loaded.add(image.range(section[sectionOffset], inMemory == 0 ? inFile : std::min(inMemory, inFile)));
  }
}

bool isUnlinkedObject(const ObjectImage& image) {
  const Entry header = image.entry(0, std::endian::little);
  return header[optionalSize] == 0 &&
         std::find(processors.begin(), processors.end(), header[machine]) != processors.end();
}

}  // namespace

void addLoadedOfPe(const ObjectImage& image, LoadedParts& loaded) {
  if (!image.startsWith("MZ")) {
    if (isUnlinkedObject(image)) addSections(image, 0, loaded);
    return;
  }
  const std::uint64_t at = image.entry(0, std::endian::little)[headerOffset];
  if (image.part(at, signature.size()).startsWith(signature)) addSections(image, at + signature.size(), loaded);
}

}  // namespace host::standalone
