// How long the names of line types can be.
#pragma once

#include <cstddef>

#include "IAIUnicodeString.h"

namespace Vandrell::Corvane {

constexpr std::size_t kLineTypeNameLength = 31;  // the longest, by ai::UnicodeString::length

inline bool IsLineTypeNameTooLong(const ai::UnicodeString& name) {
  return name.length() > kLineTypeNameLength;
}

// The beginning of a name that is too long, with "..." behind it: in all the longest length, or one less
// where that would cut a character in two.
ai::UnicodeString CutLineTypeName(const ai::UnicodeString& name);

}  // namespace Vandrell::Corvane
