#include "NormalForm.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace host {
namespace {

TEST(NormalForm, IsComposed) {
  const std::vector<std::pair<std::string, std::string>> table{
      {"", ""},
      {"plain/path", "plain/path"},
      {"u\xCC\x88", "\xC3\xBC"},                                 // u with diaeresis
      {"\xC3\xBC", "\xC3\xBC"},                                  // composed already
      {"a\xCC\xA3\xCC\x82", "\xE1\xBA\xAD"},                     // dot below and circumflex,
      {"a\xCC\x82\xCC\xA3", "\xE1\xBA\xAD"},                     // in either order
      {"\xE2\x84\xAB", "\xC3\x85"},                              // the sign angstrom is a letter
      {"\xE1\x84\x92\xE1\x85\xA1\xE1\x86\xAB", "\xED\x95\x9C"},  // Hangul from its jamos
      {"\xE3\x81\x8B\xE3\x82\x99", "\xE3\x81\x8C"},              // kana with its voiced mark
      {"\xEF\xAC\x81", "\xEF\xAC\x81"},                          // a ligature is kept in form C
      {"\xE0\xA4\x95\xE0\xA4\xBC", "\xE0\xA4\x95\xE0\xA4\xBC"},  // excluded from composition
      {"\xF0\x9D\x85\x9E", "\xF0\x9D\x85\x97\xF0\x9D\x85\xA5"},  // beyond the first plane
      {"\xEF\xBF\xBD", "\xEF\xBF\xBD"},                          // a replacement that was there
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
