#include <gtest/gtest.h>
#include <sys/stat.h>

#include "build/temporary/ZexTempFile.hpp"
#include "support/Scratch.hpp"

namespace zex_cmd {
namespace {

namespace fs = std::filesystem;

TEST(ZexTempFile, ATakenNameIsNeitherUsedNorRemoved) {
  const zex_test::Scratch scratch;
  scratch.write("kept", "kept");
  void (*const plants[])(const fs::path&) = {
      [](const fs::path& name) { fs::create_symlink("kept", name); },
      [](const fs::path& name) { fs::create_symlink("nowhere", name); },
      [](const fs::path& name) { fs::copy_file("kept", name); },
      [](const fs::path& name) { mkfifo(name.c_str(), 0666); },
      [](const fs::path& name) { fs::create_directory(name); },
  };
  for (const auto& plant : plants) {
    fs::path taken;
    {
      ZexTempFile file(true, scratch.path());
      taken = fs::path(file.path());
      plant(taken);
      EXPECT_EQ(file.makeFile(), EEXIST);
    }
    EXPECT_TRUE(fs::exists(fs::symlink_status(taken)));
    EXPECT_EQ(scratch.read("kept"), "kept");
    EXPECT_FALSE(scratch.has("nowhere"));
    fs::remove(taken);
  }
}

}  // namespace
}  // namespace zex_cmd
