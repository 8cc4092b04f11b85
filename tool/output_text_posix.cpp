#include "output_text.hpp"

namespace tool {

std::string outputText(std::string utf8) {
  return utf8;
}

}  // namespace tool
