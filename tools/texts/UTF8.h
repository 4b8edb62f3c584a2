// Bytes as characters.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace texts {

// The length of UTF-8 in UTF-16 units. None if the bytes are not UTF-8: sequences cut short or longer than
// needed, surrogates, and values above U+10FFFF count as faults.
std::optional<std::size_t> UTF16Length(std::string_view text);

}  // namespace texts
