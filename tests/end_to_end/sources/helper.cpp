#include <vector>
extern "C" long long helper() {
  return static_cast<long long>(std::vector<int>(7).size());
}
