#include "Utf8.h"

#include <gtest/gtest.h>

namespace {

using host::utf16Length;
using host::utf8Prefix;
using host::validUtf8;

// The examples of the Unicode Standard, tables 3-8 to 3-11.
TEST(ValidUtf8, ReplacesEachMaximalSubpartAndNothingElse) {
  const std::string r = "\xEF\xBF\xBD", sound("a\0b \xC3\xA4 \xE5\x88\x87 \xF0\x9F\x98\x80 \xED\x9F\xBF", 19);
  const std::pair<std::string, std::string> cases[] = {
      {"\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41", r + r + r + r + r + r + r + r + "A"},    // overlong
      {"\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41", r + r + r + r + r + r + r + r + "A"},    // surrogates
      {"\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42", r + r + r + r + r + "A" + r + r + "B"},  // beyond U+10FFFF
      {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", r + r + r + r + "A"},                    // cut short
      {"ab\xE2\x82", "ab" + r},
      {sound, sound},
  };
  for (const auto& [bytes, text] : cases) EXPECT_EQ(validUtf8(bytes), text);
}

TEST(Utf8, LengthsCountSurrogatePairsAsTwoAndPrefixesEndBeforeAWholeCharacter) {
  const std::string text = "\xC3\xA4\xE5\x88\x87\xF0\x9F\x98\x80";  // 2, 3 and 4 bytes
  EXPECT_EQ(utf16Length(text), 4U);
  const std::size_t expected[] = {0, 0, 2, 2, 2, 5, 5, 5, 5, 9, 9};
  for (std::size_t size = 0; size < std::size(expected); ++size) {
    EXPECT_EQ(utf8Prefix(text, size).size(), expected[size]) << size;
  }
}

}  // namespace
