#include "NormalForm.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace host {
namespace {

TEST(NormalForm, IsComposed) {
  const std::vector<std::pair<std::string, std::string>> table{
      {"plain/path", "plain/path"},
      {"u\xCC\x88 \xC3\xBC", "\xC3\xBC \xC3\xBC"},               // u with diaeresis
      {"a\xCC\x82\xCC\xA3", "\xE1\xBA\xAD"},                     // marks out of their order
      {"\xE1\x84\x92\xE1\x85\xA1\xE1\x86\xAB", "\xED\x95\x9C"},  // Hangul from its jamos
      {"\xEF\xAC\x81", "\xEF\xAC\x81"},                          // a ligature is kept in form C
      {"\xF0\x9D\x85\x9E", "\xF0\x9D\x85\x97\xF0\x9D\x85\xA5"},  // beyond the first plane
  };
  for (const auto& [text, normal] : table) EXPECT_EQ(normalFormC(text), normal) << text;
}

TEST(NormalForm, NeedsWellFormedText) {
  for (const char* text : {"\x80", "caf\xE9", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "a\xE2\x82"}) {
    EXPECT_EQ(normalFormC(text), std::nullopt);
  }
}

}  // namespace
}  // namespace host
