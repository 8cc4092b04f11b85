// Saved selections: what was written reads back, value by value.

#include "fuzz/target.hpp"
#include "options/ZexOpt.hpp"
#include "support/RecordingServices.hpp"

namespace zex_fuzz {

namespace {

class SilentServices : public zex_test::RecordingServices {
 public:
  host::ShellResult runShellLine(const fl::ustring&, bool) override { return {0, u"/opt/the \"tool\"\n"}; }
};

}  // namespace

void tryInput(std::string_view input) {
  static const bool prepared = enterFolder();
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
