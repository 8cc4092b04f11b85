#include <sstream>

#include "cmd/ZexCmdFactory.hpp"
#include "end_to_end/EndToEnd.hpp"
#include "korvane/TException.hpp"
#include "standalone/LoadedProducts.hpp"
#include "support/RecordingServices.hpp"
#include "zex.h"

namespace end_to_end {

namespace {

namespace fs = std::filesystem;
using host::standalone::LoadedProduct;
using host::standalone::LoadedProducts;
using testing::HasSubstr;

const std::string entry = "void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[])";
const std::string unused = "(void)nlhs; (void)plhs; (void)nrhs; (void)prhs;";

std::string extension(const std::string& body, const std::string& ahead = {}) {
  return "#include <zex.h>\n" + ahead + entry + " { " + unused + body + " }\n";
}

std::size_t timesIn(const std::string& text, const std::string& word) {
  std::size_t count = 0;
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) ++count;
  return count;
}

class Sdk : public EndToEnd {
 protected:
  Outcome run(const std::string& arguments) const { return shell("\"$OPTS/../zexrun\" " + arguments); }

  /// Copies a shipped example here and builds it.
  void example(const std::string& name, const std::string& arguments = {}) const {
    fs::copy(fs::path(ZEX_TREE) / "extern" / "examples" / name, name);
    build(arguments + " " + name + (name.ends_with(".f90") ? " -lblas" : ""),
          {fs::path(name).stem().string() + ".zexa64"});
  }
};

/// Compilers with the sources that they take.
struct Compiler {
  const char* document;
  const char* extension;
};
constexpr Compiler compilers[] = {{"gcc", ".c"}, {"clang", ".c"}, {"g++", ".cpp"}, {"clang++", ".cpp"}};

TEST_F(Sdk, DeprecatedNamesGiveTheDriversOwnMessages) {
  struct Case {
    const char* names;
    const char* release;
    const char* failure;
  };
  const Case cases[] = {
      {"zexGet", "", "TESSEL:zex:ZexDoubleHandle(\"ZEX_DOUBLE_HANDLE\")"},
      {"zexSet", "-R2018a", "TESSEL:zex:ZexDoubleHandle(\"ZEX_DOUBLE_HANDLE\")"},
      {"zexSetTrapFlag", "", "TESSEL:zex:ZexSetTrapFlagNotSupported"},
      {"zxGetPi", "-R2018a", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxGetPi\")"},
      {"zxSetPi", "-R2018a", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxSetPi\")"},
      {"zxGetImagData", "-R2018a", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxGetImagData\")"},
      {"zxSetImagData", "-R2018a", "TESSEL:zex:ZXSeparateComplexNotSupported(\"zxSetImagData\")"},
      {"zxCreateSharedDataCopy", "", "TESSEL:zex:UndocumentedNotSupported(\"zxCreateSharedDataCopy\")"},
      {"zxCreateUninitDoubleMatrix", "", "TESSEL:zex:UndocumentedNotSupported(\"zxCreateUninitDoubleMatrix\")"},
      {"zxFastZeros", "-R2018a", "TESSEL:zex:UndocumentedNotSupported(\"zxFastZeros\")"},
      {"zxGetPropertyShared", "", "TESSEL:zex:UndocumentedNotSupported(\"zxGetPropertyShared\")"},
      {"zxSetPropertyShared", "", "TESSEL:zex:UndocumentedNotSupported(\"zxSetPropertyShared\")"},
      {"zxUnreference", "", "TESSEL:zex:UndocumentedNotSupported(\"zxUnreference\")"},
      {"zxUnshareArray", "", "TESSEL:zex:UndocumentedNotSupported(\"zxUnshareArray\")"},
      {"zxFastZeros zexSetTrapFlag", "", "TESSEL:zex:ZexSetTrapFlagNotSupported"},
      // With handles that are numbers the two names are simply not there.
      {"zexGet", "-DZEX_DOUBLE_HANDLE", "TESSEL:zex:Error("},
  };
  for (const Case& row : cases) {
    std::string calls;
    std::istringstream names(row.names);
    for (std::string name; names >> name;) calls += name + "();";
    for (const Compiler& compiler : compilers) {
      const std::string source = std::string("old") + compiler.extension;
      write(source, extension(calls));
      const bool debug = (&row - cases) % 2 == 0;
      const Outcome outcome = shell("\"$ZEX\" -silent " + std::string(debug ? "-g " : "-O ") + row.release +
                                    " -f \"$OPTS/" + compiler.document + ".xml\" " + source);
      EXPECT_EQ(outcome.status, 1) << row.names;
      EXPECT_THAT(outcome.err, HasSubstr("zex: error: " + std::string(row.failure))) << compiler.document;
    }
  }
}

TEST_F(Sdk, BlockHeadersInTheWrongOrderAreCompiledOnceMore) {
  const std::string wrong = "#include <tzwtypes.h>\n#include <zimstruc.h>\n";
  for (const Compiler& compiler : compilers) {
    const std::string source = std::string("block") + compiler.extension;
    write(source, wrong + extension("plhs[0] = zxMakeReal(sizeof(zxIndex));"));
    const std::string with = " -f \"$OPTS/" + std::string(compiler.document) + ".xml\" ";
    const Outcome outcome = shell("\"$ZEX\" -v" + with + source);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(timesIn(outcome.out, "TESSEL:zex:SFunctionMsg"), 1U);
    EXPECT_THAT(outcome.out, HasSubstr("block.o -DZX_COMPAT_32\n"));
    EXPECT_EQ(run("block.zexa64").out, "ans1: real, 1 by 1\n    4\n");
  }
  write("right.c", "#include <zimstruc.h>\n#include <tzwtypes.h>\n" + extension(""));
  EXPECT_THAT(build("-v right.c", {"right.zexa64"}).out, testing::Not(HasSubstr("SFunctionMsg")));

  // At a link the same words are an error like any other.
  write("late.sh", "#!/bin/sh\necho tzwtypesbeforezimstrucdetected >&2\nexit 1\n");
  fs::permissions("late.sh", fs::perms::all);
  const Outcome late = zex("-v right.c LINKER=./late.sh -output late");
  EXPECT_THAT(late.err, HasSubstr("TESSEL:zex:Error(\"tzwtypesbeforezimstrucdetected"));
  EXPECT_THAT(late.out, testing::Not(HasSubstr("SFunctionMsg")));
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
  EXPECT_EQ(run("one.zexa64").status, 0);

  const Outcome mixed = zex("one.o two.o -output mixed", {"mixed.zexa64"});
  EXPECT_EQ(mixed.status, 1);
  EXPECT_THAT(mixed.err, testing::AllOf(HasSubstr("TESSEL:zex:Error("), HasSubstr("R2018a"), HasSubstr("R2017b")));

  build("-v -no_zexcheck one.o two.o -output unchecked", {"unchecked.zexa64"});
  EXPECT_THAT(contentOf("unchecked.zexa64"), HasSubstr(driver + "R2017b dims=64 cmd=1;"));
  EXPECT_THAT(run("unchecked.zexa64").err, HasSubstr("[TESSEL:host:InterfaceMismatch]"));
}

TEST_F(Sdk, AProductNeedsTheRuntimeOnlyIfItCallsIt) {
  write("calls.c", extension("zexPrintf(\"x\");"));
  write("main.c", "#define ZX_HOST\n#include <zex.h>\nint main(void) { return (int)zxNumber(zxMakeReal(5)); }\n");
  build("-silent calls.c", {"calls.zexa64"});
  build("-silent value.c", {"value.zexa64"});
  EXPECT_THAT(shell("readelf -d calls.zexa64").out, HasSubstr("[libzx.so]"));
  EXPECT_THAT(shell("readelf -d value.zexa64").out, testing::Not(HasSubstr("libzx")));
  build("-client ENGINE main.c", {"main"});
  EXPECT_THAT(shell("ldd ./main").out, HasSubstr("libzx.so => " ZEX_TREE))
      << "a program finds the library by itself";
}

// --- The shipped examples, each against a second computation ---

TEST_F(Sdk, FilterInC) {
  example("filter.c");
  const auto sample = [](int n) { return n < 0 ? 0.0 : n * n - 3.5 * n; };
  std::string input, expected;
  for (int n = 0; n < 12; ++n) {
    input += std::to_string(sample(n)) + ";";
    std::ostringstream number;
    number << 0.25 * sample(n) + 0.5 * sample(n - 1) - 1.5 * sample(n - 2) << "\n";
    expected += number.str();
  }
  EXPECT_EQ(run("filter.zexa64 '[0.25 0.5 -1.5]' '[" + input + "]' | tr -d ' ' | tail -n 12").out, expected);
}

TEST_F(Sdk, ProductInCpp) {
  example("product.cpp");
  // (A B) x = A (B x), with A and B wider than a block of the example.
  constexpr int size = 70;
  const auto a = [](int row, int column) { return (row * 7 + column * 3) % 11 - 5; };
  const auto b = [](int row, int column) { return (row * 5 + column) % 13 - 6; };
  const auto matrix = [&](const auto& element) {
    std::string text = "[";
    for (int row = 0; row < size; ++row) {
      for (int column = 0; column < size; ++column) text += std::to_string(element(row, column)) + " ";
      text += ";";
    }
    return text + "]";
  };
  const Outcome outcome = run("product.zexa64 --json '" + matrix(a) + "' '" + matrix(b) + "'");
  for (int row = 0; row < size; row += 23) {
    std::string expected = "[";
    for (int column = 0; column < size; ++column) {
      int sum = 0;
      for (int inner = 0; inner < size; ++inner) sum += a(row, inner) * b(inner, column);
      expected += (column == 0 ? "" : ",") + std::to_string(sum);
    }
    EXPECT_THAT(outcome.out, HasSubstr(expected + "]")) << row;
  }
  EXPECT_THAT(run("product.zexa64 '[1 2]' '[1 2]'").err, HasSubstr("[product:sizes]"));
}

TEST_F(Sdk, ConjugateGradientsInFortran) {
  // As many steps as rows give the exact solution: here, by elimination, 1, -2 and 3.
  example("conjugate.f90", "-largeArrayDims");
  const std::string system = "conjugate.zexa64 '[4 1 0; 1 3 1; 0 1 2]' '[2; -2; 4]' ";
  EXPECT_EQ(run(system + "3 | awk 'NR > 1 { printf \"%.9g \", $1 }'").out, "1 -2 3 ");
  const Outcome exact = run(system + "3 -nlhs 2 | awk '/ans2/ { getline; print ($1 < 1e-12) }'");
  EXPECT_EQ(exact.out, "1\n");
  EXPECT_THAT(run("conjugate.zexa64 1").err, HasSubstr("[conjugate:arguments]")) << "unwinds through Fortran";
}

TEST_F(Sdk, SaxpyInCuda) {
  if (needsMissingTool("saxpy.cu")) GTEST_SKIP() << "nvcc is not installed";
  example("saxpy.cu");
  const Outcome outcome = run("saxpy.zexa64 2.5 '[1 2 3]' '[10 20 30]'");
  if (shell("nvidia-smi -L").status == 0) {
    EXPECT_EQ(outcome.out, "ans1: real, 1 by 3\n    12.5  25  37.5\n");
  } else {
    EXPECT_THAT(outcome.err, testing::AllOf(HasSubstr("no CUDA device"), HasSubstr("[saxpy:device]")));
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

  std::string make(const std::string& name, const std::string& body, const std::string& ahead = {},
                   std::vector<fl::ustring> arguments = {}) {
    write(name, extension(body, ahead));
    arguments.insert(arguments.begin(), {u"-silent", fs::path(name).u16string()});
    return zex_test::failureOf([&] { command->run(arguments); });
  }

  /// What a product returns; the input, if any, is given up.
  static zxArray* result(LoadedProduct& product, zxArray* input = nullptr) {
    zxArray* output = nullptr;
    const zxArray* inputs[] = {input};
    product.call(1, &output, input == nullptr ? 0 : 1, inputs);
    zxDestroyArray(input);
    return output;
  }

  static double number(LoadedProduct& product) {
    zxArray* const array = result(product);
    const double value = zxNumber(array);
    zxDestroyArray(array);
    return value;
  }

  LoadedProducts products;
  zex_test::RecordingServices host;
  const std::unique_ptr<zex_cmd::ZexCmdI> command{zex_cmd::ZexCmdFactory::createZex()};
};

/// Code with a variable that makes some compilers keep a library in the process for good.
const std::string sticky =
    "inline int& counter() { static int value = 0; return value; }\nint counted = ++counter();\n";

TEST_F(HostProcess, ALockedProductIsNotBuiltAgainAndAnUnlockedOneIs) {
  for (const std::string source : {"live.c", "live.cpp"}) {
    const std::string ahead = source == "live.c" ? "" : sticky;
    EXPECT_EQ(make(source, "plhs[0] = zxMakeReal(1);", ahead), "no error");
    LoadedProduct& product = products.load(u"live.zexa64");
    EXPECT_EQ(number(product), 1);

    product.lock();
    product.lock();
    product.unlock();
    EXPECT_EQ(make(source, "plhs[0] = zxMakeReal(2);", ahead).substr(0, 17), "TESSEL:zex:Locked");
    EXPECT_EQ(number(product), 1);

    product.unlock();
    EXPECT_EQ(make(source, "plhs[0] = zxMakeReal(2);", ahead), "no error");
    EXPECT_FALSE(product.isLoaded());
    EXPECT_THROW(number(product), Korvane::TException::HostError);
    EXPECT_EQ(&products.load(u"live.zexa64"), &product);
    EXPECT_EQ(number(product), 2);
    product.unload();
  }
}

TEST_F(HostProcess, CodeThatStaysInTheProcessIsNotTakenForTheNewOne) {
  const std::vector<fl::ustring> keep = {u"COMPFLAGS=$COMPFLAGS -fgnu-unique"};
  EXPECT_EQ(make("stays.cpp", "", sticky, keep), "no error");
  products.load(u"stays.zexa64").unload();
  products.load(u"stays.zexa64");
  EXPECT_EQ(make("stays.cpp", "", sticky, keep), "no error");
  try {
    products.load(u"stays.zexa64");
    FAIL() << "old code was loaded in place of the new one";
  } catch (const Korvane::TException::HostError& failure) {
    EXPECT_EQ(failure.error_id(), "TESSEL:host:CodeStays");
  }
}

TEST_F(HostProcess, ComplexArraysPassBetweenProductsOfBothReleases) {
  const std::string input = "plhs[0] = zxCopy(prhs[0]);";
  EXPECT_EQ(make("parts.c",
                 "{ double im[] = {3, 4}; plhs[0] = zxMake(ZX_REAL, 1, 2); zxEditReals(plhs[0])[0] = 1;"
                 "zxSetPi(plhs[0], im); }"),
            "no error");
  EXPECT_EQ(make("pairs.c", input + "{ zxComplex* z = zxEditComplexes(plhs[0]); z[1].re = z[0].im; z[0].im = 9; }",
                 "", {u"-R2018a"}),
            "no error");
  EXPECT_EQ(make("narrow.c",
                 input + "if (zxCountOf(prhs[0]) == 2 && sizeof(zxIndex) == 4) zxGetImagData(plhs[0])[1] *= 10;",
                 "", {u"-compatibleArrayDims"}),
            "no error");
  zxArray* value = nullptr;
  for (const char16_t* name : {u"parts.zexa64", u"pairs.zexa64", u"narrow.zexa64"}) {
    value = result(products.load(name), value);
  }
  ASSERT_NE(value, nullptr);
  const double* const re = zxReadRealPart(value);
  const double* const im = zxGetPi(value);
  EXPECT_EQ((std::vector<double>{re[0], re[1], im[0], im[1]}), (std::vector<double>{1, 3, 9, 40}));
  zxDestroyArray(value);
}

}  // namespace

}  // namespace end_to_end
