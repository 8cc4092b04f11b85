#include <sstream>

#include "cmd/ZexCmdFactory.hpp"
#include "end_to_end/EndToEnd.hpp"
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
      for (const std::string compiler : {"gcc", "clang", "g++", "clang++"}) {
        const std::string source = compiler.ends_with("++") ? "old.cpp" : "old.c";
        write(source, extension(name + "();"));
        const Outcome outcome = zex((name.size() % 2 == 0 ? "-silent -g " : "-silent -O ") + row.switches +
                                    "-f \"$OPTS/" + compiler + ".xml\" " + source);
        EXPECT_EQ(outcome.status, 1) << name;
        EXPECT_THAT(outcome.err, HasSubstr("zex: error: TESSEL:zex:" + failure)) << compiler;
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

TEST_F(Sdk, TheProductsRecordFollowsItsObjects) {
  write("one.c", extension(""));
  write("two.c", "#include <zex.h>\nint two = 2;\n");
  build("-silent -R2018a -c one.c", {"one.o"});
  build("-silent -R2017b -c two.c", {"two.o"});

  const Outcome linked = build("-v one.o", {"one.zexa64"});
  EXPECT_EQ(timesIn(linked.out, "TESSEL:zex:RecompileVer("), 1U);
  const std::string driver = "@(#)zex-record form=1 kind=driver release=";
  EXPECT_THAT(contentOf("one.zexa64"), HasSubstr(driver + "R2018a dims=64 cmd=1;"));
  EXPECT_EQ(zexrun("one.zexa64").status, 0);

  const Outcome mixed = zex("one.o two.o -output mixed", {"mixed.zexa64"});
  EXPECT_EQ(mixed.status, 1);
  EXPECT_THAT(mixed.err, testing::AllOf(HasSubstr("TESSEL:zex:Error("), HasSubstr("R2018a"), HasSubstr("R2017b")));

  build("-v -no_zexcheck one.o two.o -output unchecked", {"unchecked.zexa64"});
  EXPECT_THAT(contentOf("unchecked.zexa64"), HasSubstr(driver + "R2017b dims=64 cmd=1;"));
  EXPECT_THAT(zexrun("unchecked.zexa64").err, HasSubstr("[TESSEL:host:InterfaceMismatch]"));
}

TEST_F(Sdk, AProductNeedsTheRuntimeOnlyIfItCallsIt) {
  write("calls.c", extension("zexPrintf(\"x\");"));
  build("-silent calls.c", {"calls.zexa64"});
  build("-silent value.c", {"value.zexa64"});
  EXPECT_THAT(shell("readelf -d calls.zexa64").out, HasSubstr("[libzx.so]"));
  EXPECT_THAT(shell("readelf -d value.zexa64").out, testing::Not(HasSubstr("libzx")));
}

TEST_F(Sdk, ShippedExamplesComputeWhatTheySay) {
  struct {
    std::string source, arguments, numbers, failure = {};
  } const rows[] = {
      {"filter.c", "'[0.25 0.5 -1.5]' '[1;2;4;8]'", "0.25 1 0.5 1 "},
      {"product.cpp", "'[1 2;3 4]' '[5 6;7 8]'", "19 22 43 50 "},
      {"product.cpp", "\"[$(seq -s ' ' 140)]\" \"[$(seq -s ';' 140)]\"", "924490 "},  // wider than its blocks
      {"product.cpp", "'[1 2]' '[1 2]'", "", "[product:sizes]"},
      // As many steps as rows give the exact solution.
      {"conjugate.f90", "'[4 1 0; 1 3 1; 0 1 2]' '[2; -2; 4]' 3", "1 -2 3 "},
      {"conjugate.f90", "1", "", "[conjugate:arguments]"},  // unwinds through Fortran
      {"saxpy.cu", "2.5 '[1 2 3]' '[10 20 30]'", "12.5 25 37.5 ", "[saxpy:device]"},
  };
  const bool hasDevice = shell("nvidia-smi -L").status == 0;
  for (const auto& row : rows) {
    if (needsMissingTool(row.source)) continue;
    const std::string product = fs::path(row.source).stem().string() + ".zexa64";
    if (!fs::exists(row.source)) {
      fs::copy(fs::path(ZEX_TREE) / "extern" / "examples" / row.source, row.source);
      build(row.source + (row.source.ends_with(".f90") ? " -largeArrayDims -lblas" : ""), {product});
    }
    const Outcome outcome = zexrun(product + " " + row.arguments +
                                   " | awk 'NR > 1 { for (i = 1; i <= NF; ++i) printf \"%.9g \", $i }'");
    const bool fails = row.numbers.empty() || (row.source == "saxpy.cu" && !hasDevice);
    EXPECT_EQ(outcome.out, fails ? "" : row.numbers) << row.source << outcome.err;
    EXPECT_TRUE(fails ? outcome.err.ends_with(row.failure + "\n") : outcome.err.empty()) << outcome.err;
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
  const std::vector<fl::ustring> keep = {u"-silent", u"COMPFLAGS=$COMPFLAGS -fgnu-unique", u"EXPORTFLAGS="};
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
