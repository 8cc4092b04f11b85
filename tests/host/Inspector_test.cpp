#include "zexfile/Inspector.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "support/Scratch.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace {

using zex_test::utf8;
using zexfile::Inspector;

const std::string marker = "@(#)zex-record ";
const std::string source2018 = marker + "form=1 kind=source release=R2018a dims=64;";
const std::string source2017 = marker + "form=1 kind=source release=R2017b dims=64;";
const std::string driver2017 = marker + "form=1 kind=driver release=R2017b dims=64 cmd=1;";

/// A number in an image: its place, its bytes and its value.
struct Number {
  std::size_t at, width;
  std::uint64_t value;
};
using Numbers = std::vector<Number>;

enum Order { Little, Big };
void put(std::string& image, const Numbers& numbers, Order order = Little) {
  for (auto [at, width, value] : numbers) {
    for (std::size_t i = 0; i < width; ++i, value >>= 8)
      image.at(at + (order == Big ? width - 1 - i : i)) = static_cast<char>(value);
  }
}

constexpr std::size_t dataAt = 0x400;
constexpr std::size_t tablesEnd = 0xC0;

/// An object file made by hand: the numbers of its tables and, behind them, its data.
std::string image(const std::string& data, const Numbers& numbers, Order order = Little) {
  std::string bytes(dataAt, '\0');
  put(bytes, numbers, order);
  return bytes + data;
}

/// One segment of a kind: 1 is loaded, 4 a note.
std::string elf(const std::string& data, std::uint64_t kind = 1) {
  const Numbers numbers = {{0, 4, 0x464C457F}, {4, 1, 2},         {5, 1, 1},
                           {32, 8, 0x80},      {54, 2, 56},       {56, 2, 1},
                           {0x80, 4, kind},    {0x88, 8, dataAt}, {0xA0, 8, data.size()}};
  return image(data, numbers);
}

/// One section of an object that is not linked; the flag 2 stands for loaded.
std::string elfObject(const std::string& data, std::uint64_t flags = 2) {
  const Numbers numbers = {
      {0, 4, 0x464C457F}, {4, 1, 2},    {5, 1, 1},        {40, 8, 0x80},     {58, 2, 64},
      {60, 2, 1},         {0x84, 4, 1}, {0x88, 8, flags}, {0x98, 8, dataAt}, {0xA0, 8, data.size()}};
  return image(data, numbers);
}

std::string coff(const std::string& data) {
  return image(data, {{0, 2, 0x8664}, {2, 2, 1}, {36, 4, data.size()}, {40, 4, dataAt}, {56, 4, 0x40000040}});
}

std::string pe(const std::string& data, std::uint64_t inMemory = 0x1000) {
  const Numbers numbers = {{0, 2, 0x5A4D},         {60, 4, 0x40},     {0x40, 4, 0x4550},
                           {0x44, 2, 0x8664},      {0x46, 2, 1},      {0x60, 4, inMemory},
                           {0x68, 4, data.size()}, {0x6C, 4, dataAt}, {0x7C, 4, 0x40000040}};
  return image(data, numbers);
}

/// One section in the second of two commands.
std::string machO(const std::string& data, std::uint64_t flags = 0) {
  const Numbers numbers = {{0, 4, 0xFEEDFACF}, {16, 4, 2},     {32, 4, 2},  {36, 4, 8},
                           {40, 4, 0x19},      {44, 4, 152},   {104, 4, 1}, {152, 8, data.size()},
                           {160, 4, dataAt},   {176, 4, flags}};
  return image(data, numbers);
}

/// The second of two parts is the object.
std::string fat(const std::string& object) {
  return image(object, {{0, 4, 0xCAFEBABE}, {4, 4, 2}, {36, 4, dataAt}, {40, 4, object.size()}}, Big);
}

/// In memory where that can be had, for the many files.
struct Scratch : zex_test::ScopedVariable, zex_test::Scratch {
  Scratch() : ScopedVariable("TMPDIR", std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp") {}
};

/// What an inspection says, in one line.
std::string told(const std::string& name = "product") {
  const Inspector inspector(std::filesystem::absolute(name).u16string(), false);
  std::string text = utf8(inspector.get_embedded_version_compiler_flag());
  EXPECT_EQ(inspector.needs_consistent_embedded_version(), !text.empty());
  if (inspector.has_error()) text += "error";
  if (inspector.needs_upgrade()) text += "upgrade";
  return text;
}

std::string toldOf(const std::string& bytes) {
  std::ofstream("product", std::ios::binary) << bytes;
  return told();
}

using Cases = std::vector<std::pair<std::string, std::string>>;

TEST(Inspector, FindsWhatIsLoadedInEveryFormat) {
  const Scratch scratch;
  const std::string both = "x" + source2018 + source2017 + "y";
  const Cases loaded = {{"ELF", elf(both)},          {"object", elfObject(both)}, {"PE", pe(both)},
                        {"COFF object", coff(both)}, {"Mach-O", machO(both)},     {"fat", fat(machO(both))}};
  for (const auto& [name, bytes] : loaded) EXPECT_EQ(toldOf(bytes), "error") << name;

  const Cases onDiskOnly = {{"note segment", elf(both, 4)},
                            {"section of an object", elfObject(both, 0)},
                            {"padding behind the size in memory", pe(both, 20)},
                            {"debug section", machO(both, 0x02000000)},
                            {"text file", both},
                            {"empty file", ""}};
  for (const auto& [name, bytes] : onDiskOnly) EXPECT_EQ(toldOf(bytes), "") << name;

  EXPECT_EQ(told("missing") + told("."), "");
  const Inspector strict(scratch.path("missing"), true);
  EXPECT_TRUE(strict.has_error() && !strict.issues.empty());
}

TEST(Inspector, Verdicts) {
  const Scratch scratch;
  const std::string source = marker + "form=1 kind=source release=";
  const std::string driver32 = marker + "form=1 kind=driver release=R2018a dims=32;";
  const std::string r2018 = "-UTESSEL_ZEXCMD_RELEASE -DTESSEL_ZEXCMD_RELEASE=R2018a";
  const Cases cases = {{source2018 + source2018, ""},
                       {source2018 + source2018 + driver2017, r2018},
                       {driver2017 + source + "R2017b dims=32;", "-DZX_COMPAT_32"},
                       {driver32 + driver2017 + source2018, r2018 + " -UZX_COMPAT_32 -DZX_COMPAT_64"},
                       {driver2017 + source + "none dims=64;", "-UTESSEL_ZEXCMD_RELEASE -UTESSEL_DEFAULT_RELEASE"},
                       {source2018 + source + "R2018a dims=32;" + driver2017, "error"},
                       // Blanks, unknown words and newer forms are passed over; older ones must be built anew.
                       {driver2017 + marker + "form=1  kind=source x=% release=R2018a dims=64 y=a=b;", r2018},
                       {source2018 + marker + "form=2 kind=source release=R2017b dims=64;", ""},
                       {marker + "kind=driver;" + source2018 + driver2017, r2018 + "upgrade"},
                       // What is malformed is nothing, and a release with the signs of a shell least of all.
                       {driver2017 + source + "R2018a dims=64", ""},
                       {driver2017 + source + "R2018a`ls` dims=64;", ""},
                       {driver2017 + source + "R2018a x=" + std::string(600, 'x') + " dims=64;", ""},
                       {driver2017 + marker + "form=1 " + source2018, r2018}};
  for (const auto& [data, expected] : cases) EXPECT_EQ(toldOf(elf(data)), expected) << data;
}

TEST(Inspector, ARecordAcrossTwoWindowsIsFound) {
  const Scratch scratch;
  const std::size_t window = std::size_t{1} << 20;
  for (const std::size_t ahead : {0U, 1U, 15U, 40U, 511U, 512U}) {
    const std::string data = std::string(window - ahead, '@') + source2018 + std::string(window, 'x') + driver2017;
    EXPECT_NE(toldOf(elf(data)), "") << ahead;
  }
}

TEST(Inspector, BrokenFilesDoNoHarm) {
  const Scratch scratch;
  const std::string data = source2018 + marker + "kind=old;" + std::string(300, 'x') + driver2017;
  const std::vector<std::string> images = {elf(data), elfObject(data), pe(data), machO(data), fat(machO(data))};
  std::mt19937 random(20180315);
  const auto below = [&random](std::size_t end) { return random() % end; };
  const std::clock_t start = std::clock();
  // Files cost ten times as much under Wine.
  const std::size_t rounds = zex_test::platform.architecture == "glnxa64" ? 20'000 : 2'000;
  std::size_t stillFound = 0;
  for (std::size_t round = 0; round < rounds; ++round) {
    std::string bytes = images[below(images.size())];
    for (std::size_t changes = below(6); changes > 0; --changes)
      bytes[below(below(2) != 0 ? tablesEnd : bytes.size())] = static_cast<char>(below(3) != 0 ? random() : 0xFF);
    if (below(4) == 0) bytes.resize(below(bytes.size()));
    if (below(16) == 0) std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    if (!toldOf(bytes).empty()) ++stillFound;
  }
  EXPECT_GT(stillFound, rounds / 5) << "hardly any file got as far as its records";
  EXPECT_LT(std::clock() - start, 20 * CLOCKS_PER_SEC);
}

}  // namespace
