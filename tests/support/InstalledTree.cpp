#include "support/InstalledTree.hpp"

#include <filesystem>

namespace zex_test {

namespace fs = std::filesystem;

InstalledTree::InstalledTree()
    : temporary("TMPDIR", scratch.folder() / "tmp"), preferences("TESSEL_PREFDIR", nullptr) {
  for (const char* each : {"glnxa64", "maci64", "win32", "win64"}) {
    fs::create_directories(scratch.folder() / "root" / "bin" / each / "zexopts");
  }
  fs::create_directories(scratch.folder() / "prefs");
  fs::create_directories(scratch.folder() / "tmp");
  for (const char* source : {"c_zexapi_version.c", "cpp_zexapi_version.cpp", "fortran_zexapi_version.F"}) {
    scratch.write(std::string("root/extern/version/") + source, "");
  }
  host.install = scratch.path("root");
  host.preferences = scratch.path("prefs");
}

void InstalledTree::offer(const std::string& fileName, const Document& document) const {
  scratch.write(catalogue + fileName, document.xml());
}

std::string InstalledTree::toolLog() const {
  const std::string log = told(scratch.read("tool.log"));
  fs::remove(scratch.folder() / "tool.log");
  return log;
}

}  // namespace zex_test
