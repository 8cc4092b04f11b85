#include "build/compiler_versions.hpp"

#include "build/BuildTest.hpp"

namespace zex_cmd {
namespace {

using CompilerVersions = BuildTest;

TEST_F(CompilerVersions, AreJudgedByTheLastSingleDigitsOfTheFirstLine) {
  const std::tuple<const char*, const char*, std::string> cases[] = {
      {"gcc", "gcc (GCC) 6.3.1\n", ""},
      {"g++", "g++ (GCC) 6.2.0\nmore 4.4.4\n", "TESSEL:zex:GccVersion(\"6.2.0\", \"6.3.x\")"},
      {"GCC", "gcc (Debian 6.3.0-18) 5.4.0 20160609\n", "TESSEL:zex:GccVersion(\"5.4.0\", \"6.3.x\")"},
      {"gcc", "gcc (Debian 12.2.0-14) 12.2.0\n", ""},  // two digits are never recognised
      {"gcc", "gcc (GCC) 6.3 7\n", ""},                // "7" has no second part
      {"clang", "clang 6.2.0\n", ""},
      {"mingw", "4.9.2\n", "TESSEL:zex:MinGWVersion"},
      {"mingw", "5.3.0\n", "TESSEL:zex:InvalidMinGWConfig"},  // the document says another
  };
  for (const auto& [name, printed, warning] : cases) {
    if (name != std::string("mingw") && zex_test::architecture != "glnxa64") continue;
    tree.host.warnings.clear();
    tree.scratch.write("tool.version", printed);
    document.name = document.shortName = name;
    const auto option = loaded();
    option->setValue(u"config.<xmlattr>.Location", u"tool --version ");
    checkGccVersion(*option, false);
    checkMinGwVersion(*option, false);
    EXPECT_EQ(tree.host.warnings.empty() ? "" : tree.host.warnings.front(), warning) << printed;
  }
}

}  // namespace
}  // namespace zex_cmd
