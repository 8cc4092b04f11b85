#include "zx/runtime.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "zex.h"
#undef zxReadComplexes

extern "C" {
// What extensions call that are compiled in another way than this file, or in Fortran.
ZX_API std::int32_t zxRowsOf_32(const zxArray* array);
ZX_API std::int32_t zxColumnsOf_32(const zxArray* array);
ZX_API std::int32_t zxCountOf_32(const zxArray* array);
ZX_API const zxComplex* zxReadComplexes(const zxArray* array);
ZX_API void zex_fail_(const char* identifier, const char* message, std::size_t, std::size_t);
ZX_API void zex_print_(const char* text, std::size_t length);
ZX_API zxArray* zx_make_text_(const char* text, std::size_t length);
}

namespace {

using Value = std::unique_ptr<zxArray, decltype(&zxDestroyArray)>;

Value owned(zxArray* array) {
  return {array, zxDestroyArray};
}

/// What the entry point below does with its input and its places for outputs.
using Body = std::function<void(const zxArray* input, zxArray** outputs)>;
Body body;

void enter(int /*nlhs*/, zxArray* plhs[], int /*nrhs*/, const zxArray* prhs[]) {
  const Body running = body;  // a call within the call sets it anew
  running(prhs[0], plhs);
}

/// How a call with one input, a row of two numbers, and two outputs ends; outputs do not outlive it.
std::string outcome(const Body& action) {
  const Value input = owned(zxMake(ZX_REAL, 1, 2));
  const zxArray* inputs[] = {input.get()};
  zxArray* places[] = {nullptr, nullptr};
  body = action;
  const zxFailure* const failure = zxCallEntry(enter, 2, places, 1, inputs);
  if (failure == nullptr) {
    for (zxArray* const place : places) zxDestroyArray(place);
    return "fine";
  }
  EXPECT_TRUE(places[0] == nullptr && places[1] == nullptr);
  return std::string(failure->identifier) + " " + failure->message;
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
  int ends = 0;
  const auto counted = [&] { return zxWrapObject(&ends, [](void* object) { ++*static_cast<int*>(object); }); };
  const Body makeThree = [&](auto*, auto** outputs) {
    outputs[1] = counted();
    EXPECT_EQ(outcome([](auto*, auto** inner) { inner[0] = zxMakeReal(1); }), "fine");
    zxDestroyArray(counted());
    counted();
    EXPECT_EQ(ends, 1);
  };
  EXPECT_EQ(outcome(makeThree), "fine");
  EXPECT_EQ(ends, 3);

  ends = 0;
  const std::string longText(5000, 'x');
  const Body makeAndFail = [&](auto* input, auto** outputs) {
    makeThree(input, outputs);
    zexFail("a:b", "%s %d%%", longText.c_str(), 7);
  };
  EXPECT_EQ(outcome(makeAndFail), "a:b " + longText + " 7%");
  EXPECT_EQ(ends, 3);
}

template <class Number>
void expectNumbersOf(zxKind kind) {
  for (const Number number : {std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()}) {
    const Value array = owned(zxMake(kind, 1, 1));
    *static_cast<Number*>(zxEditData(array.get(), kind)) = number;
    EXPECT_EQ(zxNumber(owned(zxCopy(array.get())).get()), static_cast<double>(number)) << kind;
  }
}

TEST(Runtime, NumbersOfEveryKindAreCopiedAndRead) {
  expectNumbersOf<double>(ZX_REAL);
  expectNumbersOf<std::int8_t>(ZX_INT8);
  expectNumbersOf<std::int16_t>(ZX_INT16);
  expectNumbersOf<std::int32_t>(ZX_INT32);
  expectNumbersOf<std::int64_t>(ZX_INT64);
  expectNumbersOf<std::uint8_t>(ZX_UINT8);
  expectNumbersOf<std::uint16_t>(ZX_UINT16);
  expectNumbersOf<std::uint32_t>(ZX_UINT32);
  expectNumbersOf<std::uint64_t>(ZX_UINT64);
  expectNumbersOf<unsigned char>(ZX_LOGICAL);
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
  EXPECT_EQ(zxGetImagData(copy.get())[1], 7);
}

TEST(Runtime, TextsComeInBothEncodings) {
  const Value text = owned(zxCreateString("é𝄞\xff"));
  EXPECT_EQ(std::u16string(zxReadText_UTF16(text.get())), u"é𝄞\uFFFD");
  EXPECT_EQ(zxCountOf_32(text.get()), 4);
  EXPECT_STREQ(zxReadText(owned(zxCopy(text.get())).get()), "é𝄞\uFFFD");
}

TEST(Runtime, TextsOfFortranLoseTheirPadding) {
  static std::string printed;
  zxSetWriter([](const char* text, std::size_t length) { printed.append(text, length); });
  zex_print_(" a b  x", 6);
  zex_print_("  ", 2);
  zxSetWriter(nullptr);
  EXPECT_EQ(printed, " a b\n\n");
  EXPECT_EQ(outcome([](auto*, auto**) { zex_fail_("a:b  ", "words ", 5, 6); }), "a:b words");
  EXPECT_STREQ(zxReadText(owned(zx_make_text_("é  ", 4)).get()), "é");
}

}  // namespace
