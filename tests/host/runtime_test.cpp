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
      {"TESSEL:zx:WrongKind", [](const Called& call) { zxReadData(call.prhs[0], ZX_INT8); }},
      {"TESSEL:zx:WrongSize", [](const Called&) { zxMake(ZX_REAL, -1, 1); }},
      {"TESSEL:zx:WrongSize", [](const Called&) { zxSetImagData(zxMake(ZX_REAL, 2, 1), 1, largest, nullptr); }},
      {"TESSEL:zx:NoText", [](const Called&) { zxCreateString(nullptr); }},
      {"TESSEL:zx:NoText", [](const Called&) { zexFail(nullptr, "x"); }},
      {"TESSEL:zx:NoValues", [](const Called&) { zxSetPi(zxMakeReal(1), nullptr); }},
      {"TESSEL:zx:TooLarge", [](const Called&) { zxMake(ZX_REAL, largest, 2); }},
      {"TESSEL:zx:TooLarge", [](const Called&) { zxColumnsOf_32(zxMake(ZX_INT8, 0, zxIndex{1} << 40)); }},
      {"TESSEL:zx:NoNumber", [](const Called& call) { zxNumber(call.prhs[0]); }},
      {"TESSEL:zx:InputDestroyed", [](const Called& call) { zxDestroyArray(const_cast<zxArray*>(call.prhs[0])); }},
      {"TESSEL:zx:ForeignOutput", [](const Called& call) { call.plhs[0] = const_cast<zxArray*>(call.prhs[0]); }},
      {"TESSEL:zx:ForeignOutput", [](const Called& call) { call.plhs[0] = call.plhs[1] = zxMakeReal(1); }},
      {"TESSEL:zx:OutOfMemory", [](const Called&) { throw std::bad_alloc(); }},
      {"TESSEL:zx:UncaughtException", [](const Called&) { throw std::runtime_error("x"); }},
  };
  for (const Case& row : cases) EXPECT_EQ(identifierOf(row.misuse), row.identifier) << &row - cases;
}

TEST(Runtime, AnErrorKeepsItsWords) {
  const std::string longText(5000, 'x');
  const auto fail = [&](const Called&) { zexFail("a:b", "%s %d%%", longText.c_str(), 7); };
  EXPECT_EQ(outcome(fail), "a:b " + longText + " 7%");
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
}

TEST(Runtime, NumbersOfEveryKindAreRead) {
  const auto number = [](zxKind kind, auto value) {
    const Value array = owned(zxMake(kind, 1, 1));
    *static_cast<decltype(value)*>(zxEditData(array.get(), kind)) = value;
    return zxNumber(array.get());
  };
  EXPECT_EQ(number(ZX_INT16, std::int16_t{-300}), -300);
  EXPECT_EQ(number(ZX_INT64, std::int64_t{-5000000000}), -5e9);
  EXPECT_EQ(number(ZX_UINT64, std::uint64_t{1} << 63), 9223372036854775808.0);
}

TEST(Runtime, ImaginaryPartsMayComeFromTheArrayItself) {
  const Value array = owned(zxMakeReal(3));
  zxSetPi(array.get(), zxEditReals(array.get()));
  EXPECT_EQ(zxReadRealPart(array.get())[0], 3);
  EXPECT_EQ(zxGetPi(array.get())[0], 3);
}

TEST(Runtime, TextsComeInBothEncodings) {
  const Value text = owned(zxCreateString("é𝄞\xff"));
  EXPECT_EQ(std::u16string(zxReadText_UTF16(text.get())), u"é𝄞\uFFFD");
  EXPECT_STREQ(zxReadText(text.get()), "é𝄞\uFFFD");
  EXPECT_EQ(zxCountOf(text.get()), 4);
  EXPECT_STREQ(zxReadText(owned(zxCopy(text.get())).get()), "é𝄞\uFFFD");
}

}  // namespace
