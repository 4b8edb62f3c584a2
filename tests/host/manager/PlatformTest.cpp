// What plug-ins get from the operating system, in buffers of their own.
#include "Platform.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <string>
#include <tuple>

namespace {

TEST(Platform, LanguageIsCopiedIfItFits) {
  setenv("LANGUAGE", "pt_BR:de", 1);
  std::array<char, 16> tag{"before"};
  EXPECT_FALSE(CopyPreferredLanguage(tag.data(), 5));
  EXPECT_STREQ(tag.data(), "before");
  EXPECT_FALSE(CopyPreferredLanguage(nullptr, 16));
  EXPECT_TRUE(CopyPreferredLanguage(tag.data(), 6));
  EXPECT_STREQ(tag.data(), "pt-BR");
  setenv("LANGUAGE", "C", 1);
  EXPECT_FALSE(CopyPreferredLanguage(tag.data(), tag.size()));
}

TEST(Platform, NormalFormStaysInItsBuffer) {
  // U+1D15E is longer in its normal form: eight bytes for four.
  const std::string note = "\xF0\x9D\x85\x9E", composed = "\xF0\x9D\x85\x97\xF0\x9D\x85\xA5";
  const std::tuple<std::string, std::size_t, NormalFormResult, std::string> rows[] = {
      {"u\xCC\x88", 4, NormalFormResult::Done, "\xC3\xBC"},
      {"", 1, NormalFormResult::Done, ""},
      {note, 9, NormalFormResult::Done, composed},
      {note, 8, NormalFormResult::TooLong, note},
      {"a\xCC\x82\xCC\xA3", 8, NormalFormResult::Done, "\xE1\xBA\xAD"},  // marks out of their order
      {"\xEF\xAC\x81", 8, NormalFormResult::Done, "\xEF\xAC\x81"},       // a ligature is kept in form C
      {"\xED\xA0\x80", 16, NormalFormResult::NotUTF8, "\xED\xA0\x80"},   // a surrogate
      {"caf\xE9", 16, NormalFormResult::NotUTF8, "caf\xE9"}};
  for (const auto& [text, size, result, after] : rows) {
    std::array<char, 32> buffer{};
    text.copy(buffer.data(), text.size());
    buffer[size] = 'x';  // what lies behind is not the function's
    EXPECT_EQ(NormalizeFormC(buffer.data(), size), result);
    EXPECT_STREQ(buffer.data(), after.c_str());
    EXPECT_EQ(buffer[size], 'x');
  }
}

}  // namespace
