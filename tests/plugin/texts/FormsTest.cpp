// The small readers behind the check: placeholders, formats of dates, characters, keys.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DateKeys.h"
#include "KeyForm.h"
#include "PrintfConversions.h"
#include "UTF8.h"

namespace texts {
namespace {

TEST(PrintfConversions, AreTakenWhole) {
  EXPECT_THAT(PrintfConversions("%s of %-+ #05.2lf, %*.*d 100%%%zu"),
              testing::Optional(testing::ElementsAre("%s", "%-+ #05.2lf", "%*.*d", "%%", "%zu")));
  for (const char* const format : {"%", "100 %", "%1$s", "%n", "%hs", "%Lp", "%q", "%5", "%.", "%ll"}) {
    EXPECT_EQ(PrintfConversions(format), std::nullopt) << format;
  }
}

TEST(DateFormat, HasNoUnknownLetters) {
  for (const char* const format : {"", "%n. %O %Y", "%02H:%02m", "%-c%%", "\\%q", "%Y年%o月", "%+03.2d"})
    EXPECT_TRUE(IsDateFormat(format)) << format;
  for (const char* const format : {"%", "%0", "%q", "%M", "%Y%", "a\\", "% n", "%02%"})
    EXPECT_FALSE(IsDateFormat(format)) << format;
}

TEST(UTF8, IsMeasuredInUTF16Units) {
  EXPECT_EQ(UTF16Length("aé罫𝄞\U0010FFFF"), 7U);
  for (const char* const text : {"\xE9", "\xC3", "\xC3x", "\x80", "\xC0\x80", "\xE0\x80\xAF", "\xED\xA0\x80",
                                 "\xF4\x90\x80\x80", "\xF0\x82\x82\xAC", "\xFF"}) {
    EXPECT_EQ(UTF16Length(text), std::nullopt) << text;
  }
}

TEST(KeyForm, IsOneForAllWaysToWriteAKey) {
  EXPECT_EQ(CanonicalKey(R"(.Legal\ Notices\.\*.*)"), R"(Legal Notices\.\*.*)");
  EXPECT_EQ(CanonicalKey(KeyOfText("a.b*\\\"\n")), KeyOfText("a.b*\\\"\n"));
}

}  // namespace
}  // namespace texts
