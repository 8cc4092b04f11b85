#include "zx/runtime.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "zex.h"
#undef zxReadComplexes

extern "C" {
// What extensions call that are compiled in another way than this file.
ZX_API std::int32_t zxRowsOf_32(const zxArray* array);
ZX_API std::int32_t zxColumnsOf_32(const zxArray* array);
ZX_API const zxComplex* zxReadComplexes(const zxArray* array);
}

namespace {

using Value = std::unique_ptr<zxArray, decltype(&zxDestroyArray)>;

Value owned(zxArray* array) {
  return {array, zxDestroyArray};
}

/// What an entry point does with its input and its places for outputs.
using Body = std::function<void(const zxArray* input, zxArray** outputs)>;
Body body;

/// How a call with one input, a row of two numbers, and two outputs ends; outputs do not outlive it.
std::string outcome(const Body& action) {
  const Value input = owned(zxMake(ZX_REAL, 1, 2));
  const zxArray* inputs[] = {input.get()};
  zxArray* places[] = {nullptr, nullptr};
  body = action;
  const auto enter = [](int, zxArray* outputs[], int, const zxArray* given[]) {
    const Body running = body;  // a call within the call sets it anew
    running(given[0], outputs);
  };
  const zxFailure* const failure = zxCallEntry(enter, 2, places, 1, inputs);
  for (zxArray* const place : places) zxDestroyArray(place);
  return failure == nullptr ? "fine" : std::string(failure->identifier) + " " + failure->message;
}

TEST(Runtime, EveryMisuseHasItsError) {
  constexpr auto largest = std::numeric_limits<zxIndex>::max();
  constexpr zxIndex wide = zxIndex{1} << 40;
  const std::pair<std::string, Body> cases[] = {
      {"TESSEL:zx:NoArray", [](auto*, auto**) { zxRowsOf(nullptr); }},
      {"TESSEL:zx:NoSuchKind", [](auto*, auto**) { zxMake(static_cast<zxKind>(14), 1, 1); }},
      {"TESSEL:zx:WrongKind", [](auto* input, auto**) { zxReadData(input, ZX_INT8); }},
      {"TESSEL:zx:WrongKind", [](auto*, auto**) { zxMake(ZX_TEXT, 1, 1); }},
      {"TESSEL:zx:WrongSize", [](auto*, auto**) { zxMake(ZX_REAL, -1, 1); }},
      {"TESSEL:zx:WrongSize", [](auto*, auto**) { zxSetImagData(zxMake(ZX_REAL, 2, 1), 1, largest, nullptr); }},
      {"TESSEL:zx:NoText", [](auto*, auto**) { zxCreateString(nullptr); }},
      {"TESSEL:zx:NoText", [](auto*, auto**) { zexFail(nullptr, "x"); }},
      {"TESSEL:zx:NoValues", [](auto*, auto**) { zxSetPi(zxMakeReal(1), nullptr); }},
      {"TESSEL:zx:TooLarge", [](auto*, auto**) { zxMake(ZX_REAL, largest, 2); }},
      {"TESSEL:zx:TooLarge", [](auto*, auto**) { zxRowsOf_32(zxMake(ZX_INT8, wide, 0)); }},
      {"TESSEL:zx:TooLarge", [](auto*, auto**) { zxColumnsOf_32(zxMake(ZX_INT8, 0, wide)); }},
      {"TESSEL:zx:NoNumber", [](auto* input, auto**) { zxNumber(input); }},
      {"TESSEL:zx:InputDestroyed", [](auto* input, auto**) { zxDestroyArray(const_cast<zxArray*>(input)); }},
      {"TESSEL:zx:ForeignOutput", [](auto* input, auto** out) { out[0] = const_cast<zxArray*>(input); }},
      {"TESSEL:zx:ForeignOutput", [](auto*, auto** out) { out[0] = out[1] = zxMakeReal(1); }},
      {"TESSEL:zx:OutOfMemory", [](auto*, auto**) { throw std::bad_alloc(); }},
      {"TESSEL:zx:UncaughtException", [](auto*, auto**) { throw std::runtime_error("x"); }},
  };
  for (const auto& [identifier, misuse] : cases) {
    const std::string text = outcome(misuse);
    EXPECT_EQ(text.substr(0, text.find(' ')), identifier) << &misuse - &cases[0].second;
  }
}

TEST(Runtime, WhatIsNotReturnedEndsWithTheCall) {
  const std::string longText(5000, 'x');
  for (const bool fails : {false, true}) {
    int ends = 0;
    const auto counted = [&] { return zxWrapObject(&ends, [](void* object) { ++*static_cast<int*>(object); }); };
    const Body makeThree = [&](auto*, auto** outputs) {
      outputs[1] = counted();
      EXPECT_EQ(outcome([](auto*, auto** inner) { inner[0] = zxMakeReal(1); }), "fine");
      zxDestroyArray(counted());
      counted();
      EXPECT_EQ(ends, 1);
      if (fails) zexFail("a:b", "%s %d%%", longText.c_str(), 7);
    };
    EXPECT_EQ(outcome(makeThree), fails ? "a:b " + longText + " 7%" : "fine");
    EXPECT_EQ(ends, 3);
  }
}

TEST(Runtime, NumbersOfEveryKindAreRead) {
  const std::tuple<zxKind, std::size_t, double> ofSetBits[] = {
      {ZX_INT8, 1, -1},           {ZX_INT16, 2, -1},      {ZX_INT32, 4, -1},
      {ZX_INT64, 8, -1},          {ZX_UINT8, 1, 0xFF},    {ZX_UINT16, 2, 0xFFFF},
      {ZX_UINT32, 4, 0xFFFFFFFF}, {ZX_UINT64, 8, 0x1p64}, {ZX_LOGICAL, 1, 0xFF},
  };
  for (const auto& [kind, width, expected] : ofSetBits) {
    const Value number = owned(zxMake(kind, 1, 1));
    std::memset(zxEditData(number.get(), kind), 0xFF, width);
    EXPECT_EQ(zxNumber(number.get()), expected) << kind;
  }
}

TEST(Runtime, ImaginaryPartsComeFromAnywhere) {
  const Value array = owned(zxMake(ZX_REAL, 1, 2));
  zxEditReals(array.get())[0] = 1;
  zxEditReals(array.get())[1] = 2;
  zxSetPi(array.get(), zxEditReals(array.get()));  // from the array itself, whose elements move
  const double seven = 7;
  zxSetImagData(array.get(), 1, 1, &seven);
  const Value copy = owned(zxCopy(array.get()));
  const double expected[] = {1, 1, 2, 7};
  EXPECT_TRUE(std::equal(expected, expected + 4, &zxReadComplexes(copy.get())->re));
}

}  // namespace
