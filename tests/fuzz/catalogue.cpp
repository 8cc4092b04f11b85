// Message catalogues, and their texts filled in.

#include "fl/i18n/strings.hpp"
#include "fuzz/target.hpp"
#include "standalone/messages/CatalogueFile.hpp"

namespace zex_fuzz {

void tryInput(std::string_view input) {
  static const bool entered = (enterFolder(), true);
  if (!entered) return;
  writeFile("messages.txt", input);
  const host::standalone::CatalogueFile catalogue(u"messages.txt");
  const std::vector<fl::ustring> arguments = {u"{1}", u"\\n"};
  for (const char* tag : {"InvalidXML", "SrcNotFound", "LibNotFound"}) {
    const fl::ustring* const text = catalogue.find(std::string("TESSEL:zex:") + tag);
    if (text == nullptr) continue;
    const fl::ustring filled = host::standalone::filledIn(*text, arguments);
    demand(filled.size() <= text->size() + 2 * arguments.size() * text->size(), "arguments are not read again");
  }
}

}  // namespace zex_fuzz
