#include "window.hpp"

#include <algorithm>

std::vector<double> triangle(std::size_t length) {
  std::vector<double> weights(length);
  double sum = 0;
  for (std::size_t index = 0; index < length; ++index) {
    weights[index] = static_cast<double>(std::min(index + 1, length - index));
    sum += weights[index];
  }
  for (double& weight : weights) weight /= sum;
  return weights;
}
