#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "fl/ustring.hpp"

namespace windows_tests {

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

/// The staged tree in a folder with an odd name, and a user's working folder, which is the current one, with a
/// preferences and a temporary folder beside it. Programs run with the stand-in shell; compilers for Windows stand
/// in "mingw". Messages are shown as identifiers, texts are in UTF-8.
class WindowsTree : public testing::Test {
 protected:
  static void SetUpTestSuite();
  static void TearDownTestSuite();
  WindowsTree();
  ~WindowsTree() override;

  /// Runs `zex` with arguments in the form of a command line. Afterwards the temporary folder is empty.
  Outcome zex(const std::string& arguments) const;

  /// Runs a program of the tree.
  Outcome run(const std::string& program, const std::string& arguments) const;

  static std::filesystem::path tree();
  static std::filesystem::path mingw();
  static void set(const std::string& variable, const std::filesystem::path& value);

  const std::filesystem::path work;
  const std::filesystem::path temporary;
};

/// Removes a folder as soon as the consoles of programs that ran in it are gone, which outlive them a little.
void removeSoon(const std::filesystem::path& folder);

void write(const std::filesystem::path& file, const std::string& content);
std::string contentOf(const std::filesystem::path& file);

/// A document in "odd.xml" whose one tool is the odd one. Its commands are the text of `commands`.
void writeOddDocument(const std::string& commands, const std::string& finder = "<fileExists name='.'/>");

/// Loads a product, calls its entry point and gives the number that it stores.
long long answer(const std::filesystem::path& product);

}  // namespace windows_tests
