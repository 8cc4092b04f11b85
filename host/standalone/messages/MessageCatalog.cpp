#include "fl/i18n/MessageCatalog.hpp"

#include <array>
#include <cstdio>
#include <map>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "host/Services.hpp"
#include "resource_core/BaseMsgID.hpp"
#include "standalone/messages/CatalogueFile.hpp"

namespace fl::i18n {

using host::standalone::CatalogueFile;

namespace {

const std::string pseudoLocale = "id";
const std::string lastResort = "en";

std::vector<ustring> argumentsOf(const resource_core::BaseMsgID& record) {
  std::vector<ustring> arguments;
  for (std::size_t index = 0; index < record.argumentCount(); ++index) arguments.push_back(record.argument(index));
  return arguments;
}

ustring quoted(const ustring& argument) {
  ustring result = u"\"";
  for (const char16_t unit : argument) {
    if (unit == u'"' || unit == u'\\') {
      result += {u'\\', unit};
    } else if (unit == u'\n') {
      result += u"\\n";
    } else if (unit == u'\t') {
      result += u"\\t";
    } else if (unit < 0x20 || unit == 0x7F) {
      std::array<char, 5> escape{};
      std::snprintf(escape.data(), escape.size(), "\\x%02X", static_cast<unsigned>(unit) & 0xFFU);
      result += to_ustring(escape.data());
    } else {
      result += unit;
    }
  }
  return result + u"\"";
}

ustring inPseudoLocale(const resource_core::BaseMsgID& record) {
  ustring result = to_ustring(record.identifier());
  if (record.argumentCount() == 0) return result;
  ustring separator = u"(";
  for (const ustring& argument : argumentsOf(record)) {
    result += separator + quoted(argument);
    separator = u", ";
  }
  return result + u")";
}

/// The locale, its language without the country, and English. What would lead out of the folder of catalogues is
/// no locale.
std::vector<std::string> namesToTry(const std::string& locale) {
  std::vector<std::string> names;
  if (!locale.empty() && locale.find_first_of("/\\.") == std::string::npos) {
    names.push_back(locale);
    if (const auto country = locale.find('_'); country != std::string::npos)
      names.push_back(locale.substr(0, country));
  }
  names.push_back(lastResort);
  return names;
}

/// Read once for each installation and locale, at the first message; the entries stay where they are.
const CatalogueFile& catalogueOf(const ustring& installFolder, const std::string& locale) {
  static std::mutex guard;
  static std::map<std::pair<ustring, std::string>, CatalogueFile> read;
  const std::lock_guard lock(guard);
  const auto known = read.find({installFolder, locale});
  if (known != read.end()) return known->second;

  ustring path = installFolder;
  for (const ustring& part :
       {ustring(u"resources"), ustring(u"zex"), to_ustring(locale), ustring(u"messages.txt")})
    path = filesystem::detail::concatenate_pathname(path, part);
  return read.emplace(std::pair{installFolder, locale}, CatalogueFile(path)).first->second;
}

}  // namespace

ZwLocale ZwLocale::global() {
  return ZwLocale(host::services().locale());
}

ustring MessageCatalog::get_message(const resource_core::BaseMsgID& record, const ZwLocale& locale) {
  if (locale.name() == pseudoLocale) return inPseudoLocale(record);

  const ustring installFolder = host::services().installFolder();
  for (const std::string& name : namesToTry(locale.name())) {
    if (const ustring* text = catalogueOf(installFolder, name).find(record.identifier()))
      return host::standalone::filledIn(*text, argumentsOf(record), record.note());
  }
  return inPseudoLocale(record);
}

}  // namespace fl::i18n
