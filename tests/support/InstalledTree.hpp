#pragma once

#include <string>

#include "support/Documents.hpp"
#include "support/FakeTool.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"

namespace zex_test {

/// A scratch folder with an installed tree ("root"), a preferences folder ("prefs"), a temporary folder ("tmp")
/// and the stand-in tool, under a recording host: all that a command needs.
class InstalledTree {
 public:
  InstalledTree();

  Scratch scratch;
  FakeTool tool;
  ScopedVariable temporary;
  ScopedVariable preferences;
  RecordingServices host;

  /// Puts a document into the catalogue of this architecture.
  void offer(const std::string& fileName, const Document& document) const;

  /// Lines of the stand-in tool's log, which is emptied.
  std::string toolLog() const;
};

/// Names for the architecture of the build.
inline const std::string architecture(platform.architecture);
inline const std::string catalogue = "root/bin/" + architecture + "/zexopts/";
inline const std::string selection = "zex_C_" + architecture + ".xml";
inline const std::string selectionBackup = "zex_C_" + architecture + "_backup.xml";

}  // namespace zex_test
