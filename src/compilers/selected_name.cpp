#include "compilers/selected_name.hpp"

#include "fl/i18n/strings.hpp"

namespace zex_cmd {

fl::ustring selectedName(const std::string& client, const fl::ustring& upperLanguage,
                         const std::string& architecture) {
  const fl::ustring prefix = client.empty() ? fl::ustring(u"zex") : fl::i18n::to_ustring(client);
  return prefix + u"_" + upperLanguage + u"_" + fl::i18n::to_ustring(architecture) + u".xml";
}

}  // namespace zex_cmd
