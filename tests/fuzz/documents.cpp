// Option documents: a whole dry run of the driver with each. No command of a document is run: the shell answers as
// the text of the command tells.

#include <cstdlib>

#include "cmd/Zex.hpp"
#include "fl/filesystem/operations.hpp"
#include "fuzz/target.hpp"
#include "support/RecordingServices.hpp"

namespace zex_fuzz {

namespace {

class AnsweringServices : public zex_test::RecordingServices {
 public:
  host::ShellResult runShellLine(const fl::ustring& line, bool) override {
    return {line.size() % 5 == 0 ? 1 : 0, u"/opt/the tool\n"};
  }
};

bool prepare() {
  enterFolder();
  unsetenv("TESSEL_PREFDIR");
  fl::filesystem::create_directories(u"extern/version");
  for (const char* name : {"a.c", "b.c", "extern/version/c_zexapi_version.c",
                           "extern/version/cpp_zexapi_version.cpp", "extern/version/fortran_zexapi_version.F"})
    writeFile(name, "");
  return true;
}

}  // namespace

void tryInput(std::string_view input) {
  static const bool prepared = prepare();
  if (!prepared) return;
  writeFile("doc.xml", input);
  AnsweringServices host;
  host.install = fl::filesystem::get_current_path();
  host.preferences = host.install;
  zex_cmd::Zex command;
  const std::string failure = zex_test::failureOf([&] {
    command.run({u"-n", u"-g", u"a.c", u"b.c", u"-DX=1", u"-lm", u"-f", u"doc.xml"});
  });
  // The words of the libraries for formats and texts are settled for two slips of a document.
  demand(failure.size() > 0 && host.errors.size() <= 1, "a failure has words and is offered once");
}

}  // namespace zex_fuzz
