#include "standalone/ada/AdaCommand.hpp"

#include <algorithm>
#include <iterator>

#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "standalone/calls/HostCall.hpp"

namespace host::standalone {

namespace {

using fl::filesystem::absolute;
using namespace fl::filesystem::detail;

constexpr char16_t productExtension[] = u"." ZEX_PLATFORM_TAG;

struct Flag {
  const char16_t* name;
  bool AdaCommand::*field;
};

constexpr Flag flagsInAnyCase[] = {
    {u"-n", &AdaCommand::dryRun},
    {u"-silent", &AdaCommand::silent},
    {u"-v", &AdaCommand::verbose},
};

constexpr Flag exactFlags[] = {
    {u"-g", &AdaCommand::debug},
    {u"-O", &AdaCommand::optimize},
};

template <std::size_t count>
bool set(AdaCommand& command, const Flag (&flags)[count], const fl::ustring& word) {
  const auto found =
      std::find_if(std::begin(flags), std::end(flags), [&](const Flag& flag) { return flag.name == word; });
  if (found == std::end(flags)) return false;
  command.*(found->field) = true;
  return true;
}

bool isAdaSource(const fl::ustring& word) {
  const fl::ustring extension = extract_extension(word);
  return extension == u"adb" || extension == u"ads";
}

/// The body beside a ".ads" file is what is compiled.
fl::ustring compiledFile(const fl::ustring& source) {
  if (!fl::filesystem::is_regular(fl::filesystem::status(source)))
    throw HostFunctionFailure("TESSEL:host:AdaSourceNotFound",
                              u"The Ada source '" + source + u"' was not found, or it is not a file.");
  const fl::ustring body = source.substr(0, source.size() - 1) + u"b";
  return fl::filesystem::exists(body) ? body : source;
}

fl::ustring productPath(const fl::ustring& source, const fl::ustring& output, const fl::ustring& outputFolder) {
  const fl::ustring named = output.empty() ? extract_filename(source) : absolute(output);
  fl::ustring folder = outputFolder;
  if (folder.empty()) folder = output.empty() ? fl::filesystem::get_current_path() : extract_parent_path(named);
  return concatenate_pathname(folder, extract_stem(named) + productExtension);
}

}  // namespace

AdaCommand::AdaCommand(const std::vector<fl::ustring>& arguments) {
  std::vector<fl::ustring> sources;
  fl::ustring output;
  fl::ustring outputFolder;
  for (auto word = arguments.begin(); word != arguments.end(); ++word) {
    const auto value = [&] {
      if (std::next(word) == arguments.end())
        throw HostFunctionFailure("TESSEL:host:AdaValueMissing",
                                  u"The switch '" + *word + u"' needs a value behind it, and nothing follows.");
      return *++word;
    };
    const fl::ustring lowered = fl::i18n::lcctype::transform(*word, fl::i18n::to_lower);
    if (lowered == u"-ada" || set(*this, flagsInAnyCase, lowered) || set(*this, exactFlags, *word)) continue;
    if (lowered == u"-output") {
      output = value();
    } else if (lowered == u"-outdir") {
      outputFolder = absolute(value());
    } else if (word->starts_with(u"-I") && word->size() > 2) {
      includeFolders.push_back(absolute(word->substr(2)));
    } else if (!word->starts_with(u'-') && isAdaSource(*word)) {
      sources.push_back(absolute(*word));
    } else {
      throw HostFunctionFailure(
          "TESSEL:host:AdaUnknownArgument",
          u"'" + *word +
              u"' cannot stand in a command with -ada. It takes one Ada source "
              u"(.adb or .ads) and the switches -output, -outdir, -I, -g, -O, -n, -v and -silent.");
    }
  }
  if (sources.size() != 1)
    throw HostFunctionFailure(
        "TESSEL:host:AdaOneSource",
        u"A command with -ada needs exactly one Ada source (.adb or .ads); the other units "
        u"are found by their names, in its folder, the current one and those given with -I.");
  source = compiledFile(sources.front());
  product = productPath(source, output, outputFolder);
  optimize = optimize || !debug;
}

}  // namespace host::standalone
