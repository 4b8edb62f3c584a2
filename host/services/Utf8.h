// UTF-8 text: making it valid, measuring it, cutting it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

// The text with every ill-formed sequence replaced by U+FFFD: one for each maximal subpart, as the Unicode
// Standard recommends (chapter 3.9, "U+FFFD Substitution of Maximal Subparts").
std::string validUtf8(std::string_view bytes);

// UTF-16 code units of valid UTF-8.
std::size_t utf16Length(std::string_view text);

// The longest beginning of valid UTF-8 that has at most `maxBytes` bytes and ends between characters.
std::string_view utf8Prefix(std::string_view text, std::size_t maxBytes);

}  // namespace host
