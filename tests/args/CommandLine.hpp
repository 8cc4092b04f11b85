#pragma once

#include <gmock/gmock.h>

#include "args/ZexArgs.hpp"
#include "fl/i18n/strings.hpp"
#include "platform/tokens.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace zex_test {

/// A command line, and where it leads to or how that begins or ends.
struct Case {
  std::vector<fl::ustring> line;
  std::string expected;
};

/// A host and a folder for trying command lines. What a line leads to is told as one text: the failure, or the
/// fields of the record that differ from those of a fresh one. The folder itself is told as "~".
class CommandLine : public testing::Test {
 protected:
  using Args = zex_cmd::ZexArgs;

  RecordingServices host;
  Scratch scratch;
  Args args;

  /// The tokens alone, without the checks that follow them.
  std::string walked(const std::vector<fl::ustring>& line) {
    args = Args();
    return told(failureOf([&] { args.walkTokens(line); }));
  }
  std::string parsed(const std::vector<fl::ustring>& line) {
    args = Args();
    return told(failureOf([&] { args.parseArguments(line); }));
  }

  void write(const std::vector<std::string>& names) const {
    for (const std::string& name : names) scratch.write(name, "");
  }

 private:
  static void tell(std::string& text, const std::string& name, const std::string& value) {
    if (!value.empty()) text += (text.empty() ? "" : "; ") + name + "=" + value;
  }
  static void tell(std::string& text, const std::string& name, const fl::ustring& value) {
    tell(text, name, fl::i18n::to_string(value));
  }

  std::string changedFlags(const Args& fresh) const {
    const std::pair<const char*, bool Args::*> flags[] = {
        {"compatible", &Args::compatibleArrayDims},
        {"compileOnly", &Args::compileOnly},
        {"debug", &Args::debug},
        {"dryRun", &Args::dryRun},
        {"large", &Args::largeArrayDims},
        {"optimize", &Args::optimize},
        {"setup", &Args::setup},
        {"silent", &Args::silent},
        {"verbose", &Args::verbose},
        {"linkOnly", &Args::linkOnly},
        {"word", &Args::setupLanguageGiven},
        {"host", &Args::calledFromHost},
        {"check", &Args::zexCheck},
    };
    std::string changed;
    for (const auto& [name, flag] : flags) {
      if (args.*flag != fresh.*flag) changed += (changed.empty() ? "" : ",") + std::string(name);
    }
    return changed;
  }

  std::string summary() const {
    const Args fresh;
    std::string text, languages;
    for (const std::string& name : args.languages) languages += (languages.empty() ? "" : ",") + name;
    for (const char* name : {"DEFINES", "INCLUDE", "LIBPATH", "LIBRARIES", "EXLIBRARIES"}) {
      tell(text, name, args.variableByName(name));
    }
    tell(text, "arch", args.arch == fresh.arch ? std::string() : args.arch);
    tell(text, "client", args.client);
    tell(text, "release", args.release);
    tell(text, "languages", languages);
    tell(text, "sources", args.sourcesText());
    tell(text, "objects", args.objectsText());
    tell(text, "optionsFile", args.optionsFile);
    tell(text, "output", args.output);
    tell(text, "outDir", args.outDir);
    tell(text, "setupArgument", args.setupArgument);
    tell(text, "tempDir", args.tempDir);
    for (const auto& [name, value] : args.variables) tell(text, fl::i18n::to_string(name), u"<" + value + u">");
    tell(text, "flags", changedFlags(fresh));
    return text;
  }

  std::string told(const std::string& failure) const {
    const fl::ustring text = fl::i18n::to_ustring(failure == "no error" ? summary() : failure);
    return fl::i18n::to_string(zex_cmd::replacedAll(text, scratch.path(), u"~"));
  }
};

}  // namespace zex_test
