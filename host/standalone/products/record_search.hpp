#pragma once

#include <string>
#include <vector>

#include "fl/ustring.hpp"
#include "standalone/products/version_records.hpp"

namespace host::standalone {

/// What the records of a file say, each thing once, in the order of the file. Past the first few different ones,
/// more of them change nothing and are left out.
struct FoundRecords {
  std::vector<Interface> sources;
  std::vector<Interface> drivers;
  std::vector<std::string> older;  ///< texts of records of an older form
};

/// Looks into those parts of an object file that are loaded. A file of no known format has no records.
FoundRecords findVersionRecords(const fl::ustring& path);

}  // namespace host::standalone
