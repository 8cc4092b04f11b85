#include "zx/host_calls.hpp"

#include <gtest/gtest.h>

#include "host/values.hpp"
#include "korvane/String.hpp"

namespace {

using Value = std::unique_ptr<zxArray, decltype(&zxDestroyArray)>;

Value owned(zxArray* value) {
  return {value, zxDestroyArray};
}

std::optional<fl::ustring> field(zxArray* object, const char* name) {
  const Value fieldName = owned(zxCreateString(name));
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

TEST(HostCalls, EveryFailureHasBothTexts) {
  const Value word = owned(zxCreateString("word"));
  const Value object = owned(host::createException("a:b", u"c"));
  EXPECT_EQ(failureOf("no such function", {}), u"TESSEL:host:UnknownFunction");
  EXPECT_EQ(failureOf("zl", {object.get()}), u"TESSEL:host:TextExpected");
  EXPECT_EQ(failureOf("getfield", {word.get(), word.get()}), u"TESSEL:host:ObjectExpected");
  EXPECT_EQ(failureOf("getfield", {object.get(), word.get()}), u"TESSEL:host:NoSuchField");
}

}  // namespace
