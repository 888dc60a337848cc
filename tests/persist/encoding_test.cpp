// Telling UTF-8 from Windows-1252.
#include "persist/encoding.hpp"

#include <gtest/gtest.h>

namespace dialwright {
namespace {

TEST(Encoding, TakesWellFormedUtf8AsItIs) {
  for (const char* good :
       {"", "plain", "23.44° Secciòn", "12345678è12345678", "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF"})
    EXPECT_EQ(decodeText(good), good);
  EXPECT_EQ(decodeText("\xEF\xBB\xBFGià"), "Già");
}

TEST(Encoding, DecodesTheRestAsWindows1252) {
  for (const char* bad : {"\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                          "\xF5\x80\x80\x80", "\xE2\x82", "12345678\xB0", "\xE2\x28\xA1"})
    EXPECT_NE(decodeText(bad), bad);
  EXPECT_EQ(decodeText("23.44\xB0 \x80 \x92\xFF\x9F"), "23.44° € ’ÿŸ");
}

}  // namespace
}  // namespace dialwright
