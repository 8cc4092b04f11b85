#include <gtest/gtest.h>
#include <windows.h>

#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "support/Scratch.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace {

using namespace fl::i18n;
using fl::ustring;

TEST(Strings, TheNativeEncodingIsTheCodePage) {
  if (GetACP() != 1252) GTEST_SKIP() << "another code page than the one that the texts are for";
  EXPECT_EQ(to_string(u"grüß €"), "gr\xFC\xDF \x80");
  EXPECT_EQ(to_ustring("gr\xFC\xDF \x80"), u"grüß €");
  EXPECT_EQ(to_string(u"a漢b"), "a?b");
}

TEST(Environment, HoldsWhatTheCodePageCannot) {
  const zex_test::ScopedVariable restored("ZEX_TEST_SET", "old");
  for (const char* value : {"漢 \"ü\" %PATH%", "", ""}) {
    EXPECT_TRUE(setenv("ZEX_TEST_SET", zex_test::utf16(value)));
    EXPECT_EQ(fl::i18n::getenv("ZEX_TEST_SET"), zex_test::utf16(value));
    EXPECT_EQ(zex_test::variable("ZEX_TEST_SET"), value) << "what tools are given";
  }
  for (const std::string& refused : {std::string(), std::string("A=B"), std::string("ZEX\0TEST", 8)})
    EXPECT_FALSE(setenv(refused, u"x"));
  EXPECT_FALSE(setenv("ZEX_TEST_SET", ustring(u"a\0b", 3)));
}

}  // namespace
