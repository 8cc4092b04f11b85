#include "support/Scratch.hpp"

#include <stdlib.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace zex_test {

namespace fs = std::filesystem;

namespace {

fs::path freshFolder() {
  std::string pattern = (fs::temp_directory_path() / "zex test é XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no scratch folder");
  return fs::canonical(pattern);
}

}  // namespace

Scratch::Scratch() : former_(fs::current_path()), folder_(freshFolder()) {
  fs::current_path(folder_);
}

Scratch::~Scratch() {
  fs::current_path(former_);
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

fl::ustring Scratch::path(const std::string& name) const {
  return name.empty() ? folder_.u16string() : (folder_ / name).u16string();
}

void Scratch::write(const std::string& name, const std::string& content) const {
  const fs::path file = folder_ / name;
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << content;
}

std::string Scratch::read(const std::string& name) const {
  std::ifstream stream(folder_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool Scratch::has(const std::string& name) const {
  return fs::exists(fs::symlink_status(folder_ / name));
}

std::vector<std::string> Scratch::names(const std::string& below) const {
  std::vector<std::string> result;
  for (const auto& entry : fs::directory_iterator(folder_ / below)) result.push_back(entry.path().filename());
  std::sort(result.begin(), result.end());
  return result;
}

ScopedVariable::ScopedVariable(std::string name, const char* value) : name_(std::move(name)) {
  const char* old = std::getenv(name_.c_str());
  wasSet_ = old != nullptr;
  if (wasSet_) former_ = old;
  if (value == nullptr) {
    unsetenv(name_.c_str());
  } else {
    setenv(name_.c_str(), value, 1);
  }
}

ScopedVariable::~ScopedVariable() {
  if (wasSet_) {
    setenv(name_.c_str(), former_.c_str(), 1);
  } else {
    unsetenv(name_.c_str());
  }
}

}  // namespace zex_test
