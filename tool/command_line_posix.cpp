#include "command_line.hpp"
#include "fl/i18n/strings.hpp"

namespace tool {

std::vector<fl::ustring> commandLineArguments(int count, char** values) {
  std::vector<fl::ustring> arguments;
  for (int index = 1; index < count; ++index) arguments.push_back(fl::i18n::to_ustring(values[index]));
  return arguments;
}

}  // namespace tool
