#include "fl/i18n/strings.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

#include "fl/i18n/environment.hpp"
#include "foundation/storage/vfs/toAbsoluteIRI.hpp"
#include "support/Scratch.hpp"

namespace {

using namespace fl::i18n;
using fl::ustring;

TEST(Strings, WhatCannotBeConvertedIsReplacedAndTheRestKept) {
  EXPECT_EQ(to_ustring("gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80"), u"grüß 😀");
  EXPECT_EQ(to_string(u"grüß 😀"), "gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80");
  EXPECT_EQ(to_ustring("a\xFF"
                       "b\xC3"),
            u"a\uFFFDb\uFFFD");
  // A cut-off character must not take the next line or quote with it.
  EXPECT_EQ(to_ustring("\xC3\n"), u"\uFFFD\n");
  EXPECT_EQ(to_string(ustring{0xD83D, u'x', 0xDE00}), "\xEF\xBF\xBDx\xEF\xBF\xBD");
  EXPECT_EQ(trim(u"\t a b \n", u" \t\n") + trim(u" \t", u" \t"), u"a b");
  EXPECT_THROW(codecvt_string_to_ustring("latin1"), std::invalid_argument);
}

TEST(Strings, LetterCaseFollowsUnicodeInAnyLocale) {
  EXPECT_EQ(lcctype::transform(u"ÄÖ-Straße.ΩM😀", to_lower), u"äö-straße.ωm😀");
  EXPECT_EQ(lcctype::transform(u"äω.xml", to_upper), u"ÄΩ.XML");
  EXPECT_EQ(lcctype::transform({u'A', 0xD83D, u'B'}, to_lower), (ustring{u'a', 0xD83D, u'b'}));
  EXPECT_EQ(lcctype::compare(u"GCC Ü", u"gcc ü", case_insensitive), 0);
  EXPECT_LT(lcctype::compare(u"B", u"a", case_sensitive), 0);
  EXPECT_GT(lcctype::compare(u"B", u"a", case_insensitive), 0);
}

TEST(Environment, IsReadAndSetWithoutLoss) {
  const zex_test::ScopedVariable unset("ZEX_TEST_VARIABLE", nullptr);
  EXPECT_EQ(fl::i18n::getenv("ZEX_TEST_VARIABLE"), u"");
  EXPECT_TRUE(fl::i18n::setenv("ZEX_TEST_VARIABLE", u"ü 1"));
  EXPECT_EQ(fl::i18n::getenv("ZEX_TEST_VARIABLE"), u"ü 1");
  EXPECT_FALSE(fl::i18n::setenv("A=B", u"x"));
  EXPECT_FALSE(fl::i18n::setenv("ZEX_TEST_VARIABLE", ustring{u'a', u'\0', u'b'}));
}

TEST(ResourceNames, AreAbsoluteAndPercentEncoded) {
  using foundation::storage::vfs::toAbsoluteIRI;
  EXPECT_EQ(toAbsoluteIRI(u"file", u"/home/a b"), u"file:///home/a%20b");
  EXPECT_EQ(toAbsoluteIRI(u"file", u"/é#%?-._~"), u"file:///%C3%A9%23%25%3F-._~");
}

}  // namespace
