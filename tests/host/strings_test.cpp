#include "fl/i18n/strings.hpp"

#include <gtest/gtest.h>

#include "support/texts.hpp"

namespace {

using namespace fl::i18n;
using fl::ustring;
using zex_test::utf16;
using zex_test::utf8;

TEST(Strings, WhatCannotBeConvertedIsReplacedAndTheRestKept) {
  EXPECT_EQ(utf16("gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80"), u"grüß 😀");
  EXPECT_EQ(utf8(u"grüß 😀"), "gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80");
  // A cut-off character must not take the next line or quote with it.
  EXPECT_EQ(utf16("a\xFF-\xC3\n"), u"a\uFFFD-\uFFFD\n");
  EXPECT_EQ(utf8(ustring{0xD83D, u'x', 0xDE00}), "\xEF\xBF\xBDx\xEF\xBF\xBD");
}

TEST(Strings, LetterCaseFollowsUnicodeInAnyLocale) {
  EXPECT_EQ(lcctype::transform(u"ÄÖ-Straße.ΩM😀", to_lower), u"äö-straße.ωm😀");
  EXPECT_EQ(lcctype::transform(u"äω.xml", to_upper), u"ÄΩ.XML");
  EXPECT_EQ(lcctype::compare(u"GCC Ü", u"gcc ü", case_insensitive), 0);
}

}  // namespace
