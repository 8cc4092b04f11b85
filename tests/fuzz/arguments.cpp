// Command lines: the words of the input's first part, one to a line; the parts behind it, each after a line "@",
// are the response files r0, r1 and so on.

#include <cstdlib>
#include <vector>

#include "args/ZexArgs.hpp"
#include "fl/i18n/strings.hpp"
#include "fuzz/target.hpp"
#include "support/RecordingServices.hpp"

namespace zex_fuzz {

namespace {

std::vector<std::string> splitAt(std::string_view text, std::string_view mark) {
  std::vector<std::string> parts;
  for (std::size_t at = text.find(mark); at != std::string_view::npos; at = text.find(mark)) {
    parts.emplace_back(text.substr(0, at));
    text.remove_prefix(at + mark.size());
  }
  parts.emplace_back(text);
  return parts;
}

/// Some words make folders: only below the current one.
bool staysHere(std::string_view input) {
  return input.find("..") == std::string_view::npos && input.find("=/") == std::string_view::npos &&
         input.find("\n/") == std::string_view::npos && input.find("\"/") == std::string_view::npos &&
         !input.starts_with('/');
}

bool prepare() {
  unsetenv("TESSEL_ZEXCHECK_OFF");
  enterFolder();
  for (const char* name : {"a.c", "b.cpp", "d.cu", "e.f90"}) writeFile(name, "");
  return true;
}

}  // namespace

void tryInput(std::string_view input) {
  static const bool prepared = prepare();
  if (!prepared || !staysHere(input)) return;
  const std::vector<std::string> parts = splitAt(input, "\n@\n");
  constexpr std::size_t most = 5;
  for (std::size_t index = 1; index < most; ++index)
    writeFile("r" + std::to_string(index - 1), index < parts.size() ? parts[index] : "");

  std::vector<fl::ustring> words;
  for (const std::string& word : splitAt(parts.front(), "\n")) words.push_back(fl::i18n::to_ustring(word));
  zex_test::RecordingServices host;
  zex_cmd::ZexArgs args;
  const std::string failure = zex_test::failureOf([&] { args.parseArguments(words); });
  const bool told = failure == "no error" || failure.starts_with("TESSEL:");
  if (!told) demand(false, failure.c_str());
  demand(host.errors.size() == (failure == "no error" ? 0U : 1U), "an error is offered to the host once");
  if (failure == "no error") demand(args.optimize || args.debug || args.setup, "a build has a mode");
}

}  // namespace zex_fuzz
