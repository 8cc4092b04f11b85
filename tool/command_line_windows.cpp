#include <windows.h>
// The system's header above declares what the next one uses.
#include <shellapi.h>

#include <memory>
#include <new>

#include "command_line.hpp"
#include "texts/wide.hpp"

namespace tool {

std::vector<fl::ustring> commandLineArguments(int /*count*/, char** /*values*/) {
  int count = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              LocalFree);
  if (words == nullptr) throw std::bad_alloc();
  std::vector<fl::ustring> arguments;
  for (int index = 1; index < count; ++index) arguments.push_back(host::fromWide(words.get()[index]));
  return arguments;
}

}  // namespace tool
