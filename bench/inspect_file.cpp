// Inspects a file several times: prints the shortest wall time in seconds and the growth of peak memory in kB.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "zexfile/Inspector.hpp"

namespace {

/// In kB. The count of getrusage would still hold the peak of the process that started this one.
long peakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmHWM:")) return std::stol(line.substr(6));
  throw std::runtime_error("the system does not tell the peak of memory");
}

}  // namespace

int main(int /*count*/, char** arguments) {
  const auto path = std::filesystem::absolute(arguments[1]).u16string();
  const long before = peakMemory();
  double shortest = 1e9;
  for (int i = 0; i < 5; ++i) {
    const auto start = std::chrono::steady_clock::now();
    const zexfile::Inspector inspector(path, false);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    // The file ends with the record that makes the difference, so it was read to its end.
    if (!inspector.needs_consistent_embedded_version()) return 1;
    shortest = std::min(shortest, taken.count());
  }
  std::printf("%.4f %ld\n", shortest, peakMemory() - before);
  return 0;
}
