#pragma once

#include <vector>

#include "fl/ustring.hpp"

namespace host::standalone {

/// What one command line asks of the Ada builder. All paths are absolute.
struct AdaCommand {
  /// Fails with a HostFunctionFailure where an argument is none that the builder knows.
  explicit AdaCommand(const std::vector<fl::ustring>& arguments);

  fl::ustring source;
  fl::ustring product;
  std::vector<fl::ustring> includeFolders;
  bool debug = false;
  bool optimize = false;  ///< asked for, or neither this nor debug
  bool dryRun = false;
  bool silent = false;
  bool verbose = false;
};

}  // namespace host::standalone
