#pragma once

#include <filesystem>
#include <string>

#include "support/Documents.hpp"
#include "support/FakeTool.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"

namespace zex_test {

/// Names for the architecture of the build.
inline const std::string architecture(platform.architecture);
inline const std::string catalogue = "root/bin/" + architecture + "/zexopts/";
inline const std::string selection = "zex_C_" + architecture + ".xml";
inline const std::string selectionBackup = "zex_C_" + architecture + "_backup.xml";

/// A scratch folder with an installed tree ("root"), a preferences folder ("prefs"), a temporary folder ("tmp")
/// and the stand-in tool, under a recording host: all that a command needs.
struct InstalledTree {
  InstalledTree() : temporary("TMPDIR", scratch.folder() / "tmp"), preferences("TESSEL_PREFDIR", nullptr) {
    for (const char* each : {"prefs", "tmp", "root/bin/glnxa64/zexopts", "root/bin/maci64/zexopts",
                             "root/bin/win32/zexopts", "root/bin/win64/zexopts"})
      std::filesystem::create_directories(each);
    for (const char* source : {"c_zexapi_version.c", "cpp_zexapi_version.cpp", "fortran_zexapi_version.F"})
      scratch.write(std::string("root/extern/version/") + source, "");
    host.install = scratch.path("root");
    host.preferences = scratch.path("prefs");
  }

  Scratch scratch;
  FakeTool tool;
  ScopedVariable temporary;
  ScopedVariable preferences;
  RecordingServices host;

  /// Puts a document into the catalogue of this architecture.
  void offer(const std::string& fileName, const Document& document) const {
    scratch.write(catalogue + fileName, document.xml());
  }

  /// Lines of the stand-in tool's log, which is emptied.
  std::string toolLog() const {
    const std::string log = told(scratch.read("tool.log"));
    std::filesystem::remove(scratch.folder() / "tool.log");
    return log;
  }
};

}  // namespace zex_test
