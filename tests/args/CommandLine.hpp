#pragma once

#include <gmock/gmock.h>

#include "args/ZexArgs.hpp"
#include "platform/tokens.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_test {

/// A command line, and what it leads to.
struct Case {
  std::vector<fl::ustring> line;
  std::string expected;
};

/// A host and a folder for trying command lines. What a line leads to is told as one text: the failure, or the
/// fields of the record that differ from those of a fresh one. The folder itself is told as "~".
class CommandLine : public testing::Test {
 protected:
  using Args = zex_cmd::ZexArgs;

  /// The tokens alone, without the checks that follow them.
  void expectWalked(const std::vector<Case>& cases) {
    for (const Case& row : cases) EXPECT_EQ(after(&Args::walkTokens, row.line), row.expected);
  }
  /// Whole commands; of each the beginning or the end is told.
  void expectParsed(const std::vector<Case>& cases) {
    using namespace testing;
    for (const Case& row : cases)
      EXPECT_THAT(parsed(row.line), AnyOf(StartsWith(row.expected), EndsWith(row.expected)));
  }
  std::string parsed(const std::vector<fl::ustring>& line) { return after(&Args::parseArguments, line); }

  RecordingServices host;
  Scratch scratch;
  Args args;

 private:
  std::string after(void (Args::*step)(const std::vector<fl::ustring>&), const std::vector<fl::ustring>& line) {
    args = Args();
    const std::string failure = failureOf([&] { (args.*step)(line); });
    const std::string text = failure == "no error" ? zex_test::told(summary()) : failure;
    return utf8(zex_cmd::replacedAll(utf16(text), utf16(scratch.told()), u"~"));
  }

  std::string summary() const {
    std::string text, languages, changed;
    const auto tell = [&](const std::string& name, const std::string& value) {
      if (!value.empty()) text += (text.empty() ? "" : "; ") + name + "=" + value;
    };
    for (const char* name : {"DEFINES", "INCLUDE", "LIBPATH", "LIBRARIES", "EXLIBRARIES"})
      tell(name, utf8(args.variableByName(name)));
    for (const std::string& name : args.languages) languages += (languages.empty() ? "" : ",") + name;
    tell("arch", args.arch == Args().arch ? "" : args.arch);
    tell("client", args.client);
    tell("release", args.release);
    tell("languages", languages);
    tell("sources", utf8(args.sourcesText()));
    tell("objects", utf8(args.objectsText()));
    tell("optionsFile", utf8(args.optionsFile));
    tell("output", utf8(args.output));
    tell("outDir", utf8(args.outDir));
    tell("setupArgument", utf8(args.setupArgument));
    tell("tempDir", utf8(args.tempDir));
    for (const auto& [name, value] : args.variables) tell(utf8(name), "<" + utf8(value) + ">");
    const std::pair<const char*, bool Args::*> flags[] = {
        {"compileOnly", &Args::compileOnly}, {"debug", &Args::debug},       {"dryRun", &Args::dryRun},
        {"optimize", &Args::optimize},       {"setup", &Args::setup},       {"silent", &Args::silent},
        {"verbose", &Args::verbose},         {"linkOnly", &Args::linkOnly}, {"word", &Args::setupLanguageGiven},
        {"host", &Args::calledFromHost},     {"check", &Args::zexCheck}};
    for (const auto& [name, flag] : flags) {
      if (args.*flag != Args().*flag) changed += (changed.empty() ? "" : ",") + std::string(name);
    }
    tell("flags", changed);
    return text;
  }
};

}  // namespace zex_test
