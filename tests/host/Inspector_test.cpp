#include "zexfile/Inspector.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <initializer_list>
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

/// An object file made by hand, in either byte order.
struct Image {
  std::string bytes = {};
  bool big = false;

  Image& put(std::size_t at, std::size_t width, std::uint64_t value) {
    bytes.resize(std::max(bytes.size(), at + width));
    for (std::size_t i = 0; i < width; ++i, value >>= 8)
      bytes[at + (big ? width - 1 - i : i)] = static_cast<char>(value);
    return *this;
  }
  Image& put(std::size_t at, const std::string& text) {
    bytes.resize(std::max(bytes.size(), at + text.size()));
    bytes.replace(at, text.size(), text);
    return *this;
  }
};

constexpr std::size_t dataAt = 0x200;

/// One segment of a kind: 1 is loaded, 4 a note.
Image elf(bool wide, bool big, const std::string& data, std::uint64_t kind = 1) {
  Image image{.big = big};
  image
      .put(0,
           "\x7F"
           "ELF")
      .put(4, 1, wide ? 2 : 1)
      .put(5, 1, big ? 2 : 1);
  const std::size_t word = wide ? 8 : 4;
  image.put(wide ? 32 : 28, word, 0x80).put(wide ? 54 : 42, 2, wide ? 56 : 32).put(wide ? 56 : 44, 2, 1);
  image.put(0x80, 4, kind).put(wide ? 0x88 : 0x84, word, dataAt).put(wide ? 0xA0 : 0x90, word, data.size());
  return image.put(dataAt, data);
}

/// One section of an object that is not linked; the flag 2 stands for loaded.
Image elfObject(const std::string& data, std::uint64_t flags = 2) {
  Image image;
  image
      .put(0,
           "\x7F"
           "ELF")
      .put(4, 1, 2)
      .put(5, 1, 1)
      .put(40, 8, 0x80)
      .put(58, 2, 64)
      .put(60, 2, 1);
  return image.put(0x84, 4, 1)
      .put(0x88, 8, flags)
      .put(0x98, 8, dataAt)
      .put(0xA0, 8, data.size())
      .put(dataAt, data);
}

Image coff(Image image, std::size_t at, const std::string& data, std::uint64_t flags, std::uint64_t inMemory) {
  image.put(at, 2, 0x8664).put(at + 2, 2, 1).put(at + 28, 4, inMemory).put(at + 36, 4, data.size());
  return image.put(at + 40, 4, dataAt).put(at + 56, 4, flags).put(dataAt, data);
}

Image pe(const std::string& data, std::uint64_t flags = 0x40000040, std::uint64_t inMemory = 0x1000) {
  return coff(Image().put(0, "MZ").put(60, 4, 0x80).put(0x80, std::string("PE\0\0", 4)), 0x84, data, flags,
              inMemory);
}

Image machO(bool wide, bool big, const std::string& data, std::uint64_t flags = 0) {
  Image image{.big = big};
  const std::size_t command = wide ? 32 : 28, section = command + (wide ? 72 : 56), word = wide ? 8 : 4;
  image.put(0, 4, wide ? 0xFEEDFACF : 0xFEEDFACE).put(16, 4, 2).put(command, 4, 2).put(command + 4, 4, 0);
  // A command of another kind comes first.
  image.put(command + 4, 4, 8);
  const std::size_t shift = 8;
  image.put(command + shift, 4, wide ? 0x19 : 0x01).put(command + shift + 4, 4, wide ? 152 : 124);
  image.put(command + shift + (wide ? 64 : 48), 4, 1).put(section + shift + (wide ? 40 : 36), word, data.size());
  image.put(section + shift + (wide ? 48 : 40), 4, dataAt).put(section + shift + (wide ? 64 : 56), 4, flags);
  return image.put(dataAt, data);
}

Image fat(const Image& slice) {
  Image image{.big = true};
  image.put(0, 4, 0xCAFEBABE).put(4, 4, 2).put(28 + 8, 4, 0x100).put(28 + 12, 4, slice.bytes.size());
  return image.put(0x100, slice.bytes);
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

TEST(Inspector, FindsWhatIsLoadedInEveryFormat) {
  const Scratch scratch;
  const std::string both = "x" + source2018 + source2017 + "y";
  for (const auto& [name, image] :
       std::initializer_list<std::pair<const char*, Image>>{{"64-bit", elf(true, false, both)},
                                                            {"32-bit", elf(false, false, both)},
                                                            {"64-bit big-endian", elf(true, true, both)},
                                                            {"32-bit big-endian", elf(false, true, both)},
                                                            {"object", elfObject(both)},
                                                            {"PE", pe(both)},
                                                            {"COFF object", coff({}, 0, both, 0x40000040, 0)},
                                                            {"Mach-O", machO(true, false, both)},
                                                            {"32-bit big-endian Mach-O", machO(false, true, both)},
                                                            {"fat", fat(machO(true, false, both))}})
    EXPECT_EQ(toldOf(image.bytes), "error") << name;

  for (const auto& [name, image] : std::initializer_list<std::pair<const char*, Image>>{
           {"note segment", elf(true, false, both, 4)},
           {"section on disk only", elfObject(both, 0)},
           {"discarded section", pe(both, 0x42000040)},
           {"padding behind the size in memory", pe(both, 0x40000040, 20)},
           {"debug section", machO(true, false, both, 0x02000000)},
           {"zero-filled section", machO(true, false, both, 1)},
           {"text file", Image().put(0, both)},
           {"empty file", Image()}})
    EXPECT_EQ(toldOf(image.bytes), "") << name;

  EXPECT_EQ(told("missing"), "");
  EXPECT_EQ(told("."), "");
  EXPECT_TRUE(Inspector(scratch.path("missing"), true).has_error());
  EXPECT_FALSE(Inspector(scratch.path("missing"), true).issues.empty());
}

TEST(Inspector, Verdicts) {
  const Scratch scratch;
  const std::string source = marker + "form=1 kind=source release=";
  const std::string driver32 = marker + "form=1 kind=driver release=R2018a dims=32;";
  const std::string r2018 = "-UTESSEL_ZEXCMD_RELEASE -DTESSEL_ZEXCMD_RELEASE=R2018a";
  const std::string wide = "-UZX_COMPAT_32 -DZX_COMPAT_64";
  for (const auto& [data, expected] : std::initializer_list<std::pair<std::string, std::string>>{
           {source2018 + source2018, ""},
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
           {driver2017 + marker + "form=1 " + source2018, r2018}})
    EXPECT_EQ(toldOf(elf(true, false, data).bytes), expected) << data;
}

TEST(Inspector, IssuesNameWhatDisagrees) {
  const Scratch scratch;
  scratch.write(
      "product",
      elf(true, false, marker + "kind=old;" + source2018 + marker + "form=1 kind=source release=R2017b dims=32;")
          .bytes);
  const Inspector inspector(scratch.path("product"), false);
  ASSERT_EQ(inspector.issues.size(), 2U);
  for (const fl::ustring& text : {inspector.issues[0].heading, inspector.issues[0].detail}) {
    for (const char16_t* named : {u"R2018a", u"R2017b", u"64-bit", u"32-bit"})
      EXPECT_NE(text.find(named), fl::ustring::npos) << to_string(text);
  }
  EXPECT_NE(inspector.issues[1].detail.find(u"kind=old"), fl::ustring::npos);
}

TEST(Inspector, ARecordAcrossTwoWindowsIsFoundOnce) {
  const Scratch scratch;
  const std::size_t window = std::size_t{1} << 20;
  for (const std::size_t ahead : {0U, 1U, 14U, 15U, 16U, 40U, 58U, 511U, 512U, 513U}) {
    const std::string data = std::string(window - ahead, '@') + source2018 + std::string(window, 'x') + driver2017;
    EXPECT_NE(toldOf(elf(true, false, data).bytes), "") << ahead;
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
  const std::vector<std::string> images = {elf(true, false, data).bytes,   elf(false, true, data).bytes,
                                           elfObject(data).bytes,          pe(data).bytes,
                                           machO(true, false, data).bytes, fat(machO(false, true, data)).bytes};
  std::mt19937 random(20180315);
  const auto below = [&random](std::size_t end) { return random() % end; };
  const std::clock_t start = std::clock();
  std::size_t stillFound = 0;
  for (int i = 0; i < 20000; ++i) {
    std::string bytes = images[below(images.size())];
    for (std::size_t changes = below(6); changes > 0; --changes)
      bytes[below(2) != 0 ? below(dataAt) : below(bytes.size())] =
          static_cast<char>(below(3) != 0 ? random() : 0xFF);
    if (below(4) == 0) bytes.resize(below(bytes.size()));
    if (below(16) == 0)
      for (char& byte : bytes) byte = static_cast<char>(random());
    stillFound += toldOf(bytes).empty() ? 0U : 1U;
  }
  EXPECT_GT(stillFound, 4000U) << "hardly any file got as far as its records";
  EXPECT_LT(std::clock() - start, 20 * CLOCKS_PER_SEC);
}

/// Tables that speak of the whole file over and over, and a file full of beginnings.
TEST(Inspector, HostileTablesCostNoMoreThanTheFile) {
  const Scratch scratch;
  const std::size_t size = std::size_t{16} << 20;
  Image many = elf(true, false, std::string(size, '@'));
  many.put(32, 8, dataAt).put(56, 2, 0xFFFF);
  for (std::size_t i = 0; i < 0xFFFF; ++i)
    many.put(dataAt + 56 * i, 4, 1)
        .put(dataAt + 56 * i + 8, 8, i)
        .put(dataAt + 56 * i + 32, 8, ~std::uint64_t{0} - i);
  Image slices{.big = true};
  slices.put(0, 4, 0xCAFEBABE).put(4, 4, 30);
  for (std::size_t i = 0; i < 30; ++i) slices.put(8 + 20 * i + 8, 4, 0x1000).put(8 + 20 * i + 12, 4, size);
  Image commands = machO(true, false, "");
  commands.put(16, 4, 0xFFFFFFFF);
  for (std::size_t at = 32; at + 8 <= size; at += 8) commands.put(at, 4, 0x19).put(at + 4, 4, 8);
  slices.put(0x1000, commands.bytes);
  std::string beginnings;
  while (beginnings.size() < size) beginnings += marker;

  for (const std::string& bytes : {many.bytes, slices.bytes, elf(true, false, beginnings).bytes}) {
    const std::clock_t start = std::clock();
    EXPECT_EQ(toldOf(bytes), "");
    EXPECT_LT(std::clock() - start, 5 * CLOCKS_PER_SEC);
  }
}

}  // namespace
