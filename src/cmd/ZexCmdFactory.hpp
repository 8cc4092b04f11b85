#pragma once

#include "cmd/ZexCmdI.hpp"

namespace zex_cmd {

class ZEXCMD_API ZexCmdFactory {
 public:
  ZexCmdFactory& operator=(const ZexCmdFactory&) = default;
  ZexCmdFactory& operator=(ZexCmdFactory&&) = default;

  /// A new command object, owned by the caller, who deletes it; null where there is no memory.
  static ZexCmdI* createZex();
};

}  // namespace zex_cmd

/// Version of the library, the day it was built, and the folder below the root of the installed tree that it lies
/// in.
extern "C" {
ZEXCMD_API extern const char libzexcmd_version[];
ZEXCMD_API extern const char libzexcmd_build_date[];
ZEXCMD_API extern const char libzexcmd_relative_path[];
}
