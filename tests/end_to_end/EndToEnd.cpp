#include "end_to_end/EndToEnd.hpp"

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

namespace end_to_end {

namespace fs = std::filesystem;

namespace {

fs::path documents() {
  return fs::path(ZEX_TREE) / "bin" / "glnxa64" / "zexopts";
}

/// Relative names of all that lies below a folder; of the folders only the empty ones.
std::set<std::string> everythingBelow(const fs::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const bool hasContent = entry.is_directory() && !entry.is_symlink() && !fs::is_empty(entry.path());
    if (!hasContent) names.insert(fs::relative(entry.path(), folder).string());
  }
  return names;
}

}  // namespace

EndToEnd::EndToEnd() : work(scratch.folder() / "work"), temporary("/tmp/zex_é_" + std::to_string(getpid())) {
  fs::copy(ZEX_TEST_SOURCES, work);
  fs::create_directory(temporary);
  fs::create_directory(scratch.folder() / "prefs");
  fs::current_path(work);
  const std::pair<const char*, std::string> values[] = {
      {"ZEX", ZEX_PROGRAM},    {"OPTS", documents()},
      {"TMPDIR", temporary},   {"TESSEL_PREFDIR", scratch.folder() / "prefs"},
      {"TESSEL_LOCALE", "id"}, {"LC_ALL", "C"},
  };
  for (const auto& [name, value] : values) variables_.emplace_back(name, value.c_str());
  for (const char* name : {"TESSEL_ROOT", "TESSEL_ZEXCHECK_OFF"}) variables_.emplace_back(name, nullptr);
}

EndToEnd::~EndToEnd() {
  fs::remove_all(temporary);
}

Outcome EndToEnd::shell(const std::string& line) const {
  const int status = std::system(("{ " + line + "\n} > ../out 2> ../err").c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf("../out"), contentOf("../err")};
}

Outcome EndToEnd::zex(const std::string& arguments, const Names& made) const {
  const std::set<std::string> before = everythingBelow(work);
  const Outcome outcome = shell("\"$ZEX\" " + arguments);
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

long long answer(const std::string& product) {
  void* const library = dlopen(fs::absolute(product).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  void* entry = dlsym(library, "zexFunction");
  if (entry == nullptr) entry = dlsym(library, "zexfunction_");  // as Fortran compilers write the name
  if (entry == nullptr) throw std::runtime_error(product + " has no entry point");
  long long stored = -1;
  reinterpret_cast<void (*)(long long*)>(entry)(&stored);
  dlclose(library);
  return stored;
}

std::string record(const std::string& product) {
  const std::string bytes = contentOf(product);
  const std::size_t begin = bytes.find("@(#)zex-record ");
  return begin == std::string::npos ? "" : bytes.substr(begin, bytes.find(';', begin) + 1 - begin);
}

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void write(const fs::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

std::string gccDocument(const std::string& from, const std::string& to) {
  std::string text = contentOf(documents() / "gcc.xml");
  std::size_t position = text.find(from);
  EXPECT_NE(position, std::string::npos) << from;
  for (; position != std::string::npos; position = text.find(from, position + to.size())) {
    text.replace(position, from.size(), to);
  }
  return text;
}

std::size_t timesIn(const std::string& text, const std::string& word) {
  std::size_t count = 0;
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) ++count;
  return count;
}

bool needsMissingTool(const std::string& arguments) {
  static const bool hasNvcc = std::system("command -v nvcc > /dev/null || test -x /usr/local/cuda/bin/nvcc") == 0;
  return !hasNvcc && arguments.find(".cu") != std::string::npos;
}

}  // namespace end_to_end
