#include <algorithm>
#include <cstdio>

#include "cmd/ZexCmdFactory.hpp"
#include "compiler_records.hpp"
#include "fl/i18n/strings.hpp"
#include "program.hpp"

namespace {

constexpr char usage[] = "usage: zexcompilers [LANGUAGE [KIND [ARCH]]] [--json]";

/// What to ask for: the words in order, with their defaults.
struct Query {
  std::string language = "any";
  std::string kind = "installed";
  std::string architecture;
  bool json = false;
};

/// The last folder of "bin/<arch>", where the library lies.
std::string ownArchitecture() {
  const std::string path = libzexcmd_relative_path;
  return path.substr(path.rfind('/') + 1);
}

Query queryOf(const std::vector<fl::ustring>& arguments) {
  Query query;
  query.architecture = ownArchitecture();
  std::string* const words[] = {&query.language, &query.kind, &query.architecture};
  std::size_t next = 0;
  for (const fl::ustring& argument : arguments) {
    if (argument == u"--json") {
      query.json = true;
    } else if (argument.starts_with(u"-") || next == std::size(words)) {
      throw tool::UsageError(usage);
    } else {
      *words[next++] = fl::i18n::to_string(argument);
    }
  }
  return query;
}

void printCompilers(const std::vector<fl::ustring>& arguments) {
  if (arguments.size() == 1 && (arguments.front() == u"-help" || arguments.front() == u"-h")) {
    std::printf(
        "%s\n\nLANGUAGE: c, c++, cpp, fortran or any (default)\nKIND: selected, installed (default), "
        "supported or default\nARCH: such as glnxa64 (default: that of this program)\n",
        usage);
    return;
  }
  const Query query = queryOf(arguments);
  const auto records = tool::createCommand()->queryCompilers(query.language, query.kind, query.architecture);
  std::fputs((query.json ? tool::jsonOf(records) : tool::tableOf(records)).c_str(), stdout);
}

}  // namespace

int main(int count, char** values) {
  return tool::runProgram("zexcompilers", count, values, printCompilers);
}
