#include "support/InstalledTree.hpp"

#include <filesystem>

namespace zex_test {

namespace fs = std::filesystem;

InstalledTree::InstalledTree()
    : temporary("TMPDIR", (scratch.folder() / "tmp").c_str()), preferences("TESSEL_PREFDIR", nullptr) {
  for (const char* architecture : {"glnxa64", "maci64", "win32", "win64"}) {
    fs::create_directories(scratch.folder() / "root" / "bin" / architecture / "zexopts");
  }
  fs::create_directories(scratch.folder() / "prefs");
  fs::create_directories(scratch.folder() / "tmp");
  for (const char* source : {"c_zexapi_version.c", "cpp_zexapi_version.cpp", "fortran_zexapi_version.F"}) {
    scratch.write(std::string("root/extern/version/") + source, "");
  }
  scratch.write("tool.sh", fakeToolScript());
  host.install = scratch.path("root");
  host.preferences = scratch.path("prefs");
}

void InstalledTree::offer(const std::string& fileName, const Document& document) const {
  scratch.write("root/bin/glnxa64/zexopts/" + fileName, document.xml());
}

std::string InstalledTree::toolLog() const {
  const std::string log = scratch.read("tool.log");
  fs::remove(scratch.folder() / "tool.log");
  return log;
}

}  // namespace zex_test
