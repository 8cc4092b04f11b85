#include <stdexcept>
#include <string>

extern "C" void zexFunction(long long* answer) {
  try {
    throw std::runtime_error(std::string(43, 'x'));
  } catch (const std::exception& error) {
    *answer = static_cast<long long>(std::string(error.what()).size());
  }
}
