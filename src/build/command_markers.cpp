#include "build/command_markers.hpp"

#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"

namespace zex_cmd {

namespace {

constexpr CommandMarkers rows[] = {
    // manufacturer  compile  link      stub            define   slashes
    {u"gnu", u"-c", u"-o ", u"", u" -D", true},
    {u"lcc", u"/Fo", u"-o ", u"lccstub.c", u" /D", false},
    {u"", u"/Fo", u"/out:", u"", u" /D", false},
};

}  // namespace

const CommandMarkers& markersFor(const ZexOpt& option) {
  const ustring manufacturer = fl::i18n::lcctype::transform(option.attribute(u"MANUFACTURER"), fl::i18n::to_lower);
  const CommandMarkers* row = rows;
  while (!row->manufacturer.empty() && row->manufacturer != manufacturer) ++row;
  return *row;
}

}  // namespace zex_cmd
