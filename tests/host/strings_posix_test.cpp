#include <gtest/gtest.h>

#include "fl/i18n/strings.hpp"

namespace {

TEST(Strings, TheNativeEncodingIsUtf8) {
  EXPECT_EQ(fl::i18n::to_ustring("gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80\xFF"), u"grüß 😀\uFFFD");
  EXPECT_EQ(fl::i18n::to_string(u"grüß 😀"), "gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80");
}

}  // namespace
