#include <cstdint>

#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/verbose_lines.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "options/LocationFinder.hpp"
#include "platform/RegistryReader.hpp"
#include "platform/ShellCommand.hpp"
#include "platform/paths.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

namespace {

using Element = OptionTree::Element;
namespace fs = fl::filesystem;

/// The folder that "$$" stands for in a path: links are followed, and a file stands for its folder.
ustring foundFolder(const ustring& value) {
  ustring path = value;
  fs::file_status status = fs::symlink_status(value);
  if (fs::is_symlink(status)) {
    status = fs::status(value);
    path = fs::canonical(value);
  }
  return fs::is_regular(status) ? fs::detail::extract_parent_path(path) : path;
}

ustring testedPath(const ustring& name, const ustring& value) {
  ustring text = replacedAll(name, u"$TESSELROOT", fs::get_install_path());
  if (!value.empty()) text = fs::detail::make_native_form(replacedAll(text, u"$$", foundFolder(value)));
  if (text.starts_with(u'~')) text = fl::i18n::getenv("HOME") + text.substr(1);
  normalizePath(text);
  return text;
}

ustring finderCommand(const ustring& name, const ustring& value) {
  ustring command = name;
  if (!value.empty()) {
    const bool isFile = fs::is_regular(fs::status(value));
    command = replacedAll(command, u"$$", isFile ? fs::detail::extract_parent_path(value) : value);
  }
  normalizePath(command);
  return command;
}

bool answerNo() {
  logMessage(msg::No(), true);
  return false;
}

bool answerWithValue(const ustring& value) {
  logMessage(msg::YesValue(value), true);
  return true;
}

/// For files and folders alike: deliberate, a folder satisfies `fileExists` and a file `dirExists`.
std::optional<bool> pathTest(MessageRecord (*looking)(const ustring&), const Element& element, ustring& value) {
  const std::optional<ustring> name = attributeOf(element, u"name");
  if (!name) return std::nullopt;
  const ustring path = testedPath(*name, value);
  logMessage(looking(path), false);
  if (!fs::exists(path)) return answerNo();
  value = fs::detail::make_native_form(path);
  logMessage(msg::Yes(), true);
  return true;
}

std::optional<bool> registryValueExists(RegistryRoot root, const char* rootName, const Element& element,
                                        ustring& value) {
  const std::optional<ustring> name = attributeOf(element, u"name");
  const std::optional<ustring> path = attributeOf(element, u"path");
  if (!name || !path) return std::nullopt;
  logMessage(msg::LookingRegistry(rootName, *path, *name), false);
  const std::optional<ustring> found = readRegistry(root, *path, *name);
  if (!found) return answerNo();
  value = *found;
  return answerWithValue(value);
}

}  // namespace

LocationFinder::Verdict LocationFinder::fileExists(const Element& element, ustring& value) const {
  return pathTest(&msg::LookingFile, element, value);
}

LocationFinder::Verdict LocationFinder::dirExists(const Element& element, ustring& value) const {
  return pathTest(&msg::LookingFolder, element, value);
}

LocationFinder::Verdict LocationFinder::envVarExists(const Element& element, ustring& value) const {
  const std::optional<ustring> name = attributeOf(element, u"name");
  if (!name) return std::nullopt;
  logMessage(msg::LookingEnv(*name), false);
  const ustring found = fl::i18n::getenv(fl::i18n::to_string(*name));
  if (found.empty()) return answerNo();
  value = found;
  return answerWithValue(value);
}

LocationFinder::Verdict LocationFinder::cmdReturns(const Element& element, ustring& value) const {
  const std::optional<ustring> name = attributeOf(element, u"name");
  if (!name) return std::nullopt;
  const ustring command = finderCommand(*name, value);
  logMessage(msg::ExecutingCmd(command), false);
  // Unlike the other tests, a command that fails wipes what was found so far.
  value.clear();
  ustring standardOutput;
  ustring standardError;
  const std::int32_t status = runShellCommand(command, standardOutput, standardError, calledFromHost_);
  if (status != 0 || standardOutput.empty()) return answerNo();
  value = trimmed(standardOutput);
  normalizePath(value);
  return answerWithValue(value);
}

LocationFinder::Verdict LocationFinder::hklmExists(const Element& element, ustring& value) const {
  return registryValueExists(RegistryRoot::LocalMachine, "HKLM", element, value);
}

LocationFinder::Verdict LocationFinder::hkcuExists(const Element& element, ustring& value) const {
  return registryValueExists(RegistryRoot::CurrentUser, "HKCU", element, value);
}

}  // namespace zex_cmd
