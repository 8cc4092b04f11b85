#include "fuzz/target.hpp"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "support/Scratch.hpp"

namespace zex_fuzz {

void demand(bool condition, const char* words) {
  if (condition) return;
  std::fprintf(stderr, "fault: %s\n", words);
  std::abort();
}

bool enterFolder() {
  static const zex_test::ScopedVariable memory("TMPDIR",
                                               std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp");
  static const zex_test::Scratch folder;
  setenv("TMPDIR", folder.folder().c_str(), 1);
  return true;
}

void writeFile(const std::string& name, std::string_view content) {
  std::ofstream(name, std::ios::binary) << content;
}

}  // namespace zex_fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zex_fuzz::tryInput({reinterpret_cast<const char*>(data), size});
  return 0;
}
