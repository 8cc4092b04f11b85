#include "build/option_details.hpp"

#include "options/ZexOpt.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

void printOptionDetails(const ZexOpt& option) {
  static const ustring rule(67, u'-');
  services::io::uout out;
  out << u"Options file details\n" << rule << u"\n";
  out << u"\tCompiler location: " << option.attribute(u"LOCATION") << u"\n";
  out << u"\tOptions file: " << option.attribute(u"ZEXOPT") << u"\n";
  for (const ustring& key : option.attributePaths(u"config.vars")) {
    out << u"\t" << shortName(key) << u" : " << option.value(key).value_or(ustring()) << u"\n";
  }
  out << rule << u"\n";
}

}  // namespace zex_cmd
