#pragma once

#include <string>

namespace tool {

/// Keeps standard output for this program alone. From its making to the end of the process, whatever code here
/// prints there, in whichever language, goes to standard error: some of them write what they hold back only at the
/// very end.
class KeptOutput {
 public:
  KeptOutput();
  ~KeptOutput();
  KeptOutput(const KeptOutput&) = delete;
  KeptOutput& operator=(const KeptOutput&) = delete;

  /// Writes to what standard output was; false where that fails.
  bool write(const std::string& text) const;

 private:
  int kept_;
};

/// Texts of extensions are in UTF-8. This gives one in the form that the output takes.
std::string outputText(std::string utf8);

}  // namespace tool
