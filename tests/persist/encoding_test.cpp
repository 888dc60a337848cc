// Telling UTF-8 from Windows-1252.
#include "persist/encoding.hpp"

#include <gtest/gtest.h>

namespace dialwright {
namespace {

TEST(Encoding, KnowsWellFormedUtf8) {
  for (const char* good : {"", "plain", "23.44° Secciòn", "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF",
                           "12345678\xC3\xA8"
                           "12345678"}) {
    EXPECT_TRUE(isUtf8(good)) << good;
  }
  for (const char* bad :
       {"\x80", "\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
        "\xF5\x80\x80\x80", "\xE2\x82", "12345678\xB0", "\xE2\x28\xA1"}) {
    EXPECT_FALSE(isUtf8(bad)) << bad;
  }
}

TEST(Encoding, DecodesWindows1252) {
  EXPECT_EQ(decodeText("23.44\xB0 \x80 Fran\xE7"
                       "ais \x92\xFF\x9F"),
            "23.44° € Français ’ÿŸ");
  EXPECT_EQ(decodeText("\xEF\xBB\xBFGià"), "Già");
}

}  // namespace
}  // namespace dialwright
