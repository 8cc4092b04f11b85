#include "end_to_end/EndToEnd.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

#include "support/platform.hpp"
#include "support/texts.hpp"

namespace end_to_end {

namespace fs = std::filesystem;

namespace {

/// Relative names of all that lies below a folder; of the folders only the empty ones.
std::set<std::string> everythingBelow(const fs::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const bool hasContent = entry.is_directory() && !entry.is_symlink() && !fs::is_empty(entry.path());
    if (!hasContent) names.insert(zex_test::utf8(entry.path().lexically_relative(folder).generic_u16string()));
  }
  return names;
}

std::string textIn(const fs::path& file) {
  std::string text = zex_test::fromNative(contentOf(file));
  std::erase(text, '\r');
  return text;
}

}  // namespace

EndToEnd::EndToEnd()
    : work(scratch.folder() / "work"),
      preferences(scratch.folder() / "prefs"),
      temporary(temporaryFolder(scratch.folder())) {
  fs::copy(ZEX_TEST_SOURCES, work);
  for (const fs::path& folder : {preferences, temporary}) fs::create_directory(folder);
  fs::current_path(work);
  const std::pair<const char*, fs::path> values[] = {
      {"ZEX", program("zex")},         {"OPTS", program("zexopts")}, {"TMPDIR", temporary},
      {"TESSEL_PREFDIR", preferences}, {"TESSEL_LOCALE", "id"},      {"LC_ALL", "C"},
  };
  for (const auto& [name, value] : values) set(name, value);
  for (const char* name : {"TESSEL_ROOT", "TESSEL_ZEXCHECK_OFF"}) variables_.emplace_back(name, nullptr);
}

EndToEnd::~EndToEnd() {
  fs::remove_all(temporary);
}

void EndToEnd::set(const std::string& variable, const fs::path& value) {
  variables_.emplace_back(variable, value);
}

Outcome EndToEnd::shell(const std::string& line) const {
  const int status = statusOf(line);
  return {status, textIn("../out"), textIn("../err")};
}

Outcome EndToEnd::run(const std::string& name, const std::string& arguments) const {
  return shell("\"" + zex_test::utf8(program(name).u16string()) + "\" " + arguments);
}

Outcome EndToEnd::zex(const std::string& arguments, const Names& made) const {
  const std::set<std::string> before = everythingBelow(work);
  const Outcome outcome = run("zex", arguments);
  const std::set<std::string> after = everythingBelow(work);

  Names added;
  std::set_difference(after.begin(), after.end(), before.begin(), before.end(), std::back_inserter(added));
  EXPECT_THAT(added, testing::UnorderedElementsAreArray(made)) << arguments;
  expectNoTemporaryFiles();
  return outcome;
}

Outcome EndToEnd::build(const std::string& arguments, const Names& made) const {
  const Outcome outcome = zex(arguments, made);
  EXPECT_EQ(outcome.status, 0) << arguments << "\n" << outcome.out << outcome.err;
  EXPECT_THAT(outcome.err, testing::Not(testing::HasSubstr("error")));
  return outcome;
}

void EndToEnd::expectNoTemporaryFiles() const {
  EXPECT_THAT(everythingBelow(temporary), testing::IsEmpty());
}

fs::path program(const std::string& name) {
  return (fs::path(ZEX_TREE) / "bin" / zex_test::platform.architecture / name).make_preferred();
}

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void write(const fs::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  std::size_t position = text.find(from);
  EXPECT_NE(position, std::string::npos) << from;
  for (; position != std::string::npos; position = text.find(from, position + to.size())) {
    text.replace(position, from.size(), to);
  }
  return text;
}

std::string gccDocument(const std::string& from, const std::string& to) {
  return replaced(contentOf(program("zexopts") / "gcc.xml"), from, to);
}

}  // namespace end_to_end
