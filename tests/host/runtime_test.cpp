#include "zx/runtime.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "zex.h"

extern "C" ZX_API std::int32_t zxColumnsOf_32(const zxArray* array);

namespace {

using Value = std::unique_ptr<zxArray, decltype(&zxDestroyArray)>;

Value owned(zxArray* array) {
  return {array, zxDestroyArray};
}

/// Arguments of a call, and what the entry point below does with them.
struct Called {
  int nlhs;
  zxArray** plhs;
  const zxArray** prhs;
};
std::function<void(const Called&)> body;

void enter(int nlhs, zxArray* plhs[], int /*nrhs*/, const zxArray* prhs[]) {
  const auto running = body;  // a call within the call sets it anew
  running({nlhs, plhs, prhs});
}

void enterFortran(const std::ptrdiff_t* nlhs, zxArray* plhs[], const std::ptrdiff_t* nrhs, const zxArray* prhs[]) {
  zexFail("f:counts", "%d %d %d", static_cast<int>(*nlhs), static_cast<int>(*nrhs), plhs[1] == prhs[0] ? 1 : 0);
}

/// How a call with one input, a row of two numbers, and two outputs ends.
std::string outcome(const std::function<void(const Called&)>& action, std::vector<Value>* outputs = nullptr) {
  const Value input = owned(zxMake(ZX_REAL, 1, 2));
  const zxArray* inputs[] = {input.get()};
  zxArray* places[] = {nullptr, nullptr};
  body = action;
  const zxFailure* const failure = zxCallEntry(enter, 2, places, 1, inputs);
  for (zxArray* place : places) {
    EXPECT_TRUE(failure == nullptr || place == nullptr);
    if (outputs != nullptr) outputs->push_back(owned(place));
  }
  return failure == nullptr ? "fine" : std::string(failure->identifier) + " " + failure->message;
}

std::string identifierOf(const std::function<void(const Called&)>& action) {
  const std::string text = outcome(action);
  return text.substr(0, text.find(' '));
}

/// An array that counts its own end.
zxArray* counted(int& ends) {
  return zxWrapObject(&ends, [](void* object) { ++*static_cast<int*>(object); });
}

TEST(Runtime, EveryMisuseHasItsError) {
  constexpr auto largest = std::numeric_limits<zxIndex>::max();
  struct Case {
    const char* identifier;
    std::function<void(const Called&)> misuse;
  };
  const Case cases[] = {
      {"TESSEL:zx:NoArray", [](const Called&) { zxRowsOf(nullptr); }},
      {"TESSEL:zx:NoArray", [](const Called&) { zxSetPi(nullptr, nullptr); }},
      {"TESSEL:zx:NoSuchKind", [](const Called&) { zxMake(static_cast<zxKind>(14), 1, 1); }},
      {"TESSEL:zx:WrongKind", [](const Called&) { zxMake(ZX_TEXT, 1, 1); }},
      {"TESSEL:zx:WrongKind", [](const Called&) { zxReadReals(zxMake(ZX_COMPLEX, 1, 1)); }},
      {"TESSEL:zx:WrongKind", [](const Called& call) { zxReadData(call.prhs[0], ZX_INT8); }},
      {"TESSEL:zx:WrongKind", [](const Called&) { zxReadData(zxMake(ZX_COMPLEX, 1, 1), ZX_COMPLEX); }},
      {"TESSEL:zx:WrongKind", [](const Called& call) { zxReadText(call.prhs[0]); }},
      {"TESSEL:zx:WrongKind", [](const Called& call) { zxReadRealPart(call.prhs[0]); }},
      {"TESSEL:zx:WrongKind", [](const Called&) { zxGetImagData(zxMake(ZX_INT8, 1, 1)); }},
      {"TESSEL:zx:WrongSize", [](const Called&) { zxMake(ZX_REAL, -1, 1); }},
      {"TESSEL:zx:WrongSize", [](const Called&) { zxSetImagData(zxMake(ZX_REAL, 2, 1), 1, 2, nullptr); }},
      {"TESSEL:zx:WrongSize", [](const Called&) { zxSetImagData(zxMake(ZX_REAL, 2, 1), 1, largest, nullptr); }},
      {"TESSEL:zx:TooLarge", [](const Called&) { zxMake(ZX_REAL, largest, 2); }},
      {"TESSEL:zx:TooLarge", [](const Called&) { zxMake(ZX_REAL, largest / 8, 2); }},
      {"TESSEL:zx:TooLarge", [](const Called&) { zxColumnsOf_32(zxMake(ZX_INT8, 0, zxIndex{1} << 40)); }},
      {"TESSEL:zx:NoNumber", [](const Called& call) { zxNumber(call.prhs[0]); }},
      {"TESSEL:zx:NoNumber", [](const Called&) { zxNumber(zxCreateString("3")); }},
      {"TESSEL:zx:InputDestroyed", [](const Called& call) { zxDestroyArray(const_cast<zxArray*>(call.prhs[0])); }},
      {"TESSEL:zx:ForeignOutput", [](const Called& call) { call.plhs[0] = const_cast<zxArray*>(call.prhs[0]); }},
      {"TESSEL:zx:ForeignOutput", [](const Called& call) { call.plhs[0] = call.plhs[1] = zxMakeReal(1); }},
      {"TESSEL:zx:OutOfMemory", [](const Called&) { throw std::bad_alloc(); }},
      {"TESSEL:zx:UncaughtException", [](const Called&) { throw std::runtime_error("x"); }},
      {"TESSEL:zx:UncaughtException", [](const Called&) { throw 3; }},
  };
  for (const Case& row : cases) EXPECT_EQ(identifierOf(row.misuse), row.identifier) << &row - cases;
}

TEST(Runtime, AnErrorKeepsItsWords) {
  const std::string longText(5000, 'x');
  const auto fail = [&](const Called&) { zexFail("a:b", "%s %d%%", longText.c_str(), 7); };
  EXPECT_EQ(outcome(fail), "a:b " + longText + " 7%");
  zxArray* places[] = {nullptr, nullptr, nullptr};
  const zxArray* inputs[] = {nullptr};
  EXPECT_STREQ(zxCallFortranEntry(enterFortran, 3, places, 1, inputs)->message, "3 1 1");
}

TEST(Runtime, WhatIsNotReturnedEndsWithTheCall) {
  int ends = 0;
  std::vector<Value> outputs;
  const auto makeThree = [&](const Called& call) {
    call.plhs[1] = counted(ends);
    zxDestroyArray(counted(ends));
    counted(ends);
  };
  EXPECT_EQ(outcome(makeThree, &outputs), "fine");
  EXPECT_EQ(ends, 2);
  outputs.clear();
  EXPECT_EQ(ends, 3);

  ends = 0;
  const auto makeAndFail = [&](const Called& call) {
    makeThree(call);
    zexFail("a:b", "c");
  };
  EXPECT_EQ(outcome(makeAndFail), "a:b c");
  EXPECT_EQ(ends, 3);

  ends = 0;
  const auto callAnother = [&](const Called& call) {
    call.plhs[0] = counted(ends);
    EXPECT_EQ(outcome(makeAndFail), "a:b c");
    EXPECT_EQ(ends, 3);
  };
  EXPECT_EQ(outcome(callAnother, &outputs), "fine");
  EXPECT_EQ(ends, 3) << "an inner call frees its own arrays alone";
}

TEST(Runtime, NumbersOfEveryKindAreRead) {
  const auto number = [](zxKind kind, auto value) {
    const Value array = owned(zxMake(kind, 1, 1));
    *static_cast<decltype(value)*>(zxEditData(array.get(), kind)) = value;
    const Value copy = owned(zxCopy(array.get()));
    return zxNumber(copy.get());
  };
  EXPECT_EQ(number(ZX_INT8, std::int8_t{-3}), -3);
  EXPECT_EQ(number(ZX_INT16, std::int16_t{-300}), -300);
  EXPECT_EQ(number(ZX_INT32, std::int32_t{-70000}), -70000);
  EXPECT_EQ(number(ZX_INT64, std::int64_t{-5000000000}), -5e9);
  EXPECT_EQ(number(ZX_UINT8, std::uint8_t{253}), 253);
  EXPECT_EQ(number(ZX_UINT16, std::uint16_t{65000}), 65000);
  EXPECT_EQ(number(ZX_UINT32, std::uint32_t{4000000000}), 4e9);
  EXPECT_EQ(number(ZX_UINT64, std::uint64_t{1} << 63), 9223372036854775808.0);
  EXPECT_EQ(number(ZX_LOGICAL, static_cast<unsigned char>(1)), 1);
  EXPECT_EQ(zxNumber(owned(zxMakeReal(0.1)).get()), 0.1);
}

TEST(Runtime, TextsComeInBothEncodings) {
  const Value text = owned(zxCreateString("é𝄞\xff"));
  EXPECT_EQ(std::u16string(zxReadText_UTF16(text.get())), u"é𝄞\uFFFD");
  EXPECT_STREQ(zxReadText(text.get()), "é𝄞\uFFFD");
  EXPECT_EQ(zxCountOf(text.get()), 4);
  EXPECT_STREQ(zxReadText(owned(zxCopy(text.get())).get()), "é𝄞\uFFFD");
}

TEST(Runtime, RealArraysBecomeComplexByTheirImaginaryParts) {
  const Value array = owned(zxMake(ZX_REAL, 1, 3));
  zxEditReals(array.get())[2] = 5;
  EXPECT_EQ(zxGetPi(array.get()), nullptr);
  const double parts[] = {7, 8};
  zxSetImagData(array.get(), 1, 2, parts);
  ASSERT_TRUE(zxIsComplex(array.get()));
  zxGetImagData(array.get())[0] = 6;
  const double* const re = zxReadRealPart(array.get());
  const double* const im = zxGetPi(array.get());
  EXPECT_EQ(std::vector<double>(re, re + 3), (std::vector<double>{0, 0, 5}));
  EXPECT_EQ(std::vector<double>(im, im + 3), (std::vector<double>{6, 7, 8}));
}

TEST(Runtime, WhatExtensionsPrintGoesToTheHost) {
  static std::string seen;
  zxSetWriter([](const char* text, std::size_t length) { seen.append(text, length); });
  zexPrintf("%d of %s;", 2, std::string(3000, 'y').c_str());
  zxSetWriter(nullptr);
  EXPECT_EQ(seen, "2 of " + std::string(3000, 'y') + ";");
}

}  // namespace
