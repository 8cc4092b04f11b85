#include "end_to_end/Targets.hpp"

#include <dlfcn.h>

#include <stdexcept>

namespace end_to_end {

namespace {

bool succeeds(const std::string& line) {
  return std::system(("{ " + line + "; } > /dev/null 2>&1").c_str()) == 0;
}

/// In this process.
long long called(const std::filesystem::path& product) {
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
  return canCall() && (!target.isWindows() || std::filesystem::exists(ZEX_WINDOWS_TREE "/bin/win64/zexrun.exe"));
}

/// One call at a time, in folders that all tests share: the first makes them, which takes as long as many calls.
/// Wine's server stays for a minute: a program that starts while it ends would fail. What stays must keep neither
/// the lock nor the output.
Outcome TargetTest::underWine(const std::string& program, const std::string& arguments) const {
  std::filesystem::create_directories(ZEX_WINE_FOLDER);
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
  if (!target.isWindows()) return std::to_string(called(std::filesystem::absolute(product)));
  return underWine(ZEX_WINDOWS_LOADER, "'" + product + "'").out;
}

Outcome TargetTest::zexrun(const std::string& arguments) const {
  if (!target.isWindows()) return EndToEnd::zexrun(arguments);
  return underWine(ZEX_WINDOWS_TREE "/bin/win64/zexrun.exe", arguments);
}

std::string TargetTest::exportsOf(const std::string& product) const {
  return shell("x86_64-w64-mingw32-objdump -p '" + product +
               R"(' | sed -nE 's/^\t\[ *[0-9]+\] ([A-Za-z_]\w*).*/\1/p' | sort -u | tr '\n' ' ')")
      .out;
}

std::string TargetTest::librariesOf(const std::string& product) const {
  return shell("x86_64-w64-mingw32-objdump -p '" + product +
               R"(' | sed -n 's/.*DLL Name: //p' | sort | tr '\n' ' ')")
      .out;
}

bool needsMissingTool(const std::string& arguments) {
  static const bool hasNvcc = succeeds("command -v nvcc || test -x /usr/local/cuda/bin/nvcc");
  return !hasNvcc && arguments.find(".cu") != std::string::npos;
}

}  // namespace end_to_end
