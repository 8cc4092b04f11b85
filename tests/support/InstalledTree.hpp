#pragma once

#include <string>

#include "support/Documents.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace zex_test {

/// A scratch folder with an installed tree ("root"), a preferences folder ("prefs"), a temporary folder ("tmp")
/// and the stand-in tool, under a recording host: all that a command needs.
class InstalledTree {
 public:
  InstalledTree();

  Scratch scratch;
  ScopedVariable temporary;
  ScopedVariable preferences;
  RecordingServices host;

  /// Puts a document into the catalogue for "glnxa64".
  void offer(const std::string& fileName, const Document& document) const;

  /// Lines of the stand-in tool's log, which is emptied.
  std::string toolLog() const;
};

}  // namespace zex_test
