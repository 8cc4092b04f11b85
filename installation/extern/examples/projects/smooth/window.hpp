#pragma once

#include <cstddef>
#include <vector>

// The weights of a window of the given length, which add up to 1: the middle one is the largest, and they fall off
// evenly to both sides.
std::vector<double> triangle(std::size_t length);
