// Tries every file of the folders that are named once: what a fuzzer found, and what is shipped, stays mended.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/target.hpp"

int main(int count, char** folders) {
  std::size_t tried = 0;
  for (int index = 1; index < count; ++index) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folders[index])) {
      if (!entry.is_regular_file()) continue;
      std::ifstream stream(entry.path(), std::ios::binary);
      const std::string content(std::istreambuf_iterator<char>(stream), {});
      std::fprintf(stderr, "%s\n", entry.path().c_str());
      zex_fuzz::tryInput(content);
      ++tried;
    }
  }
  std::printf("%zu inputs\n", tried);
  return tried == 0 ? 1 : 0;
}
