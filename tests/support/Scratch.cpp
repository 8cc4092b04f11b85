#include "support/Scratch.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

namespace zex_test {

namespace fs = std::filesystem;

Scratch::Scratch() : former_(fs::current_path()) {
  do {
    const std::string number = std::to_string(100'000 + std::random_device()() % 900'000);
    folder_ = fs::canonical(fs::temp_directory_path()) / utf16("zex test é " + number);
  } while (!fs::create_directory(folder_));
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

void Scratch::write(const std::string& name, const std::string& content) const {
  const fs::path file = folder_ / utf16(name);
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << content;
}

std::string Scratch::read(const std::string& name) const {
  std::ifstream stream(folder_ / utf16(name));
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> Scratch::names(const std::string& below) const {
  std::vector<std::string> result;
  for (const auto& entry : fs::directory_iterator(folder_ / utf16(below)))
    result.push_back(entry.path().filename().string());
  std::sort(result.begin(), result.end());
  return result;
}

}  // namespace zex_test
