#include "support/Scratch.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <utility>

#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_test {

namespace fs = std::filesystem;

namespace {

fs::path freshFolder() {
  const fs::path temporary = fs::canonical(fs::temp_directory_path());
  const std::string number = std::to_string(100'000 + std::random_device()() % 900'000);
  const fs::path folder = temporary / utf16("zex test é " + number);
  return fs::create_directory(folder) ? folder : freshFolder();
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
  return name.empty() ? folder_.u16string() : (folder_ / utf16(name)).make_preferred().u16string();
}

std::string Scratch::told(const std::string& name) const {
  return zex_test::told(utf8(path(name)));
}

void Scratch::write(const std::string& name, const std::string& content) const {
  const fs::path file = folder_ / utf16(name);
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << content;
}

std::string Scratch::read(const std::string& name) const {
  std::ifstream stream(folder_ / utf16(name));
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool Scratch::has(const std::string& name) const {
  return fs::exists(fs::symlink_status(folder_ / utf16(name)));
}

std::vector<std::string> Scratch::names(const std::string& below) const {
  std::vector<std::string> result;
  for (const auto& entry : fs::directory_iterator(folder_ / utf16(below)))
    result.push_back(entry.path().filename().string());
  std::sort(result.begin(), result.end());
  return result;
}

ScopedVariable::ScopedVariable(std::string name, const char* value)
    : name_(std::move(name)), former_(variable(name_)) {
  setVariable(name_, value);
}

ScopedVariable::ScopedVariable(std::string name, const fs::path& value)
    : ScopedVariable(std::move(name), utf8(value.u16string()).c_str()) {}

ScopedVariable::~ScopedVariable() {
  setVariable(name_, former_ ? former_->c_str() : nullptr);
}

}  // namespace zex_test
