#include "zexfile/Inspector.hpp"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
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

/// The numbers in the tables of an object file: place, bytes and value of each, in hexadecimal digits.
struct Format {
  const char* numbers;
  const char* unloaded;  ///< with this one the system does not load the data
};
constexpr Format elf = {"0:4:464C457F 4:1:2 5:1:1 20:8:80 36:2:38 38:2:1 80:4:1 88:8:400 A0:8:SIZE", "80:4:4"};
constexpr Format elfObject = {"0:4:464C457F 4:1:2 5:1:1 28:8:80 3A:2:40 3C:2:1 84:4:1 88:8:2 98:8:400 A0:8:SIZE",
                              "88:8:0"};
constexpr Format pe = {"0:2:5A4D 3C:4:40 40:4:4550 44:2:8664 46:2:1 60:4:1000 68:4:SIZE 6C:4:400 7C:4:40000040",
                       "60:4:14"};
constexpr Format coff = {"0:2:8664 2:2:1 24:4:SIZE 28:4:400 38:4:40000040", "38:4:42000040"};
/// One section in the second of two commands.
constexpr Format machO = {"0:4:FEEDFACF 10:4:2 20:4:2 24:4:8 28:4:19 2C:4:98 68:4:1 98:8:SIZE A0:4:400",
                          "B0:4:2000000"};
/// The second of two parts, of which the table tells in big-endian order.
constexpr Format fat = {"0:4:BEBAFECA 4:4:2000000 24:4:40000 29:1:10", "4:4:1000000"};

constexpr std::size_t dataAt = 0x400;
constexpr std::size_t tablesEnd = 0xC0;

void put(std::string& image, const char* numbers) {
  std::istringstream words(numbers);
  std::size_t at = 0, width = 0;
  char colon = 0;
  for (std::string value; words >> std::hex >> at >> colon >> width >> colon >> value;) {
    std::uint64_t rest = value == "SIZE" ? image.size() - dataAt : std::stoull(value, nullptr, 16);
    for (; width > 0; --width, rest >>= 8) image.at(at++) = static_cast<char>(rest);
  }
}

std::string image(const Format& format, const std::string& data, bool isLoaded = true) {
  std::string bytes = std::string(dataAt, '\0') + data;
  put(bytes, format.numbers);
  if (!isLoaded) put(bytes, format.unloaded);
  return bytes;
}

std::vector<std::string> images(const std::string& data, bool areLoaded = true) {
  std::vector<std::string> all;
  for (const Format& format : {elf, elfObject, pe, coff, machO}) all.push_back(image(format, data, areLoaded));
  all.push_back(image(fat, image(machO, data), areLoaded));
  return all;
}

/// In memory where that can be had, for the many files.
struct Scratch : zex_test::ScopedVariable, zex_test::Scratch {
  Scratch() : ScopedVariable("TMPDIR", std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp") {}
};

/// What an inspection says, in one line.
std::string told(const std::string& name) {
  const Inspector inspector(std::filesystem::absolute(name).u16string(), false);
  std::string text = utf8(inspector.get_embedded_version_compiler_flag());
  EXPECT_EQ(inspector.needs_consistent_embedded_version(), !text.empty());
  if (inspector.has_error()) text += "error";
  if (inspector.needs_upgrade()) text += "upgrade";
  return text;
}

std::string toldOf(const std::string& bytes) {
  std::ofstream("product", std::ios::binary) << bytes;
  return told("product");
}

TEST(Inspector, FindsWhatIsLoadedInEveryFormat) {
  const Scratch scratch;
  const std::string both = "x" + source2018 + source2017 + "y";
  for (const std::string& bytes : images(both)) EXPECT_EQ(toldOf(bytes), "error") << bytes.substr(0, 4);
  for (const std::string& bytes : images(both, false)) EXPECT_EQ(toldOf(bytes), "") << bytes.substr(0, 4);
  EXPECT_EQ(toldOf(both) + toldOf("") + told("missing") + told("."), "");
  const Inspector strict(scratch.path("missing"), true);
  EXPECT_TRUE(strict.has_error() && !strict.issues.empty());
}

TEST(Inspector, Verdicts) {
  const Scratch scratch;
  const std::string source = marker + "form=1 kind=source release=";
  const std::string driver32 = marker + "form=1 kind=driver release=R2018a dims=32;";
  const std::string r2018 = "-UTESSEL_ZEXCMD_RELEASE -DTESSEL_ZEXCMD_RELEASE=R2018a";
  const std::pair<std::string, std::string> cases[] = {
      {source2018 + source2018, ""},
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
  for (const auto& [data, expected] : cases) EXPECT_EQ(toldOf(image(elf, data)), expected) << data;
}

TEST(Inspector, ARecordAcrossTwoWindowsIsFound) {
  const Scratch scratch;
  const std::size_t window = std::size_t{1} << 20;
  for (const std::size_t ahead : {0U, 1U, 15U, 40U, 511U, 512U}) {
    const std::string data = std::string(window - ahead, '@') + source2018 + std::string(window, 'x') + driver2017;
    EXPECT_NE(toldOf(image(elf, data)), "") << ahead;
  }
}

TEST(Inspector, BrokenFilesDoNoHarm) {
  const Scratch scratch;
  const std::vector<std::string> whole =
      images(source2018 + marker + "kind=old;" + std::string(300, 'x') + driver2017);
  std::mt19937 random(20180315);
  const auto below = [&random](std::size_t end) { return random() % end; };
  const std::clock_t start = std::clock();
  // Files cost ten times as much under Wine.
  const std::size_t rounds = zex_test::platform.architecture == "glnxa64" ? 20'000 : 2'000;
  std::size_t stillFound = 0;
  for (std::size_t round = 0; round < rounds; ++round) {
    std::string bytes = whole[below(whole.size())];
    for (std::size_t changes = below(6); changes > 0; --changes)
      bytes[below(below(2) != 0 ? tablesEnd : bytes.size())] = static_cast<char>(below(3) != 0 ? random() : 0xFF);
    if (below(4) == 0) bytes.resize(below(bytes.size()));
    if (!toldOf(bytes).empty()) ++stillFound;
  }
  EXPECT_GT(stillFound, rounds / 5) << "hardly any file got as far as its records";
  EXPECT_LT(std::clock() - start, 20 * CLOCKS_PER_SEC);
}

}  // namespace
