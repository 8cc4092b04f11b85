#include <sstream>

#include "cmd/ZexCmdFactory.hpp"
#include "end_to_end/Targets.hpp"
#include "korvane/TException.hpp"
#include "standalone/products/LoadedProducts.hpp"
#include "support/RecordingServices.hpp"
#include "zex.h"

namespace end_to_end {

namespace {

namespace fs = std::filesystem;
using host::standalone::LoadedProduct;
using testing::HasSubstr;

const std::string entry = "void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[])";
const std::string unused = "(void)nlhs; (void)plhs; (void)nrhs; (void)prhs;";

std::string extension(const std::string& body, const std::string& ahead = {}) {
  return "#include <zex.h>\n" + ahead + entry + " { " + unused + body + " }\n";
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
      // With handles that are numbers the name is simply not there.
      {"zexGet", "-DZEX_DOUBLE_HANDLE ", "Error("},
  };
  for (const auto& row : rows) {
    std::istringstream names(row.names);
    for (std::string name; names >> name;) {
      const std::string failure = row.failure + (row.failure.back() == '"' ? name + "\")" : "");
      write("old.c", extension(name + "();"));
      write("old.cpp", extension(name + "();"));
      for (const std::string words : {"-g old.c", "-f \"$OPTS/clang++.xml\" old.cpp"}) {
        const Outcome outcome = zex("-silent " + row.switches + words);
        EXPECT_EQ(outcome.status, 1) << name;
        EXPECT_THAT(outcome.err, HasSubstr("zex: error: TESSEL:zex:" + failure)) << words;
      }
    }
  }
}

TEST_F(Sdk, BlockHeadersInTheWrongOrderAreCompiledOnceMore) {
  for (const std::string arguments : {"block.c", "block.cpp", "-f \"$OPTS/clang.xml\" block.c"}) {
    write(arguments.substr(arguments.rfind('b')),
          "#include <tzwtypes.h>\n#include <zimstruc.h>\n" + extension("plhs[0] = zxMakeReal(sizeof(zxIndex));"));
    fs::remove("block.zexa64");
    const std::string out = build("-v " + arguments, {"block.zexa64"}).out;
    EXPECT_EQ(timesIn(out, "TESSEL:zex:SFunctionMsg"), 1U) << arguments;
    EXPECT_EQ(zexrun("block.zexa64").out, "ans1: real, 1 by 1\n    4\n");
  }
}

TEST_P(EachTarget, ExtensionsAnswerAndFailUnderItsRunner) {
  if (!canCallWithTree()) GTEST_SKIP() << "there is no Wine, or no tree for Windows at " ZEX_WINDOWS_TREE;
  const std::string filtered = "ans1: real, 4 by 1\n    0.25\n       1\n     0.5\n       1\n";
  const std::string letter = target.isWindows() ? "\xE9" : "é";
  const std::string spoken = "1 inputs (" + letter + ")\n";
  const bool hasDevice = shell("nvidia-smi -L").status == 0;
  struct {
    std::string source, arguments, out, err = {};  ///< errors by their end
    bool everywhere = true;
  } const rows[] = {
      {"filter.c", "'[0.25 0.5 -1.5]' '[1;2;4;8]'", filtered},
      {"-R2018a filter.c", "'[0.25 0.5 -1.5]' '[1;2;4;8]'", filtered},
      {"-compatibleArrayDims filter.c", "1", "", "[filter:arguments]\n"},
      {"product.cpp", "'[1 2;3 4]' '[5 6;7 8]'", "ans1: real, 2 by 2\n    19  22\n    43  50\n"},
      // Wider than its blocks.
      {"product.cpp", "\"[$(seq -s ' ' 140)]\" \"[$(seq -s ';' 140)]\"", "ans1: real, 1 by 1\n    924490\n"},
      {"product.cpp", "'[1 2]' '[1 2]'", "", "[product:sizes]\n"},
      {"-largeArrayDims halve.f90", "3", "halving\nans1: real, 1 by 1\n    1.5\n"},
      {"-largeArrayDims halve.f90", "", "", "error: " + letter + " [halve:inputs]\n"},  // unwinds through Fortran
      {"echo.c", "\"'gré'\"", spoken + "ans1: text, 1 by 3\n    gr" + letter + "\n"},
      {"echo.c", "--json \"'é'\"",
       R"([{"name":"ans1","kind":"text","rows":1,"columns":1,"value":"é"}])"
       "\n",
       spoken},
      // As many steps as rows give the exact solution.
      {"conjugate.f90 -largeArrayDims -lblas",
       "'[4 1 0; 1 3 1; 0 1 2]' '[2; -2; 4]' 3 | awk 'NR > 1 { printf \"%.9g \", $1 }'", "1 -2 3 ", "", false},
      {"saxpy.cu", "2.5 '[1 2 3]' '[10 20 30]'", hasDevice ? "ans1: real, 1 by 3\n    12.5  25  37.5\n" : "",
       hasDevice ? "" : "[saxpy:device]\n", false},
  };
  fs::copy(ZEX_TREE "/extern/examples", work);
  std::string built;
  const std::string product = "product" + target.product;
  for (const auto& row : rows) {
    if (needsMissingTool(row.source) || (target.isWindows() && !row.everywhere)) continue;
    SCOPED_TRACE(row.source + ": " + row.arguments);
    if (row.source != built) {
      fs::remove(product);
      build(target.option + " -output product " + row.source, {product});
      built = row.source;
    }
    const Outcome outcome = zexrun(product + " " + row.arguments);
    EXPECT_EQ(outcome.status, row.out.empty() ? 1 : 0);
    EXPECT_EQ(outcome.out, row.out);
    EXPECT_TRUE(row.err.empty() ? outcome.err.empty() : outcome.err.ends_with(row.err)) << outcome.err;
  }
}

TEST_F(Sdk, ComplexArraysAreReadAndWrittenByProductsOfBothReleases) {
  struct {
    std::string switches, edit;
  } const rows[] = {
      {"", "{ double im[] = {zxGetPi(prhs[0])[0], zxReadRealPart(prhs[0])[0]}; zxSetPi(plhs[0], im); }"},
      {"-R2018a", "{ zxComplex* z = zxEditComplexes(plhs[0]); z[1].im = z[0].re; }"},
      {"-compatibleArrayDims", "zxGetImagData(plhs[0])[1] = sizeof(zxIndex) == 4 ? zxCountOf(prhs[0]) - 1 : 0;"},
  };
  write("edited.zexa64", "");
  for (const auto& row : rows) {
    write("edited.c", extension("plhs[0] = zxCopy(prhs[0]);" + row.edit));
    build("-silent edited.c " + row.switches);
    EXPECT_EQ(zexrun("edited.zexa64 '[1+2i 3+4i]'").out, "ans1: complex, 1 by 2\n    1+2i  3+1i\n") << row.edit;
  }
}

// --- A process that loads what it builds ---

class HostProcess : public Sdk {
 protected:
  HostProcess() {
    host.install = fs::path(ZEX_TREE).u16string();
    host.preferences = scratch.path("prefs");
    host.dispatch = &products;
  }

  /// Builds C++ code with a variable that makes some compilers keep a library in the process for good.
  std::string make(double value, std::vector<fl::ustring> arguments = {u"-silent"}) {
    write("live.cpp", extension("plhs[0] = zxMakeReal(" + std::to_string(value) + ");",
                                "inline int& counter() { static int value = 0; return value; }\n"
                                "int counted = ++counter();\n"));
    arguments.push_back(u"live.cpp");
    return zex_test::failureOf([&] { command->run(arguments); });
  }

  static double number(LoadedProduct& product) {
    zxArray* output = nullptr;
    product.call(1, &output, 0, nullptr);
    const double value = zxNumber(output);
    zxDestroyArray(output);
    return value;
  }

  host::standalone::LoadedProducts products;
  zex_test::RecordingServices host;
  const std::unique_ptr<zex_cmd::ZexCmdI> command{zex_cmd::ZexCmdFactory::createZex()};
};

TEST_F(HostProcess, ALockedProductIsNotBuiltAgainAndAnUnlockedOneIs) {
  EXPECT_EQ(make(1), "no error");
  LoadedProduct& product = products.load(u"./live.zexa64");
  EXPECT_EQ(number(product), 1);

  product.lock();
  product.lock();
  product.unlock();
  EXPECT_EQ(make(2).substr(0, 17), "TESSEL:zex:Locked");
  EXPECT_EQ(number(product), 1);

  product.unlock();
  EXPECT_EQ(make(2), "no error");
  EXPECT_FALSE(product.isLoaded());
  EXPECT_THROW(number(product), Korvane::TException::HostError);
  EXPECT_EQ(&products.load(u"live.zexa64"), &product);
  EXPECT_EQ(number(product), 2);
}

TEST_F(HostProcess, CodeThatStaysInTheProcessIsNotTakenForTheNewOne) {
  const std::vector<fl::ustring> keep = {u"-silent", u"COMPFLAGS=$COMPFLAGS -fgnu-unique"};
  EXPECT_EQ(make(1, keep), "no error");
  products.load(u"live.zexa64").unload();
  products.load(u"live.zexa64");
  EXPECT_EQ(make(2, keep), "no error");
  try {
    products.load(u"live.zexa64");
    FAIL() << "old code was loaded in place of the new one";
  } catch (const Korvane::TException::HostError& failure) {
    EXPECT_EQ(failure.error_id(), "TESSEL:host:CodeStays");
  }
}

}  // namespace

}  // namespace end_to_end
