#pragma once

#include <filesystem>

#include "support/Scratch.hpp"

namespace zex_test {

/// While one lives, commands find the program "tool", which stands in for a compiler and linker. It appends its
/// arguments to the file "tool.log" in the current folder and writes the file behind "-o"; what it does beside
/// that is told by words in the source file behind "-c": "FAIL" makes it fail with an error text, "SILENT" fail
/// without one, "WARN" print a warning. Its first argument may ask for something else:
///
///   --say WORDS...   prints each on a line of its own
///   --exit STATUS    does nothing
///   --wait           makes the file "waiting" and takes its time
///   --version, -dumpversion   prints the file "tool.version" and logs nothing
class FakeTool : public ScopedVariable {
 public:
  FakeTool() : ScopedVariable("PATH", folder() += utf16(std::string(platform.listSeparator) + path())) {}

  static std::filesystem::path program() { return folder() / (platform.drive.empty() ? "tool" : "tool.exe"); }

 private:
  static std::filesystem::path folder() { return std::filesystem::path(ZEX_TOOLS).make_preferred(); }
  static std::string path() { return variable("PATH").value_or(""); }
};

}  // namespace zex_test
