// Finds the start below a bound whose Collatz sequence is longest. Build it with:  zex collatz.cpp

#include <cstdint>
#include <iostream>
#include <vector>

namespace {

struct Longest {
  std::uint64_t start;
  std::uint64_t steps;
};

// Steps of smaller starts are known when a sequence falls below its own start, so each is walked only that far.
Longest longestBelow(std::uint64_t bound) {
  std::vector<std::uint64_t> steps(bound, 0);
  Longest longest{1, 0};
  for (std::uint64_t start = 2; start < bound; ++start) {
    std::uint64_t value = start;
    std::uint64_t walked = 0;
    for (; value >= start; ++walked) value = value % 2 == 0 ? value / 2 : 3 * value + 1;
    steps[start] = walked + steps[value];
    if (steps[start] > longest.steps) longest = {start, steps[start]};
  }
  return longest;
}

}  // namespace

// The entry point that a loader calls.
extern "C" void zexFunction() {
  constexpr std::uint64_t bound = 1000000;
  const Longest longest = longestBelow(bound);
  std::cout << "Below " << bound << ", " << longest.start << " has the longest Collatz sequence: " << longest.steps
            << " steps." << std::endl;
}
