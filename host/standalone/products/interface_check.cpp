#include "standalone/products/interface_check.hpp"

#include <algorithm>
#include <iterator>

#include "fl/i18n/strings.hpp"
#include "standalone/products/record_search.hpp"

namespace host::standalone {

namespace {

/// What libzx has functions for. The width of array sizes makes no difference to it: it has both.
constexpr std::string_view knownReleases[] = {"R2017b", "R2018a", noRelease};

bool isKnown(const Interface& builtFor) {
  return std::find(std::begin(knownReleases), std::end(knownReleases), builtFor.release) !=
         std::end(knownReleases);
}

fl::ustring described(const Interface& builtFor) {
  return fl::i18n::to_ustring("release " + builtFor.release + " with " + builtFor.dims + "-bit sizes");
}

}  // namespace

std::optional<fl::ustring> interfaceMismatch(const fl::ustring& product) {
  const FoundRecords found = findVersionRecords(product);
  if (found.sources.size() > 1) {
    return u"Its parts were built for different interfaces: " + described(found.sources[0]) + u", and " +
           described(found.sources[1]) + u". Compile all of them with the same switches.";
  }
  for (const auto* records : {&found.sources, &found.drivers}) {
    const auto unknown = std::find_if_not(records->begin(), records->end(), isKnown);
    if (unknown != records->end()) {
      return u"It was built for " + described(*unknown) + u", and this program has R2017b and R2018a.";
    }
  }
  return std::nullopt;
}

}  // namespace host::standalone
