#include "command_line.hpp"
#include "texts/utf.hpp"

namespace tool {

std::vector<fl::ustring> commandLineArguments(int count, char** values) {
  std::vector<fl::ustring> arguments;
  for (int index = 1; index < count; ++index) arguments.push_back(host::fromBytes(values[index]));
  return arguments;
}

}  // namespace tool
