#include "zx/host_calls.hpp"

#include <gtest/gtest.h>

#include "host/values.hpp"
#include "korvane/String.hpp"

namespace {

struct Value : std::unique_ptr<zxArray, decltype(&zxDestroyArray)> {
  explicit Value(zxArray* array) : unique_ptr(array, zxDestroyArray) {}
};

std::optional<fl::ustring> field(const Value& object, const char* name) {
  const Value text(zxCreateString(name));
  zxArray* inputs[] = {object.get(), text.get()};
  zxArray* output = nullptr;
  EXPECT_EQ(zexCallTESSEL_800(1, &output, 2, inputs, "getfield"), 0);
  return Korvane::String::getString(Value(output).get());
}

TEST(HostCalls, AFailureHasBothTextsAndLeavesNoOutput) {
  const Value word(zxCreateString("word")), object(host::createException("a:b", u"c"));
  const struct {
    const char* function;
    zxArray* input;
    fl::ustring identifier;
  } rows[] = {{"no such function", object.get(), u"TESSEL:host:UnknownFunction"},
              {"zl", object.get(), u"TESSEL:host:TextExpected"},
              {"getfield", word.get(), u"TESSEL:host:ObjectExpected"},
              {"getfield", object.get(), u"TESSEL:host:NoSuchField"}};
  for (const auto& [function, input, identifier] : rows) {
    zxArray* inputs[] = {input, word.get()};
    zxArray* output = input;
    const Value failure(zexCallTESSELWithTrap_800(1, &output, 2, inputs, function));
    EXPECT_EQ(output, nullptr);
    EXPECT_EQ(field(failure, "identifier"), identifier);
    EXPECT_NE(field(failure, "message"), u"") << "a failure without words would be dropped";
  }
}

}  // namespace
