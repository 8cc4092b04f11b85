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
  std::string numbers;
  std::string unloaded;  ///< with this one, too, the system does not load the data
};
const Format formats[] = {
    // ELF: a library and an object.
    {"0:4:464C457F 4:1:2 5:1:1 20:8:80 36:2:38 38:2:1 80:4:1 88:8:400 A0:8:SIZE", " 80:4:4"},
    {"0:4:464C457F 4:1:2 5:1:1 28:8:80 3A:2:40 3C:2:1 84:4:1 88:8:2 98:8:400 A0:8:SIZE", " 88:8:0"},
    // PE: a library and an object.
    {"0:2:5A4D 3C:4:40 40:4:4550 44:2:8664 46:2:1 60:4:1000 68:4:SIZE 6C:4:400 7C:4:40000040", " 60:4:14"},
    {"0:2:8664 2:2:1 24:4:SIZE 28:4:400 38:4:40000040", " 38:4:42000040"},
    // Mach-O: one section in the second of two commands.
    {"0:4:FEEDFACF 10:4:2 20:4:2 24:4:8 28:4:19 2C:4:98 68:4:1 98:8:SIZE A0:4:400", " B0:4:2000000"},
};
/// Around a file of the last format: the second of two parts, of which the table tells in big-endian order.
const std::string fat = "0:4:BEBAFECA 4:4:2000000 24:4:40000 29:1:10";

std::string image(const std::string& numbers, const std::string& data) {
  std::string bytes = std::string(0x400, '\0') + data;
  std::istringstream words(numbers);
  std::size_t at = 0, width = 0;
  char colon = 0;
  for (std::string value; words >> std::hex >> at >> colon >> width >> colon >> value;) {
    std::uint64_t rest = value == "SIZE" ? data.size() : std::stoull(value, nullptr, 16);
    for (; width > 0; --width, rest >>= 8) bytes.at(at++) = static_cast<char>(rest);
  }
  return bytes;
}

std::vector<std::string> images(const std::string& data, bool areLoaded = true) {
  std::vector<std::string> all;
  for (const auto& [numbers, unloaded] : formats)
    all.push_back(image(areLoaded ? numbers : numbers + unloaded, data));
  all.push_back(image(fat, all.back()));
  return all;
}

/// What an inspection of a file says, in one line.
std::string told(const std::string& bytes) {
  std::ofstream("product", std::ios::binary) << bytes;
  const Inspector inspector(std::filesystem::absolute("product").u16string(), false);
  const std::string flag = utf8(inspector.get_embedded_version_compiler_flag());
  EXPECT_EQ(inspector.needs_consistent_embedded_version(), !flag.empty());
  return flag + (inspector.has_error() ? "error" : "") + (inspector.needs_upgrade() ? "upgrade" : "");
}

TEST(Inspector, FindsWhatIsLoadedInEveryFormat) {
  const zex_test::Scratch scratch;
  const std::string both = "x" + source2018 + source2017 + "y";
  for (const std::string& bytes : images(both)) EXPECT_EQ(told(bytes), "error") << bytes.substr(0, 4);
  for (const std::string& bytes : images(both, false)) EXPECT_EQ(told(bytes), "") << bytes.substr(0, 4);
  EXPECT_EQ(told(both) + told(""), "");
}

TEST(Inspector, Verdicts) {
  const zex_test::Scratch scratch;
  const std::string source = marker + "form=1 kind=source release=";
  const std::string driver32 = marker + "form=1 kind=driver release=R2018a dims=32;";
  const std::string r2018 = "-UTESSEL_ZEXCMD_RELEASE -DTESSEL_ZEXCMD_RELEASE=R2018a";
  constexpr std::size_t window = std::size_t{1} << 20;
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
      {driver2017 + marker + "form=1 " + source2018, r2018},
      // The marker, or what is behind it, is cut by the end of a window of the search.
      {std::string(window - 7, '@') + source2018 + std::string(window, 'x') + driver2017, r2018},
      {std::string(window - 40, '@') + source2018 + driver2017, r2018},
  };
  for (const auto& [data, expected] : cases)
    EXPECT_EQ(told(image(formats[0].numbers, data)), expected) << data.substr(0, 200);
}

TEST(Inspector, BrokenFilesDoNoHarm) {
  const zex_test::Scratch scratch;
  const std::vector<std::string> whole =
      images(source2018 + marker + "kind=old;" + std::string(300, 'x') + driver2017);
  std::mt19937 random(20180315);
  const auto below = [&random](std::size_t end) { return random() % end; };
  const std::clock_t start = std::clock();
  constexpr int rounds = 4'000;
  int stillFound = 0;
  for (int round = 0; round < rounds; ++round) {
    std::string bytes = whole[below(whole.size())];
    for (std::size_t changes = below(6); changes > 0; --changes)
      bytes[below(below(2) != 0 ? 0xC0 : bytes.size())] = static_cast<char>(below(3) != 0 ? random() : 0xFF);
    if (below(4) == 0) bytes.resize(below(bytes.size()));
    if (!told(bytes).empty()) ++stillFound;
  }
  EXPECT_GT(stillFound, rounds / 5) << "hardly any file got as far as its records";
  EXPECT_LT(std::clock() - start, 20 * CLOCKS_PER_SEC);
}

}  // namespace
