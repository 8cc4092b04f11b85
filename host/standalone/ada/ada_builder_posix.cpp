#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "standalone/ada/AdaCommand.hpp"
#include "standalone/ada/TemporaryFolder.hpp"
#include "standalone/ada/ada_builder.hpp"
#include "standalone/calls/HostCall.hpp"

namespace host::standalone {

namespace {

using namespace fl::filesystem::detail;

using Words = std::vector<fl::ustring>;

constexpr int notFoundByShell = 127;

/// In single quotes the shell takes every character as it is.
fl::ustring quotedForShell(const fl::ustring& word) {
  fl::ustring quoted = u"'";
  for (const char16_t unit : word) quoted += unit == u'\'' ? fl::ustring(u"'\\''") : fl::ustring(1, unit);
  return quoted + u"'";
}

/// The tools leave their files in the folder that they run in.
fl::ustring lineOf(const fl::ustring& folder, const Words& words) {
  fl::ustring line = u"cd " + quotedForShell(folder) + u" && " + words.front();
  for (auto word = words.begin() + 1; word != words.end(); ++word) line += u" " + quotedForShell(*word);
  return line;
}

Words compileWords(const AdaCommand& command) {
  // All units anew: an object that lies beside its source may not be fit for a library.
  Words words = {u"gnatmake", u"-f", u"-c", u"-fPIC"};
  if (!command.verbose) words.push_back(u"-q");
  if (command.debug) words.push_back(u"-g");
  if (command.optimize) words.push_back(u"-O2");
  for (const fl::ustring& folder : command.includeFolders) words.push_back(u"-aI" + folder);
  words.push_back(u"-aI" + fl::filesystem::get_current_path());
  words.push_back(command.source);
  return words;
}

Words bindWords(const fl::ustring& unit) {
  return {u"gnatbind", u"-n", u"-a", u"-shared", unit};
}

Words linkWords(const AdaCommand& command, const fl::ustring& unit) {
  // Every such library has a start of the same name, and must find its own.
  Words words = {u"gnatlink", u"-shared", u"-fPIC", u"-Wl,-Bsymbolic", unit, u"-o", command.product};
  if (command.debug) words.push_back(u"-g");
  return words;
}

fl::ustring withoutLineEnd(fl::ustring text) {
  while (!text.empty() && text.back() == u'\n') text.pop_back();
  return text;
}

[[noreturn]] void refuse(const fl::ustring& tool, const ShellResult& result) {
  if (result.status == notFoundByShell)
    throw HostFunctionFailure(
        "TESSEL:host:AdaCompilerNotFound",
        u"The Ada tool '" + tool + u"' was not found. Install GNAT and add its folder to PATH.");
  const fl::ustring status = fl::i18n::to_ustring(std::to_string(result.status));
  const fl::ustring said = withoutLineEnd(result.text);
  throw HostFunctionFailure("TESSEL:host:AdaBuildFailed",
                            tool + u" failed with status " + status +
                                (said.empty() ? fl::ustring(u" and said nothing.") : u":\n" + said));
}

class Steps {
 public:
  Steps(Services& services, const AdaCommand& command) : services_(services), command_(command) {
    const fl::ustring outputFolder = extract_parent_path(command.product);
    if (!command.dryRun) {
      fl::filesystem::create_directories(outputFolder);
    } else {
      // A dry run's own folder goes away at its end, so that the commands make it anew.
      print(u"mkdir -p " + quotedForShell(folder_.path()) + u" " + quotedForShell(outputFolder) + u"\n");
    }
  }

  void run(const Words& words) {
    const fl::ustring line = lineOf(folder_.path(), words);
    if (command_.verbose || command_.dryRun) print(line + u"\n");
    if (command_.dryRun) return;
    const ShellResult result = services_.runShellLine(u"{ " + line + u"; } 2>&1", true);
    if (result.status != 0) refuse(words.front(), result);
    print(result.text);
  }

  void print(const fl::ustring& text) { services_.write(fl::i18n::to_string(text)); }

 private:
  Services& services_;
  const AdaCommand& command_;
  const TemporaryFolder folder_;
};

}  // namespace

void buildAda(Services& services, const std::vector<fl::ustring>& arguments) {
  const AdaCommand command(arguments);
  const fl::ustring unit = extract_stem(command.source) + u".ali";
  Steps steps(services, command);
  steps.run(compileWords(command));
  steps.run(bindWords(unit));
  steps.run(linkWords(command, unit));
  if (!command.silent && !command.dryRun) steps.print(u"Built '" + command.product + u"' with GNAT.\n");
}

}  // namespace host::standalone
