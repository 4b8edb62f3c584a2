#include "Utf8Characters.h"

namespace host {
namespace {

// Length of the character that begins with this byte, 0 if none does.
std::size_t lengthFrom(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xF0 && lead < 0xF5) return 4;
  return 0;
}

bool isEncodable(char32_t c, std::size_t length) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  return c >= kLeast[length] && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

}  // namespace

void appendUtf8(std::string& text, char32_t c) {
  const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

char32_t takeUtf8(std::string_view& text) {
  const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const std::size_t length = lengthFrom(byte(0));
  constexpr char32_t kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  char32_t c = byte(0) & kLeadBits[length];
  bool valid = length > 0 && length <= text.size();
  for (std::size_t i = 1; valid && i < length; ++i) {
    valid = (byte(i) & 0xC0) == 0x80;
    c = (c << 6) | (byte(i) & 0x3F);
  }
  if (!valid || !isEncodable(c, length)) {
    text.remove_prefix(1);
    return kReplacementCharacter;
  }
  text.remove_prefix(length);
  return c;
}

}  // namespace host
