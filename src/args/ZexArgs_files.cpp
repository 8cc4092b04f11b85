#include <array>

#include "args/ZexArgs.hpp"
#include "args/known_names.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/directory_iterator.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "platform/contains.hpp"
#include "platform/letter_case.hpp"
#include "platform/paths.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

namespace {

// Every platform knows the extensions of all: whether a file is of use is for the link to say.
constexpr std::array<std::string_view, 8> libraryExtensions{
    ".lib", ".so", ".dylib", ".a", ".win32_lib", ".win64_lib", ".glnxa64_a", ".maci64_a",
};
constexpr std::array<std::string_view, 7> objectExtensions{
    ".obj", ".o", ".glnxa64_o", ".maci64_o", ".win64_obj", ".win32_obj", ".res",
};

/// With its dot, lowered; empty where there is none.
std::string loweredExtension(const ustring& path) {
  const ustring extension = fs::detail::extract_extension(fs::detail::make_native_form(path));
  if (extension.empty()) return {};
  return fl::i18n::to_string(lowered(u"." + extension));
}

void takeSetupLanguage(ZexArgs& args, const ustring& token) {
  const bool isAny = caseFolded(token) == "any";
  args.languages.push_back(isAny ? "any" : args.languageFromName(fl::i18n::to_string(token)));
  args.setupLanguageGiven = true;
}

void takeSource(ZexArgs& args, const ustring& path, const std::string& extension) {
  args.addSources(path);
  args.takeLanguageOf(extension);
}

void sortFile(ZexArgs& args, const ustring& token) {
  const ustring path = fullPath(token);
  const std::string extension = loweredExtension(path);
  // One language word only: a second one is a file.
  if (args.setup && !args.setupLanguageGiven && extension.empty()) return takeSetupLanguage(args, token);
  if (contains(libraryExtensions, extension)) return args.addLibrary(token, false);
  if (contains(objectExtensions, extension)) return args.objects.push_back(token);
  takeSource(args, path, extension);
}

void appendMatches(std::vector<ustring>& sources, const ustring& path) {
  if (path.find(u'*') == ustring::npos && !fs::exists(path)) raiseTyped(msg::SrcNotFound(path, path));
  const ustring folder = fs::detail::make_native_form(fs::detail::remove_filename(path));
  const ustring pattern = fs::detail::extract_filename(path);
  for (const auto& entry : fs::upath_directory_iterator(folder, {pattern})) {
    const ustring source = entry.full_pathname();
    // A name that a pattern found can be as unfit for a command as a typed one.
    requireUsablePath(source);
    sources.push_back(source);
  }
}

ustring withoutLibExtension(const ustring& name) {
  if (loweredExtension(name) != ".lib") return name;
  const ustring native = fs::detail::make_native_form(name);
  const ustring folder = fs::detail::extract_parent_path(native);
  const ustring stem = fs::detail::extract_stem(native);
  return folder.empty() ? stem : folder + u"/" + stem;
}

ustring apiVersionFile(const std::vector<std::string>& languages, const std::string& language) {
  const auto isFor = [&](std::string_view name) {
    return language.empty() ? contains(languages, name) : language == name;
  };
  if (isFor("FORTRAN")) return u"fortran_zexapi_version.F";
  return isFor("C++") ? u"cpp_zexapi_version.cpp" : u"c_zexapi_version.c";
}

}  // namespace

void ZexArgs::classifyFile(const ustring& token) {
  try {
    sortFile(*this, token);
  } catch (const fs::FsysExceptionBase&) {
    translateFilesystemError(token);
  }
}

void ZexArgs::addSources(const ustring& path) {
  try {
    appendMatches(sources, path);
  } catch (const fs::FsysExceptionBase&) {
    translateFilesystemError(path);
  }
}

void ZexArgs::addLibrary(const ustring& name, bool byName) {
  if (byName) {
    libraries += u" " + quoteAlways(withoutLibExtension(name));
  } else {
    exLibraries += u" " + quoteAlways(name);
  }
}

void ZexArgs::addApiVersionSource(const std::string& language) {
  if (compileOnly || !client.empty()) return;
  // Objects alone are no longer alone then.
  linkOnly = false;
  addSources(fs::get_install_path() + u"/extern/version/" + apiVersionFile(languages, language));
  apiVersionSourceAdded = true;
}

}  // namespace zex_cmd
