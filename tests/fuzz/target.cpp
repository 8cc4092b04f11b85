#include "fuzz/target.hpp"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace zex_fuzz {

namespace fs = std::filesystem;

namespace {

std::string& folderName() {
  static std::string name;
  return name;
}

void removeFolder() {
  std::error_code ignored;
  fs::current_path("/", ignored);
  fs::remove_all(folderName(), ignored);
}

}  // namespace

void demand(bool condition, const char* words) {
  if (condition) return;
  std::fprintf(stderr, "fault: %s\n", words);
  std::abort();
}

void enterFolder() {
  const fs::path memory = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
  folderName() = (memory / "zex_fuzz_XXXXXX").string();
  demand(mkdtemp(folderName().data()) != nullptr, "no folder to work in");
  fs::current_path(folderName());
  std::atexit(removeFolder);
}

void writeFile(const std::string& name, std::string_view content) {
  std::ofstream(name, std::ios::binary) << content;
}

}  // namespace zex_fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zex_fuzz::tryInput({reinterpret_cast<const char*>(data), size});
  return 0;
}
