#include "SvgQuoted.h"

namespace host {
namespace {

constexpr std::size_t kLongestQuote = 60;

}  // namespace

std::string quoted(std::string_view text) {
  std::string result = "\"";
  std::size_t end = text.size();
  if (end > kLongestQuote) {
    end = kLongestQuote;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;
  }
  for (const char c : text.substr(0, end)) result += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
  if (end < text.size()) result += "...";
  return result + '"';
}

}  // namespace host
