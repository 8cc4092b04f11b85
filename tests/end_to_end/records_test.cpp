#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

namespace {

/// What the version record tells behind its fixed beginning, for one choice of switches.
struct Told {
  std::string name;
  std::string switches;
  std::string text;
};

void PrintTo(const Told& told, std::ostream* stream) {
  *stream << told.switches;
}

class Records : public EndToEnd, public testing::WithParamInterface<Told> {};

TEST_P(Records, TellHowEachLanguageWasBuilt) {
  for (const std::string sources : {"value.c", "value.c -fortran", "value.cpp", "bits.f90", "kernel.cu"}) {
    const bool refused = GetParam().switches == "-R2018a" && sources.find('f') != std::string::npos;
    if (refused || needsMissingTool(sources)) continue;
    const std::string product = sources.substr(0, sources.find('.')) + ".zexa64";
    std::filesystem::remove(product);

    const Outcome outcome = build(GetParam().switches + " " + sources, {product});

    EXPECT_EQ(record(product), "@(#)zex-record form=1 kind=driver " + GetParam().text) << sources;
    EXPECT_EQ(outcome.out.find("arning"), std::string::npos) << outcome.out;
  }
}

const Told told[] = {
    {"Default", "", "release=R2017b dims=64 cmd=1;"},
    {"R2017b", "-r2017B", "release=R2017b dims=64 cmd=1;"},
    {"R2018a", "-R2018a", "release=R2018a dims=64 cmd=1;"},
    {"Large", "-largeArrayDims", "release=R2017b dims=64 cmd=1;"},
    {"Compatible", "-largeArrayDims -compatibleArrayDims", "release=R2017b dims=32 cmd=1;"},
};

INSTANTIATE_TEST_SUITE_P(EndToEnd, Records, testing::ValuesIn(told), NameOfRow());

}  // namespace

}  // namespace end_to_end
