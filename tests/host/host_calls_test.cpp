#include "zx/host_calls.hpp"

#include <gtest/gtest.h>

#include "host/values.hpp"
#include "korvane/String.hpp"
#include "korvane/TException.hpp"
#include "standalone/HostValue.hpp"

namespace {

using Value = std::unique_ptr<zxArray, decltype(&zxDestroyArray)>;

Value owned(zxArray* value) {
  return {value, zxDestroyArray};
}

Value text(const char* words) {
  return owned(zxCreateString(words));
}

std::optional<fl::ustring> field(zxArray* object, const char* name) {
  const Value fieldName = text(name);
  zxArray* inputs[] = {object, fieldName.get()};
  zxArray* output = object;
  const int status = zexCallTESSEL_800(1, &output, 2, inputs, "getfield");
  EXPECT_EQ(status == 0, output != nullptr);
  const Value result = owned(output);
  return result ? Korvane::String::getString(result.get()) : std::nullopt;
}

fl::ustring failureOf(const char* function, std::vector<zxArray*> inputs) {
  const Value failure =
      owned(zexCallTESSELWithTrap_800(0, nullptr, static_cast<int>(inputs.size()), inputs.data(), function));
  if (!failure) return u"no failure";
  EXPECT_NE(field(failure.get(), "message").value_or(u""), u"") << "a failure without words would be dropped";
  return field(failure.get(), "identifier").value_or(u"no identifier");
}

TEST(HostValues, TextsKeepTheirContent) {
  EXPECT_EQ(Korvane::String::getString(text("ü\xff").get()), u"ü\uFFFD");
  EXPECT_EQ(Korvane::String::getString(owned(zxCreateString_UTF16(u"𝄞é")).get()), u"𝄞é");
  const Value missing = owned(host::standalone::handedOver({host::standalone::HostValue::StringScalar{}}));
  EXPECT_TRUE(Korvane::String::isString(missing.get()));
  EXPECT_EQ(Korvane::String::getString(missing.get()), std::nullopt);
  EXPECT_FALSE(Korvane::String::isString(owned(host::createException("a:b", u"")).get()));
  EXPECT_FALSE(Korvane::String::isString(nullptr));
  zxDestroyArray(nullptr);
}

TEST(HostCalls, GetfieldReadsAnExceptionObject) {
  const Value object = owned(host::createException("TESSEL:host:Tag", u"Wörter"));
  EXPECT_EQ(field(object.get(), "identifier"), u"TESSEL:host:Tag");
  EXPECT_EQ(field(object.get(), "message"), u"Wörter");
  EXPECT_EQ(field(object.get(), "other"), std::nullopt);
}

TEST(HostCalls, EveryFailureHasBothTexts) {
  const Value word = text("word");
  const Value object = owned(host::createException("a:b", u"c"));
  EXPECT_EQ(failureOf("no such function", {}), u"TESSEL:host:UnknownFunction");
  EXPECT_EQ(failureOf("zl", {word.get()}), u"TESSEL:host:UnknownFunction");
  EXPECT_EQ(failureOf("zl", {}), u"TESSEL:host:TextExpected");
  EXPECT_EQ(failureOf("zl", {object.get()}), u"TESSEL:host:TextExpected");
  EXPECT_EQ(failureOf("getfield", {word.get()}), u"TESSEL:host:TextExpected");
  EXPECT_EQ(failureOf("getfield", {word.get(), word.get()}), u"TESSEL:host:ObjectExpected");
  EXPECT_EQ(failureOf("getfield", {object.get(), word.get()}), u"TESSEL:host:NoSuchField");
}

TEST(HostErrors, KeepTheIdentifierInItsParts) {
  using Korvane::TException::TExceptionEnvelope;
  try {
    TExceptionEnvelope(TExceptionEnvelope("a:b:Tag", u"words", nullptr, true), nullptr, false).DoThrow();
  } catch (const foundation::core::except::IMsgIDException& error) {
    EXPECT_EQ(error.message().component() + " " + error.message().tag(), "a:b Tag");
    EXPECT_EQ(error.message().argument(0), u"words");
    EXPECT_EQ(error.error_id(), "a:b:Tag");
  }
}

}  // namespace
