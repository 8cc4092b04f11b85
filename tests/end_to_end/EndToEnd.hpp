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

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

/// A user's working folder, which is the current one and holds copies of the files in sources/, with a preferences
/// and a temporary folder of its own. All names hold a letter outside ASCII and, but for the temporary folder,
/// which commands name without quotes, a blank. Messages are shown as identifiers.
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

  /// Runs the program that calls a product.
  Outcome zexrun(const std::string& arguments) const { return shell("\"$OPTS/../zexrun\" " + arguments); }

  void expectNoTemporaryFiles() const;

  zex_test::Scratch scratch;
  const std::filesystem::path work;
  const std::filesystem::path temporary;

 private:
  std::list<zex_test::ScopedVariable> variables_;
};

/// Loads a product of the current folder, calls its entry point and gives the number that it stores.
long long answer(const std::string& product);

/// The driver's version record in a product, or an empty text.
std::string record(const std::string& product);

std::string contentOf(const std::filesystem::path& file);
void write(const std::filesystem::path& file, const std::string& content);

/// Text of the shipped document of gcc with each occurrence of a text replaced; a failure if there is none.
std::string gccDocument(const std::string& from, const std::string& to);

/// Whether arguments name a CUDA source and nvcc, which alone of the compilers may be missing, is not there.
bool needsMissingTool(const std::string& arguments);

/// How often a word is in a text.
std::size_t timesIn(const std::string& text, const std::string& word);

}  // namespace end_to_end
