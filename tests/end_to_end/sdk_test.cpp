#include <sstream>

#include "cmd/ZexCmdFactory.hpp"
#include "end_to_end/Targets.hpp"
#include "standalone/products/LoadedProducts.hpp"
#include "support/RecordingServices.hpp"
#include "zex.h"

namespace end_to_end {

namespace {

using testing::HasSubstr;

const std::string entry = "void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[])";

std::string extension(const std::string& body) {
  return "#include <zex.h>\n" + entry + " { " + body + " }\n";
}

using Sdk = EndToEnd;

TEST_F(Sdk, DeprecatedNamesGiveTheDriversOwnMessages) {
  struct {
    std::string names, switches, failure;  ///< a failure that ends with a quote goes on with the name
  } const rows[] = {
      {"zexGet zexSet", "", "ZexDoubleHandle(\"ZEX_DOUBLE_HANDLE\")"},
      {"zexSetTrapFlag", "", "ZexSetTrapFlagNotSupported"},
      {"zxGetPi zxSetPi zxGetImagData zxSetImagData", "-R2018a ", "ZXSeparateComplexNotSupported(\""},
      {"zxCreateSharedDataCopy zxCreateUninitDoubleMatrix zxFastZeros zxGetPropertyShared zxSetPropertyShared "
       "zxUnreference zxUnshareArray",
       "", "UndocumentedNotSupported(\""},
  };
  for (const auto& row : rows) {
    std::istringstream names(row.names);
    for (std::string name; names >> name;) {
      for (const std::string source : {"old.c", "old.cpp"}) {
        write(source, extension(name + "();"));
        EXPECT_THAT(zex("-g " + row.switches + source).err,
                    HasSubstr("TESSEL:zex:" + row.failure + (row.failure.back() == '"' ? name : "")))
            << source;
      }
    }
  }
}

TEST_P(EachTarget, ExtensionsAnswerAndFailUnderItsRunner) {
  if (!canCallWithTree()) GTEST_SKIP() << "there is no Wine, or no tree for Windows at " ZEX_WINDOWS_TREE;
  const std::string filtered = "ans1: real, 4 by 1\n    0.25\n       1\n     0.5\n       1\n";
  const std::string four = "ans1: real, 1 by 1\n    4\n";
  const std::string edited = "ans1: complex, 1 by 2\n    1+2i  3+1i\n";
  const std::string manyKinds =
      "ans1: real, 2 by 2\n         1  -2.5\n    100000     4\n"
      "ans2: complex, 1 by 2\n    1+2i  0-1i\nans3: logical, 1 by 1\n    true\n";
  const std::string letter = target.isWindows() ? "\xE9" : "é";
  const std::string spoken = "1 inputs (" + letter + ")\n";
  const bool hasDevice = shell("nvidia-smi -L").status == 0;
  struct {
    std::string source, arguments, out, err = {};  ///< a part of what is said on standard error
    bool everywhere = true;
  } const rows[] = {
      {"filter.c", "'[0.25 0.5 -1.5]' '[1;2;4;8]'", filtered},
      {"-compatibleArrayDims filter.c", "1", "", "[filter:arguments]\n"},
      {"product.cpp", "'[1 2;3 4]' '[5 6;7 8]'", "ans1: real, 2 by 2\n    19  22\n    43  50\n"},
      {"product.cpp", "'[1 2]' '[1 2]'", "", "[product:sizes]\n"},
      {"echo.c", "\"'gré'\"", spoken + "ans1: text, 1 by 3\n    gr" + letter + "\n"},
      {"echo.c", "'[1 -2.5; 1e5 4]' '[1+2i -1i]' -nlhs 3 true", "3 inputs (" + letter + ")\n" + manyKinds},
      {"echo.c", "-nlhs 2 1", spoken, "[TESSEL:zexrun:OutputMissing]\n"},
      {"echo.c", "abc", "", "'abc' cannot be read as real"},
      {"echo.c", "'[1 2; 3]'", "", "its rows are not equally long"},
      {"echo.c", "'int8(128)'", "", "'128' cannot be read as int8"},
      {"none.c", "", "", "has no entry point zexFunction", false},
      {"lost.c LINKFLAGS=", "", "", "undefined symbol: lost [TESSEL:host:ProductNotLoadable]", false},
      // Headers in the wrong order: compiled once more, with sizes of 32 bits.
      {"block.c", "", four},
      {"block.cpp", "", four},
      {"separate.c", "'[1+2i 3+4i]'", edited},
      {"-compatibleArrayDims separate.c", "'[1+2i 3+4i]'", edited},
      {"-R2018a together.c", "'[1+2i 3+4i]'", edited},
      // As many steps as rows give the exact solution.
      {"conjugate.f90 -largeArrayDims -lblas",
       "'[4 1 0; 1 3 1; 0 1 2]' '[2; -2; 4]' 3 | awk 'NR > 1 { printf \"%.9g \", $1 }'", "1 -2 3 ", "", false},
      {"conjugate.f90 -largeArrayDims -lblas", "1", "", "[conjugate:arguments]\n", false},  // unwinds Fortran
      {"saxpy.cu", "2.5 '[1 2 3]' '[10 20 30]'", hasDevice ? "ans1: real, 1 by 3\n    12.5  25  37.5\n" : "",
       hasDevice ? "" : "[saxpy:device]\n", false},
  };
  std::filesystem::copy(ZEX_TREE "/extern/examples", work);
  const std::string blockHeaders = "#include <tzwtypes.h>\n#include <zimstruc.h>\n";
  for (const std::string name : {"block.c", "block.cpp"})
    write(name, blockHeaders + extension("plhs[0] = zxMakeReal(sizeof(zxIndex));"));
  write("separate.c",
        extension("double im[] = {zxGetPi(prhs[0])[zxRowsOf(prhs[0]) - 1], zxReadRealPart(prhs[0])[0]};"
                  "plhs[0] = zxCopy(prhs[0]); zxSetPi(plhs[0], im);"));
  write("together.c", extension("zxComplex* z = zxEditComplexes(plhs[0] = zxCopy(prhs[0])); z[1].im = z[0].re;"));
  write("none.c", "int other;\n");
  write("lost.c", "void lost(void); void zexFunction(void) { lost(); }\n");
  std::string built;
  const std::string product = "product" + target.product;
  for (const auto& row : rows) {
    if (needsMissingTool(row.source) || (target.isWindows() && !row.everywhere)) continue;
    SCOPED_TRACE(row.source + ": " + row.arguments);
    if (row.source != built) {
      std::filesystem::remove(product);
      build(target.option + " -output product " + row.source, {product});
      built = row.source;
    }
    const Outcome outcome = zexrun(product + " " + row.arguments);
    EXPECT_EQ(outcome.status, row.err.empty() ? 0 : 1);
    EXPECT_EQ(outcome.out, row.out);
    EXPECT_EQ(outcome.err.empty(), row.err.empty()) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr(row.err));
  }
}

TEST_F(Sdk, ValuesOfEveryKindReadBackEqual) {
  const std::pair<std::string, std::string> rows[] = {
      {"-2.5e-3", R"("kind":"real","rows":1,"columns":1,"values":[[-2.5E-3]])"},
      {"1e-400", R"("kind":"real","rows":1,"columns":1,"values":[[0]])"},
      {"[NaN,-Inf,-0]", R"("kind":"real","rows":1,"columns":3,"values":[["NaN","-Inf",-0E0]])"},
      {"[1 2;3,4 ; 5 6]", R"("kind":"real","rows":3,"columns":2,"values":[[1,2],[3,4],[5,6]])"},
      {"[]", R"("kind":"real","rows":0,"columns":0,"values":[])"},
      {"[1-2i 3 4i]", R"("kind":"complex","rows":1,"columns":3,"values":[[[1,-2],[3,0],[0,4]]])"},
      {"int8([-128; 127])", R"("kind":"int8","rows":2,"columns":1,"values":[[-128],[127]])"},
      {"uint8([0 7])", R"("kind":"uint8","rows":1,"columns":2,"values":[[0,7]])"},
      {"uint64(18446744073709551615)",
       R"("kind":"uint64","rows":1,"columns":1,"values":[[18446744073709551615]])"},
      {"'it''s é'", R"("kind":"text","rows":1,"columns":6,"value":"it's é")"},
  };
  build("-silent echo.c", {"echo.zexa64"});
  for (const auto& [argument, json] : rows) {
    const Outcome outcome = zexrun("echo.zexa64 --json \"" + argument + "\"");
    EXPECT_EQ(outcome.out, "[{\"name\":\"ans1\"," + json + "}]\n") << argument;
    EXPECT_EQ(outcome.err, "1 inputs (é)\n");
  }
}

TEST_F(Sdk, AProcessGetsTheNewCodeOfWhatItHasLoadedUnlessThatIsLocked) {
  host::standalone::LoadedProducts products;
  zex_test::RecordingServices host;
  host.install = std::filesystem::path(ZEX_TREE).u16string();
  host.dispatch = &products;
  const std::unique_ptr<zex_cmd::ZexCmdI> command(zex_cmd::ZexCmdFactory::createZex());
  const auto make = [&](const std::string& version) {
    write("live.c", extension("zexFail(\"live:version\", \"" + version + "\");"));
    return zex_test::failureOf([&] { command->run({u"-silent", u"live.c"}); });
  };
  const auto answer = [&] {
    zxArray* output = nullptr;
    return zex_test::failureOf([&] { products.load(u"live.zexa64").call(0, &output, 0, nullptr); });
  };
  EXPECT_EQ(make("one"), "no error");
  auto& product = products.load(u"./live.zexa64");
  product.lock();
  EXPECT_THAT(make("two"), HasSubstr("TESSEL:zex:Locked"));
  EXPECT_EQ(answer(), "live:version(\"one\")");
  product.unlock();
  EXPECT_EQ(make("two"), "no error");
  EXPECT_EQ(answer(), "live:version(\"two\")");
}

}  // namespace

}  // namespace end_to_end
