#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

/// A document of gcc under another name, stamped with a release.
std::string document(const std::string& name, const std::string& release) {
  return replaced(gccDocument("Name=\"gcc\"", "Name=\"" + name + "\""), "</config>",
                  "<TESSEL release=\"" + release + "\"/></config>");
}

TEST_F(EndToEnd, TheCurrentFolderHidesThePreferencesFolderWhichHidesTheCatalogue) {
  const auto expectCompiler = [&](const std::string& name, const std::string& arguments = "") {
    EXPECT_THAT(build("-n value.c " + arguments).out, testing::HasSubstr("Building(\"" + name + "\")"));
  };
  const std::filesystem::path preferred = preferences / "zex_C_glnxa64.xml";
  const std::filesystem::path backup = preferences / "zex_C_glnxa64_backup.xml";
  expectCompiler("gcc");
  EXPECT_THAT(scratch.names("prefs"), testing::IsEmpty()) << "an implicit choice writes nothing";

  write(preferred, document("preferred", "R2018a"));
  expectCompiler("preferred");
  write("zex_C_glnxa64.xml", document("here", "R2018a"));
  expectCompiler("here");
  expectCompiler("clang", "-f \"$OPTS/clang.xml\"");
  EXPECT_EQ(contentOf(preferred), document("preferred", "R2018a"));

  // An outdated one is rewritten from the catalogue once.
  std::filesystem::remove("zex_C_glnxa64.xml");
  const std::string outdated = document("old", "R2016b");
  write(preferred, outdated);
  EXPECT_THAT(build("value.c", {"value.zexa64"}).out,
              testing::HasSubstr("FileRenamed(\"" + preferred.string() + "\", \"" + backup.string() + "\")\n"));
  EXPECT_EQ(contentOf(backup), outdated);
  const std::string refreshed = contentOf(preferred);
  EXPECT_THAT(refreshed, testing::HasSubstr("<TESSEL release=\"R2018a\"/>"));
  expectCompiler("gcc");
  EXPECT_EQ(contentOf(preferred), refreshed);
  EXPECT_EQ(contentOf(backup), outdated);
}

}  // namespace

}  // namespace end_to_end
