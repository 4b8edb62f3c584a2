#include "LineTypeName.h"

#include <string>
#include <string_view>

namespace Vandrell::Corvane {
namespace {

constexpr std::string_view kEllipsis = "...";

// Of valid UTF-8, by the first byte of a character.
std::size_t UTF16Units(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if ((byte & 0xC0U) == 0x80U) return 0;
  return byte >= 0xF0U ? 2 : 1;
}

}  // namespace

ai::UnicodeString CutLineTypeName(const ai::UnicodeString& name) {
  const std::string bytes = name.as_UTF8();
  std::size_t units = 0, end = 0;
  for (; end < bytes.size(); ++end) {
    units += UTF16Units(bytes[end]);
    if (units > kLineTypeNameLength - kEllipsis.size()) break;
  }
  return ai::UnicodeString(bytes.substr(0, end).append(kEllipsis));
}

}  // namespace Vandrell::Corvane
