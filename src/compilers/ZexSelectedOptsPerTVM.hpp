#pragma once

#include <map>
#include <string>

#include "cmd/messages/PerMachineRecord.hpp"
#include "fl/ustring.hpp"

namespace zex_cmd {

/// The implicit choices of one virtual machine: from a language to the path of the catalogue document that it
/// settled on. An entry serves every later command on the machine; nothing clears it.
struct ZexSelectedOptsPerTVM {
  std::map<std::string, fl::ustring> implicitSelections;

  static ZexSelectedOptsPerTVM& current() { return perMachineRecord<ZexSelectedOptsPerTVM>(); }
};

}  // namespace zex_cmd
