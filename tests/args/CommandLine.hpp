#pragma once

#include <gmock/gmock.h>

#include "args/ZexArgs.hpp"
#include "platform/tokens.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

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
  static std::string shown(const std::string& text) { return text; }
  static std::string shown(const fl::ustring& text) { return zex_test::utf8(text); }

  std::string summary() const {
    std::string text, languages, changed;
    const auto tell = [&](const std::string& name, const auto& value) {
      if (!value.empty()) text += (text.empty() ? "" : "; ") + name + "=" + shown(value);
    };
    const auto list = [](std::string& names, const std::string& name) {
      names += (names.empty() ? "" : ",") + name;
    };
    const Args fresh;
    for (const char* name : {"DEFINES", "INCLUDE", "LIBPATH", "LIBRARIES", "EXLIBRARIES"}) {
      tell(name, args.variableByName(name));
    }
    tell("arch", args.arch == fresh.arch ? std::string() : args.arch);
    tell("client", args.client);
    tell("release", args.release);
    for (const std::string& name : args.languages) list(languages, name);
    tell("languages", languages);
    tell("sources", args.sourcesText());
    tell("objects", args.objectsText());
    tell("optionsFile", args.optionsFile);
    tell("output", args.output);
    tell("outDir", args.outDir);
    tell("setupArgument", args.setupArgument);
    tell("tempDir", args.tempDir);
    for (const auto& [name, value] : args.variables) tell(shown(name), u"<" + value + u">");
    const std::pair<const char*, bool Args::*> flags[] = {{"compatible", &Args::compatibleArrayDims},
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
                                                          {"check", &Args::zexCheck}};
    for (const auto& [name, flag] : flags) {
      if (args.*flag != fresh.*flag) list(changed, name);
    }
    tell("flags", changed);
    return text;
  }

  std::string told(const std::string& failure) const {
    const std::string text = failure == "no error" ? zex_test::told(summary()) : failure;
    return utf8(zex_cmd::replacedAll(utf16(text), utf16(scratch.told()), u"~"));
  }
};

}  // namespace zex_test
