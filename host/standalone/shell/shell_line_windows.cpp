#include <array>
#include <cerrno>
#include <cstdio>

#include "fl/i18n/strings.hpp"
#include "standalone/shell/shell_line.hpp"
#include "texts/wide.hpp"

namespace host::standalone {

ShellResult runLineOfShell(Services& /*services*/, const fl::ustring& line) {
  std::fflush(stdout);
  std::FILE* const stream = _wpopen(wide(line), L"rt");
  if (stream == nullptr) return {errno, {}};
  std::string text;
  std::array<char, 65536> block;
  while (const std::size_t count = std::fread(block.data(), 1, block.size(), stream))
    text.append(block.data(), count);
  return {_pclose(stream), fl::i18n::to_ustring(text)};
}

}  // namespace host::standalone
