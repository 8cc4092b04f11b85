#include "end_to_end/Targets.hpp"

#include <dlfcn.h>

#include <regex>
#include <stdexcept>

namespace end_to_end {

namespace fs = std::filesystem;

namespace {

bool succeeds(const std::string& line) {
  return std::system(("{ " + line + "; } > /dev/null 2>&1").c_str()) == 0;
}

/// In this process.
long long called(const fs::path& product) {
  void* const library = dlopen(product.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  void* entry = dlsym(library, "zexFunction");
  if (entry == nullptr) entry = dlsym(library, "zexfunction_");  // as Fortran compilers write the name
  if (entry == nullptr) throw std::runtime_error(product.string() + " has no entry point");
  long long stored = -1;
  reinterpret_cast<void (*)(long long*)>(entry)(&stored);
  dlclose(library);
  return stored;
}

}  // namespace

const Target forThisSystem = {"Linux", "", ".zexa64", ".o", ".so", ""};
const Target forWindows = {"Windows", "-win64", ".zexw64", ".obj", ".dll", ".exe"};

void PrintTo(const Target& target, std::ostream* stream) {
  *stream << target.name;
}

void TargetTest::use(const Target& which) {
  target = which;
  set("FOR", target.option);
  set("OBJ", target.object.substr(1));
  static const bool hasTools =
      succeeds("x86_64-w64-mingw32-gcc -v && x86_64-w64-mingw32-g++ -v && x86_64-w64-mingw32-gfortran -v");
  if (target.isWindows() && !hasTools) GTEST_SKIP() << "the MinGW-w64 compilers are not all installed";
}

bool TargetTest::canCall() const {
  static const bool hasWine = *ZEX_WINDOWS_LOADER != '\0' && succeeds("wine --version");
  return hasWine || !target.isWindows();
}

bool TargetTest::canCallWithTree() const {
  return canCall() && (!target.isWindows() || fs::exists(ZEX_WINDOWS_TREE "/bin/win64/zexrun.exe"));
}

/// One call at a time, in folders that all tests share: the first makes them, which takes as long as many calls.
/// Wine's server stays for a minute: a program that starts while it ends would fail. What stays must keep neither
/// the lock nor the output.
Outcome TargetTest::underWine(const std::string& program, const std::string& arguments) const {
  fs::create_directories(ZEX_WINE_FOLDER);
  return shell(
      "export WINEPREFIX='" ZEX_WINE_FOLDER
      "' WINEDEBUG=-all LC_ALL=C.UTF-8 TMPDIR=/tmp"
      " WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='\n"
      "begin='wineserver --persistent=60; cd \"$WINEPREFIX\"; test -e made || wineboot --init && touch made'\n"
      "flock -o \"$WINEPREFIX.lock\" sh -c \"$begin\" > /dev/null 2>&1\n"
      "flock -o \"$WINEPREFIX.lock\" wine '" +
      program + "' " + arguments);
}

std::string TargetTest::answer(const std::string& product) const {
  if (!target.isWindows()) return std::to_string(called(fs::absolute(product)));
  return underWine(ZEX_WINDOWS_LOADER, "'" + product + "'").out;
}

Outcome TargetTest::zexrun(const std::string& arguments) const {
  if (!target.isWindows()) return EndToEnd::zexrun(arguments);
  return underWine(ZEX_WINDOWS_TREE "/bin/win64/zexrun.exe", arguments);
}

Names TargetTest::inHeaders(const std::string& product, const std::string& pattern) const {
  const std::string text = shell("x86_64-w64-mingw32-objdump -f -p '" + product + "'").out;
  EXPECT_THAT(text, testing::HasSubstr("file format pei-x86-64")) << product;
  const std::regex expression(pattern);
  Names found;
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
    found.push_back((*match)[1]);
  return found;
}

Names TargetTest::exportsOf(const std::string& product) const {
  return inHeaders(product, "\t\\[ *[0-9]+\\] ([A-Za-z_]\\w*)");
}

Names TargetTest::librariesOf(const std::string& product) const {
  return inHeaders(product, "DLL Name: (\\S+)");
}

bool needsMissingTool(const std::string& arguments) {
  static const bool hasNvcc = succeeds("command -v nvcc || test -x /usr/local/cuda/bin/nvcc");
  return !hasNvcc && arguments.find(".cu") != std::string::npos;
}

}  // namespace end_to_end
