#include <cstdlib>

#include "end_to_end/EndToEnd.hpp"
#include "support/texts.hpp"

namespace end_to_end {

int statusOf(const std::string& line) {
  const std::filesystem::path wide = zex_test::utf16("( " + line + " ) > ..\\out 2> ..\\err");
  return _wsystem(wide.c_str());
}

/// The programs take the short form of its name, which has no blank.
std::filesystem::path temporaryFolder(const std::filesystem::path& scratch) {
  return scratch / "temporary files";
}

}  // namespace end_to_end
