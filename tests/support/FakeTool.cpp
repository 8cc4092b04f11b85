#include "support/FakeTool.hpp"

#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_test {

namespace fs = std::filesystem;

namespace {

fs::path folder() {
  return fs::path(ZEX_TOOLS).make_preferred();
}

fs::path searchPath() {
  return utf16(utf8(folder().u16string()) + std::string(platform.listSeparator) + variable("PATH").value_or(""));
}

}  // namespace

FakeTool::FakeTool() : ScopedVariable("PATH", searchPath()) {}

fs::path FakeTool::program() {
  return folder() / ("tool" + std::string(platform.program));
}

}  // namespace zex_test
