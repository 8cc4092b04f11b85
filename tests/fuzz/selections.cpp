// Saved selections: what was written reads back, value by value.

#include <cstdlib>

#include "fl/filesystem/operations.hpp"
#include "fl/i18n/strings.hpp"
#include "fuzz/target.hpp"
#include "options/ZexOpt.hpp"
#include "support/RecordingServices.hpp"

namespace zex_fuzz {

namespace {

class SilentServices : public zex_test::RecordingServices {
 public:
  host::ShellResult runShellLine(const fl::ustring&, bool) override { return {0, u"/opt/the \"tool\"\n"}; }
};

bool prepare() {
  enterFolder();
  setenv("TMPDIR", fl::i18n::to_string(fl::filesystem::get_current_path()).c_str(), 1);
  return true;
}

}  // namespace

void tryInput(std::string_view input) {
  static const bool prepared = prepare();
  if (!prepared) return;
  writeFile("doc.xml", input);
  SilentServices host;
  const std::string failure = zex_test::failureOf([] {
    zex_cmd::ZexOpt document(u"doc.xml", {}, {}, false);
    document.writeSelected(u"saved.xml");
    const zex_cmd::ZexOpt saved(u"saved.xml", {}, {}, false);
    const auto paths = document.allValuePaths({});
    demand(paths == saved.allValuePaths({}), "a saved selection has the values of its document");
    for (const auto& path : paths)
      demand(document.value(path) == saved.value(path), "a value reads back the same");
  });
  demand(failure == "no error" || failure.starts_with("TESSEL:zex:"), failure.c_str());
}

}  // namespace zex_fuzz
