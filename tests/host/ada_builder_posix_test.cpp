#include <gtest/gtest.h>

#include "standalone/ada/ada_builder.hpp"
#include "standalone/calls/HostCall.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace {

using fl::ustring;

TEST(AdaBuilder, RefusesWhatItDoesNotKnowAndTellsThatGnatIsMissing) {
  const zex_test::Scratch scratch;
  const zex_test::ScopedVariable path("PATH", "/nowhere"), temporary("TMPDIR", scratch.folder());
  zex_test::RecordingServices host;
  scratch.write("a.adb", "");
  scratch.write("folder.adb/file", "");
  const std::pair<std::vector<ustring>, std::string> cases[] = {
      {{u"-ada", u"a.adb", u"a.ads"}, "TESSEL:host:AdaOneSource"},
      {{u"-ada", u"folder.adb"}, "TESSEL:host:AdaSourceNotFound"},
      {{u"-ada", u"a.adb", u"-G"}, "TESSEL:host:AdaUnknownArgument"},
      {{u"-ada", u"a.adb", u"-output"}, "TESSEL:host:AdaValueMissing"},
      {{u"-ada", u"a.adb"}, "TESSEL:host:AdaCompilerNotFound"},
  };
  for (const auto& [arguments, identifier] : cases) {
    try {
      host::standalone::buildAda(host, arguments);
      FAIL() << "no failure, where one is due: " << identifier;
    } catch (const host::standalone::HostFunctionFailure& failure) {
      EXPECT_EQ(failure.identifier(), identifier);
    }
  }
  EXPECT_EQ(host.shellLines.size(), 1U) << "only the last command gets as far as its tools";
  EXPECT_EQ(scratch.names(), (std::vector<std::string>{"a.adb", "folder.adb"})) << "a temporary folder stays";
}

}  // namespace
