#include <gmock/gmock.h>

#include "standalone/StandaloneServices.hpp"
#include "standalone/ada/ada_builder.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace {

TEST(AdaBuilder, RefusesWhatItDoesNotKnowAndTellsThatGnatIsMissing) {
  const zex_test::Scratch scratch;
  const zex_test::ScopedVariable path("PATH", "/nowhere"), temporary("TMPDIR", scratch.folder());
  scratch.write("a.adb", "");
  const std::pair<std::vector<fl::ustring>, const char*> rows[] = {
      {{u"-ada", u"a.adb", u"a.ads"}, "needs exactly one Ada source"},
      {{u"-ada", u"b.adb"}, "b.adb' was not found, or it is not a file"},
      {{u"-ada", u"a.adb", u"-G"}, "'-G' cannot stand in a command with -ada"},
      {{u"-ada", u"a.adb", u"-output"}, "'-output' needs a value"},
      {{u"-ada", u"a.adb"}, "The Ada tool 'gnatmake' was not found"},
  };
  host::standalone::StandaloneServices services;
  for (const auto& [arguments, words] : rows)
    EXPECT_THAT(zex_test::failureOf([&] { buildAda(services, arguments); }), testing::HasSubstr(words));
  EXPECT_EQ(scratch.names().size(), 1U) << "a temporary folder stays";
}

}  // namespace
