#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

TEST_F(EndToEnd, RecordsTellHowEachLanguageWasBuilt) {
  struct {
    std::string switches, told;
  } const rows[] = {
      {"", "release=R2017b dims=64"},
      {"-R2018a", "release=R2018a dims=64"},
      {"-largeArrayDims -compatibleArrayDims", "release=R2017b dims=32"},
  };
  for (const auto& row : rows) {
    for (const std::string sources : {"value.c", "value.c -fortran", "value.cpp", "bits.f90", "kernel.cu"}) {
      const bool refused = row.switches == "-R2018a" && sources.find('f') != std::string::npos;
      if (refused || needsMissingTool(sources)) continue;
      const std::string product = sources.substr(0, sources.find('.')) + ".zexa64";
      std::filesystem::remove(product);
      const Outcome outcome = build(row.switches + " " + sources, {product});
      EXPECT_EQ(record(product), "@(#)zex-record form=1 kind=driver " + row.told + " cmd=1;") << sources;
      EXPECT_EQ(outcome.out.find("arning"), std::string::npos) << outcome.out;
    }
  }
}

TEST_F(EndToEnd, TheLibraryExportsItsFaceAlone) {
  const std::string symbols =
      "nm -DC --defined-only \"$OPTS/../libzexcmd.so\" | cut -d ' ' -f 2- | grep -v ' __' | sort";
  EXPECT_EQ(shell(symbols + " | grep -v '^V '").out,
            "R libzexcmd_build_date\nR libzexcmd_relative_path\nR libzexcmd_version\n"
            "T zex_cmd::ZexCmdFactory::createZex()\n");
  // Beside the face, what exceptions are told by; nothing of the libraries below.
  EXPECT_EQ(shell(symbols + " | grep '^V ' | grep -vE '^V typeinfo (name )?for " +
                  "(zex_cmd::ZexCmdI$|foundation::core::except::|fl::filesystem::)'")
                .out,
            "");
}

}  // namespace end_to_end
