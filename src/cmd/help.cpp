#include "cmd/help.hpp"

#include <string>

#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/filesystem/streams.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

namespace {

ustring helpFile() {
  ustring path = fl::filesystem::get_install_path();
  for (const char16_t* part : {u"bin", u"util", u"zex", u"zexHelp.txt"}) {
    path += fl::filesystem::upath_constant::PATHNAME_SEPARATOR + part;
  }
  return path;
}

}  // namespace

void printHelp() {
  ustring path;
  try {
    path = helpFile();
    if (!fl::filesystem::exists(path)) {
      services::io::uout() << u"The ZEX help file " << path << u" not exists.\n";
      return;
    }
    fl::filesystem::basic_ifstream stream(path);
    if (!stream.is_open()) return;
    for (std::string line; std::getline(stream, line);) utPrintf("%s\n", line.c_str());
  } catch (const fl::filesystem::FsysExceptionBase&) {
    translateFilesystemError(path);
  }
}

}  // namespace zex_cmd
