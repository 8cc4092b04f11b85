#include "build/command_markers.hpp"

#include "options/ZexOpt.hpp"
#include "platform/letter_case.hpp"

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
  const ustring manufacturer = lowered(option.attribute(u"MANUFACTURER"));
  const CommandMarkers* row = rows;
  while (!row->manufacturer.empty() && row->manufacturer != manufacturer) ++row;
  return *row;
}

}  // namespace zex_cmd
