#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <list>
#include <string>
#include <vector>

#include "support/Scratch.hpp"

namespace end_to_end {

using Names = std::vector<std::string>;

/// The texts are in UTF-8, with lines that end in "\n" alone.
struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

/// A user's working folder, which is the current one and holds copies of the files in sources/, with a preferences
/// and a temporary folder of its own. All names hold a letter outside ASCII and, but for a temporary folder that
/// commands name without quotes, a blank. Messages are shown as identifiers.
class EndToEnd : public testing::Test {
 protected:
  EndToEnd();
  ~EndToEnd() override;

  /// Runs a line of the shell, which finds the program as "$ZEX" and the option documents in "$OPTS".
  Outcome shell(const std::string& line) const;

  /// Runs `zex` with arguments in the shell's words. Afterwards the temporary folder is empty, and nothing but the
  /// files told in `made` is new in the working folder.
  Outcome zex(const std::string& arguments, const Names& made = {}) const;

  /// The same, and the command succeeds.
  Outcome build(const std::string& arguments, const Names& made = {}) const;

  /// Runs another program of the tree.
  Outcome run(const std::string& program, const std::string& arguments) const;
  Outcome zexrun(const std::string& arguments) const { return run("zexrun", arguments); }

  /// Sets a variable until the test ends.
  void set(const std::string& variable, const std::filesystem::path& value);

  void expectNoTemporaryFiles() const;

  zex_test::Scratch scratch;
  const std::filesystem::path work;
  const std::filesystem::path preferences;
  const std::filesystem::path temporary;

 private:
  std::list<zex_test::ScopedVariable> variables_;
};

/// A program of the tree.
std::filesystem::path program(const std::string& name);

std::string contentOf(const std::filesystem::path& file);
void write(const std::filesystem::path& file, const std::string& content);

/// A text with each occurrence of another one replaced; a failure if there is none.
std::string replaced(std::string text, const std::string& from, const std::string& to);

/// Text of the shipped document of gcc with a text replaced.
std::string gccDocument(const std::string& from, const std::string& to);

// --- What differs between the systems ---

/// The status of a line of the system's shell, which leaves its texts in the files "out" and "err" above the
/// current folder.
int statusOf(const std::string& line);

/// A name for the temporary folder of a test.
std::filesystem::path temporaryFolder(const std::filesystem::path& scratch);

}  // namespace end_to_end
