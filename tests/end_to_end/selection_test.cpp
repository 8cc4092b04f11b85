#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

class Selection : public EndToEnd {
 protected:
  /// A document of gcc under another name, stamped with a release.
  static std::string document(const std::string& name, const std::string& release) {
    std::string text = gccDocument("Name=\"gcc\"", "Name=\"" + name + "\"");
    return text.replace(text.find("</config>"), 9, "<TESSEL release=\"" + release + "\"/></config>");
  }

  std::string compilerOf(const std::string& arguments) const {
    const std::string out = build(arguments + " -output product").out;
    const std::size_t begin = out.find("Building(\"") + 10;
    return out.substr(begin, out.find('"', begin) - begin);
  }

  std::filesystem::path preferred(const std::string& suffix = "") const {
    return scratch.folder() / "prefs" / ("zex_C_glnxa64" + suffix + ".xml");
  }

  Selection() { write("product.zexa64", ""); }
};

}  // namespace

TEST_F(Selection, TheCurrentFolderHidesThePreferencesFolderWhichHidesTheCatalogue) {
  EXPECT_EQ(compilerOf("value.c"), "gcc");
  EXPECT_THAT(scratch.names("prefs"), testing::IsEmpty());  // an implicit choice writes nothing
  write(preferred(), document("preferred", "R2018a"));
  EXPECT_EQ(compilerOf("value.c"), "preferred");
  write("zex_C_glnxa64.xml", document("here", "R2018a"));
  EXPECT_EQ(compilerOf("value.c"), "here");
  EXPECT_EQ(compilerOf("-f \"$OPTS/clang.xml\" value.c"), "clang");
  EXPECT_EQ(contentOf(preferred()), document("preferred", "R2018a"));
}

TEST_F(Selection, AnOutdatedPreferenceIsRewrittenFromTheCatalogueOnce) {
  const std::string outdated = document("old", "R2016b");
  write(preferred(), outdated);

  const std::string renamed =
      "FileRenamed(\"" + preferred().string() + "\", \"" + preferred("_backup").string() + "\")\n";
  EXPECT_THAT(build("value.c", {"value.zexa64"}).out, testing::HasSubstr(renamed));
  EXPECT_EQ(contentOf(preferred("_backup")), outdated);
  const std::string refreshed = contentOf(preferred());
  EXPECT_THAT(refreshed, testing::HasSubstr("<TESSEL release=\"R2018a\"/>"));

  EXPECT_EQ(compilerOf("value.c"), "gcc");
  EXPECT_EQ(contentOf(preferred()), refreshed);
  EXPECT_EQ(contentOf(preferred("_backup")), outdated);
}

}  // namespace end_to_end
