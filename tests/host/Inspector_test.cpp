#include "zexfile/Inspector.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "fl/i18n/strings.hpp"
#include "support/Scratch.hpp"

namespace {

using fl::i18n::to_string;
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
enum Width { Narrow, Wide };

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
std::string elf(const std::string& data, Width width = Wide, Order order = Little, std::uint64_t kind = 1) {
  const Numbers narrow = {{4, 1, 1},       {28, 4, 0x80},     {42, 2, 32},           {44, 2, 1},
                          {0x80, 4, kind}, {0x84, 4, dataAt}, {0x90, 4, data.size()}};
  const Numbers wide = {{4, 1, 2},       {32, 8, 0x80},     {54, 2, 56},           {56, 2, 1},
                        {0x80, 4, kind}, {0x88, 8, dataAt}, {0xA0, 8, data.size()}};
  std::string bytes = image(data, width == Wide ? wide : narrow, order);
  put(bytes, {{0, 4, 0x464C457F}, {5, 1, order == Big ? 2U : 1U}});
  return bytes;
}

/// One section of an object that is not linked; the flag 2 stands for loaded.
std::string elfObject(const std::string& data, std::uint64_t flags = 2) {
  return image(data, {{0, 4, 0x464C457F},
                      {4, 1, 2},
                      {5, 1, 1},
                      {40, 8, 0x80},
                      {58, 2, 64},
                      {60, 2, 1},
                      {0x84, 4, 1},
                      {0x88, 8, flags},
                      {0x98, 8, dataAt},
                      {0xA0, 8, data.size()}});
}

std::string coff(const std::string& data) {
  return image(data, {{0, 2, 0x8664}, {2, 2, 1}, {36, 4, data.size()}, {40, 4, dataAt}, {56, 4, 0x40000040}});
}

std::string pe(const std::string& data, std::uint64_t flags = 0x40000040, std::uint64_t inMemory = 0x1000) {
  return image(data, {{0, 2, 0x5A4D},
                      {60, 4, 0x40},
                      {0x40, 4, 0x4550},
                      {0x44, 2, 0x8664},
                      {0x46, 2, 1},
                      {0x60, 4, inMemory},
                      {0x68, 4, data.size()},
                      {0x6C, 4, dataAt},
                      {0x7C, 4, flags}});
}

/// One section in the second of two commands.
std::string machO(const std::string& data, Width width = Wide, Order order = Little, std::uint64_t flags = 0) {
  const Numbers narrow = {{0, 4, 0xFEEDFACE}, {16, 4, 2},     {28, 4, 2}, {32, 4, 8},
                          {36, 4, 1},         {40, 4, 124},   {84, 4, 1}, {128, 4, data.size()},
                          {132, 4, dataAt},   {148, 4, flags}};
  const Numbers wide = {{0, 4, 0xFEEDFACF}, {16, 4, 2},     {32, 4, 2},  {36, 4, 8},
                        {40, 4, 0x19},      {44, 4, 152},   {104, 4, 1}, {152, 8, data.size()},
                        {160, 4, dataAt},   {176, 4, flags}};
  return image(data, width == Wide ? wide : narrow, order);
}

/// The second of two parts is the object.
std::string fat(const std::string& object) {
  return image(object, {{0, 4, 0xCAFEBABE}, {4, 4, 2}, {36, 4, dataAt}, {40, 4, object.size()}}, Big);
}

std::string fat64(const std::string& object) {
  return image(object, {{0, 4, 0xCAFEBABF}, {4, 4, 1}, {16, 8, dataAt}, {24, 8, object.size()}}, Big);
}

/// In memory where that can be had, for the many files.
struct Scratch : zex_test::ScopedVariable, zex_test::Scratch {
  Scratch() : ScopedVariable("TMPDIR", std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp") {}
};

/// What an inspection says, in one line.
std::string told(const std::string& name = "product") {
  const Inspector inspector(std::filesystem::absolute(name).u16string(), false);
  std::string text = to_string(inspector.get_embedded_version_compiler_flag());
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
  const Cases loaded = {{"ELF", elf(both)},
                        {"32-bit", elf(both, Narrow)},
                        {"big-endian", elf(both, Wide, Big)},
                        {"32-bit big-endian", elf(both, Narrow, Big)},
                        {"object", elfObject(both)},
                        {"PE", pe(both)},
                        {"COFF object", coff(both)},
                        {"Mach-O", machO(both)},
                        {"32-bit big-endian Mach-O", machO(both, Narrow, Big)},
                        {"fat", fat(machO(both))},
                        {"fat, 64-bit", fat64(machO(both))}};
  for (const auto& [name, bytes] : loaded) EXPECT_EQ(toldOf(bytes), "error") << name;

  const Cases onDiskOnly = {{"note segment", elf(both, Wide, Little, 4)},
                            {"section of an object", elfObject(both, 0)},
                            {"discarded section", pe(both, 0x42000040)},
                            {"padding behind the size in memory", pe(both, 0x40000040, 20)},
                            {"debug section", machO(both, Wide, Little, 0x02000000)},
                            {"zero-filled section", machO(both, Wide, Little, 1)},
                            {"text file", both},
                            {"empty file", ""}};
  for (const auto& [name, bytes] : onDiskOnly) EXPECT_EQ(toldOf(bytes), "") << name;

  EXPECT_EQ(told("missing"), "");
  EXPECT_EQ(told("."), "");
  const Inspector strict(scratch.path("missing"), true);
  EXPECT_TRUE(strict.has_error() && !strict.issues.empty());
}

TEST(Inspector, Verdicts) {
  const Scratch scratch;
  const std::string source = marker + "form=1 kind=source release=";
  const std::string driver32 = marker + "form=1 kind=driver release=R2018a dims=32;";
  const std::string r2018 = "-UTESSEL_ZEXCMD_RELEASE -DTESSEL_ZEXCMD_RELEASE=R2018a";
  const std::string wide = "-UZX_COMPAT_32 -DZX_COMPAT_64";
  const Cases cases = {{source2018 + source2018, ""},
                       {driver2017, ""},
                       {source2017 + driver2017, ""},
                       {source2018 + source2018 + driver2017, r2018},
                       {driver2017 + source + "R2017b dims=32;", "-DZX_COMPAT_32"},
                       {driver2017 + source + "R2018a dims=32;", r2018 + " -DZX_COMPAT_32"},
                       {driver32 + source2018, wide},
                       {driver32 + driver2017 + source2018, r2018 + " " + wide},
                       {driver2017 + source + "none dims=64;", "-UTESSEL_ZEXCMD_RELEASE -UTESSEL_DEFAULT_RELEASE"},
                       {source2018 + source + "R2018a dims=32;" + driver2017, "error"},
                       // Blanks, unknown words, writers and newer forms are passed over.
                       {driver2017 + marker + "form=1  kind=source x=% release=R2018a dims=64 y=a=b;", r2018},
                       {source2018 + marker + "form=1 kind=linker release=R2017b dims=64;", ""},
                       {source2018 + marker + "form=2 kind=source release=R2017b dims=64;", ""},
                       // Older forms.
                       {source2018 + marker + "form=0 kind=source release=R2017b;", "upgrade"},
                       {marker + "kind=driver;" + source2018 + driver2017, r2018 + "upgrade"},
                       {marker + "kind=driver;" + source2018 + source2017, "errorupgrade"},
                       // What is malformed is nothing, and a release with the signs of a shell least of all.
                       {driver2017 + source + "R2018a dims=16;", ""},
                       {driver2017 + source + "R2018a dims=64", ""},
                       {driver2017 + source + "R2018a`ls` dims=64;", ""},
                       {driver2017 + source + std::string(33, 'R') + " dims=64;", ""},
                       {driver2017 + source + "R1 release=R2 dims=64;", ""},
                       {driver2017 + source + "R2018a x=" + std::string(600, 'x') + " dims=64;", ""},
                       {driver2017 + source + "R2018a x=\x01 dims=64;", ""},
                       {marker + ";" + marker + "form=x kind=source;" + marker + "text;" + marker, ""},
                       {driver2017 + marker + "form=1 " + source2018, r2018}};
  for (const auto& [data, expected] : cases) EXPECT_EQ(toldOf(elf(data)), expected) << data;
}

TEST(Inspector, IssuesNameWhatDisagrees) {
  const Scratch scratch;
  const std::string narrow2017 = marker + "form=1 kind=source release=R2017b dims=32;";
  scratch.write("product", elf(marker + "kind=old;" + source2018 + narrow2017));
  const Inspector inspector(scratch.path("product"), false);
  ASSERT_EQ(inspector.issues.size(), 2U);
  for (const fl::ustring& text : {inspector.issues[0].heading, inspector.issues[0].detail}) {
    for (const char16_t* named : {u"R2018a", u"R2017b", u"64-bit", u"32-bit"})
      EXPECT_NE(text.find(named), fl::ustring::npos) << to_string(text);
  }
  EXPECT_NE(inspector.issues[1].detail.find(u"kind=old"), fl::ustring::npos);
}

TEST(Inspector, ARecordAcrossTwoWindowsIsFound) {
  const Scratch scratch;
  const std::size_t window = std::size_t{1} << 20;
  for (const std::size_t ahead : {0U, 1U, 14U, 15U, 16U, 40U, 58U, 511U, 512U, 513U}) {
    const std::string data = std::string(window - ahead, '@') + source2018 + std::string(window, 'x') + driver2017;
    EXPECT_NE(toldOf(elf(data)), "") << ahead;
  }
}

// Before any test changes the current folder.
const auto versionSource =
    std::filesystem::absolute(__FILE__).parent_path() / "../../installation/extern/version/c_zexapi_version.c";

int run(const std::string& command) {
  return std::system(command.c_str());
}

/// The version source, compiled by a saved command and the flag behind it, and linked with a source for R2018a.
void link(const std::string& saved, const std::string& sourceRecord) {
  std::ofstream("s.c") << "__attribute__((used)) static const char record[] = \"" << sourceRecord << "\";\n"
                       << "__asm__(\".section .aside,\\\"\\\",%progbits\\n.ascii \\\"" << source2017
                       << "\\\"\\n.text\");\n";
  ASSERT_EQ(run("gcc -Werror -fPIC -c '" + versionSource.string() + "' -o v.o " + saved), 0) << saved;
  ASSERT_EQ(run("gcc -g -fPIC -shared s.c v.o -o product"), 0);
}

TEST(Inspector, TheFlagMakesRealProductsAgree) {
  const Scratch scratch;
  const std::string r2017 = "-DTESSEL_DEFAULT_RELEASE=R2017b -DUSE_ZEX_CMD";
  for (const std::string& saved :
       {r2017, "-DZX_COMPAT_64 " + r2017, "-DZX_COMPAT_32 " + r2017, std::string("-DZX_COMPAT_32"),
        std::string("-DZX_COMPAT_64 -DTESSEL_ZEXCMD_RELEASE=R0x2018a -DUSE_ZEX_CMD")}) {
    for (const std::string& record : {source2018, marker + "form=1 kind=source release=R2018a dims=32;",
                                      marker + "form=1 kind=source release=none dims=64;"}) {
      link(saved, record);
      const std::string flag = told();
      EXPECT_EQ(flag.substr(0, 1), "-") << saved << record;
      link(saved + " " + flag, record);
      EXPECT_EQ(told(), "") << saved << " " << flag;
    }
  }
}

TEST(Inspector, BrokenFilesDoNoHarm) {
  const Scratch scratch;
  const std::string data = source2018 + marker + "kind=old;" + std::string(300, 'x') + driver2017;
  const std::vector<std::string> images = {elf(data),   elf(data, Narrow, Big),       elfObject(data), pe(data),
                                           machO(data), fat(machO(data, Narrow, Big))};
  std::mt19937 random(20180315);
  const auto below = [&random](std::size_t end) { return random() % end; };
  const std::clock_t start = std::clock();
  std::size_t stillFound = 0;
  for (int i = 0; i < 20000; ++i) {
    std::string bytes = images[below(images.size())];
    for (std::size_t changes = below(6); changes > 0; --changes)
      bytes[below(below(2) != 0 ? tablesEnd : bytes.size())] = static_cast<char>(below(3) != 0 ? random() : 0xFF);
    if (below(4) == 0) bytes.resize(below(bytes.size()));
    if (below(16) == 0) std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    if (!toldOf(bytes).empty()) ++stillFound;
  }
  EXPECT_GT(stillFound, 4000U) << "hardly any file got as far as its records";
  EXPECT_LT(std::clock() - start, 20 * CLOCKS_PER_SEC);
}

/// Tables that speak of the whole file over and over, and a file full of beginnings.
TEST(Inspector, HostileFilesCostNoMoreThanTheirSize) {
  const Scratch scratch;
  const std::size_t size = std::size_t{16} << 20;
  std::string segments = elf(std::string(size, '@'));
  put(segments, {{32, 8, dataAt}, {56, 2, 0xFFFF}});
  for (std::size_t at = dataAt; at < dataAt + std::size_t{56} * 0xFFFF; at += 56)
    put(segments, {{at, 4, 1}, {at + 8, 8, at % 4096}, {at + 32, 8, ~at}});

  std::string commands = machO(std::string(size, 'x'));
  put(commands, {{16, 4, 0xFFFFFFFF}});
  for (std::size_t at = 32; at + 8 <= size; at += 8) put(commands, {{at, 4, 0x19}, {at + 4, 4, 8}});
  std::string slices = fat(commands);
  for (std::size_t i = 0; i < 30; ++i)
    put(slices, {{4, 4, 30}, {16 + 20 * i, 4, dataAt}, {20 + 20 * i, 4, size}}, Big);

  std::string beginnings;
  while (beginnings.size() < size) beginnings += marker;

  for (const std::string& bytes : {segments, slices, elf(beginnings)}) {
    const std::clock_t start = std::clock();
    EXPECT_EQ(toldOf(bytes), "");
    EXPECT_LT(std::clock() - start, 5 * CLOCKS_PER_SEC);
  }
}

}  // namespace
