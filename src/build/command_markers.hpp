#pragma once

#include <string_view>

#include "fl/ustring.hpp"

namespace zex_cmd {

class ZexOpt;

/// What a maker's tools look like on a command line. Documents say which maker by MANUFACTURER.
struct CommandMarkers {
  std::u16string_view manufacturer;  ///< lower case; empty stands for any other maker
  std::u16string_view compile;       ///< anywhere in a compile command, ahead of its object
  std::u16string_view link;          ///< anywhere in a link command, ahead of its product
  std::u16string_view linkStub;      ///< a compile of this file counts as a link step; empty where there is none
  std::u16string_view defineSwitch;  ///< with a leading blank
  bool slashesInResponseFile;        ///< backslashes become "/" in a response file
};

/// The row for a document's MANUFACTURER.
const CommandMarkers& markersFor(const ZexOpt& option);

}  // namespace zex_cmd
