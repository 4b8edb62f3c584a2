// Characters in and out of UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace host {

constexpr char32_t kReplacementCharacter = 0xFFFD;

void appendUtf8(std::string& text, char32_t character);

// Takes the first character of `text`, which is not empty. A byte that begins no well-formed character is
// taken alone and comes out as kReplacementCharacter.
char32_t takeUtf8(std::string_view& text);

}  // namespace host
